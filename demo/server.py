#!/usr/bin/env python3
"""The demo web: a made-up search service and made-up sites on loopback, told apart by the Host header.

    python3 server.py [--port N] [--seconds N] [--stop-with-parent] [--log FILE]

Content lies in sites/: one folder per host, style.css and buoy.svg for all of them, and answers.json for the addresses
that are answered in an unusual way (another file, status, delay, redirect, headers that must be sent); "*.png" there
stands for all files of that kind. What cannot be told that a made-up host is here, as a download, finds it in the path:
http://localhost:PORT/www.pier-pictures.com/. To be used from a test:

    with server.start() as demo: ... demo.port ...
"""
import argparse
import json
import sys
import threading
import time
from dataclasses import dataclass, field
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer
from pathlib import Path
from urllib.parse import parse_qs, quote, unquote, urlsplit

SITES = Path(__file__).resolve().parent / "sites"
SERVICE = "www.findery-demo.com"
TYPES = {".html": "text/html", ".css": "text/css", ".svg": "image/svg+xml", ".png": "image/png"}
OWN_NAMES = ("localhost", "127.0.0.1")
LEDGER_LINES = 11000
NOT_FOUND = """<!doctype html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>404 Not Found</title>
</head>
<body>
<h1>404 not found</h1>
<p>There is no such page here.</p>
</body>
</html>
"""


@dataclass
class Answer:
    status: int = 200
    type: str = "text/html"
    charset: str = "utf-8"
    body: bytes = b""
    headers: dict = field(default_factory=dict)
    delay: float = 0
    dom: tuple = ()     # what the page's own script replaces in the document: before, after

    def text(self):
        return self.body.decode(self.charset)


def read_answers():
    return json.loads((SITES / "answers.json").read_text(encoding="utf-8"))


def read_files():
    """Address without protocol -> file. Only what stands here is ever opened, so no address leads out of the folder."""
    files = {}
    for folder in sorted(p for p in SITES.iterdir() if p.is_dir()):
        for shared in ("style.css", "buoy.svg"):
            files[f"{folder.name}/{shared}"] = SITES / shared
        for file in sorted(folder.iterdir()):
            files[f"{folder.name}/{file.name}"] = file
            if file.name == "index.html":
                files[f"{folder.name}/"] = file
    return files


ANSWERS = read_answers()
FILES = read_files()
HOSTS = sorted(p.name for p in SITES.iterdir() if p.is_dir())


def ledger():
    """About a megabyte, with one address on every line: far more than any finder has the patience for."""
    line = "<p>Entry {:05}, berth {}: fenders checked, lines doubled. Signed: log@grand-ledger.com</p>\n"
    return "".join(line.format(n, n % 40 + 1) for n in range(1, LEDGER_LINES + 1))


def not_found():
    return Answer(404, body=NOT_FOUND.encode())


def redirect(to):
    return Answer(302, body=b"Moved.", headers={"Location": to})


def searched(path, query):
    """The pages of the search service that are not files; None for all others."""
    first = {name: values[0] for name, values in parse_qs(query, encoding="latin-1").items()}
    if path == "/search":
        page = "nothing"
        if first.get("q", "").strip().lower() == "harbour":
            page = "harbour-2" if first.get("page") == "2" else "harbour-1"
        return Answer(body=(SITES / SERVICE / f"{page}.html").read_bytes())
    if path == "/url":
        to = first.get("to", "")
        if urlsplit(to).scheme == "http" and urlsplit(to).hostname in HOSTS:
            return redirect(quote(to, safe="%:/?&=#'"))
        return not_found()
    return None


def is_refused(special, headers):
    """Something that must stand in the request's headers does not."""
    return any(text not in (headers or {}).get(name, "") for name, text in special.get("needs", {}).items())


