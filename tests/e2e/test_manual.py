"""The tab Manual by mouse, keys and pop-up menus, beside a real browser: lists filled in each way, edited, saved and found
again; runs over a list, a series of pages and a series of pictures, and collecting, each stopped and resumed."""
import contextlib
import os
import pathlib
import re
import unittest

import trawlex
import window

GALLERY = "http://www.pier-pictures.com/"
BOATS = [f"{GALLERY}boats-{number}.html" for number in range(1, 10)]
NAMES = ["Ada", "Bram", "Cato", "Dora", "Edda", "Finn", "Gull", "Hope", "Iris"]
TITLES = [f"Boat {number} of 9: {name}" for number, name in enumerate(NAMES, 1)]
PICTURES = trawlex.ROOT / "demo/sites/www.pier-pictures.com"
MANUAL = "sstSearch(1)"


def read_parents():
    """The item whose sub-menu shows each menu item; "" for those of the menu itself."""
    text = (trawlex.ROOT / "src/app/MenuTables.h").read_text(encoding="utf-8")
    return dict(re.findall(r'\{"([^"]+)"_L1, (?:\{\}|"([^"]+)"_L1), "', text))


PARENTS = read_parents()


class ManualCase(window.WindowCase):
    def start_anew(self, **options):
        """Without tool tips: a new window is a menu then."""
        super().start_anew(chkShowToolTips="0", **options)

    def visible(self):
        return set(self.display.do("search", "--onlyvisible", "--pid", self.window.pid))

    def opened(self, shown):
        """What has opened, once something has; else nothing."""
        with contextlib.suppress(AssertionError):
            return trawlex.wait_for(lambda: self.visible() - shown, 4, "a menu")
        return set()

    def point_at(self, item, menu):
        x, y = self.positions[item][:2]
        self.display.do("mousemove", "--sync", "--window", min(menu), x - 5, y, "mousemove", "--window", min(menu), x, y)

    def choose(self, path, on):
        """From the right button to a click on the last item of the path. False where a menu closed before that, as it
        does when the focus comes back from a dialog that has just gone, or where it does not offer the item yet."""
        before = self.visible()
        self.click(on, button=3)
        menu = self.opened(before)
        for name in path[:-1]:
            if menu:
                shown = self.visible()
                self.point_at(name, menu)
                menu = self.opened(shown)
        if menu and menu <= self.visible():
            self.point_at(path[-1], menu)
            self.display.do("click", 1)
            with contextlib.suppress(AssertionError):
                trawlex.wait_for(lambda: not menu & self.visible(), 5, "the menu is gone")
                return True
        self.type("", "Escape", "Escape")
        return False

    def command(self, item, on="lstMN_0"):
        path = [item]
        while PARENTS[path[0]]:
            path.insert(0, PARENTS[path[0]])
        trawlex.wait_for(lambda: self.choose(path, on), 60, f"a menu with {item}")

    def choose_file(self, path):
        self.display.do("windowfocus", "--sync", self.wait_for_window("Select File"))
        self.type(path, "Return")

        def closed():
            if not self.display.do("search", "--onlyvisible", "--name", "Select File"):
                return True
            self.type("", "Return")
            return False

        trawlex.wait_for(closed, 20, "the file is chosen")

    def items(self):
        """What the list on show holds: it is put into a file for that."""
        self.files = getattr(self, "files", 0) + 1
        path = f"{self.folder}/items-{self.files}.txt"
        self.command("mnuMNSaveAsFile")
        self.choose_file(path)
        trawlex.wait_for(lambda: os.path.exists(path) and os.path.getsize(path), 20, path)
        return pathlib.Path(path).read_text(encoding="utf-8").splitlines()

    def wait_for_items(self, items, seconds=30):
        self.seen = None

        def now():
            self.seen = self.items()
            return self.seen == items

        try:
            trawlex.wait_for(now, seconds, "the items")
        except AssertionError:
            self.assertEqual(self.seen, items)

    def wait_for_rows(self, table, columns, wanted, seconds=30):
        def now():
            return trawlex.rows(self.database, table, columns)

        trawlex.wait_for(lambda: now() == wanted, seconds, f"{table} {wanted}, not {now()}")

    def keys_in_browser(self, *keys):
        browser = self.display.do("search", "--onlyvisible", "--class", "hromium")[-1]
        self.display.do("windowactivate", "--sync", browser)
        self.display.do("key", *keys)
        return browser

    def end(self):
        self.click("picANEnd")
        self.assertEqual(self.window.wait(timeout=30), 0)


