"""Every option that is not a switch of the option pages, changed by real clicks and keys: each is stored, and comes back after
a restart as it was left, which the next change to it shows."""
import contextlib
import os
import pathlib
import re
import sqlite3
import unittest

import trawlex
import window

AUTO, MANUAL, BLOCKING = ["sstSearch(0)"], ["sstSearch(1)"], ["sstSearch(2)", "sstSettings(0)"]
DIRECTORY = ["sstSearch(2)", "sstSettings(1)", "sstFiles(0)"]
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


class OptionCase(window.WindowCase):
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

    def windows(self):
        return set(self.display.do("search", "--onlyvisible", "--pid", self.window.pid))

    def end(self):
        self.click("picANEnd")
        self.assertEqual(self.window.wait(timeout=20), 0)


class EveryOption(OptionCase):
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


class Places(OptionCase):
    """Directories, files and programs, through the dialogs by which they are chosen."""
    FILES, DATABASES, EDITOR = "txtFNSaveLocation", "SearchKeyTxtSaveLocation Text", "txtSFEditor"

    def setUp(self):
        super().setUp()
        self.below = pathlib.Path(self.database).parent
        (self.below / "one/two").mkdir(parents=True)

    def begin_with_places(self):
        places = {self.FILES: str(self.below) + "/", "chkShutDownPrompt": "0"}
        self.start_anew(**places)
        self.page = None

    def closes(self, chooser):
        self.display.do("key", "alt+c")
        with contextlib.suppress(AssertionError):
            return trawlex.wait_for(lambda: chooser not in self.windows(), 3, "its end")

    def choose_folder_below(self, button, key, wanted):
        """Opens the chooser, which stands on the folder as it was left, and goes one folder down."""
        def chosen():
            self.click(button)
            chooser = self.wait_for_window("Select Folder")
            self.display.do("windowactivate", "--sync", chooser)
            # The tree reads its folders in the background: a key that finds none yet leaves all as it was.
            for pressed in ("Tab", "Right"):
                self.display.do("key", pressed)
            trawlex.wait_for(lambda: self.closes(chooser), 20, "the end of the chooser")
            # What was chosen is stored a moment later; looking too soon would go one folder further.
            with contextlib.suppress(AssertionError):
                return trawlex.wait_for(lambda: self.stored(key) == wanted, 3, wanted)

        self.show(DIRECTORY)
        trawlex.wait_for(chosen, 60, f"'{wanted}' under {key}")

    def choose_file(self, button, title, *keys, text=""):
        self.show(DIRECTORY)
        self.click(button)
        dialog = self.wait_for_window(title)
        self.display.do("windowactivate", "--sync", dialog)
        self.type(text, *keys)
        trawlex.wait_for(lambda: dialog not in self.windows(), 10, f"the end of '{title}'")

    def test_directories_come_back_as_they_were_left(self):
        self.begin_with_places()
        for step in ("one/", "one/two/"):
            self.choose_folder_below("cmdSFMNDirBrowse", self.FILES, f"{self.below}/{step}")
            self.choose_folder_below("cmdSFDBDirBrowse", self.DATABASES, f"{self.below}/{step}")
            trawlex.wait_for((self.below / step / "Trawlex-0.mdb").exists, 10, "a database in the new directory")
            self.end()
            self.begin()
        self.end()
        self.assert_stored(self.FILES, f"{self.below}/one/two/")
        self.assert_stored(self.DATABASES, f"{self.below}/one/two/")

    def test_the_editor_comes_back_as_it_was_left(self):
        """Chosen by its path, then, after a restart, by Return alone, since the dialog stands on it."""
        told = self.below / "told.txt"
        editor = self.below / "editor.sh"
        editor.write_text(f'#!/bin/sh\ncat "$1" >>"{told}"\n', encoding="utf-8")
        editor.chmod(0o755)
        self.begin_with_places()
        for times, typed in ((1, str(editor)), (2, "")):
            self.choose_file("cmdSFEditorSel", "Select Editor", "Return", text=typed)
            question = self.wait_for_window("Editor test")
            trawlex.wait_for(lambda: told.exists() and told.read_text(encoding="utf-8").count("Testing") == times, 10, "the test")
            self.display.do("windowactivate", "--sync", question)
            self.display.do("key", "alt+y")
            trawlex.wait_for(lambda: question not in self.windows(), 10, "the end of the question")
            self.assert_stored(self.EDITOR, str(editor))
            self.end()
            self.begin()
        self.end()

    def test_the_database_comes_back_as_it_was_left(self):
        self.begin_with_places()
        self.show(DIRECTORY)
        self.click("cmdSFAutoDBFile")
        trawlex.wait_for((self.below / "Trawlex-1.mdb").exists, 10, "a new database")
        self.end()
        self.begin()
        self.assertIn(str(self.below / "Trawlex-1.mdb"), self.open_files())
        self.choose_file("cmdSFDBFileBrowse", "Select File", "Return", text=self.database)
        trawlex.wait_for(lambda: self.database in self.open_files(), 10, "the database that was chosen")
        self.end()
        self.begin()
        self.assertIn(self.database, self.open_files())
        self.end()

    def open_files(self):
        found = []
        for entry in pathlib.Path(f"/proc/{self.window.pid}/fd").iterdir():
            with contextlib.suppress(OSError):  # it has just been closed
                found.append(os.readlink(entry))
        return found


class Choices(OptionCase):
    def test_the_browser_comes_back_as_it_was_left(self):
        self.start_anew()
        self.page = None
        for entry, shown in ((0, ["--name", "Internet Browse|blank"]), (1, ["--class", "hromium"])):
            self.show(AUTO)
            self.choose("cboANWBSelect", entry)
            self.assert_stored("lstDCoTmr", str(entry))
            trawlex.wait_for(lambda: self.display.do("search", "--onlyvisible", *shown), 40, "the browser that was chosen")
            self.end()
            self.begin()
            trawlex.wait_for(lambda: self.display.do("search", "--onlyvisible", *shown), 40, "the same browser")
        self.end()
        self.assert_stored("lstDCoTmr", "1")

    def test_the_filters_text_comes_back_as_it_was_left(self):
        """A text that is no known filter, typed; MC or MNC are for known ones."""
        self.start_anew()
        self.page = None
        self.show(MANUAL)
        self.type_over("cboMNMCMNCFilter", "/team/")
        self.assert_stored("cboMNMCMNCFilter", "/team/")
        self.end()
        self.begin()
        self.show(MANUAL)
        self.click("cboMNMCMNCFilter", left=14)
        self.display.do("key", "End")
        self.display.do("type", "5")
        self.assert_stored("cboMNMCMNCFilter", "/team/5")
        self.end()


if __name__ == "__main__":
    unittest.main()
