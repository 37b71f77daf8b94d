"""What the end-to-end tests share: a demo server, a folder of its own for each test, and ways to run the programs."""
import contextlib
import io
import json
import os
import pathlib
import re
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "demo"))
import harvest as demo_harvest  # noqa: E402
import server  # noqa: E402

BIN = pathlib.Path(os.environ.get("TRAWLEX_BIN", ROOT / "build/dev/bin")).resolve()
HARVESTER = BIN / "trawlex-harvest"
WINDOW = BIN / "trawlex"
EXPECTED = json.loads((ROOT / "demo/expected.json").read_text(encoding="utf-8"))
TABLES = {
    "SiteSummary": ["Title", "Url"],
    "EmailAddress": ["SSIndex", "Address", "Url"],
    "PhoneNumber": ["SSIndex", "Number", "Type", "Url"],
    "PassUrlsA": ["SSIndex", "MaskName", "Url"],
}


def wait_for(condition, seconds, what):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.05)
    raise AssertionError(f"not within {seconds} s: {what}")


def rows(path, table, columns):
    names = ", ".join(f'"{column}"' for column in columns)
    with contextlib.closing(sqlite3.connect(f"file:{path}?mode=ro", uri=True)) as database:
        return database.execute(f'SELECT {names} FROM "{table}" ORDER BY rowid').fetchall()


def count(path, table):
    with contextlib.closing(sqlite3.connect(f"file:{path}?mode=ro", uri=True)) as database:
        return database.execute(f'SELECT count(*) FROM "{table}"').fetchone()[0]


def expected_rows(table):
    return [tuple(row[column] for column in TABLES[table]) for row in EXPECTED[table]]


def words_of(process, name):
    try:
        return (process / name).read_bytes().replace(b"\0", b" ").decode(errors="replace")
    except OSError:
        return ""


def processes(mark):
    """Running processes whose command line or environment holds `mark`, as (pid, command line). A page's process often
    has nothing of its browser's command line, but whoever starts with a test's folder hands it on."""
    found = []
    for entry in pathlib.Path("/proc").iterdir():
        if not entry.name.isdigit() or int(entry.name) == os.getpid():
            continue
        line = words_of(entry, "cmdline")
        if line and (mark in line or mark in words_of(entry, "environ")):
            found.append((int(entry.name), line))
    return found


def listening_ports(pid):
    """Inodes of the TCP sockets on which a process listens."""
    listening = set()
    for table in ("tcp", "tcp6"):
        with open(f"/proc/{pid}/net/{table}", encoding="ascii") as lines:
            listening |= {words[9] for words in map(str.split, lines) if words[3] == "0A"}
    found = []
    for file in os.listdir(f"/proc/{pid}/fd"):
        match = re.match(r"socket:\[(\d+)\]", os.readlink(f"/proc/{pid}/fd/{file}"))
        if match and match[1] in listening:
            found.append(match[1])
    return found


class Case(unittest.TestCase):
    """A folder, settings and browser profile of its own; browsers that are left are ended with the test."""
    maxDiff = None

    def setUp(self):
        self.folder = tempfile.mkdtemp(prefix="trawlex-e2e-")
        self.env = dict(os.environ, XDG_CONFIG_HOME=self.folder + "/config", XDG_DATA_HOME=self.folder + "/data",
                        XDG_RUNTIME_DIR=self.folder, LOGFILES=self.folder, LC_ALL="C.UTF-8")
        self.demo_log = io.StringIO()
        self.demo = server.start(log=self.demo_log)
        self.addCleanup(self.clean_up)

    def requests(self):
        """What the demo was asked for, one line each: status, host, target."""
        return self.demo_log.getvalue().splitlines()

    def clean_up(self):
        self.demo.shutdown()
        self.demo.server_close()
        self.end_processes()
        shutil.rmtree(self.folder, ignore_errors=True)

    def end_processes(self):
        """Ends the programs and browsers of this test that still run."""
        for pid, _ in processes(self.folder):
            try:
                os.kill(pid, signal.SIGKILL)
            except ProcessLookupError:
                pass

    def make_database(self, browser="iexplore"):
        return demo_harvest.make_database(HARVESTER, self.folder, self.demo.port, browser, self.env)

    def words(self, browser, extra=(), **switches):
        # Errors are told on standard error, where a failing test shows them.
        chosen = {**EXPECTED["switches"], "chkSMV(1)": 1, **switches}
        return demo_harvest.command(HARVESTER, self.folder, self.demo.port, browser, chosen, extra)

    def harvest(self, browser, extra=("--open", demo_harvest.RESULT_PAGE), **switches):
        done = subprocess.run(self.words(browser, extra, **switches), env=self.env, capture_output=True, text=True,
                              timeout=300, check=False)
        done.report = json.loads(done.stdout) if done.stdout.strip() else None
        return done

    def start_harvest(self, browser, extra=("--open", demo_harvest.RESULT_PAGE), **switches):
        log = open(self.folder + "/stderr.txt", "w+", encoding="utf-8")
        self.addCleanup(log.close)
        run = subprocess.Popen(self.words(browser, extra, **switches), env=self.env, stdout=subprocess.PIPE, stderr=log,
                               text=True)
        self.addCleanup(lambda: (run.poll() is None and run.kill(), run.wait(), run.stdout.close()))
        run.status_lines = lambda: pathlib.Path(log.name).read_text(encoding="utf-8").splitlines()
        return run

    def assert_no_ports(self):
        """Nothing that this test has started listens on a port."""
        for pid, line in processes(self.folder):
            with contextlib.suppress(OSError):  # it has just ended
                self.assertEqual(listening_ports(pid), [], line)

    def assert_expected_rows(self, path):
        for table, columns in TABLES.items():
            with self.subTest(table=table):
                self.assertEqual(rows(path, table, columns), expected_rows(table))
        pages = rows(path, "SiteSummary", ["Url", "FullPage"])
        for (url, page), wanted in zip(pages, EXPECTED["SiteSummary"]):
            with self.subTest(page=url):
                self.assertEqual(bool(page), wanted["FullPage"])
                self.assertIn(wanted.get("FullPageHolds", ""), page or "")
