"""The zoo: hostile pages, each followed by ordinary ones, harvested with both browsers. Whatever a creature does, every
ordinary page is stored exactly, nothing else in its place, and the run ends by itself.

A few creatures by default; all of them with TRAWLEX_ZOO=full, those of a list with TRAWLEX_ZOO=name,name.
"""
import os
import re
import time
import unittest

import trawlex
from zoo import keeper
from zoo.creatures import CREATURES

WAIT = 5                # seconds a page is given
BEHIND = 10             # what a page may cost beyond its wait
READ_LIMIT = 30
SWITCHES = {"chkSMD(1)": 0, "chkSavePhone": 0, "chkSaveEmail": 0, "incNotFoundMinSize": 0, "incANTiming": WAIT}


def chosen():
    wanted = os.environ.get("TRAWLEX_ZOO", "")
    if wanted == "full":
        return list(CREATURES)
    return wanted.split(",") if wanted else [name for name, creature in CREATURES.items() if creature.short]


def listening_ports(pid):
    """Inodes of the TCP sockets on which a process listens."""
    listening = set()
    for table in ("tcp", "tcp6"):
        with open(f"/proc/{pid}/net/{table}", encoding="ascii") as lines:
            listening |= {words[9] for words in map(str.split, lines) if words[3] == "0A"}
    found = []
    for entry in os.scandir(f"/proc/{pid}/fd"):
        match = re.match(r"socket:\[(\d+)\]", os.readlink(entry.path))
        if match and match[1] in listening:
            found.append(match[1])
    return found


class Zoo(trawlex.Case):
    def setUp(self):
        super().setUp()
        self.names = chosen()
        self.zoo = keeper.Zoo(self.names)
        self.addCleanup(self.zoo.close)
        self.demo.shutdown()
        self.demo.server_close()
        self.demo = self.zoo

    def harvest_zoo(self, browser):
        path = self.make_database(browser)
        run = self.start_harvest(browser, ("--open", keeper.RESULT_PAGE), **SWITCHES)
        seen = {}
        self.looked_for_ports = False
        limit = sum((READ_LIMIT if CREATURES[name].slow else WAIT) + BEHIND + 2 * (WAIT + BEHIND) for name in self.names)
        end = time.monotonic() + limit + 60
        while run.poll() is None and time.monotonic() < end:
            for line in run.status_lines():
                match = re.match(r"\d+/\d+ (\S+)", line)
                if match:
                    seen.setdefault(match[1], time.monotonic())
            if len(seen) == 2 and not self.looked_for_ports:
                self.look_for_ports()
            time.sleep(0.1)
        self.assertIsNotNone(run.poll(), f"the run has not ended by itself: {run.status_lines()[-3:]}")
        self.tell_slow(seen)
        return path, run

    def look_for_ports(self):
        self.looked_for_ports = True
        for pid, line in trawlex.processes(self.folder):
            try:
                self.assertEqual(listening_ports(pid), [], line)
            except OSError:
                pass  # it has just ended

    def tell_slow(self, seen):
        moments = list(seen.items())
        for (link, begin), (_, end) in zip(moments, moments[1:]):
            if end - begin > WAIT + BEHIND:
                print(f"{link} took {end - begin:.0f} s")

    def assert_ordinary_pages(self, path):
        stored = dict(trawlex.rows(path, "SiteSummary", ["Title", "FullPage"]))
        hosts = [host for name in self.names for host in keeper.ordinary_hosts(name)]
        lost = [host for host in hosts if f"Ordinary {host}" not in stored]
        self.assertEqual(lost, [], "ordinary pages that are not stored")
        empty = [host for host in hosts if f"mark of {host}" not in (stored[f"Ordinary {host}"] or "")]
        self.assertEqual(empty, [], "ordinary pages that are stored without their text")

    def assert_nothing_in_anothers_place(self, path):
        wrong = []
        for url, full in trawlex.rows(path, "SiteSummary", ["Url", "FullPage"]):
            mark = re.search(r"mark of (\S+?)</p>", full or "")
            if mark and mark[1] not in url:
                wrong.append((url, mark[1]))
        self.assertEqual(wrong, [], "pages that are stored under another's address")

    def survives(self, browser):
        path, run = self.harvest_zoo(browser)
        self.assertIn("Stopped (FINISHED)", run.status_lines())
        self.assertEqual(run.returncode, 0)
        self.assert_ordinary_pages(path)
        self.assert_nothing_in_anothers_place(path)
        trawlex.wait_for(lambda: not trawlex.processes(self.folder), 5, "nothing is left running")

    def test_the_free_standing_browser_survives_the_zoo(self):
        self.survives("iexplore")

    def test_the_built_in_browser_survives_the_zoo(self):
        self.survives("internal")


if __name__ == "__main__":
    unittest.main()
