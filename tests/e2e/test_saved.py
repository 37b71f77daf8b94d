"""A nightly harvest: saved result pages walked one after the other from the command line, with a set of criteria, a list
letter, blocked texts and a site chosen by --set."""
import contextlib
import sqlite3
import unittest

import test_sites
import trawlex

PAGES = [("Results-100", test_sites.FIRST_PAGE[0]), ("Results-101", test_sites.SECOND_PAGE[0])]
CHOICE = {"cboANList": "B", "cboANMCMNCMask": "Boats", "chkMustContain": 1, "lstANMCAllAny": "Any", "chkMustNotContain": 1,
          "chkUrlBlocking": 1, "chkUseSavedUrls": 1, "chkSavePages": 0, "incSmRPPause": "030"}
TABLES = {"SiteSummary": "SiteSummary", "EmailAddress": "EmailAddress", "PhoneNumber": "PhoneNumber", "PassUrlsA": "PassUrlsB"}


class SavedPages(trawlex.Case):
    def setUp(self):
        super().setUp()
        self.path = self.make_database()
        with contextlib.closing(sqlite3.connect(self.path)) as database, database:
            database.executemany('INSERT INTO "RPgUrlsB" ("MaskName", "Url") VALUES (?, ?)', PAGES)
            database.executemany('INSERT INTO "Block" ("UrlsContent") VALUES (?)', [[text] for text in test_sites.BLOCKED])
            for table, texts in (("MC", test_sites.WANTED), ("MNC", test_sites.UNWANTED)):
                columns = ", ".join(f'"Item-{i + 1}"' for i in range(len(texts)))
                marks = ", ".join("?" * len(texts))
                database.execute(f'INSERT INTO "{table}" ("MaskName", {columns}) VALUES (?, {marks})', ["Boats", *texts])

    def finished(self, **switches):
        done = self.harvest("iexplore", (), **{**CHOICE, **switches})
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(done.report["status"], "Stopped (FINISHED)")

    def test_saved_pages_are_walked_with_the_chosen_set_and_list(self):
        self.finished()
        for told, table in TABLES.items():
            with self.subTest(table=table):
                self.assertEqual(trawlex.rows(self.path, table, trawlex.TABLES[told]), test_sites.STORED[told])
        self.assertEqual(trawlex.count(self.path, "PassUrlsA"), 0)

    def test_the_walk_begins_at_the_chosen_page(self):
        self.finished(cboANSavedUrls="Results-101")
        self.assertEqual(trawlex.rows(self.path, "PassUrlsB", ["Url"]), [("http://www.old-lighthouse.org/main.html",)])

    def test_a_chosen_site_takes_what_is_set_in_the_editor(self):
        self.finished(**{"cboSD(1)": "Findery demo", "cboSDGroup": "C", "cboANSavedUrls": "Results-101"})
        groups = dict(trawlex.rows(self.path, "SearchSites", ["SiteName", "Group"]))
        self.assertEqual(groups["Findery demo"], "2")
        self.assertEqual(groups["Harborlist demo"], "0")

    def test_a_set_that_does_not_exist_is_refused(self):
        done = self.harvest("iexplore", (), **{**CHOICE, "cboANMCMNCMask": "Trains"})
        self.assertEqual(done.returncode, 2)
        self.assertIn('--set cboANMCMNCMask: there is no item "Trains"', done.stderr)


if __name__ == "__main__":
    unittest.main()
