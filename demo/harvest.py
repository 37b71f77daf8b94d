#!/usr/bin/env python3
"""Harvests the demo from the command line: server, database, search-site record, run, and a look at what was stored.

Used by `make run` without a display, and by the end-to-end tests.
"""
import argparse
import json
import os
import pathlib
import sqlite3
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))
import server  # noqa: E402

RESULT_PAGE = "http://www.findery-demo.com/search?q=harbour"


def browser_switches(port: int):
    """Switches that map every made-up host to the demo's server."""
    return [f"--host-resolver-rules=MAP * 127.0.0.1:{port}"]


def command(program: pathlib.Path, folder: str, port: int, browser: str, switches: dict, extra=(), run="--auto"):
    words = [str(program), "--database-dir", folder, "--browser", browser, "--headless", "--json", "--until-loaded"]
    for switch in browser_switches(port):
        words += ["--browser-arg", switch]
    for name, value in switches.items():
        words += ["--set", f"{name}={value}"]
    return words + list(extra) + [run]


def make_database(program: pathlib.Path, folder: str, port: int, browser: str, env=None) -> str:
    """A first run makes the database; it finds no record of the page and so harvests nothing."""
    subprocess.run(command(program, folder, port, browser, {}), env=env, capture_output=True, timeout=120, check=False)
    path = os.path.join(folder, "Trawlex-0.mdb")
    subprocess.run([sys.executable, str(HERE / "record.py"), path], check=True, stdout=subprocess.DEVNULL)
    return path


def walk_pages():
    """The switches of a manual run over the numbered pages of the gallery."""
    return {"cboMNAutoUrl": "http://www.pier-pictures.com/boats-1.html", "mnuMNStatusAutoIncrPos(1)": 1, "incMNTiming": 30,
            "chkSaveSummary": 1, "chkSaveEmail": 1, "chkSavePhone": 1, "chkSMD(1)": 0}


def fetch_pictures(port: int, folder: str):
    """The switches of one that fetches its numbered pictures. A download knows no made-up host, so loopback it is."""
    return {"cboMNAutoUrl": gallery(port) + "boat-1.png", "mnuMNStatusAutoIncrPos(2)": 1, "cboFilesSites": 0, "incMNTiming": 0,
            "incMNDLTiming": 0, "txtSFMNDir": folder + "/"}


def gallery(port: int):
    return f"http://localhost:{port}/www.pier-pictures.com/"


def show_files(report: dict):
    print(f"\nFiles ({len(report['files'])})")
    for file in report["files"]:
        print(f"  {file['name']}  |  {file['size']} bytes  |  {file['address']}")


def show(path: str):
    with sqlite3.connect(path) as database:
        for table, columns in (("SiteSummary", "Title, Url"), ("EmailAddress", "Address, Url"),
                               ("PhoneNumber", "Number, Url"), ("PassUrlsA", "MaskName, Url")):
            rows = database.execute(f'SELECT {columns} FROM "{table}" ORDER BY rowid').fetchall()
            print(f"\n{table} ({len(rows)} rows)")
            for row in rows:
                print("  " + "  |  ".join(str(value) for value in row))


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--bin", required=True, help="folder of trawlex-harvest")
    parser.add_argument("--browser", default="iexplore", choices=["internal", "iexplore"])
    parser.add_argument("--show", action="store_true", help="print the stored rows")
    arguments = parser.parse_args()
    program = pathlib.Path(arguments.bin) / "trawlex-harvest"
    switches = json.loads((HERE / "expected.json").read_text(encoding="utf-8"))["switches"]
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as folder, server.start() as demo:
        env = dict(os.environ, XDG_CONFIG_HOME=folder, XDG_DATA_HOME=folder)
        pictures = os.path.join(folder, "pictures")
        os.mkdir(pictures)
        path = make_database(program, folder, demo.port, arguments.browser, env)

        def harvest(chosen, extra, run):
            done = subprocess.run(command(program, folder, demo.port, arguments.browser, chosen, extra, run), env=env,
                                  stdout=subprocess.PIPE, text=True, timeout=600, check=False)
            return done.returncode, json.loads(done.stdout or "{}")

        results = [harvest(switches, ["--open", RESULT_PAGE], "--auto"), harvest(walk_pages(), [], "--manual"),
                   harvest(fetch_pictures(demo.port, pictures), ["--open", gallery(demo.port)], "--manual")]
        if arguments.show:
            show(path)
        for what, (_, report) in zip(("result links", "numbered pages", "numbered pictures"), results):
            if report:
                if report["files"] and arguments.show:
                    show_files(report)
                print(f"\n{what}: {report['status']}: {len(report['links']) or len(report['files'])} in {report['seconds']:.1f} s")
        return max(status for status, _ in results)


if __name__ == "__main__":
    sys.exit(main())
