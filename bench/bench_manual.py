#!/usr/bin/env python3
"""The Manual run and collecting, with the whole program and a real browser against a server on loopback.

- A walk of a list of 100 sites beside the Auto run over the same 100 links (aim: 1.1 times its time at most).
- A list of 500 files of 100 kB, fetched with no pause between them, beside curl with one connection (aim: 1.2).
- The memory of the program after 10 and after 1,000 pages that a browser showed while it was followed.

Of a run the time from its first item to its end counts, as its status lines tell it; rounds take turns, medians are compared.

    python3 bench_manual.py BIN_FOLDER [ROUNDS]
"""
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
import harvest  # noqa: E402
import loopback  # noqa: E402
import record  # noqa: E402

SITES, FILES, SIZE = 100, 500, 100_000
READ_FOR = 50  # milliseconds that a page of the chain stands
SERVICE = "www.bench-results.com"
LINKS = [f"http://www.bench-site-{letter}{number}.com/" for number in range(10) for letter in "abcdefghij"]
OUTPUTS = {"chkSaveSummary": 1, "chkSaveEmail": 1, "chkSavePhone": 1, "chkSMA(2)": 0, "incANTiming": 30, "incMNTiming": 30}
RECORD = {"SiteName": "Bench", "Url-1": SERVICE, "CnvHex": "0", "Group": "0"}


def page(title, body):
    return f"<!doctype html><html><head><meta charset=utf-8><title>{title}</title></head><body>{body}</body></html>".encode()


def answer(host, path):
    if host == SERVICE:
        return page("Results", "".join(f'<p><a href="{link}">{link}</a></p>' for link in LINKS))
    if path.startswith("/chain/"):
        number = int(path.rpartition("/")[2])
        links = "".join(f'<a href="http://www.chain-{number % 7}.com/{n}">{n}</a> ' for n in range(10))
        onward = f"<script>setTimeout(() => location = '/chain/{number + 1}', {READ_FOR})</script>"
        return page(f"Page {number}", links + (onward if number < 1000 else "<p>the end</p>"))
    return page(f"The site {host}", f"<p>Write to desk@{host.removeprefix('www.')} or call 212-555-0188 by day.</p>" * 40)


PICTURE = loopback.reply(b"image/jpeg", os.urandom(SIZE))


def reply_to(head):
    path = head.split(b" ", 2)[1].decode()
    if path.endswith(".jpg"):
        return PICTURE
    host = re.search(rb"\r\nhost: ([^:\r]+)", head.lower())[1].decode()
    return loopback.reply(b"text/html", answer(host, path))


class Bench:
    def __init__(self, program, port, folder):
        self.program, self.port, self.folder = program, port, folder
        self.env = dict(os.environ, XDG_CONFIG_HOME=folder, XDG_DATA_HOME=folder)
        database = harvest.make_database(program, folder, port, "iexplore", self.env)
        record.write(database, RECORD)

    def words(self, run, switches, extra=()):
        words = [str(self.program), "--database-dir", self.folder, "--browser", "iexplore", "--headless", "--until-loaded"]
        words += [f"--browser-arg={switch}" for switch in harvest.browser_switches(self.port)]
        for name, value in switches.items():
            words += ["--set", f"{name}={value}"]
        return words + list(extra) + [run]

    def seconds_of_run(self, run, switches, extra, begins):
        """From the first line that `begins` matches to the end."""
        process = subprocess.Popen(self.words(run, switches, extra), env=self.env, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.PIPE, text=True)
        since, line = None, ""
        for line in process.stderr:
            if since is None and re.match(begins, line):
                since = time.monotonic()
            if line.startswith("Stopped"):
                break
        seconds = time.monotonic() - since
        process.stderr.read()
        assert process.wait() == 0 and line == "Stopped (FINISHED)\n", line
        return seconds


def in_new_folder(program, port, work):
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as folder:
        return work(Bench(program, port, folder), pathlib.Path(folder))


def auto(bench, _):
    return bench.seconds_of_run("--auto", OUTPUTS, ["--open", f"http://{SERVICE}/"], r"\d+/\d+ http")


def manual(bench, folder):
    (folder / "list.txt").write_text("\n".join(LINKS), encoding="utf-8")
    return bench.seconds_of_run("--manual", OUTPUTS, ["--list-file", folder / "list.txt"], r"\d+/\d+ http")


def addresses(port):
    return [f"http://localhost:{port}/www.pictures.com/p-{number:03}.jpg" for number in range(1, FILES + 1)]


def check_files(folder):
    sizes = [entry.stat().st_size for entry in folder.iterdir()]
    assert sizes == [SIZE] * FILES, f"{len(sizes)} files"


def fetch(bench, folder):
    pictures = folder / "pictures"
    pictures.mkdir()
    (folder / "list.txt").write_text("\n".join(addresses(bench.port)), encoding="utf-8")
    switches = {"cboFilesSites": 0, "incMNTiming": 0, "incMNDLTiming": 0, "txtSFMNDir": f"{pictures}/", "chkSMA(2)": 0,
                "chkSMOpenDownloadedGraphics": 0}
    seconds = bench.seconds_of_run("--manual", switches, ["--list-file", folder / "list.txt"], "Connecting|Requesting")
    check_files(pictures)
    return seconds


def curl(port):
    with tempfile.TemporaryDirectory() as folder:
        since = time.monotonic()
        subprocess.run(["curl", "-sS", "--no-progress-meter", "--output-dir", folder, "--remote-name-all", *addresses(port)],
                       check=True, stdout=subprocess.DEVNULL)
        seconds = time.monotonic() - since
        check_files(pathlib.Path(folder))
        return seconds


def memory(pid):
    """Kilobytes that are the process's own."""
    text = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text(encoding="ascii")
    return sum(int(kilobytes) for kilobytes in re.findall(r"^Private_\w+:\s+(\d+)", text, re.MULTILINE))


def collect(bench, _):
    """Private memory after ten pages and after a thousand."""
    words = bench.words("--json", {"mnuMNStatusListCL(0)": 1, "mnuMNStatusListCP(1)": 1},
                        ["--open", "http://www.chain-0.com/chain/1", "--browse", "300"])
    process = subprocess.Popen(words, env=bench.env, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
    seen = {}
    for line in process.stderr:
        pages = re.match(r"(\d+) loaded", line)
        for mark in (10, 1000):
            if pages and int(pages[1]) >= mark and mark not in seen and "loaded A" in line:
                seen[mark] = memory(process.pid)
        if 1000 in seen:
            break
    process.terminate()
    process.stderr.read()
    process.wait()
    return seen


def report(what, ours, other, aim):
    ours, other = statistics.median(ours), statistics.median(other)
    print(f"{what:44}{ours:8.2f} s {other:8.2f} s  ratio {ours / other:.2f} (aim {aim}): {'met' if ours / other <= aim else 'missed'}")


def main():
    program = pathlib.Path(sys.argv[1]) / "trawlex-harvest"
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 5
    with loopback.serving(reply_to) as port:
        times = {auto: [], manual: [], fetch: [], curl: []}
        for _ in range(rounds):
            for work in (auto, manual, fetch):
                times[work].append(in_new_folder(program, port, work))
            times[curl].append(curl(port))
        report(f"{SITES} sites of a list, beside the Auto run", times[manual], times[auto], 1.1)
        report(f"{FILES} files of a list, beside curl", times[fetch], times[curl], 1.2)
        seen = in_new_folder(program, port, collect)
        print(f"memory after 10 collected pages {seen[10] / 1024:.1f} MB, after 1,000 {seen[1000] / 1024:.1f} MB")


if __name__ == "__main__":
    main()
