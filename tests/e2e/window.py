"""The window program under a virtual display of its own, driven by real clicks and keys."""
import contextlib
import json
import os
import pathlib
import re
import subprocess
import sys
import time

import trawlex

SAVE_BOXES = ["chkSaveSummary", "chkSavePages", "chkSaveEmail", "chkSavePhone", "chkSaveUrl"]
RESULT_TITLE = "harbour - Findery"
OPTIONS = {"udcNotFoundMinSize": "002000", "chkSMAMUrlIfNoData": "0", "chkShutDownPrompt": "0", "npTimimg": "002"}


class Display:
    """A display of its own with a window manager, ended with the test."""

    def __init__(self, case, size="1280x1000"):
        read, write = os.pipe()
        # A server that begins anew when its last client goes refuses whoever comes in that moment.
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", size + "x24", "-nolisten", "tcp", "-noreset"],
                                       pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            self.name = ":" + number.readline().strip()
        case.env.update(DISPLAY=self.name, QT_QPA_PLATFORM="xcb")
        case.env.pop("WAYLAND_DISPLAY", None)
        self.env = case.env
        self.manager = subprocess.Popen(["openbox"], env=case.env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        case.addCleanup(self.close)

    def close(self):
        for process in (self.manager, self.server):
            process.kill()
            process.wait()

    def do(self, *words):
        done = subprocess.run(["xdotool", *map(str, words)], env=self.env, capture_output=True, text=True, timeout=20,
                              check=False)
        return done.stdout.split()

    def property(self, window, name):
        """What the window manager and the program tell each other of a window, as xprop prints it; "" for nothing."""
        done = subprocess.run(["xprop", "-id", window, name], env=self.env, capture_output=True, text=True, timeout=20, check=False)
        return done.stdout.partition("=")[2].strip()

    def frame(self, window):
        """The edges of a window with its frame: left, top, right, bottom."""
        told = subprocess.run(["xwininfo", "-id", window], env=self.env, capture_output=True, text=True, timeout=20, check=True).stdout
        x, y, width, height = (int(re.search(rf"{key}: +(-?[0-9]+)", told)[1]) for key in
                               ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        left, right, top, bottom = (int(number) for number in self.property(window, "_NET_FRAME_EXTENTS").split(","))
        return x - left, y - top, x + width + right, y + height + bottom

    def screenshot(self, path):
        subprocess.run(["import", "-window", "root", path], env=self.env, timeout=30, check=False)


class WindowCase(trawlex.Case):
    def setUp(self):
        super().setUp()
        self.display = Display(self)
        self.env["TRAWLEX_BROWSER_ARGS"] = f'"--host-resolver-rules=MAP * 127.0.0.1:{self.demo.port}"'
        self.database = os.path.join(self.folder, "database", "Trawlex-0.mdb")
        os.mkdir(os.path.dirname(self.database))

    def settings_file(self):
        return pathlib.Path(self.folder, "config/trawlex/trawlex.ini")

    def choose_options(self, **options):
        """Puts options into the settings beside those that a first start has written."""
        text = self.settings_file().read_text(encoding="utf-8")
        prefix = re.search(r"^(.*SecFrmSearch\\)WorkingPath=", text, re.MULTILINE)[1]
        kept = [line for line in text.splitlines() if not any(line.startswith(prefix + key + "=") for key in options)]
        at = next(i for i, line in enumerate(kept) if line.startswith(prefix + "WorkingPath="))
        kept[at:at] = [f"{prefix}{key}={value}" for key, value in options.items()]
        self.settings_file().write_text("\n".join(kept) + "\n", encoding="utf-8")

    def start(self, until_connected=True):
        """Starts the program. Its window stands before it has a browser, which is waited for unless told otherwise."""
        log = open(self.folder + "/window.txt", "a", encoding="utf-8")
        self.addCleanup(log.close)
        self.window = subprocess.Popen([trawlex.WINDOW], env=self.env, cwd=self.folder, stdout=log, stderr=log)
        self.addCleanup(lambda: (self.window.poll() is None and self.window.kill(), self.window.wait()))
        self.id = trawlex.wait_for(self.find_window, 40, "the main window")
        found = subprocess.run([trawlex.BIN / "window_positions"], env=self.env, capture_output=True, text=True, check=True)
        self.positions = json.loads(found.stdout)
        if until_connected:
            trawlex.wait_for(self.has_browser, 40, "a connected browser")

    def has_browser(self):
        """Our window of the built-in browser stands, or somebody is connected to the socket of the other one's holder."""
        if self.display.do("search", "--onlyvisible", "--pid", self.window.pid, "--name", "Internet Browse|blank"):
            return True
        sockets = pathlib.Path("/proc/net/unix").read_text(encoding="utf-8").splitlines()
        return any(line.split()[5] == "03" and self.folder in line for line in sockets[1:])

    def find_window(self):
        """The main window is ours, visible, larger than the splash, and not the built-in browser's."""
        for window in self.display.do("search", "--onlyvisible", "--pid", self.window.pid):
            geometry = dict(part.split("=") for part in
                            self.display.do("getwindowgeometry", "--shell", window) if "=" in part)
            if int(geometry.get("HEIGHT", 0)) > 400 and self.display.do("getwindowname", window) == ["Trawlex"]:
                return window
        return None

    def click(self, name, button=1, left=None, top=None):
        """Presses the middle of a widget, or so far from its left and its upper edge."""
        x, y, width, height = self.positions[name]
        x += left - width // 2 if left is not None else 0
        y += top - height // 2 if top is not None else 0
        self.display.do("mousemove", "--window", self.id, x, y)
        self.display.do("click", button)

    def go_to(self, *tabs):
        """Presses tabs as "sstSearch(2)", from the outermost to the innermost."""
        for tab in tabs:
            self.click(tab)

    def type(self, text, *keys):
        """Types into what has the focus, and presses keys behind it."""
        if text:
            self.display.do("type", "--delay", "5", text)
        if keys:
            self.display.do("key", *keys)

    def answer(self, title, text):
        """Types an answer into the input box of that title, which then closes."""
        self.display.do("windowfocus", "--sync", self.wait_for_window(title))
        self.type(text, "Return")
        trawlex.wait_for(lambda: not self.display.do("search", "--onlyvisible", "--name", title), 20, f"the end of '{title}'")

    def open_in_browser(self, url, title):
        """Types an address into the free-standing browser."""
        def type_address():
            browser = trawlex.wait_for(lambda: self.display.do("search", "--onlyvisible", "--class", "hromium"), 40,
                                       "the browser's window")[-1]
            self.display.do("windowactivate", "--sync", browser)
            self.display.do("key", "--window", browser, "ctrl+l")
            self.display.do("type", "--delay", "5", url)
            self.display.do("key", "Return")

        self.repeat_until_window(title, type_address)

    def repeat_until_window(self, title, action):
        """A browser that has just come up may lose keys: the action is repeated until a window has the title."""
        for _ in range(4):
            action()
            with contextlib.suppress(AssertionError):
                self.wait_for_window(title, 10)
                return
        self.fail(f"no window ever showed '{title}'")

    def wait_for_window(self, name, seconds=20):
        """The window whose title holds `name`, once it is there."""
        return trawlex.wait_for(lambda: self.display.do("search", "--onlyvisible", "--name", name), seconds, f"a window '{name}'")[-1]

    def close_by_keys(self, window):
        """Alt+F4 on a window, until it has gone."""
        def gone():
            self.display.do("windowactivate", "--sync", window)
            self.display.do("key", "alt+F4")
            with contextlib.suppress(AssertionError):
                return trawlex.wait_for(lambda: window not in self.display.do("search", "--onlyvisible", "--name", ".*"), 5, "closed")

        trawlex.wait_for(gone, 20, "the window is closed")

    def first_start(self):
        """Makes settings and database; the end mark ends the program after its question."""
        self.start(until_connected=False)
        question = trawlex.wait_for(self.asks_to_end, 30, "the question at the end")

        def agree():
            self.display.do("windowfocus", "--sync", question)
            self.display.do("key", "alt+y")

        self.end_by(agree)

    def end_by(self, action):
        """Ends the program: a press that a slow machine has lost is repeated."""
        def ended():
            action()
            with contextlib.suppress(subprocess.TimeoutExpired):
                self.window.wait(timeout=10)
                return True

        trawlex.wait_for(ended, 45, "the end of the program")
        self.assertEqual(self.window.returncode, 0)

    def asks_to_end(self):
        """A window that is just coming up may lose a press."""
        self.click("picANEnd")
        with contextlib.suppress(AssertionError):
            return self.wait_for_window("Program will terminate", 5)

    def start_anew(self, **options):
        """A second start with options and a new database."""
        self.first_start()
        folder = {"SearchKeyTxtSaveLocation Text": os.path.dirname(self.database) + "/"}
        self.choose_options(**{**OPTIONS, **folder, **options})
        self.start()
        trawlex.wait_for(lambda: os.path.exists(self.database), 10, "the database")

    def start_with(self, **options):
        """A second start with options and a database that knows the demo's search service."""
        self.start_anew(**options)
        subprocess.run([sys.executable, trawlex.ROOT / "demo/record.py", self.database], check=True,
                       stdout=subprocess.DEVNULL)

    def wait_for_summaries(self, wanted, seconds=60):
        trawlex.wait_for(lambda: trawlex.count(self.database, "SiteSummary") >= wanted, seconds, f"{wanted} summaries")

    def assert_run_stands_still(self):
        """The rows stop growing: for longer than two pages of a run take, nothing comes."""
        seen = [None, 0.0]

        def still():
            count = trawlex.count(self.database, "SiteSummary")
            if count != seen[0]:
                seen[:] = [count, time.monotonic()]
            return time.monotonic() - seen[1] > 5

        trawlex.wait_for(still, 15, "the run stands still")

    def wait_for_visit(self):
        """The first request for something else than the result page: the run walks."""
        trawlex.wait_for(lambda: any("findery" not in line for line in self.requests()), 30, "a page of the run")
