"""Browser, page process and program are killed in the middle of runs. With TRAWLEX_KILLS=200 so often at random moments."""
import contextlib
import os
import pathlib
import random
import re
import shutil
import signal
import sqlite3
import time
import unittest
import urllib.parse

import trawlex


def browser_process(folder):
    """The free-standing browser's main process."""
    return next((pid for pid, line in trawlex.processes(folder) if "--user-data-dir" in line and "--type=" not in line
                 and "trawlex-harvest" not in line), None)


def parents(pid):
    while pid > 1:
        yield pid
        try:
            stat = pathlib.Path(f"/proc/{pid}/stat").read_text(encoding="ascii", errors="replace")
        except OSError:
            return
        pid = int(stat.rpartition(")")[2].split()[1])


def page_processes(ancestor):
    """The built-in browser's page processes keep the name of the zygote that they were forked from."""
    forks = dict(trawlex.processes("--type=zygote"))
    pages = [pid for pid in forks if list(parents(pid))[1] in forks]
    pages += [pid for pid, _ in trawlex.processes("--type=renderer")]
    return [pid for pid in pages if ancestor in parents(pid)]


# Each round is a harvest with a browser; a long row of them is for when somebody asks.
MOMENTS = int(os.environ.get("TRAWLEX_KILLS", "5"))