class Lists(ManualCase):
    def load_links(self):
        self.open_in_browser(GALLERY, "Nine boats")
        self.command("mnuMNLoadLinksIE")
        self.wait_for_items(BOATS)

    def paste(self):
        self.open_in_browser(GALLERY + "addresses.html", "Addresses of the pier")
        self.keys_in_browser("Escape", "Tab")       # out of the address bar
        self.keys_in_browser("ctrl+a", "ctrl+c")
        self.command("mnuMNPasteLinks")
        self.pasted = ["http://www.quietbay.com/", "http://www.gull-point.ca/phones.html", "http://www.quietbay.com/"]
        self.wait_for_items(BOATS + self.pasted)

    def drag_link(self):
        """The link that fills the lower half of the page, onto the list."""
        browser = self.keys_in_browser("Escape")
        shape = dict(part.split("=") for part in self.display.do("getwindowgeometry", "--shell", browser) if "=" in part)
        x, y = int(shape["WIDTH"]) // 2, int(shape["HEIGHT"]) * 4 // 5
        to = self.positions["lstMN_0"]
        # At a hand's pace: a browser begins a drag by and by.
        self.display.do("mousemove", "--sync", "--window", browser, x, y, "sleep", 0.2, "mousedown", 1, "sleep", 0.2)
        for step in range(1, 11):
            self.display.do("mousemove", "--window", browser, x - 4 * step, y - 2 * step, "sleep", 0.05)
        for step in range(1, 21):
            self.display.do("mousemove", "--window", self.id, to[0] + 40 - 2 * step, to[1], "sleep", 0.05)
        self.display.do("mouseup", 1)

    def drop(self):
        self.dropped = ["http://www.slow-tide.com/slow.html"]

        self.open_in_browser(BOATS[0], TITLES[0])   # what is selected on a page would be dragged instead
        self.open_in_browser(GALLERY + "addresses.html", "Addresses of the pier")

        def arrived():
            self.drag_link()
            self.seen = self.items()
            return self.seen == BOATS + self.pasted + self.dropped

        try:
            trawlex.wait_for(arrived, 60, "the dropped link")
        except AssertionError:
            self.assertEqual(self.seen, BOATS + self.pasted + self.dropped)

    def load_file(self):
        path = self.folder + "/more.txt"
        pathlib.Path(path).write_bytes("http://www.café.com/1\r\nno link\r\nhttp://www.b.com/2".encode("windows-1252"))
        self.command("mnuMNLoadLinksFile")
        self.choose_file(path)
        self.filed = ["http://www.café.com/1", "http://www.b.com/2"]
        self.wait_for_items(BOATS + self.pasted + self.dropped + self.filed)

    def edit(self):
        self.command("mnuMNRem(0)")                 # Repeats
        items = BOATS + self.pasted[:2] + self.dropped + self.filed
        self.wait_for_items(items)
        self.command("mnuMNRem(4)")                 # Items Containing
        self.answer("Enter text", "BOATS-7")
        items.remove(BOATS[6])
        self.wait_for_items(items)
        self.click("lstMN_0", top=14)
        self.command("mnuMNClearSelected")
        self.wait_for_items(items[1:])
        self.command("mnuMNRem(3)")                 # Right Side At
        self.answer("Urls will be truncated", ".html")
        self.items_left = [item.removesuffix(".html") for item in items[1:]]
        self.wait_for_items(self.items_left)

    def cut_and_paste(self):
        """The first two go to the clipboard and come back at the end."""
        self.click("lstMN_0", top=14)
        self.type("", "shift+Down")
        self.command("mnuMNCutSelected")
        self.wait_for_items(self.items_left[2:])
        self.command("mnuMNPasteLinks")
        self.items_left = self.items_left[2:] + self.items_left[:2]
        self.wait_for_items(self.items_left)

    def save_and_find_again(self):
        self.command("mnuMNSaveToDatabase")
        self.wait_for_rows("MNUrlsA", ["Url"], [(item,) for item in self.items_left])
        self.end()
        self.start()
        self.go_to(MANUAL)
        self.command("mnuMNLoadLinksDB")
        self.wait_for_items(self.items_left)
        self.command("mnuMNDeleteSaved")
        self.wait_for_rows("MNUrlsA", ["Url"], [])
        self.assertEqual(trawlex.rows(self.database, "UrlsCache", ["Url"]), [(item,) for item in self.items_left])

    def test_a_list_is_filled_in_each_way_edited_saved_and_found_again(self):
        self.start_anew()
        self.go_to(MANUAL)
        self.load_links()
        self.paste()
        self.drop()
        self.load_file()
        self.edit()
        self.cut_and_paste()
        self.save_and_find_again()
        self.end()


