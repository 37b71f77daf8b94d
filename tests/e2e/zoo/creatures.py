"""The hostile pages of the zoo: one row each, what the server answers for it.

A creature is the page of a host of its own. Behind each stand two ordinary pages, one of the same site and one of
another, and those are what a harvest must bring home whatever the creature does.
"""
import gzip
import time
from dataclasses import dataclass

SITE = "zoo-one.com"
OTHER = "zoo-two.com"
BLOCK = b"0123456789abcdef" * 4096


def page(title, body="", head=""):
    return f"<!doctype html><meta charset=utf-8><title>{title}</title>{head}<p>creature {title}</p>{body}"


def script(title, code):
    return page(title, f"<script>{code}</script>")


def frame(title, code):
    """The same script in a frame of another site."""
    return page(title, f"<iframe src='http://frame.{OTHER}/frame?{title}'></iframe>" * 2) + f"<!--{code}-->"


@dataclass
class Creature:
    html: str = ""
    status: int = 200
    type: str = "text/html; charset=utf-8"
    headers: tuple = ()
    raw: object = None    # a function of the connection, in place of an answer
    framed: str = ""      # what the frame of another site runs
    slow: bool = False    # may take the read limit
    short: bool = False   # is in the short form
    never: bool = False   # no page ever comes of it, so nothing may be stored at its address


def scripted(title, code, **more):
    return Creature(script(title, code), **more)


def silent(send):
    time.sleep(600)


def slow_header(send):
    for byte in b"HTTP/1.1 200 OK\r\nX-Slow: " + b"a" * 600:
        send(bytes([byte]))
        time.sleep(1)


def slow_body(send):
    send(b"HTTP/1.1 200 OK\r\nContent-Type: text/html\r\n\r\n<title>slow_body</title><p>creature slow_body")
    for _ in range(600):
        send(b"<p>more")
        time.sleep(1)


def at_once(data):
    return lambda send: send(data)


def endless_body(send):
    send(b"HTTP/1.1 200 OK\r\nContent-Type: text/html\r\n\r\n<title>endless_body</title><p>creature")
    for _ in range(100_000):
        send(BLOCK)


def big(megabytes):
    def answer(send):
        send(b"HTTP/1.1 200 OK\r\nContent-Type: text/html\r\n\r\n<title>big</title><p>creature big<!--")
        for _ in range(megabytes * 16):
            send(BLOCK)
        send(b"-->")
    return answer


def gzip_bomb(send):
    send(b"HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nContent-Encoding: gzip\r\n\r\n" +
         gzip.compress(b"<title>gzip_bomb</title>" + BLOCK * 1600))


BOMB = ("<!DOCTYPE z [<!ENTITY a0 'ha'>" + "".join(f"<!ENTITY a{n} '{f'&a{n - 1};' * 10}'>" for n in range(1, 12)) +
        "]><z>&a11;</z>")
NESTED = page("nested", "<div>" * 50_000)
LINKS = page("many_links", "".join(f"<a href='/l{n}'>x</a>" for n in range(200_000)))
SPIN = "for (;;);"
FLOOD = "let n = 0; setInterval(() => { for (let i = 0; i < 1000; ++i) STEP; }, 1)"


def moved(to, status=302):
    return Creature(status=status, headers=(("Location", to),), never=True)


