"""Runs whose browser is killed and whose database is locked or moved: nothing is lost, and nothing is lost in silence."""
import contextlib
import http.server
import os
import pathlib
import shutil
import signal
import sqlite3
import subprocess
import threading
import time
import unittest

import trawlex

OPEN = ("--open", trawlex.demo_harvest.RESULT_PAGE)


class Faults(trawlex.Case):
    def wait_for_status(self, run, text, seconds=60):
        trawlex.wait_for(lambda: any(text in line for line in run.status_lines()), seconds, text)

    def kill_browser(self):
        """The free-standing browser's first process, with all that hang on it."""
        browsers = [pid for pid, line in trawlex.processes(self.folder)
                    if "--user-data-dir" in line and "--type=" not in line and "browser-holder" not in line]
        self.assertTrue(browsers)
        for pid in browsers:
            with contextlib.suppress(ProcessLookupError):
                os.kill(pid, signal.SIGKILL)

    def finished(self, run):
        out, _ = run.communicate(timeout=240)
        return run.returncode, out

    def start_in(self, folder, browser):
        """A run on a database that lies in `folder` and not beside the logs and the browser's profile."""
        path = shutil.copy(self.make_database(browser), folder)
        words = [str(folder) if word == self.folder else word for word in self.words(browser, OPEN)]
        log = open(self.folder + "/stderr.txt", "w+", encoding="utf-8")
        self.addCleanup(log.close)
        run = subprocess.Popen(words, env=self.env, stdout=subprocess.PIPE, stderr=log, text=True)
        self.addCleanup(lambda: (run.poll() is None and run.kill(), run.wait(), run.stdout.close()))
        run.status_lines = lambda: pathlib.Path(log.name).read_text(encoding="utf-8").splitlines()
        return path, run

    def data_folder(self):
        folder = pathlib.Path(self.folder, "data-of-runs")
        folder.mkdir()
        return folder

    def assert_ended_as_gone(self, run):
        """Gives how many rows of each table the run says that it has stored."""
        status, out = self.finished(run)
        self.assertEqual(status, 1)
        self.assertIn("Stopped (ERROR, DATABASE HAS BEEN MOVED OR DELETED)", run.status_lines())
        return trawlex.json.loads(out)["rows"]

    def test_a_browser_that_is_killed_is_started_again_and_no_page_is_lost(self):
        path = self.make_database()
        run = self.start_harvest("iexplore", OPEN)
        self.wait_for_status(run, "5/")
        self.kill_browser()
        status, _ = self.finished(run)
        lines = run.status_lines()
        self.assertIn("Browser has ended. Starting it again", lines)
        self.assertEqual(status, 0, lines[-5:])
        self.assertCountEqual(trawlex.rows(path, "SiteSummary", ["Url"]),
                              [(row["Url"],) for row in trawlex.EXPECTED["SiteSummary"]])

    def waits_for_the_lock(self, browser):
        path = self.make_database(browser)
        run = self.start_harvest(browser, OPEN)
        self.wait_for_status(run, "3/")
        with contextlib.closing(sqlite3.connect(path, isolation_level=None)) as other:
            other.execute("BEGIN IMMEDIATE")
            time.sleep(8)
            self.assertIn("Database is locked. Waiting", run.status_lines())
            other.execute("ROLLBACK")
        status, _ = self.finished(run)
        self.assertEqual(status, 0, run.status_lines()[-5:])
        self.assert_expected_rows(path)

    def test_a_database_that_is_locked_for_eight_seconds_is_waited_for_with_the_free_standing_browser(self):
        self.waits_for_the_lock("iexplore")

    def test_a_database_that_is_locked_for_eight_seconds_is_waited_for_with_the_built_in_browser(self):
        self.waits_for_the_lock("internal")

    def waits_until_writable(self, browser):
        path = self.make_database(browser)
        run = self.start_harvest(browser, OPEN)
        self.wait_for_status(run, "3/")
        self.addCleanup(subprocess.run, ["chattr", "-i", path, path + "-wal"], check=False, stderr=subprocess.DEVNULL)
        if subprocess.run(["chattr", "+i", path, path + "-wal"], check=False, stderr=subprocess.DEVNULL).returncode != 0:
            self.skipTest("taking the right to write from an open file takes the superuser, and not every disk can")
        self.wait_for_status(run, "Database is read-only. Waiting")
        time.sleep(2)
        subprocess.run(["chattr", "-i", path, path + "-wal"], check=True)
        status, _ = self.finished(run)
        self.assertEqual(status, 0, run.status_lines()[-5:])
        self.assert_expected_rows(path)

    def test_a_database_that_becomes_read_only_for_a_while_is_waited_for_with_the_free_standing_browser(self):
        self.waits_until_writable("iexplore")

    def test_a_database_that_becomes_read_only_for_a_while_is_waited_for_with_the_built_in_browser(self):
        self.waits_until_writable("internal")

    def test_rights_that_are_taken_away_in_a_run_lose_nothing(self):
        folder = self.data_folder()
        path, run = self.start_in(folder, "iexplore")
        self.wait_for_status(run, "3/")
        for file in folder.iterdir():
            file.chmod(0o400)
        folder.chmod(0o500)
        status, _ = self.finished(run)
        folder.chmod(0o700)
        self.assertEqual(status, 0, run.status_lines()[-5:])  # open files stay as they were opened
        self.assert_expected_rows(path)

    def test_a_database_that_stays_locked_ends_the_run_after_a_minute_and_the_next_run_completes_it(self):
        path = self.make_database()
        run = self.start_harvest("iexplore", OPEN)
        self.wait_for_status(run, "3/")
        with contextlib.closing(sqlite3.connect(path, isolation_level=None)) as other:
            other.execute("BEGIN IMMEDIATE")
            status, _ = self.finished(run)
            other.execute("ROLLBACK")
        self.assertEqual(status, 1)
        self.assertIn("Stopped (ERROR, DATABASE IS LOCKED)", run.status_lines())
        self.assertEqual(self.harvest("iexplore").returncode, 0)
        self.assert_expected_rows(path)

    def test_a_disk_that_is_full_for_a_while_is_waited_for(self):
        small = pathlib.Path(self.folder, "small")
        small.mkdir()
        mounted = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=8m,mode=700", "none", small], check=False,
                                 stderr=subprocess.DEVNULL)
        if mounted.returncode != 0:
            self.skipTest("a disk of its own takes the superuser")
        self.addCleanup(subprocess.run, ["umount", "-l", small], check=False)
        path, run = self.start_in(small, "iexplore")
        self.wait_for_status(run, "3/")
        with contextlib.suppress(OSError), open(small / "filler", "wb") as filler:
            while filler.write(b"x" * 4096):
                filler.flush()
        self.wait_for_status(run, "Disk is full. Waiting")
        time.sleep(2)
        os.remove(small / "filler")
        self.assertEqual(self.finished(run)[0], 0, run.status_lines()[-5:])
        self.assert_expected_rows(path)

    def test_a_database_that_is_deleted_ends_the_run_with_a_clear_line(self):
        path = self.make_database()
        run = self.start_harvest("iexplore", OPEN)
        self.wait_for_status(run, "3/")
        for tail in ("", "-wal", "-shm"):
            pathlib.Path(path + tail).unlink(missing_ok=True)
        status, _ = self.finished(run)
        self.assertEqual(status, 1)
        self.assertIn("Stopped (ERROR, DATABASE HAS BEEN MOVED OR DELETED)", run.status_lines())

    def keeps_what_it_reported_when_the_folder_is_moved(self, browser):
        folder = self.data_folder()
        path, run = self.start_in(folder, browser)
        self.wait_for_status(run, "4/")
        away = folder.rename(folder.with_name("moved-in-a-run"))
        reported = self.assert_ended_as_gone(run)
        self.assertFalse(folder.exists(), "nothing is made in its place")
        for table in trawlex.TABLES:
            self.assertEqual(trawlex.count(away / os.path.basename(path), table), reported.get(table, 0), table)

    def test_a_folder_that_is_moved_in_a_run_holds_what_was_reported_by_the_free_standing_browser(self):
        self.keeps_what_it_reported_when_the_folder_is_moved("iexplore")

    def test_a_folder_that_is_moved_in_a_run_holds_what_was_reported_by_the_built_in_browser(self):
        self.keeps_what_it_reported_when_the_folder_is_moved("internal")

    def test_a_folder_that_is_deleted_ends_the_run_with_a_clear_line(self):
        folder = self.data_folder()
        _, run = self.start_in(folder, "iexplore")
        self.wait_for_status(run, "3/")
        shutil.rmtree(folder)
        self.assert_ended_as_gone(run)
        self.assertFalse(folder.exists(), "nothing is made in its place")

    def test_a_folder_for_data_that_cannot_be_made_is_told(self):
        pathlib.Path(self.folder, "data").write_text("a file in its place", encoding="utf-8")
        run = self.start_harvest("iexplore", OPEN)
        status, _ = self.finished(run)
        self.assertEqual(status, 1)
        self.assertTrue(any("Cannot make the folder" in line for line in run.status_lines()), run.status_lines())

    def test_a_database_that_is_moved_ends_the_run_with_a_clear_line(self):
        path = self.make_database()
        run = self.start_harvest("iexplore", OPEN)
        self.wait_for_status(run, "3/")
        os.rename(path, str(path) + ".moved")
        status, _ = self.finished(run)
        self.assertEqual(status, 1)
        self.assertIn("Stopped (ERROR, DATABASE HAS BEEN MOVED OR DELETED)", run.status_lines())