class Runs(ManualCase):
    SECONDS = "004"

    def stop_and_resume(self, enough):
        """Go, X once `enough` says so, and Go again."""
        self.click("cmdMNStart")
        trawlex.wait_for(enough, 90, "a part of the run")
        self.click("cmdMNStart")
        self.assert_run_stands_still()
        self.click("cmdMNStart")

    def summaries(self):
        return trawlex.rows(self.database, "SiteSummary", ["Title", "Url"])

    def test_a_list_and_a_series_are_walked_stopped_and_resumed(self):
        self.start_anew(udcMNTimin=self.SECONDS, chkUniqueBaseUrls="0", chkSaveSummary="1", chkSMReturnToSearchPg="0")
        self.go_to(MANUAL)
        path = self.folder + "/list.txt"
        pathlib.Path(path).write_text("\n".join(reversed(BOATS[5:])), encoding="utf-8")
        self.command("mnuMNLoadLinksFile")
        self.choose_file(path)
        self.wait_for_items(BOATS[:4:-1])
        self.stop_and_resume(lambda: len(self.summaries()) >= 2)
        walked = list(zip(TITLES, BOATS))[:4:-1]
        self.wait_for_rows("SiteSummary", ["Title", "Url"], walked, 120)
        self.assert_run_stands_still()      # the series can be chosen once the run has ended
        self.walk_series(walked)
        self.end()

    def walk_series(self, walked):
        self.click("cboMNAutoUrl", left=20)
        self.type("", "ctrl+a")
        self.type(BOATS[0])
        self.command("mnuMNStatusAutoIncrPos(1)", on="picStatus")
        self.stop_and_resume(lambda: len(self.summaries()) >= len(walked) + 2)
        rest = list(zip(TITLES, BOATS))[:5]
        self.wait_for_rows("SiteSummary", ["Title", "Url"], walked + rest, 150)
        reached = trawlex.rows(self.database, "AutoTextA", ["Url", "IncrNum"])
        self.assertEqual(len(reached), 1, reached)
        self.assertRegex(reached[0][0], r"^www\.pier-pictures\.com/boats-[2-4]\.html$")
        trawlex.wait_for(lambda: any("boats-9" in line for line in self.requests()[-6:]), 90, "the end of the series")

    def test_a_series_of_pictures_is_fetched_stopped_and_resumed(self):
        start = f"localhost:{self.demo.port}/www.pier-pictures.com/"
        pictures = pathlib.Path(self.folder, "pictures")
        pictures.mkdir()
        self.start_anew(optFilesSites="0", incMNDLTiming="002", chkSMOpenDlGraphics="0", chkSMReturnToSearchPg="0",
                        txtMNGenerateUrlA=start + "boat-1.png", mnuMNStatusAutoIncrPos="2",
                        txtFNSaveLocation=f"{pictures}/")
        self.go_to(MANUAL)
        self.open_in_browser("http://" + start, "Nine boats")
        contents = [(PICTURES / f"boat-{number}.png").read_bytes() for number in range(1, 10)]

        def fetched():
            return sorted(path.name for path in pictures.iterdir())

        self.stop_and_resume(lambda: len(fetched()) >= 3)
        names = [f"boat-{number}.png" for number in range(1, 10)]
        trawlex.wait_for(lambda: names[-1] in fetched(), 90, "the last picture")
        self.assertEqual(fetched(), names)
        self.assertEqual([(pictures / name).read_bytes() for name in names], contents)
        self.end()

    def test_links_and_pages_are_collected_while_one_browses_stopped_and_resumed(self):
        self.start_anew()
        self.go_to(MANUAL)
        self.open_in_browser(BOATS[0], TITLES[0])
        for page, pages in ((1, [3, 3]), (4, [1]), (7, [3, 3])):     # the right button goes on to list A, then to B
            self.click("lblAutoCollect_onManual")
            for button in pages:
                self.click("lblAutoPgUrls_onManual", button)
            self.open_in_browser(BOATS[page], TITLES[page])
        self.command("mnuMNSaveToDatabase")
        links = [BOATS[0], GALLERY, BOATS[2], BOATS[6], BOATS[8]]
        self.wait_for_rows("MNUrlsA", ["Url"], [(link,) for link in links])
        self.click("cboMNList")
        self.type("", "Down", "Return")
        self.command("mnuMNSaveToDatabase")
        self.wait_for_rows("MNUrlsB", ["Url"], [(BOATS[1],), (BOATS[7],)])
        self.end()


if __name__ == "__main__":
    unittest.main()
