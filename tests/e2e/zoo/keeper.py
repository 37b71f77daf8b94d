"""The zoo's server: a result page that lists the creatures, each with its two ordinary pages, told apart by the host."""
import threading
import urllib.parse
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer

from .creatures import CREATURES, OTHER, SITE

SERVICE = "www.findery-demo.com"
RESULT_PAGE = f"http://{SERVICE}/search?q=zoo"


def creature_host(name):
    return f"c-{name.replace('_', '-')}.{SITE}"


def ordinary_hosts(name):
    return [f"o-{name.replace('_', '-')}.{site}" for site in (SITE, OTHER)]


def ordinary_page(host):
    return (f"<!doctype html><meta charset=utf-8><title>Ordinary {host}</title><h1>Ordinary</h1><p>mark of {host}</p>"
            + "<p>Nothing but words stands here.</p>" * 80)


def stored_page(host):
    """Title and markup of an ordinary page as a harvest keeps them."""
    html = (f'<head><meta charset="utf-8"><title>Ordinary {host}</title></head><body><h1>Ordinary</h1><p>mark of {host}</p>'
            + "<p>Nothing but words stands here.</p>" * 80 + "</body>")
    return f"Ordinary {host}", html


def host_of(link):
    return urllib.parse.urlsplit(link if "//" in link else f"//{link}").hostname


def links(names):
    for name in names:
        for host in [creature_host(name), *ordinary_hosts(name)]:
            yield f"http://{host}/"


def result_page(names):
    rows = [f'<p><a href="/url?to={urllib.parse.quote(link, safe="")}&rank={i}">{i}</a>'
            for i, link in enumerate(links(names), 1)]
    return f"<!doctype html><title>Findery</title>{''.join(rows)}<p><a href='/feedback?'>Feedback</a>"


class Keeper(BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def do_GET(self):
        host = self.headers.get("Host", "").partition(":")[0]
        by_host = {creature_host(name): creature for name, creature in CREATURES.items()}
        if host == SERVICE:
            self.answer(result_page(self.server.names))
        elif host.startswith("o-"):
            self.answer(ordinary_page(host))
        elif host.startswith("frame."):
            name = urllib.parse.urlsplit(self.path).query
            self.answer(f"<script>{CREATURES[name].framed if name in CREATURES else ''}</script>")
        elif host in by_host and self.path.partition("?")[0] == "/":
            self.show(by_host[host])
        elif self.path == "/never":
            self.server.over.wait(600)
        else:
            self.answer("<p>inner")

    def show(self, creature):
        if creature.raw is None:
            self.answer(creature.html, creature.status, creature.type, creature.headers)
            return
        self.close_connection = True
        creature.raw(self.send)

    def send(self, data):
        if self.server.over.is_set():
            raise ConnectionError
        self.wfile.write(data)

    def answer(self, html, status=200, kind="text/html; charset=utf-8", headers=()):
        body = html.encode()
        self.send_response(status)
        for name, value in (("Content-Type", kind), ("Content-Length", str(len(body))), *headers):
            if status != 204 or name != "Content-Length":
                self.send_header(name, value)
        self.end_headers()
        if status != 204:
            self.wfile.write(body)

    def log_message(self, *_):
        pass


class Zoo(ThreadingHTTPServer):
    daemon_threads = True
    block_on_close = False

    def __init__(self, names):
        super().__init__(("127.0.0.1", 0), Keeper)
        self.names = list(names)
        self.over = threading.Event()
        self.port = self.server_address[1]
        threading.Thread(target=self.serve_forever, daemon=True).start()

    def handle_error(self, *_):
        pass  # a browser that turns away from a creature is what is to be expected

    def close(self):
        self.over.set()
        self.shutdown()
        self.server_close()
