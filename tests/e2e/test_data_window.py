"""The Data tab under a virtual display, by real clicks and keys: rows are filtered, exported in every form, sorted, deleted,
and imported again from a copy; what each file holds is compared with what was there. Every step waits for what it must
have brought about, so that a slow machine changes nothing."""
import contextlib
import csv
import json
import os
import sqlite3
import subprocess
import time
import unittest

import test_data
import trawlex
import window

COLUMNS = ["Date", "SSIndex", "Address", "Url"]
ROWS = [("2024-05-01", 1, "mia@site.com", "http://www.site.com/a.htm"),
        ("2024-05-02", 2, "zoe@site.com", 'say "hi", Zoë'),
        ("2024-05-03", 3, "ann@other.org", "http://www.other.org/b.htm"),
        ("2024-05-04", 4, "=1+1@site.com", "www.site.com/c.htm"),
        ("2024-05-05", 5, "bob@other.org", "http://www.other.org/d.htm")]
FILTERED = [(str(index), *map(str, row)) for index, row in enumerate(ROWS, 1) if "site" in row[2]]
# The sub-menu's items from the top, and what each writes; the second text file takes the next number.
EXPORTS = ["EmailAddress-0.htm", "EmailAddress-0.txt", "EmailAddress-1.txt", "EmailAddress-0.dat", "EmailAddress-0.csv",
           "EmailAddress-0.jsonl", "EmailAddress-0.xlsx", "EmailAddress-0.sqlite"]


def text(path, encoding="utf-8"):
    with open(path, encoding=encoding, newline="") as file:
        return file.read()


def table_rows(path, table):
    return [tuple(map(str, row)) for row in trawlex.rows(path, table, ["Index", *COLUMNS])]


