"""From a result page to a first harvest, by mouse, keyboard and pop-up menu alone: a record in the site editor, blocked
texts, a set of criteria, two saved result pages; and exactly the rows that this has to give."""
import json
import unittest

import trawlex
import window

FIRST_PAGE = (trawlex.demo_harvest.RESULT_PAGE, "harbour - Findery")
SECOND_PAGE = (trawlex.demo_harvest.RESULT_PAGE + "&page=2", "harbour, page 2 - Findery")
RECORD = json.loads((trawlex.ROOT / "demo/searchsite.json").read_text(encoding="utf-8"))
SITES = ("sstSearch(2)", "sstSettings(2)", "sstMiscOptions(3)")
BLOCKING = ("sstSearch(2)", "sstSettings(0)")
# The texts of the record's fields, by the editor's boxes.
BOXES = {1: "Findery demo", 2: "www.findery-demo.com", 3: "/url?to=", 4: "&rank=", 5: "/url?to=", 6: "&lang=", 7: "sort=date",
         8: "/feedback?"}
# A blocked text is a part of an address: ".ca" keeps www.gull-point.ca out and www.cafe-quai.fr as well. Six links are left
# on the first page, and one that can be opened on the second.
BLOCKED = [".com", ".net", ".ca"]
VISITED = ["www.kestrel-optics.co.uk", "www.blauer-anker.de", "www.old-lighthouse.org", "tide.is", "www.obriens-landing.ie",
           "www.lost-and-found.co.nz"]
WANTED = ["OPTICS", "anker", "lighthouse", "boston"]
UNWANTED = ["eighty-one"]
STORED = {
    "SiteSummary": [("Kestrel Optics", "www.kestrel-optics.co.uk"),
                    ("Impressum: Gasthof „Blauer Anker“", "www.blauer-anker.de"),
                    ("The Old Lighthouse", "www.old-lighthouse.org")],
    "EmailAddress": [(1, "workshop@kestrel-optics.co.uk", "http://www.kestrel-optics.co.uk/"),
                     (1, "art@kestrel-optics.co.uk", "http://www.kestrel-optics.co.uk/"),
                     (1, "orders@kestrel-optics.co.uk", "http://www.kestrel-optics.co.uk/"),
                     (1, "Accounts@Kestrel-Optics.CO.UK", "http://www.kestrel-optics.co.uk/"),
                     (1, "repairs@kestrel-optics.co.uk", "http://www.kestrel-optics.co.uk/"),
                     (2, "Kapitaen@Blauer-Anker.DE", "http://www.blauer-anker.de/impressum.html"),
                     (2, "zimmer@blauer-anker.de", "http://www.blauer-anker.de/impressum.html"),
                     (3, "keeper@old-lighthouse.org", "http://www.old-lighthouse.org/"),
                     (3, "stairs@old-lighthouse.org", "http://www.old-lighthouse.org/main.html")],
    "PhoneNumber": [(3, "6035550151", "Any", "http://www.old-lighthouse.org/main.html")],
    "PassUrlsA": [(-1, "PassUrl-100", "http://www.kestrel-optics.co.uk/"),
                  (-1, "PassUrl-101", "http://www.blauer-anker.de/impressum.html"),
                  (-1, "PassUrl-102", "http://www.old-lighthouse.org/"),
                  (-1, "PassUrl-103", "http://www.old-lighthouse.org/main.html")],
}


