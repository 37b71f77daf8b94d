"""Every option that is not a switch of the option pages, changed by real clicks and keys: each is stored, and comes back after
a restart as it was left, which the next change to it shows."""
import contextlib
import os
import re
import sqlite3
import unittest

import trawlex
import window

AUTO, MANUAL, BLOCKING = ["sstSearch(0)"], ["sstSearch(1)"], ["sstSearch(2)", "sstSettings(0)"]
A_M, SAVE, VIEW = (["sstSearch(2)", "sstSettings(2)", f"sstMiscOptions({page})"] for page in range(3))

# Page, name, key and digits; a step up adds one, but to the series, which goes by its own step.
NUMBERS = [
    (AUTO, "incANTiming", "npTimimg", "012"), (MANUAL, "incMNTiming", "udcMNTimin", "013"),
    (MANUAL, "incMNDLTiming", "incMNDLTiming", "014"), (MANUAL, "incMNStep", "incMNStep", "015"),
    (MANUAL, "incMNAutoUrl", "udMNGenUrlOne", "0000000016"),
    (A_M, "incSmRPPause", "incSmRPPause", "017"), (A_M, "incNotFoundMinSize", "udcNotFoundMinSize", "000018"),
    (A_M, "incSMAMAutoTxtElng", "incSMAMAutoTxtElng", "0019"), (SAVE, "incSMDMinHtmlSize", "incSMDMinHtmlSize", "000020"),
    (SAVE, "incSFMinFileSize", "udcSFMinFileS", "000021"), (SAVE, "incSFMinGraphicSize", "incSFMinGraphicSize", "000022"),
    (VIEW, "incSMAIEWidth", "incSMAIEWidth", "0423"), (VIEW, "incSMAIEHeight", "incSMAIEHeight", "0524")]
STEPS = {"udMNGenUrlOne": 16}
# Page, name, key, entry.
COMBOS = [
    (AUTO, "cboANSaveType", "SearchKeyCboSaveItem ListIndex", 1), (AUTO, "lstANMCAllAny", "optMCAllAny", 1),
    (AUTO, "lstANMNCAllAny", "optMNCAllAny", 1), (AUTO, "cboANList", "cboANList", 1),
    (MANUAL, "cboMNList", "cboMNList", 2), (MANUAL, "cboMNMCMNC", "cboMNMCMNC", 1)]
TEXTS = [
    (AUTO, "txtANStartTag", "SearchKeyTxtStartTag Text", "from here"), (AUTO, "txtANStopTag", "SearchKeyTxtStopTag Text", "to there"),
    (BLOCKING, "txtSBSelAreaCodes", "txtSBSelAreaCodes", "212")]
# In an order in which each can be clicked.
BOXES = [
    (AUTO, "chkSaveSummary", "chkSaveSummary"), (AUTO, "chkSaveUrl", "chkSaveUrl"), (AUTO, "chkSavePhone", "chkSavePhone"),
    (AUTO, "chkMCMNCStop", "chkMCMNCStop"), (AUTO, "chkUrlBlocking", "chkUrlBlocking"), (AUTO, "chkEmailBlocking", "chkEmailBlocking"),
    (AUTO, "chkMCCS", "chkMCCS"), (AUTO, "chkMNCCS", "chkMNCCS"),
    (AUTO, "chkUseSavedUrls", "chkUseSavedUrls"), (SAVE, "chkPutInOneFile", "chkPutInOneFile")]
# What lets the others be used; switched off behind them, on before them, in the opposite order.
MASTERS = [(AUTO, "chkMustContain", "SearchKeyChkMustContain Value"), (AUTO, "chkMustNotContain", "SearchKeyChkMustNotContain Value"),
           (AUTO, "chkSaveEmail", "SearchKeyChkGetEmail Value"), (AUTO, "chkSavePages", "SearchKeyChkSavePages Value")]
START = {"chkSaveToFile": "1", "SearchKeyChkSavePages Value": "1", "SearchKeyChkGetEmail Value": "1",
         "SearchKeyChkMustContain Value": "1", "SearchKeyChkMustNotContain Value": "1",
         "txtMNGenerateUrlA": "http://www.gallery.com/1.jpg", "txtMNGenerateUrlC": "http://www.gallery.com/1.jpg"}
ROWS = {"RPgUrlsA": [("MaskName", "Results-100"), ("Url", "http://a.example/")],
        "RPgUrlsB": [("MaskName", "Results-200"), ("Url", "http://b.example/")],
        "MC": [("MaskName", "Criteria-0"), ("Item-1", "tea")], "MNC": [("MaskName", "Criteria-0"), ("Item-1", "coffee")],
        "Block": [("UrlsContent", "/ads/"), ("EmailContent", "noreply")]}


