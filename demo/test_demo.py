#!/usr/bin/env python3
"""What the demo promises. Run with: python3 -m unittest discover -s demo"""
import contextlib
import datetime
import http.client
import io
import json
import os
import socket
import sqlite3
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))
import derive
import record
import server

SERVICES = json.loads((HERE / "services.json").read_text(encoding="utf-8"))
EXPECTED = json.loads((HERE / "expected.json").read_text(encoding="utf-8"))


class Served(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.demo = cls.enterClassContext(server.start())

    def ask(self, host, target, method="GET", **headers):
        connection = http.client.HTTPConnection("127.0.0.1", self.demo.port, timeout=10)
        with contextlib.closing(connection):
            connection.request(method, target, headers={"Host": host, **headers})
            response = connection.getresponse()
            return response, response.read()

    def raw(self, data):
        with socket.create_connection(("127.0.0.1", self.demo.port), timeout=5) as connection:
            connection.sendall(data)
            connection.shutdown(socket.SHUT_WR)
            return connection.makefile("rb").read()


class Answers(Served):
    def test_every_file_is_served_whole(self):
        for address, file in server.FILES.items():
            if "slow" in address:
                continue
            host, _, name = address.partition("/")
            response, body = self.ask(host, "/" + name, Referer=f"http://{host}/", Cookie="pier=open")
            with self.subTest(address):
                self.assertIn(response.status, (200, 401))
                self.assertEqual(int(response.headers["Content-Length"]), len(body))
                if file.name != "log.html":
                    self.assertEqual(body, file.read_bytes())

    def test_every_linked_file_stands_there(self):
        self.assertTrue(all((server.SITES / special["file"]).is_file()
                            for special in server.ANSWERS.values() if "file" in special))

    def test_unknown_hosts_and_pages_are_not_found(self):
        for host, target in (("www.nobody.com", "/"), ("www.nobody.com", "/favicon.ico"), ("", "/"),
                             ("www.ferry-timetable.com", "/old/timetable.html"), ("www.quietbay.com", "/../server.py"),
                             ("www.quietbay.com", "/%2e%2e/server.py"), ("..", "/server.py"),
                             ("www.findery-demo.com", "/url?to=http%3A//elsewhere.com/")):
            response, body = self.ask(host, target)
            with self.subTest(host + target):
                self.assertEqual(response.status, 404)
                self.assertIn(b"404 not found", body)
                self.assertLess(len(body), 2000)

    def test_the_unusual_ones(self):
        self.assertEqual(self.ask("www.quietbay.com", "/favicon.ico")[0].status, 204)
        response, body = self.ask("www.members-only-marina.com", "/")
        self.assertEqual((response.status, response.headers["WWW-Authenticate"]), (401, 'Basic realm="Marina"'))
        self.assertIn(b"gate@", body)
        response, _ = self.ask("www.moved-docks.com", "/old.html")
        self.assertEqual((response.status, response.headers["Location"]), (302, "http://www.new-docks.com/landing.html"))
        response, body = self.ask("www.cafe-quai.fr", "/caf%C3%A9.html")
        self.assertEqual(response.headers["Content-Type"], "text/html; charset=windows-1252")
        self.assertIn("7 €".encode("windows-1252"), body)
        self.assertEqual(self.ask("www.obriens-landing.ie", "/o'brien.html")[0].status, 200)
        self.assertIn("attachment", self.ask("www.chart-store.com", "/brochure.bin")[0].headers["Content-Disposition"])
        self.assertGreater(len(self.ask("www.grand-ledger.com", "/log.html")[1]), 990_000)

    def test_slow_ones_take_two_seconds(self):
        begin = time.monotonic()
        response, _ = self.ask("www.slow-tide.com", "/slow.html")
        self.assertEqual(response.status, 200)
        self.assertGreaterEqual(time.monotonic() - begin, 2)

    def test_search_pages(self):
        self.assertIn(b"Next page", self.ask("www.findery-demo.com", "/search?q=harbour")[1])
        self.assertIn(b"First page", self.ask("www.findery-demo.com", "/search?q=harbour&page=2")[1])
        self.assertIn(b"Nothing", self.ask("www.findery-demo.com", "/search?q=fish")[1])
        self.assertIn(b"<form", self.ask("WWW.Findery-Demo.com:80", "/")[1])

    def test_a_wrapped_address_leads_on(self):
        response, _ = self.ask("www.findery-demo.com", "/url?to=http%3A//www.north-harbour.com/contact.html&rank=1")
        self.assertEqual((response.status, response.headers["Location"]), (302, "http://www.north-harbour.com/contact.html"))

    def test_pictures_are_for_visitors_of_their_pages(self):
        for host, path in (("www.pier-pictures.com", "/"), ("localhost:80", "/www.pier-pictures.com/")):
            page, _ = self.ask(host, path + "boats-1.html")
            self.assertEqual(page.headers["Set-Cookie"], "pier=open")
            visitor = {"Referer": f"http://{host}{path}boats-1.html", "Cookie": "a=b; pier=open"}
            for left_out in ("Referer", "Cookie"):
                some = {name: value for name, value in visitor.items() if name != left_out}
                self.assertEqual(self.ask(host, path + "boat-1.png", **some)[0].status, 403)
            response, body = self.ask(host, path + "boat-1.png", **visitor)
            self.assertEqual((response.status, response.headers["Content-Type"]), (200, "image/png"))
            self.assertEqual(body[:4], b"\x89PNG")

    def test_a_host_may_stand_in_the_path(self):
        self.assertIn(b"pigeon", self.ask("localhost", "/www.quietbay.com/")[1])
        for path in ("/", "/www.nobody.com/", "/../server.py", "/www.quietbay.com/../../server.py"):
            with self.subTest(path):
                self.assertEqual(self.ask("localhost", path)[0].status, 404)

    def test_one_connection_serves_many_requests(self):
        connection = http.client.HTTPConnection("127.0.0.1", self.demo.port, timeout=5)
        with contextlib.closing(connection):
            for method, target in (("GET", "/"), ("HEAD", "/"), ("GET", "/missing"), ("GET", "/favicon.ico"), ("GET", "/")):
                connection.request(method, target, headers={"Host": "www.quietbay.com"})
                first = connection.sock
                connection.getresponse().read()
                self.assertIs(connection.sock, first)

    def test_bad_input_harms_nobody(self):
        errors = io.StringIO()
        with contextlib.redirect_stderr(errors):
            for data in (b"", b"\r\n\r\n", b"GET\r\n\r\n", b"\xff\xfe\x00" * 50, b"GET / HTTP/9.9\r\n\r\n", b"GET / HTTP/1.1\r\n\r\n",
                         b"GET /%ff%00 HTTP/1.1\r\nHost: www.quietbay.com\r\n\r\n", b"BREW / HTTP/1.1\r\nHost: x\r\n\r\n",
                         b"GET http://[ HTTP/1.1\r\nHost: x\r\n\r\n", b"GET " + b"a" * 70000 + b" HTTP/1.1\r\n\r\n",
                         b"POST / HTTP/1.1\r\nHost: www.quietbay.com\r\nContent-Length: 9\r\n\r\nabc"):
                self.raw(data)
        self.assertEqual(errors.getvalue(), "")
        self.assertEqual(self.ask("www.quietbay.com", "/")[0].status, 200)


class Program(unittest.TestCase):
    def run_server(self, *args, **more):
        process = subprocess.Popen([sys.executable, HERE / "server.py", *args], stdout=subprocess.PIPE, text=True, **more)
        self.addCleanup(process.stdout.close)
        self.addCleanup(process.kill)
        self.assertRegex(process.stdout.readline(), r"^listening on 127\.0\.0\.1:\d+\n$")
        return process

    def test_ends_with_its_parent(self):
        process = self.run_server("--stop-with-parent", stdin=subprocess.PIPE)
        process.stdin.close()
        self.assertEqual(process.wait(5), 0)

    def test_ends_by_itself(self):
        self.assertEqual(self.run_server("--seconds", "0.2").wait(5), 0)

    def test_notes_requests(self):
        with tempfile.TemporaryDirectory() as folder:
            log = Path(folder) / "log.txt"
            with open(log, "w", buffering=1) as file, server.start(log=file) as demo:
                connection = http.client.HTTPConnection("127.0.0.1", demo.port, timeout=5)
                with contextlib.closing(connection):
                    connection.request("GET", "/x?y=1", headers={"Host": "www.quietbay.com"})
                    connection.getresponse().read()
            self.assertEqual(log.read_text(), "404 www.quietbay.com /x?y=1\n")


class Expectations(unittest.TestCase):
    def test_thirty_sites_thirty_links(self):
        self.assertEqual(len(server.HOSTS), 32 + len(SERVICES))
        self.assertEqual(len(EXPECTED["links"]), 30)
        self.assertEqual(len(set(EXPECTED["links"])), 30)

    def test_derived_again_it_is_the_same(self):
        self.assertEqual(derive.derive(), EXPECTED)

    def test_each_stage_of_the_record_drops_something(self):
        record_ = json.loads((HERE / "searchsite.json").read_text(encoding="utf-8"))
        for left_out in ("UrlLen", "UrlMC-1", "UrlMNC-1", "BUrlCol-1", "EUrlCol-1", "CnvHex", "BeginUrl-1", "EndUrl-1"):
            with self.subTest(left_out):
                links = derive.result_links(derive.START, {**record_, left_out: ""})
                self.assertNotEqual(links, EXPECTED["links"])

    def test_each_of_the_other_services_needs_each_field_of_its_record(self):
        for service in SERVICES:
            self.assertEqual(derive.result_links(service["page"], service["record"]), service["results"])
            fields = [name for name, value in service["record"].items()
                      if name not in ("SiteName", "Group", "Url-1") and value != "0"]
            for left_out in fields:
                with self.subTest(service["kind"], left_out=left_out):
                    links = derive.result_links(service["page"], {**service["record"], left_out: ""})
                    self.assertNotEqual(links, service["results"])

    def test_no_address_is_too_long_to_be_stored(self):
        for table in ("SiteSummary", "EmailAddress", "PhoneNumber", "PassUrlsA"):
            self.assertTrue(all(len(row["Url"]) < 255 for row in EXPECTED[table]))


class Record(unittest.TestCase):
    def setUp(self):
        self.folder = self.enterContext(tempfile.TemporaryDirectory())
        self.file = os.path.join(self.folder, "Trawlex-0 # 1.mdb")
        families = ("Url", "BeginUrl", "EndUrl", "UrlMC", "UrlMNC", "BUrlCol", "EUrlCol")
        self.columns = ["Date", "SiteName", "CnvHex", "UrlLen", "Group"] + [f"{f}-{n}" for f in families for n in range(1, 6)]
        with contextlib.closing(sqlite3.connect(self.file)) as db, db:
            db.execute('CREATE TABLE SearchSites ("Index" INTEGER PRIMARY KEY AUTOINCREMENT, '
                       + ", ".join(f'"{c}" TEXT COLLATE NOCASE' for c in self.columns) + ")")

    def rows(self):
        with contextlib.closing(sqlite3.connect(self.file)) as db:
            return db.execute("SELECT * FROM SearchSites").fetchall()

    def test_one_row_with_blanks_for_the_rest(self):
        first = record.records()[0]
        self.assertTrue(record.write(self.file, first))
        self.assertFalse(record.write(self.file, first))
        (row,) = self.rows()
        told = dict(zip(["Index"] + self.columns, row))
        self.assertEqual(told["Index"], 1)
        self.assertEqual(told["Date"], datetime.date.today().isoformat())
        self.assertEqual(told["Url-1"], derive.get_server(derive.START, False))
        self.assertEqual(told["UrlMC-1"], "/url?to=<~Dorv~>1")
        self.assertEqual([told["Url-2"], told["EUrlCol-5"]], ["", ""])

    def test_a_missing_database_is_not_made(self):
        missing = os.path.join(self.folder, "none.mdb")
        with self.assertRaises(sqlite3.Error):
            record.write(missing, record.records()[0])
        self.assertFalse(os.path.exists(missing))


if __name__ == "__main__":
    unittest.main()