class FirstHarvest(window.WindowCase):
    def stored(self, table, *columns):
        return trawlex.rows(self.database, table, columns)

    def wait_for_rows(self, table, columns, wanted):
        """The table's filled rows are these before long; otherwise what they are is told."""
        def found():
            return [row for row in self.stored(table, *columns) if any(row)]

        trawlex.wait_for(lambda: found() == wanted, 30, f"{table} {wanted}, not {found()}")

    def choose(self, combo, *keys):
        self.click(combo)
        self.type("", *keys, "Return")

    def record(self):
        columns = list(RECORD)
        return [dict(zip(columns, row)) for row in self.stored("SearchSites", *columns) if row[0] == RECORD["SiteName"]]

    def make_record(self):
        self.go_to(*SITES)
        for box, text in BOXES.items():
            self.click(f"cboSD_{box}", left=20)
            self.type(text)
        self.choose("cboSDLen", "End")
        for number, digits in (("incSDUrlLen", "150"), ("incSDMCMNC_0", "001")):
            self.click(number, left=14)
            self.type("", "ctrl+a")
            self.type(digits)
        self.click("chkSDHex", left=10)
        self.click("cmdSD_1")
        trawlex.wait_for(self.record, 20, "the record")
        self.assertEqual(self.record(), [RECORD])

    def change_record(self):
        """A second text of a family comes with + and goes with -."""
        def texts():
            return [row for row in self.stored("SearchSites", "SiteName", "UrlMNC-1", "UrlMNC-2")
                    if row[0] == RECORD["SiteName"]]

        for button, second in (("cmdSD_11", "&hl=<~Dorv~>0"), ("cmdSD_12", "")):
            self.click("cboSD_6", left=20)
            self.type("", "ctrl+a")
            self.type("&hl=")
            self.click(button)
            wanted = [(RECORD["SiteName"], RECORD["UrlMNC-1"], second)]
            trawlex.wait_for(lambda: texts() == wanted, 20, f"{wanted}, not {texts()}")

    def block_texts(self):
        self.go_to(*BLOCKING)
        for text in ["lighthouse", *BLOCKED]:
            self.click("cmdBlockedUrlC_0")
            self.answer("Urls Must Not contain", text)
        self.wait_for_rows("Block", ["UrlsContent"], [(text,) for text in ["lighthouse", *BLOCKED]])
        for button in (1, 3):
            self.click("lstBlockedUrlC", button, top=14)
        self.type("", "Down", "Return")         # "Remove"
        self.wait_for_rows("Block", ["UrlsContent"], [(text,) for text in BLOCKED])

    def make_criteria(self):
        self.go_to("sstSearch(0)")
        for box in ("chkSaveSummary", "chkSaveEmail", "chkSavePhone", "chkSaveUrl", "chkMustContain", "chkMustNotContain",
                    "chkUrlBlocking"):
            self.click(box)
        self.click("cmdANMCMaskAdd")
        self.answer("New MC - MNC Set", "")     # the name that is proposed
        self.wait_for_rows("MC", ["MaskName"], [("Criteria-0",)])
        for button, texts in (("cmdANAddMC", WANTED), ("cmdANAddMNC", UNWANTED)):
            for text in texts:
                self.click(button)
                self.answer("New Item", text)
        self.choose("lstANMCAllAny", "Down")    # "Any"
        self.wait_for_rows("MC", [f"Item-{i}" for i in range(1, 5)], [tuple(WANTED)])
        self.wait_for_rows("MNC", ["Item-1"], [tuple(UNWANTED)])

    def save_pages(self):
        for page in (FIRST_PAGE, SECOND_PAGE):
            self.open_in_browser(*page)
            count = trawlex.count(self.database, "RPgUrlsA")
            self.click("cmdANSavedAdd")
            trawlex.wait_for(lambda: trawlex.count(self.database, "RPgUrlsA") > count, 20, page[0])
        self.assertEqual(self.stored("RPgUrlsA", "MaskName", "Url"),
                         [("Results-100", FIRST_PAGE[0]), ("Results-101", SECOND_PAGE[0])])

    def harvest(self):
        self.choose("cboANSavedUrls", "Home")
        self.click("chkUseSavedUrls")
        self.click("cmdANStart")
        wanted = len(STORED["PassUrlsA"])
        trawlex.wait_for(lambda: trawlex.count(self.database, "PassUrlsA") >= wanted, 150, "all links")
        self.assert_run_stands_still()
        for table, columns in trawlex.TABLES.items():
            with self.subTest(table=table):
                self.assertEqual(self.stored(table, *columns), STORED[table])
        hosts = dict.fromkeys(line.split()[1] for line in self.requests())
        demo_hosts = [host for host in hosts if host in trawlex.server.HOSTS and host != trawlex.server.SERVICE]
        self.assertEqual(demo_hosts, VISITED)

    def walk_pass_urls(self):
        self.click("chkUseSavedUrls")           # off again: what a run is to walk cannot be opened by hand
        self.click("lblAutoIncrPos", button=3)
        self.type("", "Down", "Return")         # "Load Pass Urls"
        for title in ("Kestrel Optics", "Impressum", "The Old Lighthouse"):
            self.click("cmdANSavedGo")
            self.wait_for_window(title, 30)

    def test_a_record_blocked_texts_and_criteria_made_in_the_window_give_exactly_the_expected_rows(self):
        self.start_anew(chkSMAPassUrlAutoIncr="1")
        self.make_record()
        self.change_record()
        self.block_texts()
        self.make_criteria()
        self.save_pages()
        self.harvest()
        self.walk_pass_urls()
        self.click("picANEnd")
        self.assertEqual(self.window.wait(timeout=20), 0)


if __name__ == "__main__":
    unittest.main()