class Pictures(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        body = self.path.encode() * 10
        self.send_response(200)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *_):
        pass


class Restless(Pictures):
    """A page of frames that reload themselves for ever."""
    FRAME = b"<iframe srcdoc='<script>setInterval(() => location.reload(), 10)</script>'></iframe>"

    def do_GET(self):
        self.send_response(200)
        self.send_header("Content-Type", "text/html")
        self.end_headers()
        self.wfile.write(b"<a href=http://a.com/1>x</a>" + self.FRAME * 12)


def serve(case, handler):
    """A server of pages on loopback, for as long as the test runs; its port."""
    server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)
    case.addCleanup(server.server_close)
    case.addCleanup(server.shutdown)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    return server.server_port


class ManualRun(trawlex.Case):
    def test_a_series_of_files_lies_in_the_folder(self):
        self.make_database()
        port = serve(self, Pictures)
        folder = pathlib.Path(self.folder) / "pictures"
        folder.mkdir()
        words = [trawlex.HARVESTER, "--database-dir", self.folder, "--headless", "--browser", "iexplore",
                 "--set", f"cboMNAutoUrl=http://127.0.0.1:{port}/a.com/p-1.jpg",
                 "--set", "mnuMNStatusAutoIncrPos(6)=1", "--set", "cboFilesSites=0", "--set", f"txtSFMNDir={folder}/",
                 "--set", "chkSMA(2)=0", "--until-loaded", "--manual", "--json"]
        done = trawlex.subprocess.run(words, env=self.env, capture_output=True, text=True, timeout=120, check=False)
        self.assertEqual(done.returncode, 0, done.stderr)
        for number in range(1, 10):
            self.assertEqual((folder / f"p-{number}.jpg").read_bytes(), f"/a.com/p-{number}.jpg".encode() * 10)
        report = trawlex.json.loads(done.stdout)
        self.assertEqual([file["name"] for file in report["files"]], [f"p-{number}.jpg" for number in range(1, 10)])
        self.assertEqual(report["refused"], [])

    def test_an_empty_list_ends_with_1(self):
        self.make_database()
        words = [trawlex.HARVESTER, "--database-dir", self.folder, "--headless", "--browser", "iexplore", "--manual"]
        done = trawlex.subprocess.run(words, env=self.env, capture_output=True, text=True, timeout=60, check=False)
        self.assertEqual(done.returncode, 1, done.stderr)