class DataWindow(window.WindowCase):
    def setUp(self):
        super().setUp()
        self.start_anew(lstDCoTmr="0")
        with contextlib.closing(sqlite3.connect(self.database)) as made, made:
            made.executemany(f"INSERT INTO EmailAddress({','.join(COLUMNS)}) VALUES(?,?,?,?)", ROWS)
        self.click("sstSearch(3)")
        self.choose("cboDBTables", 1)

    def keys(self, *names):
        self.display.do("key", "--delay", "40", *names)

    def windows(self):
        """The windows and pop-ups of the program that can be seen."""
        return set(self.display.do("search", "--onlyvisible", "--pid", self.window.pid))

    def opened(self, what, action):
        """The pop-up that comes when `action` is done. It takes keys a moment after it can be seen."""
        before = self.windows()
        action()
        found = trawlex.wait_for(lambda: self.windows() - before, 20, what)
        time.sleep(0.3)
        return next(iter(found))

    def choose_end(self, menu, item):
        """Presses the first item of a menu (0) or the last one (-1)."""
        geometry = dict(part.split("=") for part in self.display.do("getwindowgeometry", "--shell", menu) if "=" in part)
        self.display.do("mousemove", "--window", menu, 30, 12 if item == 0 else int(geometry["HEIGHT"]) - 12)
        self.display.do("click", 1)

    def choose(self, combo, row):
        before = self.windows()
        self.opened(combo, lambda: self.click(combo))
        self.keys("Home", *["Down"] * row, "Return")
        trawlex.wait_for(lambda: self.windows() <= before, 20, combo + " is closed")

    def first_cell(self, *more):
        """The grid has the focus, its first cell is the one in use."""
        self.click("fxgTrawlex")
        self.keys("ctrl+Home", *more)

    def delete_selected(self):
        self.choose_end(self.opened("the grid's menu", lambda: self.keys("Menu")), -1)

    def status_menu(self):
        return self.opened("the status bar's menu", lambda: self.click("picStatus", button=3))

    def export(self, item, name):
        menu = self.status_menu()
        self.opened("the exports", lambda: self.choose_end(menu, 0))
        self.keys(*["Down"] * (item + 1), "Return")
        path = os.path.join(os.path.dirname(self.database), name)
        trawlex.wait_for(lambda: os.path.exists(path), 30, name)
        return path

    def import_all(self):
        """The box can be used once the file has been looked at: a press that came too early is repeated."""
        for _ in range(4):
            self.click("chkSFIAllData", left=10)
            self.click("cmdSFIImport")
            with contextlib.suppress(AssertionError):
                return trawlex.wait_for(self.addresses, 10, "the rows come")

    def addresses(self):
        return [row[0] for row in trawlex.rows(self.database, "EmailAddress", ["Address"])]

    def wait_for_addresses(self, wanted, what):
        with contextlib.suppress(AssertionError):   # what differs is told below
            trawlex.wait_for(lambda: self.addresses() == wanted, 30, what)
        self.assertEqual(self.addresses(), wanted, what)

    def copied(self):
        """The cells that Ctrl+A and Ctrl+C take, row by row."""
        self.first_cell("ctrl+a", "ctrl+c")
        done = subprocess.run(["xclip", "-selection", "clipboard", "-out"], env=self.env, capture_output=True, timeout=20, check=False)
        return [tuple(line.split("\t")) for line in done.stdout.decode().split("\r\n")]

    def wait_for_copied(self, wanted, what):
        with contextlib.suppress(AssertionError):   # what differs is told below
            trawlex.wait_for(lambda: self.copied() == wanted, 20, what)
        self.assertEqual(self.copied(), wanted, what)

    def end(self):
        def press():
            self.display.do("key", "Escape")    # what a slow machine has opened late
            self.click("picANEnd")

        self.end_by(press)

    def test_what_is_filtered_is_exported_in_every_form(self):
        self.choose("cboDBFields", 3)
        self.click("txtDBQuery")
        self.display.do("type", "--delay", "30", "SITE")
        paths = [self.export(item, name) for item, name in enumerate(EXPORTS)]
        html, tab, comma, saved, commas, lines, sheet, copy = paths
        self.assertEqual(text(html, "utf-8-sig").count("<TR><TD>"), 1 + len(FILTERED))
        self.assertIn('<A Href="http://www.site.com/c.htm">', text(html, "utf-8-sig"))
        self.assertEqual(text(tab), "".join("\t".join(row) + "\t\r\n\r\n" for row in FILTERED))
        self.assertEqual(text(comma), "".join(",".join(row) + "\r\n" for row in FILTERED) + "\r\n")
        self.assertEqual(table_rows(saved, "Recordset"), FILTERED)
        self.assertEqual(table_rows(copy, "EmailAddress"), FILTERED)
        read = [tuple(cell.removeprefix("'") for cell in row) for row in csv.reader(text(commas, "utf-8-sig").splitlines())]
        self.assertEqual(read[1:], FILTERED)
        self.assertEqual([tuple(map(str, json.loads(line).values())) for line in text(lines).splitlines()], FILTERED)
        self.assertEqual([row[3:] for row in test_data.sheet_rows(sheet)[1:]], [list(row[3:]) for row in FILTERED])
        self.end()

    def test_rows_are_sorted_deleted_and_imported_again(self):
        copy = os.path.join(self.folder, "copy.mdb")
        with contextlib.closing(sqlite3.connect(self.database)) as made, contextlib.closing(sqlite3.connect(copy)) as other:
            made.backup(other)
        for _ in range(2):  # on the head "Index": the second click sorts down, so that the last row stands first
            self.click("fxgTrawlex", left=20, top=10)
        self.first_cell()
        self.delete_selected()
        left = [row[2] for row in ROWS]
        self.wait_for_addresses(left[:4], "the row that was sorted to the top is gone")
        self.first_cell("shift+Down", "shift+Down")
        self.delete_selected()
        self.wait_for_addresses(left[3:4], "three rows are gone")
        self.first_cell()
        self.delete_selected()
        self.wait_for_addresses([], "the last row is gone")
        self.go_to("sstSearch(2)", "sstSettings(1)", "sstFiles(1)")
        self.click("cmdSFISelDatabase")
        self.answer("Select File", copy)
        self.import_all()
        self.wait_for_addresses(left, "all rows are back")
        self.assertEqual(trawlex.rows(self.database, "EmailAddress", COLUMNS), ROWS)
        self.end()

    def test_a_saved_recordset_is_loaded_again_and_its_rows_belong_to_no_table(self):
        path = self.export(3, EXPORTS[3])
        self.first_cell()
        self.delete_selected()
        self.wait_for_addresses([row[2] for row in ROWS[1:]], "a row is gone")
        self.choose_end(self.status_menu(), -1)
        self.answer("Select File", path)
        self.wait_for_copied([(str(index), *map(str, row)) for index, row in enumerate(ROWS, 1)], "the rows of the file are shown")
        self.first_cell()
        self.keys("Menu", "Up", "Return")   # would delete, if a menu opened
        time.sleep(1)
        self.wait_for_addresses([row[2] for row in ROWS[1:]], "nothing is deleted from rows without a table")
        self.end()

    def test_a_field_of_an_exported_file_is_imported_again(self):
        path = self.export(7, EXPORTS[7])
        self.first_cell("shift+Down", "shift+Down", "shift+Down", "shift+Down")
        self.delete_selected()
        self.wait_for_addresses([], "all rows are gone")
        self.go_to("sstSearch(2)", "sstSettings(1)", "sstFiles(1)")
        self.click("cmdSFISelDatabase")
        self.answer("Select File", path)
        # EmailAddress.Address, of the file and of the database.
        for combo, row in (("cboSFITableIn", 0), ("cboSFIFieldIn", 3), ("cboSFITableExisting", 6), ("cboSFIFieldExisting", 3)):
            self.choose(combo, row)
        self.click("chkSFIImportField", left=10)
        self.click("cmdSFIImport")
        self.wait_for_addresses([row[2] for row in ROWS], "the field of the exported rows is back")
        self.end()


if __name__ == "__main__":
    unittest.main()
