"""The zoo: hostile pages, each followed by ordinary ones, harvested with both browsers. Whatever a creature does, every
ordinary page is stored exactly, nothing else in its place, no page costs more than it may, and the run ends by itself.

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
READ_LIMIT = 30         # what those of many megabytes may
SWITCHES = {"chkSMD(1)": 0, "chkSavePhone": 0, "chkSaveEmail": 0, "incNotFoundMinSize": 0, "incANTiming": WAIT}
# What stands in the error pages of both browsers, and in no page of ours.
ERROR_PAGE = re.compile(r"main-frame-error|neterror|ERR_[A-Z]+_")


def chosen():
    wanted = os.environ.get("TRAWLEX_ZOO", "")
    if wanted == "full":
        return list(CREATURES)
    return wanted.split(",") if wanted else [name for name, creature in CREATURES.items() if creature.short]


class Zoo(trawlex.Case):
    def setUp(self):
        super().setUp()
        self.names = chosen()
        self.zoo = keeper.Zoo(self.names)
        self.addCleanup(self.zoo.close)
        self.demo.shutdown()
        self.demo.server_close()
        self.demo = self.zoo
        self.costs = {keeper.host_of(link): self.allowed(link) for link in keeper.links(self.names)}

    def allowed(self, link):
        """The seconds that a page may cost."""
        creature = next((CREATURES[name] for name in self.names if keeper.creature_host(name) == keeper.host_of(link)), None)
        return WAIT + (READ_LIMIT if creature and creature.slow else BEHIND)

    def harvest_zoo(self, browser):
        """Gives the database and the run; keeps what each page has cost."""
        path = self.make_database(browser)
        run = self.start_harvest(browser, ("--open", keeper.RESULT_PAGE), **SWITCHES)
        begun = {}
        end = time.monotonic() + 2 * sum(self.costs.values())
        running = True
        while running and time.monotonic() < end:
            running = run.poll() is None
            for line in run.status_lines():
                match = re.match(r"\d+/\d+ (\S+)", line)
                if match and match[1] not in begun:
                    begun[match[1]] = time.monotonic()
                    self.assert_no_ports()
            time.sleep(0.1)
        self.assertFalse(running, f"the run has not ended by itself: {run.status_lines()[-3:]}")
        trawlex.wait_for(lambda: not trawlex.processes(self.folder), 5, "nothing is left running")
        self.taken = dict(zip(begun, (after - before for before, after in
                                      zip(begun.values(), [*begun.values(), time.monotonic()][1:]))))
        return path, run

    def assert_no_page_costs_too_much(self):
        slow = {link: round(taken) for link, taken in self.taken.items() if taken > self.costs[keeper.host_of(link)]}
        self.assertEqual(slow, {}, "pages that cost more seconds than they may")
        self.assertEqual(len(self.taken), len(self.costs), "pages that were visited")

    def assert_ordinary_pages(self, stored):
        hosts = [host for name in self.names for host in keeper.ordinary_hosts(name)]
        self.assertEqual([host for host in hosts if host not in stored], [], "ordinary pages that are not stored")
        wrong = {host: stored[host] for host in hosts if stored[host] != [keeper.stored_page(host)]}
        self.assertEqual(wrong, {}, "ordinary pages that are stored as something else")

    def assert_nothing_in_anothers_place(self, stored):
        for host, pages in stored.items():
            for title, full in pages:
                mark = re.search(r"mark of (\S+?)</p>", full or "")
                self.assertFalse(mark and mark[1] != host, f"the page of {host} is that of {mark and mark[1]}")
                self.assertIsNone(ERROR_PAGE.search(full or ""), f"the browser's error page is stored for {host}")
        never = [keeper.creature_host(name) for name in self.names if CREATURES[name].never]
        self.assertEqual([host for host in never if host in stored], [], "pages that never came and are stored")

    def survives(self, browser):
        path, run = self.harvest_zoo(browser)
        if os.environ.get("TRAWLEX_ZOO_TELL"):
            print("\n".join(run.status_lines()))
            print({link: round(taken, 1) for link, taken in self.taken.items()})
        stored = {}
        for url, title, full in trawlex.rows(path, "SiteSummary", ["Url", "Title", "FullPage"]):
            stored.setdefault(keeper.host_of(url), []).append((title, full))
        with self.subTest("content"):
            self.assert_ordinary_pages(stored)
        with self.subTest("place"):
            self.assert_nothing_in_anothers_place(stored)
        with self.subTest("time"):
            self.assert_no_page_costs_too_much()
        self.assertIn("Stopped (FINISHED)", run.status_lines())
        self.assertEqual(run.returncode, 0)

    def test_the_free_standing_browser_survives_the_zoo(self):
        self.survives("iexplore")

    def test_the_built_in_browser_survives_the_zoo(self):
        self.survives("internal")


if __name__ == "__main__":
    unittest.main()
