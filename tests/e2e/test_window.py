"""The window under a virtual display, driven by real clicks and keys: a harvest stopped with X in the middle and resumed
with Go, and the end of the program. The browser stands in its own window, as a user has it."""
import contextlib
import re
import signal
import subprocess
import tempfile
import time
import unittest

import trawlex
import window


class OneProgram(window.WindowCase):
    def test_the_systems_wish_ends_a_run_as_a_click_would(self):
        self.start_with(npTimimg="050", chkSaveSummary="1", chkShutDownPrompt="1")
        self.open_in_browser(trawlex.demo_harvest.RESULT_PAGE, window.RESULT_TITLE)
        self.click("cmdANStart")
        self.wait_for_visit()
        self.window.send_signal(signal.SIGTERM)
        self.assertEqual(self.window.wait(timeout=20), 0, "nothing is asked")
        self.assertIn("npTimimg=050", self.settings_file().read_text(encoding="utf-8"), "what is kept at the end is kept")

    def test_the_systems_wish_ends_the_program_under_an_open_box(self):
        self.start()
        self.click("picANEnd")
        self.wait_for_window("Program will terminate")
        self.window.send_signal(signal.SIGTERM)
        self.assertEqual(self.window.wait(timeout=20), 0)

    def test_a_second_start_brings_the_first_ones_window_up_and_ends(self):
        self.start()
        def minimized():
            self.display.do("windowminimize", "--sync", self.id)
            return not self.find_window()

        trawlex.wait_for(minimized, 10, "a window that has just come up is minimized")
        second = subprocess.run([trawlex.WINDOW], env=self.env, cwd=self.folder, timeout=30, check=False,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.assertEqual(second.returncode, 0)
        trawlex.wait_for(self.find_window, 10, "the window is up again")
        self.assertIsNone(self.window.poll())

    def test_a_second_start_shows_its_splash_and_leaves_the_settings_as_they_are(self):
        self.start()
        before = self.settings_file().read_bytes()
        created = tempfile.TemporaryFile("w+")
        self.addCleanup(created.close)
        with subprocess.Popen(["xev", "-root", "-event", "substructure"], env=self.env, stdout=created) as events:
            try:
                time.sleep(0.5)     # it says nothing when it has begun
                second = subprocess.run([trawlex.WINDOW], env=self.env, cwd=self.folder, timeout=30, check=False,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
                time.sleep(0.5)
            finally:
                events.terminate()
        self.assertEqual(second.returncode, 0)
        created.seek(0)
        self.assertIn("width 360, height 132", created.read(), "the splash came up")
        self.assertEqual(self.settings_file().read_bytes(), before)


class OnTop(window.WindowCase):
    def is_above(self):
        """As the window manager has it; the window may be a new one."""
        shown = self.find_window()
        return shown and "_NET_WM_STATE_ABOVE" in self.display.property(shown, "_NET_WM_STATE")

    def toggle(self):
        """The command of the status bar's menu."""
        def windows():
            return set(self.display.do("search", "--onlyvisible", "--pid", self.window.pid))

        self.id = self.find_window()
        before = windows()
        self.click("picStatus", button=3)
        menu = trawlex.wait_for(lambda: windows() - before, 10, "the status bar's menu").pop()
        x, y = self.positions["mnuANStatusKeepOnTop"][:2]
        self.display.do("mousemove", "--sync", "--window", menu, x, y)
        self.display.do("click", 1)

    def end(self):
        self.id = self.find_window()
        self.click("picANEnd")
        self.assertEqual(self.window.wait(timeout=20), 0)

    def test_the_window_is_above_all_others_until_it_is_taken_off_and_stays_so(self):
        self.start_anew(chkShowToolTips="0")     # a new window is a menu then
        trawlex.wait_for(self.is_above, 10, "above at first")
        place = self.display.frame(self.find_window())
        self.toggle()
        trawlex.wait_for(lambda: self.is_above() is False, 10, "like all others")
        self.assertEqual(self.display.frame(self.find_window()), place)
        self.end()
        self.start()
        self.assertIs(self.is_above(), False, "as it was left")
        self.toggle()
        trawlex.wait_for(self.is_above, 10, "above again")
        self.assertEqual(self.display.frame(self.find_window()), place)
        self.end()


class FreeStandingBrowser(window.WindowCase):
    def test_a_harvest_stopped_with_x_and_resumed_with_go_stores_every_row(self):
        self.start_with(npTimimg="003")  # the slow pages of the demo answer after two seconds, and have arrived then
        for box in window.SAVE_BOXES:
            self.click(box)
        self.open_in_browser(trawlex.demo_harvest.RESULT_PAGE, window.RESULT_TITLE)
        self.click("cmdANStart")
        self.wait_for_summaries(5)
        self.click("cmdANStart")
        self.assert_run_stands_still()
        self.click("cmdANStart")
        wanted = len(trawlex.EXPECTED["PassUrlsA"])
        trawlex.wait_for(lambda: trawlex.count(self.database, "PassUrlsA") >= wanted, 240, "all links")
        self.assert_expected_rows(self.database)
        self.click("picANEnd")
        self.assertEqual(self.window.wait(timeout=20), 0)

    def test_closing_the_browser_stops_the_run_and_initialize_finds_another(self):
        self.start_with(**{"chkSaveSummary": "1"})
        self.open_in_browser(trawlex.demo_harvest.RESULT_PAGE, window.RESULT_TITLE)
        self.click("cmdANStart")
        self.wait_for_summaries(3)
        browser = self.display.do("search", "--onlyvisible", "--class", "hromium")[-1]
        self.close_by_keys(browser)
        self.assert_run_stands_still()
        self.assertIsNone(self.window.poll())
        self.click("cmdANInitialize")
        trawlex.wait_for(lambda: self.display.do("search", "--onlyvisible", "--class", "hromium"), 20, "a new window")

    def test_ending_in_the_middle_of_a_wait_ends_the_program(self):
        self.start_with(npTimimg="050", chkSaveSummary="1")
        self.open_in_browser(trawlex.demo_harvest.RESULT_PAGE, window.RESULT_TITLE)
        self.click("cmdANStart")
        self.wait_for_visit()
        self.click("picANEnd")
        self.assertEqual(self.window.wait(timeout=20), 0)


class Options(window.WindowCase):
    """Every switch of the option pages, clicked; and clicked again after a restart, which finds them as they were left."""
    PAGES = [((2, 2, 0), [f"chkSMA_{i}" for i in range(11)]),
             ((2, 2, 1), [f"chkSMD_{i}" for i in range(9)] + ["chkSaveToSS", "chkSaveToFile"]),
             ((2, 2, 2), [f"chkSMV_{i}" for i in range(5)])]
    KEYS = ["chkOpenServersOnly", "chkMNCnvHex", "chkSMReturnToSearchPg", "chkSMAMUseFTP", "chkSMADownloadAsBrowser", "chkAutoNavToNextPassUrl",
            "chkSMAPassUrlAutoIncr", "chkSMASavedUrlAutoIncr", "chkShutDownPrompt", "chkSTmrRCDir", "chkSMSUniqueServers",
            "chkOpenHtmlExports", "chkUniqueBaseUrls", "chkUniqueSelectUrls", "chkSMSaveUrlWithEmail", "chkSMSaveUrlWithPhone",
            "chkSUUseSiteTitle", "chkSMFindFax", "chkSMAMUrlIfNoData", "chkSMAMAutoAddAutoUrl", "chkSaveToSS", "chkSaveToFile",
            "chkShowToolTips", "chkSMVTurnOffErrorMsg", "chkSMVBlockPopUpWindows", "chkSMAAllignmagnify", "chkSAMoveToTopLeft"]

    def stored(self):
        """The switches in the settings, by key."""
        found = re.findall(r"^.*SecFrmSearch\\(\w+)=(.*)$", self.settings_file().read_text(encoding="utf-8"), re.MULTILINE)
        return {key: value.strip('"') for key, value in found if key in self.KEYS}

    def click_every_switch(self):
        for (search, settings, misc), boxes in self.PAGES:
            self.click(f"sstSearch({search})")
            self.click(f"sstSettings({settings})")
            self.click(f"sstMiscOptions({misc})")
            for box in boxes:
                self.click(box, left=10)    # on its square: how far its words go is the font's business

    def flip(self, before):
        """Clicks every switch once; the settings hold the other value of each."""
        self.click_every_switch()
        other = {key: "0" if value == "1" else "1" for key, value in before.items()}
        with contextlib.suppress(AssertionError):   # what differs is told below
            trawlex.wait_for(lambda: self.stored() == other, 20, "the other value of every switch")
        self.assertEqual(self.stored(), other)

    def end(self):
        self.click("picANEnd")
        if self.stored().get("chkShutDownPrompt") == "1":
            self.display.do("windowfocus", "--sync", self.wait_for_window("Program will terminate"))
            self.display.do("key", "alt+y")
        self.assertEqual(self.window.wait(timeout=20), 0)

    def test_every_switch_is_kept_and_comes_back(self):
        self.start_with(**{key: "0" for key in self.KEYS})
        first = {key: "0" for key in self.KEYS}
        for tab in range(4):
            self.click(f"sstSearch({tab})")
        self.flip(first)
        self.end()
        self.start()
        self.flip({key: "1" for key in self.KEYS})
        self.end()


class BuiltInBrowser(window.WindowCase):
    def test_its_window_is_driven_and_its_closing_stops_the_run(self):
        self.start_with(lstDCoTmr="0", chkSaveSummary="1")
        browser = trawlex.wait_for(lambda: self.display.do("search", "--onlyvisible", "--name", "Internet Browse|blank"), 20,
                                   "the built-in browser's window")[-1]

        def type_address():
            self.display.do("windowactivate", "--sync", browser)
            self.display.do("mousemove", "--window", browser, 150, 20)
            self.display.do("click", "--repeat", "3", 1)
            self.display.do("type", "--delay", "5", trawlex.demo_harvest.RESULT_PAGE)
            self.display.do("key", "Return")

        self.repeat_until_window(window.RESULT_TITLE, type_address)
        self.click("cmdANStart")
        self.wait_for_summaries(4)
        self.close_by_keys(browser)
        self.assert_run_stands_still()
        self.assertIsNone(self.window.poll())
        self.assertIn("frmWBare", self.settings_file().read_text(encoding="utf-8"), "its place is kept")
        summaries = trawlex.rows(self.database, "SiteSummary", ["Title", "Url"])
        self.assertEqual(summaries, trawlex.expected_rows("SiteSummary")[:len(summaries)])


if __name__ == "__main__":
    unittest.main()