class Kills(trawlex.Case):
    def visited(self, run):
        return [line for line in run.status_lines() if re.match(r"\d+/\d+ ", line)]

    def start_and_visit(self, browser, pages, **switches):
        path = self.make_database(browser)
        run = self.start_harvest(browser, **switches)
        trawlex.wait_for(lambda: len(self.visited(run)) >= pages, 60, f"{pages} pages visited")
        return path, run

    def kill_page_processes(self, browser, run):
        """True when one of them was still there: they come and go with the sites."""
        killed = False
        for pid in page_processes(browser_process(self.folder) if browser == "iexplore" else run.pid):
            with contextlib.suppress(ProcessLookupError):
                os.kill(pid, signal.SIGKILL)
                killed = True
        return killed

    def run_goes_on_without_the_page_process(self, browser):
        path, run = self.start_and_visit(browser, 5)
        trawlex.wait_for(lambda: self.kill_page_processes(browser, run), 10, "a page process is killed")
        self.assertEqual(run.wait(timeout=120), 0, run.status_lines())
        self.assertEqual(len(self.visited(run)), len(trawlex.EXPECTED["links"]))
        self.assertGreaterEqual(trawlex.count(path, "SiteSummary"), len(trawlex.EXPECTED["SiteSummary"]) - 3)

    def test_killing_the_page_process_costs_a_page_and_not_the_run(self):
        self.run_goes_on_without_the_page_process("iexplore")

    def test_killing_the_page_process_of_the_built_in_browser_costs_a_page_and_not_the_run(self):
        self.run_goes_on_without_the_page_process("internal")

    def test_after_the_program_is_killed_the_file_opens_and_the_next_harvest_completes_it(self):
        path, run = self.start_and_visit("iexplore", 12)
        os.kill(run.pid, signal.SIGKILL)
        run.wait(timeout=10)
        with sqlite3.connect(path) as database:
            self.assertEqual(database.execute("PRAGMA integrity_check").fetchone()[0], "ok")
        self.assertGreaterEqual(trawlex.count(path, "SiteSummary"), 8)
        done = self.harvest("iexplore")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(trawlex.rows(path, "SiteSummary", ["Title", "Url"]), trawlex.expected_rows("SiteSummary"))

    def assert_whole_pages(self, path, at_least):
        """The file is sound and holds the first so many pages of the harvest, all rows of each; gives how many."""
        with contextlib.closing(sqlite3.connect(path)) as database:
            self.assertEqual(database.execute("PRAGMA integrity_check").fetchone()[0], "ok")
        pages = [url for _, _, url in trawlex.rows(path, "PassUrlsA", trawlex.TABLES["PassUrlsA"])]
        self.assertGreaterEqual(len(pages), at_least, f"a page that was reported is lost, stored are {pages}")
        # A summary's address is that of the server; those of links are kept without quotes.
        stored = set(pages) | {urllib.parse.urlsplit(page).netloc for page in pages}
        for table in trawlex.TABLES:
            wanted = [row for row in trawlex.expected_rows(table) if row[-1].replace("'", "") in stored]
            self.assertEqual(trawlex.rows(path, table, trawlex.TABLES[table]), wanted, table)
        return len(pages)

    def test_killed_at_any_moment_it_loses_no_page_that_it_reported(self):
        path = self.make_database()
        shutil.copy(path, self.folder + "/fresh")
        whole = []
        for _ in range(MOMENTS):
            page = random.randint(1, len(trawlex.EXPECTED["links"]))
            seconds = random.uniform(0, 0.4)
            for tail in ("-wal", "-shm"):
                pathlib.Path(path + tail).unlink(missing_ok=True)
            shutil.copy(self.folder + "/fresh", path)
            with self.subTest(page=page, seconds=seconds):
                run = self.start_harvest("iexplore")
                trawlex.wait_for(lambda: len(self.visited(run)) >= page, 120, f"page {page}")
                time.sleep(seconds)
                self.assert_no_ports()
                run.kill()
                run.wait(timeout=10)
                # The line of a page stands there before its rows, those of all pages before it are on the disk.
                whole.append(self.assert_whole_pages(path, len(self.visited(run)) - 1))
                trawlex.wait_for(lambda: not list(trawlex.processes(self.folder)), 5, "nothing is left running")
        print(f"killed {MOMENTS} times, with {min(whole, default=0)} to {max(whole, default=0)} pages stored")

    def test_whatever_ends_the_program_ends_its_browser(self):
        for browser in ("iexplore", "internal"):
            for number in (signal.SIGKILL, signal.SIGSEGV, signal.SIGABRT):
                with self.subTest(browser=browser, signal=number):
                    self.make_database(browser)
                    run = self.start_harvest(browser)
                    trawlex.wait_for(lambda: self.visited(run), 60, "the first page")
                    os.kill(run.pid, number)
                    run.wait(timeout=10)
                    trawlex.wait_for(lambda: not list(trawlex.processes(self.folder)), 5, "nothing is left running")

    def test_a_browser_that_is_stopped_ends_with_the_program_all_the_same(self):
        self.make_database()
        run = self.start_harvest("iexplore")
        trawlex.wait_for(lambda: self.visited(run), 60, "the first page")
        os.kill(browser_process(self.folder), signal.SIGSTOP)
        run.kill()
        run.wait(timeout=10)
        trawlex.wait_for(lambda: not list(trawlex.processes(self.folder)), 5, "nothing is left running")

    def test_what_a_killed_browser_has_left_is_taken_away_at_the_next_start(self):
        self.make_database()
        temporary = pathlib.Path(self.folder, "temporary")
        temporary.mkdir()
        self.env["TMPDIR"] = str(temporary)
        for _ in range(3):
            run = self.start_harvest("iexplore")
            trawlex.wait_for(lambda: self.visited(run), 60, "the first page")
            run.kill()
            run.wait(timeout=10)
            trawlex.wait_for(lambda: not list(trawlex.processes(self.folder)), 5, "nothing is left running")
            self.assertLessEqual(len(list(temporary.iterdir())), 1, list(temporary.iterdir()))
        self.assertEqual(self.harvest("iexplore").returncode, 0)
        self.assertEqual(list(temporary.iterdir()), [])

    def test_a_wish_to_end_stops_the_run_in_the_middle_of_a_wait(self):
        path = self.make_database()
        run = self.start_harvest("iexplore", incANTiming=50)
        trawlex.wait_for(lambda: self.visited(run), 60, "the first page")
        run.terminate()
        started = time.monotonic()
        self.assertEqual(run.wait(timeout=20), 1)
        self.assertLess(time.monotonic() - started, 10)
        self.assertIn("Stopped (USER)", run.status_lines())
        self.assertTrue(os.path.exists(path))


if __name__ == "__main__":
    unittest.main()
