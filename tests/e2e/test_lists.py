"""Lists and series from the command line: filled, kept, printed, walked and fetched; a browser only where one is needed."""
import contextlib
import json
import os
import pathlib
import re
import signal
import sqlite3
import subprocess
import unittest

import trawlex

PAGES = "http://www.pier-pictures.com/boats-{}.html"
PICTURES = trawlex.ROOT / "demo/sites/www.pier-pictures.com"
LIST_OF_PAGES = [PAGES.format(number) for number in (3, 1, 2)]


class ListCase(trawlex.Case):
    def setUp(self):
        super().setUp()
        self.database = os.path.join(self.folder, "Trawlex-0.mdb")
        self.pictures = pathlib.Path(self.folder, "pictures")
        self.pictures.mkdir()

    def words(self, *words, **switches):
        words = [trawlex.HARVESTER, "--database-dir", self.folder, "--headless", "--until-loaded", *words]
        for switch in trawlex.demo_harvest.browser_switches(self.demo.port):
            words += ["--browser-arg", switch]
        for name, value in switches.items():
            words += ["--set", f"{name}={value}"]
        return words

    def run_with(self, *words, **switches):
        done = subprocess.run(self.words(*words, **switches), env=self.env, capture_output=True, timeout=300, check=False)
        done.stdout, done.stderr = done.stdout.decode("utf-8"), done.stderr.decode("utf-8")
        return done

    def report(self, *words, **switches):
        done = self.run_with("--json", *words, **switches)
        self.assertTrue(done.stdout, done.stderr)
        return done.returncode, json.loads(done.stdout)

    def text_file(self, name, content):
        path = os.path.join(self.folder, name)
        with open(path, "wb") as file:
            file.write(content)
        return path

    def series_of_pictures(self):
        """The pictures as a download finds them: no made-up host but loopback, whose port is the first number."""
        return {"cboMNAutoUrl": f"http://localhost:{self.demo.port}/www.pier-pictures.com/boat-1.png",
                "mnuMNStatusAutoIncrPos(2)": 1, "cboFilesSites": 0, "txtSFMNDir": f"{self.pictures}/", "incMNTiming": 0,
                "incMNDLTiming": 0}


