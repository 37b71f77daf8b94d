"""The harvest of the demo from the command line, with both browsers: every row as expected, and nothing else."""
import subprocess
import unittest

import trawlex


class WholeHarvest(trawlex.Case):
    def harvests_the_demo(self, browser):
        path = self.make_database(browser)
        done = self.harvest(browser)
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(done.report["status"], "Stopped (FINISHED)")
        self.assertEqual(done.report["links"], trawlex.EXPECTED["links"])
        self.assertIn("Stopped (FINISHED)", done.stderr.splitlines())
        self.assertNotIn("Err#=", done.stderr)
        self.assert_expected_rows(path)
        for table in trawlex.TABLES:
            self.assertEqual(done.report["rows"].get(table, 0), len(trawlex.EXPECTED[table]), table)

    def test_the_free_standing_browser_stores_exactly_the_expected_rows(self):
        self.harvests_the_demo("iexplore")

    def test_the_built_in_browser_stores_exactly_the_expected_rows(self):
        self.harvests_the_demo("internal")

    def test_a_second_harvest_adds_nothing(self):
        path = self.make_database()
        self.assertEqual(self.harvest("iexplore").returncode, 0)
        again = self.harvest("iexplore")
        self.assertEqual(again.returncode, 0, again.stderr)
        self.assertEqual(again.report["rows"], {})
        self.assert_expected_rows(path)


class Arguments(trawlex.Case):
    def refused(self, *words):
        done = subprocess.run([trawlex.HARVESTER, *words], env=self.env, capture_output=True, text=True, timeout=60,
                              check=False)
        self.assertEqual(done.returncode, 2, (words, done.stderr))
        self.assertEqual(done.stdout, "")
        return done.stderr

    def test_bad_arguments_are_told_in_one_line_with_exit_status_2(self):
        for words in ([], ["--auto", "--frob"], ["--auto", "--set", "frob"], ["--browser", "lynx", "--auto"],
                      ["--auto", "--database-dir", self.folder + "/missing"], ["--auto", "--open"]):
            with self.subTest(words=words):
                self.assertEqual(len(self.refused(*words).splitlines()), 1)

    def test_a_control_that_does_not_exist_is_refused(self):
        told = self.refused("--database-dir", self.folder, "--headless", "--set", "chkFrob=1", "--auto")
        self.assertIn("chkFrob", told)

    def test_a_page_without_a_record_is_told_and_exits_with_1(self):
        done = self.harvest("iexplore")
        self.assertEqual(done.returncode, 1)
        self.assertEqual(done.report["status"], "No data saved for site")


if __name__ == "__main__":
    unittest.main()
