#!/usr/bin/env python3
"""Pages per second of a whole harvest, beside a bare script that only drives the same browser.

Both open the same addresses of the demo with the same browser and the same switches, each page until its load event. The
bare script reads innerHTML and goes on; the harvest screens the page and stores its rows as well. Rounds take turns; each
page counts with its median. Pages that are slow by design are left out, for they would hide what driving costs.

    python3 bench_driving.py BIN_FOLDER [ROUNDS]
"""
import json
import os
import pathlib
import re
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "demo"))
import browser_check  # noqa: E402
import harvest  # noqa: E402
import server  # noqa: E402

EXPECTED = json.loads((ROOT / "demo/expected.json").read_text(encoding="utf-8"))
SLOW = 0.5
AIM = 1.0


class BareBrowser(browser_check.Browser):
    """The browser of browser_check without its interception of requests."""

    def ask(self, method, **params):
        return {} if method == "Fetch.enable" else super().ask(method, **params)


def command_line_of_browser(profile_mark):
    """The words with which the harvest has started its browser."""
    for entry in pathlib.Path("/proc").glob("[0-9]*/cmdline"):
        try:
            words = entry.read_bytes().decode(errors="replace").split("\0")
        except OSError:
            continue
        if any(word.startswith("--user-data-dir=") and profile_mark in word for word in words) and not any(
                word.startswith("--type=") for word in words):
            return [word for word in words if word]
    return None


def harvest_times(program, folder, port, env):
    """Seconds from the opening of each link to the opening of the next one, by address; and the browser's switches."""
    words = harvest.command(program, folder, port, "iexplore", EXPECTED["switches"], ["--open", harvest.RESULT_PAGE])
    run = subprocess.Popen(words, env=env, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
    times, opened, since, switches = {}, None, 0.0, None
    for line in run.stderr:
        now = time.monotonic()
        switches = switches or command_line_of_browser(folder)
        visit = re.match(r"\d+/\d+ (.*)", line.rstrip("\n"))
        if (visit or line.startswith("Stopped")) and opened:
            times[opened] = now - since
        if line.startswith("404 -"):
            times.pop(opened, None)
            opened = None
        if visit:
            opened, since = visit[1], time.monotonic()
    run.wait()
    return times, switches


def bare_times(switches, port):
    own = [word for word in switches[1:] if not re.match(r"--(user-data-dir|remote-debugging-port)|about:", word)]
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as profile:
        browser = BareBrowser(switches[0], own, profile)
        times = {}
        for address in EXPECTED["links"]:
            since = time.monotonic()
            browser.visit(address)
            browser.value("document.documentElement.innerHTML")
            times[address] = time.monotonic() - since
        browser.close()
    return times


def main():
    program = pathlib.Path(sys.argv[1]) / "trawlex-harvest"
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 5
    bare, ours = {}, {}
    with server.start() as demo:
        for _ in range(rounds):
            with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as folder:
                env = dict(os.environ, XDG_CONFIG_HOME=folder, XDG_DATA_HOME=folder)
                harvest.make_database(program, folder, demo.port, "iexplore", env)
                times, switches = harvest_times(program, folder, demo.port, env)
                for address, seconds in times.items():
                    ours.setdefault(address, []).append(seconds)
            for address, seconds in bare_times(switches, demo.port).items():
                bare.setdefault(address, []).append(seconds)
    pages = [address for address in EXPECTED["links"]
             if len(ours.get(address, [])) == rounds and statistics.median(bare[address]) < SLOW]
    total = {name: sum(statistics.median(times[address]) for address in pages) for name, times in
             (("bare", bare), ("ours", ours))}
    print(f"{len(pages)} pages, {rounds} rounds, medians")
    print(f"bare script  {len(pages) / total['bare']:6.1f} pages/s")
    print(f"harvest      {len(pages) / total['ours']:6.1f} pages/s")
    ratio = round(total["ours"] / total["bare"], 2)
    print(f"ratio        {ratio:6.2f}   (harvest time / bare time; aim: at most {AIM}): {'met' if ratio <= AIM else 'not met'}")


if __name__ == "__main__":
    main()