class Lists(ListCase):
    def test_a_list_is_filled_kept_and_printed_without_a_browser(self):
        path = self.text_file("list.txt", "http://www.a.com/1\r\nno link\nhttp://www.zoë.com/\nhttp://www.a.com/1".encode())
        done = self.run_with("--list-file", path, "--list-save", "--list-print")
        self.assertEqual((done.returncode, done.stdout), (0, "http://www.a.com/1\nhttp://www.zoë.com/\n"), done.stderr)
        self.assertEqual(done.stderr.splitlines()[-4:],
                         ["Please Wait", "2 loaded", "Saving MNUrlsA. Please Wait", "Saved To MNUrlsA"])
        self.assertEqual(trawlex.rows(self.database, "MNUrlsA", ["Url"]), [("http://www.a.com/1",), ("http://www.zoë.com/",)])
        more = self.text_file("more.txt", b"http://www.b.com/")
        status, report = self.report("--list-db", "--list-file", more, "--list-print")
        self.assertEqual((status, report["list"]), (0, ["http://www.b.com/", "http://www.a.com/1", "http://www.zoë.com/"]))
        self.assertFalse([line for _, line in trawlex.processes(self.folder) if re.search("chrom|browser", line)])
        self.assertEqual(self.requests(), [])

    def test_every_line_end_and_encoding_of_a_list_is_read(self):
        for content in (b"http://www.a.com/\r\nhttp://www.caf\xe9.com/\r\n", "http://www.a.com/\nhttp://www.café.com/".encode(),
                        b"\xef\xbb\xbf" + "http://www.a.com/\r\nhttp://www.café.com/".encode()):
            with self.subTest(content):
                done = self.run_with("--list-file", self.text_file("list.txt", content), "--list-print")
                self.assertEqual(done.stdout, "http://www.a.com/\nhttp://www.café.com/\n")

    def test_another_list_and_a_base_are_set_by_their_controls(self):
        path = self.text_file("list.txt", b"tea\ncoffee\n")
        done = self.run_with("--list-file", path, "--list-save", "--list-print", cboMNList="C", mnuMNUseAutoBase=1,
                             cboMNAutoUrl="www.a.com/")
        self.assertEqual((done.returncode, done.stdout), (0, "tea\ncoffee\n"), done.stderr)
        self.assertEqual(trawlex.count(self.database, "MNUrlsC"), 2)
        self.assertEqual(trawlex.count(self.database, "MNUrlsA"), 0)

    def test_what_can_not_be_taken_is_told_and_nothing_is_run(self):
        done = self.run_with("--list-file", self.folder + "/none.txt", "--manual")
        self.assertEqual((done.returncode, len(done.stderr.splitlines())), (2, 1))
        done = self.run_with("--list-file", self.text_file("list.txt", b"no link\n"), "--manual")
        self.assertEqual(done.returncode, 1)
        self.assertIn("0 loaded. InValid Url", done.stderr.splitlines())
        done = self.run_with("--manual")
        self.assertEqual(done.returncode, 1)
        self.assertIn("Nothing to walk: the list is empty and no series is set", done.stderr.splitlines())
        path = self.text_file("list.txt", LIST_OF_PAGES[0].encode())
        done = self.run_with("--list-file", path, "--manual", **self.series_of_pictures())
        self.assertEqual(done.returncode, 2)
        self.assertIn("a list or a series, not both", done.stderr)

    def damage(self, table):
        """Spoils the table's pages behind its first one; the rest of the file stays whole."""
        with contextlib.closing(sqlite3.connect(self.database)) as database:
            database.execute("PRAGMA wal_checkpoint(TRUNCATE)")
            size = database.execute("PRAGMA page_size").fetchone()[0]
            pages = database.execute("SELECT pageno FROM dbstat WHERE name = ? AND pagetype = 'leaf'", [table]).fetchall()
        self.assertGreater(len(pages), 2)
        with open(self.database, "r+b") as file:
            for page, in pages[1:]:
                file.seek((page - 1) * size)
                file.write(b"\xff" * size)

    def test_a_list_that_the_database_does_not_give_is_told_in_one_line_and_is_a_failure(self):
        path = self.text_file("list.txt", "".join(f"http://www.a.com/{n}\n" for n in range(2000)).encode())
        self.assertEqual(self.run_with("--list-file", path, "--list-save").returncode, 0)
        self.damage("MNUrlsA")
        for words in (["--list-db", "--list-print"], ["--list-db", "--list-save"], ["--list-db", "--manual"]):
            with self.subTest(words):
                done = self.run_with(*words)
                self.assertEqual((done.returncode, done.stdout), (1, ""))
                self.assertEqual(done.stderr.splitlines()[-1], "0 loaded. Database is damaged")


