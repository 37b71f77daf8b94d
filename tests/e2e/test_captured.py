"""Records tried on captured result pages of real search services, where a folder of them is given: TRAWLEX_RESULT_PAGES names
it, with NAME-...page1.html to page3.html for each service. They are served under made-up names; what the chain leaves is held
against the results as the page's own markup tells them. No page is part of the project."""
import html.parser
import http.server
import os
import pathlib
import sqlite3
import threading
import unittest
from contextlib import closing

import trawlex
import derive  # of the demo

FOLDER = pathlib.Path(os.environ.get("TRAWLEX_RESULT_PAGES", "/nowhere"))
VOID = {"br", "img", "input", "meta", "link", "hr", "source", "wbr", "area", "base", "col", "embed", "param", "track"}
# What tells a result's link in each service's markup: the link's own class, or those of the element around it.
RESULTS = {"google": lambda around, own: around[-1:] == [("div", "r")],
           "bing": lambda around, own: any("b_algo" in classes for _, classes in around) and any(tag == "h2" for tag, _ in around),
           "duckduckgo": lambda around, own: "result__a" in own.split()}
RECORDS = {
    # The copies that the service keeps of its results hold their addresses.
    "google": {"CnvHex": "1", "UrlMC-1": "webcache.<~Dorv~>1", "BeginUrl-1": "J:", "EndUrl-1": "+&cd=", "EndUrl-2": "+test"},
    "bing": {"BUrlCol-1": "FORM=HDRSAV", "EUrlCol-1": "FORM=QSRE", "UrlMNC-1": "bing-captured<~Dorv~>0", "UrlMNC-2": "bing.<~Dorv~>0",
             "UrlMNC-3": "microsofttranslator<~Dorv~>0", "UrlMNC-4": "javascript:<~Dorv~>0"},
    "duckduckgo": {"BUrlCol-1": "donttrack.us", "EUrlCol-1": "page=", "EUrlCol-2": "javascript:;", "UrlMNC-1": "duckduckgo<~Dorv~>0",
                   "UrlMNC-2": "spreadprivacy<~Dorv~>0", "UrlMNC-3": "donttrack<~Dorv~>0", "UrlMNC-4": "javascript:<~Dorv~>0"},
}


def host(service):
    return f"www.{service}-captured.com"


def page(service, number):
    return next(FOLDER.glob(f"{service}-*page{number}.html"))


class Markup(html.parser.HTMLParser):
    """The links of a page, and those of them that its markup calls results."""

    def __init__(self, service):
        super().__init__()
        self.is_result, self.around, self.links, self.results = RESULTS[service], [], [], []

    def handle_starttag(self, tag, attributes):
        values = {name: value or "" for name, value in attributes}
        classes = values.get("class", "")
        if tag == "a" and "href" in values:
            self.links.append(values["href"])
            if self.is_result(self.around, classes):
                self.results.append(values["href"])
        if tag not in VOID:
            self.around.append((tag, classes))

    def handle_endtag(self, tag):
        for i in reversed(range(len(self.around))):
            if self.around[i][0] == tag:
                del self.around[i:]
                return


def results(service, number):
    markup = Markup(service)
    markup.feed(page(service, number).read_text(encoding="utf-8", errors="replace"))
    # An address of an unlisted kind is not opened.
    wanted = [link for link in dict.fromkeys(markup.results) if derive.email_or_link(link) == 2]
    if service != "google":
        return wanted
    copied = [link.partition("J:")[2] for link in markup.links if "webcache." in link]
    bare = [result.removeprefix("http://") for result in wanted]
    return [result for result in bare if any(copy.startswith(result.replace("?", "%3F").split("%3F")[0] + end) for copy in copied
                                             for end in ("+", "%3F"))]


class Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        service = self.headers.get("Host", "").removeprefix("www.").partition("-")[0]
        number = self.path.removeprefix("/results/")
        known = service in RECORDS and number in ("1", "2", "3")
        body = page(service, number).read_bytes() if known else b"Nothing here."
        self.send_response(200 if known else 404)
        self.send_header("Content-Type", "text/html; charset=utf-8")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def log_message(self, *_):
        pass


@unittest.skipUnless(FOLDER.is_dir(), "TRAWLEX_RESULT_PAGES names no folder of captured result pages")
class CapturedPages(trawlex.Case):
    def setUp(self):
        super().setUp()
        server = trawlex.server.Demo(("127.0.0.1", 0), Handler)
        threading.Thread(target=server.serve_forever, kwargs={"poll_interval": 0.1}, daemon=True).start()
        self.addCleanup(lambda: (server.shutdown(), server.server_close()))
        self.path = self.make_database()
        self.demo.server_close()        # the pages come from here instead
        self.demo.port_of_pages = server.server_address[1]

    def words(self, browser, extra=(), **switches):
        return trawlex.demo_harvest.command(trawlex.HARVESTER, self.folder, self.demo.port_of_pages, browser, switches, extra)

    def prepare(self, service):
        fields = {"SiteName": service, "Url-1": host(service), "Group": "0", **RECORDS[service]}
        names = ", ".join(f'"{name}"' for name in fields)
        with closing(sqlite3.connect(self.path)) as database, database:
            database.execute(f'INSERT INTO "SearchSites" ({names}) VALUES ({", ".join("?" * len(fields))})', [*fields.values()])

    def test_a_record_for_each_service_keeps_the_results_and_drops_the_rest(self):
        for service in RECORDS:
            self.prepare(service)
            for number in (1, 2, 3):
                with self.subTest(service=service, page=number):
                    address = f"http://{host(service)}/results/{number}"
                    done = self.harvest("iexplore", ("--open", address), incANTiming=2, incNotFoundMinSize=0)
                    self.assertEqual(done.returncode, 0, done.stderr)
                    links, wanted = done.report["links"], results(service, number)
                    self.assertEqual({"too many": [link for link in links if link not in wanted],
                                      "missing": [link for link in wanted if link not in links]},
                                     {"too many": [], "missing": []})
                    self.assertGreater(len(links), 4)


if __name__ == "__main__":
    unittest.main()