CREATURES = {
    # Boxes and questions
    "alerts": scripted("alerts", "while (true) alert(1)", short=True),
    "alert_timer": scripted("alert_timer", "setInterval(() => alert(1), 1)"),
    "frame_alerts": Creature(frame("frame_alerts", ""), framed="setInterval(() => alert(1), 1)", short=True),
    "frame_alert_loop": Creature(frame("frame_alert_loop", ""), framed="while (true) alert(1)"),
    "confirms": scripted("confirms", "for (let i = 0; i < 100; ++i) { confirm(i); prompt(i); }"),
    "stay": scripted("stay", "onbeforeunload = (e) => { e.preventDefault(); return 'stay'; }", short=True),
    "prints": scripted("prints", "for (let i = 0; i < 50; ++i) print(); setInterval(print, 50)"),
    "permissions": scripted("permissions", "Notification.requestPermission(); navigator.geolocation.getCurrentPosition("
                            "() => {}); navigator.mediaDevices?.getUserMedia({ video: true, audio: true })"),
    "password": Creature(page("password"), 401, headers=(("WWW-Authenticate", 'Basic realm="zoo"'),)),
    "mail": scripted("mail", "setInterval(() => { location = 'mailto:a@b.example' }, 20)"),
    # Pages that do not end, or do not let go
    "spin": scripted("spin", SPIN, short=True),
    "spin_later": scripted("spin_later", f"setTimeout(() => {{ {SPIN} }}, 300)", short=True),
    "spin_pagehide": scripted("spin_pagehide", f"onpagehide = onunload = () => {{ {SPIN} }}", short=True),
    "spin_beforeunload": scripted("spin_beforeunload", f"onbeforeunload = () => {{ {SPIN} }}"),
    "alerts_pagehide": scripted("alerts_pagehide", "onpagehide = () => { while (true) alert(1); }"),
    "stubborn": scripted("stubborn", "onpagehide = () => { for (;;) try { for (;;); } finally { continue; } }"),
    "microtasks": scripted("microtasks", "const again = () => queueMicrotask(again); again()"),
    "workers": scripted("workers", "for (let i = 0; i < 8; ++i) new Worker(URL.createObjectURL(new Blob(['for(;;);'])))"),
    "frame_spin": Creature(frame("frame_spin", ""), framed=SPIN),
    "sync_request": scripted("sync_request", "const r = new XMLHttpRequest(); r.open('GET', '/never', false); r.send()"),
    "drawing": scripted("drawing", "const c = document.body.appendChild(document.createElement('canvas')); const x = "
                        "c.getContext('2d'); const d = () => { for (let i = 0; i < 1e5; ++i) x.arc(i % 300, i % 150, 9, 0, 7);"
                        " x.fill(); requestAnimationFrame(d); }; d()"),
    "layout": scripted("layout", "for (let i = 0; i < 2e4; ++i) { const e = document.createElement('p'); e.textContent = i; "
                       "document.body.append(e); e.offsetTop; }"),
    # Floods
    "hashes": scripted("hashes", FLOOD.replace("STEP", "location.hash = ++n"), short=True),
    "pushes": scripted("pushes", FLOOD.replace("STEP", "history.pushState(0, '', '/p' + ++n)")),
    "locations": scripted("locations", FLOOD.replace("STEP", f"location = 'http://gone.{OTHER}/' + ++n")),
    "reloads": scripted("reloads", "location.reload()", short=True),
    "reloads_later": scripted("reloads_later", "onload = () => location.reload()"),
    "refresh": Creature(page("refresh", head="<meta http-equiv=refresh content='0'>")),
    "back": scripted("back", "setInterval(() => history.back(), 5)"),
    "windows": scripted("windows", "for (let i = 0; i < 50; ++i) open('/pop' + i)", short=True),
    "window_timer": scripted("window_timer", "setInterval(() => open('/pop'), 10)"),
    "closes": scripted("closes", "close(); open('', '_self').close()"),
    "writes": scripted("writes", "setInterval(() => { document.open(); document.write('<title>writes</title>again'); }, 5)"),
    "console": scripted("console", "setInterval(() => { for (let i = 0; i < 1000; ++i) console.info(i); }, 1)"),
    "fetches": scripted("fetches", "setInterval(() => fetch('/f' + Math.random()), 2)"),
    # Size and depth
    "big": Creature(raw=big(20), slow=True),
    "huge": Creature(raw=big(100), slow=True),
    "many_links": Creature(LINKS, slow=True),
    "nested": Creature(NESTED, short=True),
    "entities": Creature(BOMB, type="text/xml"),
    "memory": scripted("memory", "const all = []; for (;;) all.push(new Array(1e6).fill(all.length))", slow=True),
    "frames": Creature(page("frames", "<iframe src='/inner'></iframe>" * 100)),
    "frames_in_frames": Creature(page("frames_in_frames", "<iframe src='?' id=f></iframe><script>f.src = '?' + Math.random()"
                                      "</script>")),
    "title": Creature(page("t" * 1_000_000)),
    "halves": scripted("halves", "document.title = 'a\\ud800\\udc00\\udc00\\u0000\\u001b[2J\\u202eb'"),
    "names": Creature(page("names", "<form name=documentElement><input name=innerHTML></form><form name=links></form>"
                           "<img name=title><script>Element.prototype.__defineGetter__('innerHTML', () => 'no')</script>")),
    # Answers
    "silent": Creature(raw=silent, short=True, never=True),
    "slow_header": Creature(raw=slow_header, never=True),
    "slow_body": Creature(raw=slow_body, short=True),
    "endless_body": Creature(raw=endless_body, slow=True),
    "hangs_up": Creature(raw=at_once(b""), short=True, never=True),
    "no_http": Creature(raw=at_once(b"\0\1\2 220 ready\r\n\r\n"), never=True),
    "half_length": Creature(raw=at_once(b"HTTP/1.1 200 OK\r\nContent-Length: 9999\r\n\r\n<title>half_length</title>x")),
    "bad_chunks": Creature(raw=at_once(b"HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nzz\r\n<p>x")),
    "bad_gzip": Creature(raw=at_once(b"HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\n\r\nno gzip")),
    "gzip_bomb": Creature(raw=gzip_bomb, slow=True),
    "long_header": Creature(raw=at_once(b"HTTP/1.1 200 OK\r\nX: " + b"a" * 2_000_000 + b"\r\n\r\n<p>x"), never=True),
    "nothing": Creature(status=204, short=True, never=True),
    "empty_error": Creature(status=500, never=True),
    "download": Creature("x" * 5000, type="application/octet-stream",
                         headers=(("Content-Disposition", "attachment; filename=zoo.bin"),), short=True, never=True),
    "downloads": scripted("downloads", "for (let i = 0; i < 20; ++i) { const a = document.createElement('a'); a.download = i; "
                          "a.href = '/d' + i; a.click(); }"),
    "paper": Creature("%PDF-1.4\n", type="application/pdf", never=True),
    "circle": moved("/"),
    "to_nobody": moved("http://127.0.0.1:9/"),
    "to_file": moved("file:///etc/passwd"),
    "to_script": moved("javascript:alert(1)"),
    "goes_nowhere": scripted("goes_nowhere", "location = 'http://127.0.0.1:9/'"),
}