class EveryOption(window.WindowCase):
    def setUp(self):
        super().setUp()
        self.page = None

    def stored(self, key):
        """What the settings hold under a key of the main window; "" for nothing."""
        coded = key.replace(" ", "%20")
        found = re.findall(rf"^.*SecFrmSearch\\{re.escape(coded)}=(.*)$", self.settings_file().read_text(encoding="utf-8"), re.MULTILINE)
        return found[0].strip('"') if found else ""

    def assert_stored(self, key, wanted):
        with contextlib.suppress(AssertionError):   # what differs is told below
            trawlex.wait_for(lambda: self.stored(key) == wanted, 5, key)
        self.assertEqual(self.stored(key), wanted, key)

    def show(self, page):
        if page != self.page:
            self.go_to(*page)
        self.page = page

    def begin(self):
        self.page = None
        self.start()

    def begin_with_all_in_use(self):
        """A start in which nothing is disabled for lack of something to act on."""
        self.start_anew(**START)
        self.fill_database()
        self.end()
        self.choose_options(cboMCMNCMask="0")
        self.begin()

    def fill_database(self):
        with contextlib.closing(sqlite3.connect(self.database, timeout=10)) as database, database:
            for table, fields in ROWS.items():
                names = ", ".join(f'"{name}"' for name, _ in fields)
                database.execute(f'INSERT INTO "{table}" ({names}) VALUES ({", ".join("?" * len(fields))})', [value for _, value in fields])

    def type_over(self, name, text):
        self.click(name, left=14)
        self.display.do("key", "ctrl+a")
        self.display.do("type", "--delay", "8", text)

    def choose(self, name, entry):
        self.click(name)
        self.display.do("key", "Home", *["Down"] * entry, "Return")

    def change_all(self):
        """Gives every option its value. What is stored at once is looked at at once."""
        for page, name, _, digits in NUMBERS:
            self.show(page)
            self.type_over(name, digits.lstrip("0"))
        for page, name, key, text in TEXTS:
            self.show(page)
            self.type_over(name, text)
            self.click("picStatus")     # a box is validated when it is left
            self.assert_stored(key, text)
        for page, name, key, entry in COMBOS:
            self.show(page)
            self.choose(name, entry)
            self.assert_stored(key, str(entry))

    def change_a_little(self):
        """A step from where each option was left: it shows whether it was loaded."""
        for page, name, _, _ in NUMBERS:
            self.show(page)
            self.click(name, left=14)
            self.display.do("key", "Up")
        for page, name, key, text in TEXTS:
            self.show(page)
            self.click(name, left=14)
            self.display.do("key", "End")
            self.display.do("type", "5")
            self.click("picStatus")
            self.assert_stored(key, text + "5")

    def flip(self, rows):
        for page, name, key in rows:
            self.show(page)
            before = self.stored(key)
            self.click(name, left=10)
            self.assert_stored(key, "0" if before == "1" else "1")

    def end(self):
        self.click("picANEnd")
        self.assertEqual(self.window.wait(timeout=20), 0)

    def test_numbers_texts_and_choices_come_back_as_they_were_left(self):
        self.begin_with_all_in_use()
        self.change_all()
        self.end()
        for _, _, key, digits in NUMBERS:
            self.assert_stored(key, digits)
        self.begin()
        self.change_a_little()
        self.end()
        for _, _, key, digits in NUMBERS:
            self.assert_stored(key, str(int(digits) + STEPS.get(key, 1)).zfill(len(digits)))
        for _, _, key, entry in COMBOS:
            self.assert_stored(key, str(entry))

    def test_boxes_come_back_as_they_were_left(self):
        self.begin_with_all_in_use()
        self.flip(BOXES)
        self.end()
        self.begin()
        self.flip(BOXES)
        self.flip(MASTERS)
        self.end()
        self.begin()
        self.flip(reversed(MASTERS))
        self.end()

    def paste_addresses(self):
        """Two addresses come into the Manual list by the second command that its menu offers: Paste Urls."""
        self.show(AUTO)
        self.type_over("txtANStartTag", "http://www.tea.com/1 http://www.tea.com/2")
        self.display.do("key", "ctrl+a", "ctrl+c")
        self.show(MANUAL)
        before = self.windows()
        self.click("lstMN_0", button=3)
        trawlex.wait_for(lambda: self.windows() != before, 10, "the list's menu")
        self.display.do("key", "Down", "Down", "Return")
        trawlex.wait_for(lambda: self.windows() == before, 10, "the end of the menu")

    def windows(self):
        return set(self.display.do("search", "--onlyvisible", "--pid", self.window.pid))

    def test_what_is_done_with_the_items_of_a_list_is_kept(self):
        self.begin_with_all_in_use()
        self.paste_addresses()
        self.choose("cboFilesSites", 0)
        self.assert_stored("optFilesSites", "0")
        self.flip([(MANUAL, "chkSMOpenDownloadedGraphics", "chkSMOpenDlGraphics"), (MANUAL, "chkMNUseFotoBrwse", "chkMNUseFotoB")])
        self.end()
        self.begin()
        self.paste_addresses()
        self.choose("cboFilesSites", 1)
        self.assert_stored("optFilesSites", "1")
        self.end()


if __name__ == "__main__":
    unittest.main()