class Browsing(trawlex.Case):
    def collects(self, browser):
        self.make_database(browser)
        words = trawlex.demo_harvest.command(trawlex.HARVESTER, self.folder, self.demo.port, browser,
                                             {"mnuMNStatusListCL(0)": 1}, OPEN)
        words = [word for word in words if word != "--auto"] + ["--browse", "3"]
        done = trawlex.subprocess.run(words, env=self.env, capture_output=True, text=True, timeout=120, check=False)
        self.assertEqual(done.returncode, 0, done.stderr)
        links = trawlex.json.loads(done.stdout)["lists"]["A"]
        self.assertIn("http://www.findery-demo.com/about.html", links)
        self.assertIn("http://www.findery-demo.com/url?to=http%3A//www.gull-point.ca/phones.html&rank=6", links)
        self.assertEqual(len(links), len(set(links)))

    def test_links_of_the_page_on_show_are_collected_from_the_free_standing_browser(self):
        self.collects("iexplore")

    def test_links_of_the_page_on_show_are_collected_from_the_built_in_browser(self):
        self.collects("internal")

    def ends_in_time(self, browser):
        self.make_database(browser)
        words = [trawlex.HARVESTER, "--database-dir", self.folder, "--headless", "--browser", browser,
                 "--set", "mnuMNStatusListCL(0)=1", "--open", f"http://127.0.0.1:{serve(self, Restless)}/a.com/",
                 "--browse", "5", "--json"]
        begin = time.monotonic()
        done = trawlex.subprocess.run(words, env=self.env, capture_output=True, text=True, timeout=120, check=False)
        self.assertEqual(done.returncode, 0, done.stderr)
        # Frames that begin anew before they have come keep their page from its end: that is waited for a minute at most.
        self.assertLess(time.monotonic() - begin, 60 + 5 + 20)
        self.assertIn("Stopped (FINISHED)", done.stderr)
        self.assertEqual(trawlex.json.loads(done.stdout)["lists"]["A"], ["http://a.com/1"])

    def test_frames_that_reload_for_ever_do_not_hold_the_free_standing_browser(self):
        self.ends_in_time("iexplore")

    def test_frames_that_reload_for_ever_do_not_hold_the_built_in_browser(self):
        self.ends_in_time("internal")


if __name__ == "__main__":
    unittest.main()