class Runs(ListCase):
    def test_a_list_is_walked_from_its_remembered_position(self):
        path = self.text_file("list.txt", "\n".join(LIST_OF_PAGES).encode())
        status, report = self.report("--list-file", path, "--list-save", "--manual", chkSaveSummary=1, chkSaveEmail=1)
        self.assertEqual((status, report["status"]), (0, "Stopped (FINISHED)"), report)
        self.assertEqual(report["links"], LIST_OF_PAGES)
        self.assertEqual(trawlex.rows(self.database, "SiteSummary", ["Title", "Url"]), [("Boat 3 of 9: Cato", "www.pier-pictures.com")])
        self.assertEqual(trawlex.rows(self.database, "EmailAddress", ["Address", "Url"]), [("bram@pier-pictures.com", LIST_OF_PAGES[2])])
        status, report = self.report("--list-db", "--list-print", "--manual")
        self.assertEqual((status, report["links"]), (0, LIST_OF_PAGES[2:]), "the walk had come to the last one")
        self.assertEqual(report["list"], LIST_OF_PAGES)

    def test_a_series_of_pages_is_walked(self):
        status, report = self.report("--manual", **{"cboMNAutoUrl": PAGES.format(1), "mnuMNStatusAutoIncrPos(1)": 1,
                                                    "chkSaveSummary": 1, "chkSaveEmail": 1, "chkSavePhone": 1,
                                                    "chkSMD(1)": 0})
        self.assertEqual((status, report["status"]), (0, "Stopped (FINISHED)"))
        self.assertEqual(report["links"], [PAGES.format(n) for n in range(1, 10)])
        summaries = trawlex.rows(self.database, "SiteSummary", ["Title", "Url"])
        self.assertEqual([url for _, url in summaries], [PAGES.format(n) for n in range(1, 10)])
        self.assertEqual(summaries[8][0], "Boat 9 of 9: Iris")
        self.assertEqual(trawlex.rows(self.database, "EmailAddress", ["Address", "Url"]),
                         [(f"{name}@pier-pictures.com", PAGES.format(page))
                          for page, name in ((2, "bram"), (4, "dora"), (6, "finn"), (8, "hope"))])
        self.assertEqual(trawlex.rows(self.database, "PhoneNumber", ["Number", "Url"]),
                         [(number, PAGES.format(page)) for page, number in
                          ((1, "2125550131"), (3, "3105550132"), (5, "4155550133"), (7, "6175550134"), (9, "7025550135"))])

    def fetches(self, browser):
        start = f"http://localhost:{self.demo.port}/www.pier-pictures.com/"
        status, report = self.report("--browser", browser, "--open", start, "--manual", **self.series_of_pictures())
        self.assertEqual((status, report["status"], report["refused"]), (0, "Stopped (FINISHED)", []), report)
        self.assertEqual([file["name"] for file in report["files"]], [f"boat-{n}.png" for n in range(1, 10)])
        for file in report["files"]:
            picture = (PICTURES / file["name"]).read_bytes()
            self.assertEqual((self.pictures / file["name"]).read_bytes(), picture)
            self.assertEqual((file["size"], file["address"]), (len(picture), start + file["name"]))
        self.assertEqual(len(os.listdir(self.pictures)), 9)

    def test_a_series_of_pictures_is_fetched_as_the_free_standing_browser_would(self):
        self.fetches("iexplore")

    def test_a_series_of_pictures_is_fetched_as_the_built_in_browser_would(self):
        self.fetches("internal")

    def test_pictures_for_visitors_alone_are_refused_to_others(self):
        series = {**self.series_of_pictures(), "incSFMinGraphicSize": 100}
        status, report = self.report("--manual", **series, **{"chkSMA(10)": 0})
        self.assertEqual((status, report["files"], len(report["refused"])), (0, [], 9), report)
        self.assertEqual(os.listdir(self.pictures), [])

    def test_links_and_pages_are_collected_while_the_browser_is_followed(self):
        status, report = self.report("--open", PAGES.format(2), "--browse", "3", "--list-print", cboMNList="B",
                                     **{"mnuMNStatusListCL(1)": 1, "mnuMNStatusListCP(2)": 1})
        self.assertEqual((status, report["status"]), (0, "Stopped (FINISHED)"), report)
        links = [PAGES.format(1), "http://www.pier-pictures.com/", PAGES.format(3)]
        self.assertEqual(report["lists"], {"B": links, "C": [PAGES.format(2)]})
        self.assertEqual(report["list"], links)

    def test_an_interrupt_is_a_click_on_x_and_keeps_the_series(self):
        run = subprocess.Popen(self.words("--json", "--manual", **{
            "cboMNAutoUrl": PAGES.format(1), "mnuMNStatusAutoIncrPos(1)": 1, "incMNTiming": 1, "incMNStep": 2}),
            env=self.env, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.addCleanup(lambda: (run.poll() is None and run.kill(), run.wait(), run.stdout.close()))
        trawlex.wait_for(lambda: any("boats-5" in line for line in self.requests()), 60, "the third page")
        run.send_signal(signal.SIGINT)
        report = json.loads(run.stdout.read())
        self.assertEqual((run.wait(30), report["status"]), (1, "Stopped (USER)"))
        reached = report["links"][-1]
        number = reached[-len("5.html")]
        self.assertEqual(trawlex.rows(self.database, "AutoTextA", ["Url", "IncrNum", "IncrStep"]), [(reached.removeprefix("http://"), "1", "002")])
        self.assertEqual(int(trawlex.rows(self.database, "AutoTextA", ["StartNumber"])[0][0]), int(number))


if __name__ == "__main__":
    unittest.main()
