"""Data out and in with the built program, without a browser and without a display: every form of export read by another
reader, and what was imported compared with what was there."""
import csv
import json
import os
import re
import shutil
import sqlite3
import subprocess
import unittest
import zipfile
from xml.etree import ElementTree

import trawlex

ROWS = [("2024-05-01", 1, "ann@site.com", "http://www.site.com/a.htm"),
        ("2024-05-02", 15, "=1+1", 'say "hi", Zoë'),
        ("2024-05-03", 5, "it's", "www.other.org/b.htm")]
FORMS = ["html", "comma", "tab", "dat", "csv", "jsonl", "xlsx", "sqlite"]


def sheet_rows(path):
    """The cells of the first sheet, as texts."""
    with zipfile.ZipFile(path) as book:
        sheet = ElementTree.fromstring(book.read("xl/worksheets/sheet1.xml"))
    name = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"
    return [["".join(cell.itertext()) for cell in row.iter(name + "c")] for row in sheet.iter(name + "row")]


class DataTest(trawlex.Case):
    def setUp(self):
        super().setUp()
        self.database = self.new_database("mine")
        with sqlite3.connect(self.database) as made:
            made.executemany("INSERT INTO EmailAddress(Date,SSIndex,Address,Url) VALUES(?,?,?,?)", ROWS)
        made.close()

    def new_database(self, name):
        folder = os.path.join(self.folder, name)
        os.mkdir(folder)
        self.run_in(folder, "--export", "UrlsCache", "--format", "csv", "--to", folder + "/none.csv")
        return os.path.join(folder, "Trawlex-0.mdb")

    def run_in(self, folder, *words):
        return subprocess.run([trawlex.HARVESTER, "--database-dir", folder, *words], env=self.env, capture_output=True,
                              text=True, timeout=60, check=False)

    def export(self, form, *words):
        path = os.path.join(self.folder, "out." + form)
        done = self.run_in(os.path.dirname(self.database), "--export", "EmailAddress", "--format", form, "--to", path, *words)
        return done, path

    def test_every_form_is_written_once_and_never_replaced(self):
        for form in FORMS:
            with self.subTest(form=form):
                done, path = self.export(form)
                self.assertEqual(done.returncode, 0, done.stderr)
                self.assertIn(path + " written", done.stderr)
                with open(path, "rb") as file:
                    before = file.read()
                again, _ = self.export(form)
                self.assertEqual(again.returncode, 1)
                self.assertIn("File already exists", again.stderr)
                with open(path, "rb") as file:
                    self.assertEqual(file.read(), before)

    def test_other_readers_find_the_rows(self):
        paths = {form: self.export(form)[1] for form in FORMS}
        with open(paths["csv"], encoding="utf-8-sig", newline="") as file:
            read = list(csv.reader(file))
        self.assertEqual(read[0], ["Index", "Date", "SSIndex", "Address", "Url"])
        self.assertEqual(read[2], ["2", "2024-05-02", "15", "'=1+1", ROWS[1][3]])
        with open(paths["jsonl"], encoding="utf-8") as file:
            lines = [json.loads(line) for line in file]
        self.assertEqual([tuple(line.values())[1:] for line in lines], ROWS)
        cells = sheet_rows(paths["xlsx"])
        self.assertEqual(cells[2][3:], ["=1+1", ROWS[1][3]])
        self.assertEqual(trawlex.rows(paths["sqlite"], "EmailAddress", ["Date", "SSIndex", "Address", "Url"]), ROWS)
        with open(paths["comma"], encoding="utf-8", newline="") as file:
            self.assertTrue(file.read().startswith("1,2024-05-01,1,ann@site.com,http://www.site.com/a.htm\r\n"))
        with open(paths["html"], encoding="utf-8-sig", newline="") as file:
            self.assertIn('<A Href="http://www.other.org/b.htm">', file.read())

    def test_a_number_asks_for_what_is_equal_a_text_for_what_holds_it(self):
        for where, count in (("SSIndex=5", 1), ("Address=SITE", 1), ("Address=nowhere", 0)):
            done, path = self.export("jsonl", "--where", where)
            self.assertEqual(done.returncode, 0 if count else 1, where)
            if not count:
                self.assertIn("No records in recordset", done.stderr)
                self.assertFalse(os.path.exists(path))
                continue
            with open(path, encoding="utf-8") as file:
                self.assertEqual(len(file.readlines()), count)
            os.remove(path)

    def test_what_goes_wrong_is_told_and_leaves_no_file(self):
        folder = os.path.dirname(self.database)
        wrong = [(["--to", self.folder + "/gone/out.csv"], "Path not found"), (["--to", "/proc/out.csv"], "/proc"),
                 (["--to", self.folder + "/out.csv", "--where", "Address=it's"], "Nothing exported")]
        for words, told in wrong:
            with self.subTest(words=words):
                done = self.run_in(folder, "--export", "EmailAddress", "--format", "csv", *words)
                self.assertEqual(done.returncode, 1, done.stderr)
                self.assertIn(told, done.stderr)
                self.assertFalse([name for name in os.listdir(self.folder) if "out" in name])
        for where, count in (("Address=%@%", 1), ("Address=[a]", 0), ("Url=say \"hi\"", 1)):
            done, path = self.export("csv", "--where", where)
            self.assertEqual(done.returncode, 0 if count else 1, where)
            self.assertEqual(os.path.exists(path), bool(count))
            if count:
                os.remove(path)

    @unittest.skipUnless(shutil.which("soffice"), "LibreOffice is not installed: apt-get install libreoffice-calc-nogui")
    def test_the_spreadsheet_opens_every_form_that_is_one(self):
        """The saved recordset, JSON Lines and the SQLite database are for other readers."""
        filters = {"html": ["--infilter=HTML (StarCalc)"], "xlsx": [], "csv": ["--infilter=CSV:44,34,76"], "comma": ["--infilter=CSV:44,34,76"],
                   "tab": ["--infilter=CSV:9,34,76"]}
        for form, words in filters.items():
            with self.subTest(form=form):
                _, path = self.export(form)
                source = self.folder + {"comma": "/commas.csv", "tab": "/tabs.csv"}.get(form, "/out." + form)
                os.rename(path, source) if source != path else None
                out = os.path.join(self.folder, "read-" + form)
                subprocess.run(["soffice", f"-env:UserInstallation=file://{self.folder}/office", "--headless", *words,
                                "--convert-to", "csv:Text - txt - csv (StarCalc):44,34,76", "--outdir", out, source], env=self.env, check=True, timeout=120,
                               capture_output=True)
                with open(os.path.join(out, os.listdir(out)[0]), encoding="utf-8-sig", newline="") as file:
                    text = file.read()
                for cell in ("ann@site.com", "http://www.site.com/a.htm", "it's", "Zoë"):
                    self.assertIn(cell, text)
                if form in ("csv", "xlsx"):
                    self.assertIn("=1+1", text, "shown, not run")

    def test_what_was_exported_and_imported_is_what_was_there(self):
        other = self.new_database("other")
        done = self.run_in(os.path.dirname(other), "--import", self.database, "--settings", "--data")
        self.assertEqual(done.returncode, 0, done.stderr)
        columns = ["Date", "SSIndex", "Address", "Url"]
        self.assertEqual(trawlex.rows(other, "EmailAddress", columns), ROWS)
        self.assertLess(done.stderr.index("Settings Imported"), done.stderr.index("Data Imported"))
        _, copy = self.export("sqlite")
        done = self.run_in(os.path.dirname(other), "--import", copy, "--field", "EmailAddress.Address=MNUrlsA.Url")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(trawlex.rows(other, "MNUrlsA", ["Url"]), [(row[2],) for row in ROWS])
        done = self.run_in(os.path.dirname(other), "--import", copy, "--data")
        self.assertEqual(done.returncode, 1)
        self.assertIn("Not an Trawlex database", done.stderr)

    def test_the_loaded_database_is_refused_by_whatever_name(self):
        link = os.path.join(self.folder, "link.mdb")
        os.symlink(self.database, link)
        done = self.run_in(os.path.dirname(self.database), "--import", link, "--data")
        self.assertEqual(done.returncode, 1)
        self.assertIn("Can't import loaded database", done.stderr)

    def test_no_browser_is_started(self):
        done, _ = self.export("csv")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertFalse([line for _, line in trawlex.processes(self.folder) if re.search("chrom|browser", line)])


if __name__ == "__main__":
    unittest.main()