def answer(host, target, headers=None):
    """What the site `host` answers to the request target `target` (path and query)."""
    path, _, query = target.partition("?")
    path = unquote(path)
    if host in OWN_NAMES:
        host, _, path = path.removeprefix("/").partition("/")
        path = "/" + path
    if host == SERVICE and (found := searched(path, query)):
        return found
    if host in HOSTS and path == "/favicon.ico":
        return Answer(204)
    special = ANSWERS.get(host + path) or ANSWERS.get(f"{host}/*{Path(path).suffix}", {})
    if is_refused(special, headers):
        return Answer(403, "text/plain", body=b"For visitors of these pages alone.")
    if "redirect" in special:
        return redirect(special["redirect"])
    file = SITES / special["file"] if "file" in special else FILES.get(host + path)
    if file is None:
        return not_found()
    body = file.read_bytes().replace(b"<!--ledger-->", ledger().encode()) if file.name == "log.html" else file.read_bytes()
    return Answer(special.get("status", 200), TYPES.get(file.suffix, "application/octet-stream"),
                  special.get("charset", "utf-8"), body, special.get("headers", {}), special.get("delay", 0),
                  tuple(special.get("dom", ())))


class Handler(BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"
    server_version = "demo"
    sys_version = ""
    timeout = 60                # of an idle connection

    def do_GET(self):
        host, target = self.headers.get("Host", ""), self.path
        try:
            if target.startswith("http://"):        # asked as a proxy would be
                parts = urlsplit(target)
                host, target = parts.netloc, parts._replace(scheme="", netloc="").geturl()
            found = answer(host.rpartition("@")[2].partition(":")[0].strip().lower(), target or "/",
                           self.headers)
        except (ValueError, OSError):
            found = not_found()
        self.server.note(f"{found.status} {host} {target}")
        time.sleep(found.delay)
        self.send(found)

    do_HEAD = do_GET

    def do_POST(self):
        self.close_connection = True                # whatever was sent stays unread
        self.do_GET()

    def send(self, found):
        self.send_response(found.status)
        if found.status != 204:
            text = found.type.startswith("text/") or found.type.endswith("xml")
            self.send_header("Content-Type", f"{found.type}; charset={found.charset}" if text else found.type)
            self.send_header("Content-Length", str(len(found.body)))
        for name, value in found.headers.items():
            self.send_header(name, value)
        if self.close_connection:
            self.send_header("Connection", "close")
        self.end_headers()
        if self.command != "HEAD" and found.status != 204:
            self.wfile.write(found.body)

    def log_message(self, *_):
        pass


class Demo(ThreadingHTTPServer):
    daemon_threads = True
    request_queue_size = 64
    log = None

    def note(self, line):
        """One line a request, in order of arrival: status, host, target."""
        if self.log:
            self.log.write(line.encode("ascii", "backslashreplace").decode() + "\n")

    @property
    def port(self):
        return self.server_address[1]

    def handle_error(self, request, client_address):
        """A browser that hangs up in the middle of an answer is no news."""

    def __exit__(self, *_):
        self.shutdown()
        self.server_close()


def start(port=0, log=None):
    """Serves from a thread of its own; leaving the `with` block ends it. `log` is an open text file, or None."""
    demo = Demo(("127.0.0.1", port), Handler)
    demo.log = log
    threading.Thread(target=demo.serve_forever, kwargs={"poll_interval": 0.1}, daemon=True).start()
    return demo


def main():
    args = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    args.add_argument("--port", type=int, default=0, help="0 lets the system choose")
    args.add_argument("--seconds", type=float, default=3600, help="end after this time")
    args.add_argument("--stop-with-parent", action="store_true", help="end when standard input ends")
    args.add_argument("--log", type=Path, metavar="FILE", help="note each request there: status, host, target")
    args = args.parse_args()
    over = threading.Event()
    if args.stop_with_parent:
        threading.Thread(target=lambda: (sys.stdin.buffer.read(), over.set()), daemon=True).start()
    log = open(args.log, "a", buffering=1, encoding="ascii") if args.log else None
    with start(args.port, log) as demo:
        print(f"listening on 127.0.0.1:{demo.port}", flush=True)
        try:
            over.wait(args.seconds)
        except KeyboardInterrupt:
            pass


if __name__ == "__main__":
    main()
