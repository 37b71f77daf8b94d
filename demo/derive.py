#!/usr/bin/env python3
"""Works out expected.json from the fixture files alone: what one harvest of the demo web has to store.

    python3 derive.py            rewrites expected.json
    python3 derive.py --check    says whether expected.json still holds (exit status 1 if not)

Written slowly on purpose. It follows the rules step by step, without the shortcuts that a program takes, so that it can be
trusted where the two disagree. Positions count from 1, and a character is a UTF-16 code unit.
"""
import html
import json
import re
import sys
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import quote, urldefrag, urljoin, urlsplit

import server

HERE = Path(__file__).resolve().parent
START = f"http://{server.SERVICE}/search?q=harbour"
START_2 = START + "&page=2"
MARK = "<~Dorv~>"
SWITCHES = {
    "chkSaveSummary": 1, "chkSavePages": 1, "chkSaveToSS": 1, "chkSaveToFile": 0, "chkSaveEmail": 1, "chkSavePhone": 1,
    "chkSaveUrl": 1, "chkSMD(1)": 1, "chkSMD(3)": 1, "chkSMD(4)": 1, "chkSMD(6)": 0, "chkSMD(7)": 0,
    "chkMustContain": 0, "chkMustNotContain": 0, "chkMCMNCStop": 0, "chkUseSavedUrls": 0, "chkUrlBlocking": 0,
    "chkEmailBlocking": 0, "chkSMA(0)": 0, "chkSMA(1)": 0, "chkSMA(9)": 0, "chkSMV(2)": 1, "incNotFoundMinSize": 2000,
    "incSMDMinHtmlSize": 0, "incSFMinFileSize": 0, "txtANStartTag": "", "txtANStopTag": "", "txtSBSelAreaCodes": "",
    "cboANSaveType": "Html", "cboANList": "A",
}
SERVER_TYPES = """
    .com .edu .gov .net .org .az .be .bg .bh .bm .bo .br .bs .bs .ca .ca .ch .cl .cn .co .ae .cr .cy .cz .de .dk .do .ec
    .am .ee .eg .es .fi .fj .fr .gi .god .ar .gr .hk .hn .hr .hu .id .ie .il .in .int .is .it .jo .jp .ke .kr .kw .ky .lb
    .lk .lt .lu .lv .mc .mil .mk .mt .mv .mx .my .na .nc .at .nl .no .np .nz .au .pe .ph .pk .pl .pt .py .qa .ro .ru .sa
    .se .sg .si .sk .su .sz .th .tr .tt .tw .ua .uk .us .uy .ve .ws .yu .za .tk .cx
""".split()
BROWSER_DEPENDENT = [{
    "link": "http://www.members-only-marina.com/",
    "why": "asks for a name and a password (401). Its rows hold for a driver that declines to sign in and so sees the page "
           "sent along. One that leaves the question open stands on the browser's own empty page: then this link's rows in "
           "SiteSummary, EmailAddress and PhoneNumber are missing, its row in PassUrlsA may be any, and what page_2 adds "
           "stands one position higher up in SiteSummary. The link is the last one, so no other row depends on it.",
}]
PROTOCOLS = ["http://", "https://", "ftp://", "file:///", "mailto:"]
AREA_CODES = """
    205 251 256 334 907 480 520 602 623 928 479 501 870 209 213 310 323 341 369 408 415 424 442 510 530 559 562 619
    626 627 628 650 657 661 669 707 714 747 752 760 764 805 818 831 858 909 916 925 935 949 951 303 719 720 970 203
    475 860 959 302 239 305 321 352 354 386 407 561 689 727 754 772 786 813 836 850 861 863 904 941 954 229 404 470
    478 678 706 770 912 671 808 208 217 224 282 309 312 331 464 618 630 708 773 815 847 872 219 260 317 574 765 812
    319 515 563 641 712 316 620 785 913 270 327 502 606 859 225 318 337 504 985 207 383 240 280 301 410 443 969 339
    351 413 508 617 774 781 857 978 231 248 269 278 313 517 546 586 616 679 734 810 906 947 989 218 320 507 612 651
    763 952 228 601 662 314 417 557 573 636 660 816 975 406 308 402 702 775 603 201 356 551 609 732 848 856 862 908
    973 505 957 212 315 347 516 518 585 607 631 646 716 718 845 914 917 252 336 704 828 910 919 980 984 701 216 234
    283 330 380 419 440 513 567 614 740 937 405 580 918 503 541 971 215 267 358 412 445 484 570 610 717 724 814 835
    878 787 939 401 803 843 864 605 210 214 254 281 361 409 430 432 469 512 682 713 737 806 817 830 832 903 915 936
    940 956 972 979 385 435 801 802 236 276 381 434 540 571 703 757 804 206 253 360 425 509 564 202 304 262 353 414
    420 608 715 920 307
""".split()
assert len(SERVER_TYPES) == 106 and len(AREA_CODES) == 313


# ---------------------------------------------------------------- texts

def units(text):
    """The text with each UTF-16 code unit as one character."""
    raw = text.encode("utf-16-le", "surrogatepass")
    return "".join(chr(raw[i] | raw[i + 1] << 8) for i in range(0, len(raw), 2))


def whole(text):
    """The way back, for what is written down."""
    return text.encode("utf-16-le", "surrogatepass").decode("utf-16-le", "replace")


def low(text):
    return "".join(c.lower() if len(c.lower()) == 1 else c for c in text)


def mid(text, start, length):
    return text[start - 1:start - 1 + length]


def in_str(start, text, find):
    """Exact; 0 for no hit."""
    return text.find(find, start - 1) + 1


def in_str_text(text, find):
    """Ignoring case."""
    return in_str(1, low(text), low(find))


def count_char(text, find):
    """Exact, overlaps counted."""
    return sum(text.startswith(find, i) for i in range(len(text)))


def digit_groups(text):
    return re.findall("[0-9]+", text.strip(" "))


def without_repeats(items):
    kept = []
    for item in items:
        if item not in kept:
            kept.append(item)
    return kept


# ---------------------------------------------------------------- what the browser makes of a page

VOID = {"area", "base", "br", "col", "embed", "frame", "hr", "img", "input", "link", "meta", "source", "track", "wbr"}
AS_IS = {"script", "style", "iframe", "noframes", "noscript"}


class Document(HTMLParser):
    """The innerHTML of the root element, and the addresses of its links, for the plainly written pages of this demo:
    every tag stands there that the browser would otherwise put in (tide.is has a wrapping of its own)."""

    def __init__(self, source, address):
        super().__init__(convert_charrefs=True)
        self.address, self.pieces, self.links, self.open, self.begun, self.noframes = address, [], [], [], False, 0
        self.feed(source if "<head>" in source else wrapped(source))
        self.close()
        end = "</frameset>" if "</frameset>" in self.pieces else "</body>"
        at = self.pieces.index(end)
        behind = "".join(self.pieces[at + 1:])
        assert behind.strip() == ""             # blank text behind the end tag: moves into the body, stays behind a frameset
        parts = self.pieces[:at] + ([behind, end] if end == "</body>" else [end, behind])
        self.inner = "".join(parts)

    def put(self, text):
        if self.begun:
            self.pieces.append(text)

    def handle_starttag(self, tag, attrs):
        if tag == "html":
            return
        self.begun = True                       # blank text between <html> and <head> is dropped
        if self.raw():
            return self.put(self.get_starttag_text())
        self.put("<" + tag + "".join(f' {name}="{attribute(value or "")}"' for name, value in attrs) + ">")
        if tag in AS_IS:
            self.open.append(tag)
        href = dict(attrs).get("href")
        if tag in ("a", "area") and href is not None:
            self.links.append(resolved(self.address, href))

    def handle_endtag(self, tag):
        if tag == "html":
            return
        if self.open and self.open[-1] == tag:
            self.open.pop()
        if tag not in VOID:
            self.put(f"</{tag}>")

    def raw(self):
        return bool(self.open)

    def handle_data(self, data):
        self.put(data if self.raw() else content(data))

    def handle_comment(self, data):
        self.put(f"<!--{data}-->")


def wrapped(source):
    """A page of a title and a few words, with the tags that the browser puts around them."""
    title, _, rest = source.partition("</title>")
    return f"<html><head>{title}</title></head><body>{rest}</body></html>"


def content(text):
    return text.replace("&", "&amp;").replace("\xa0", "&nbsp;").replace("<", "&lt;").replace(">", "&gt;")


def attribute(text):
    return content(text).replace('"', "&quot;")


def resolved(address, href):
    """The href of a link as the browser reports it."""
    href = urljoin(address, href)
    if href.startswith(("mailto:", "javascript:")):
        return href
    before, mark, query = href.partition("?")
    return before + mark + query.replace("'", "%27")


def location(url):
    """The address as the browser shows it."""
    url = quote(url, safe="%/:?&=#'+,;@!$()*~")
    return url + "/" if urlsplit(url).path == "" else url


class Page:
    def __init__(self, url):
        self.url = location(url)
        while True:
            parts = urlsplit(urldefrag(self.url)[0])
            found = server.answer(parts.hostname, parts.path + ("?" + parts.query if parts.query else ""))
            if found.status != 302:
                break
            self.url = location(found.headers["Location"])
        source = found.text()
        document = Document(source, self.url)
        inner = document.inner
        if found.dom:
            before, after = found.dom
            assert inner.count(before) == 1
            inner = inner.replace(before, after)
        self.title = units(" ".join(html.unescape(re.search("<title>(.*?)</title>", source, re.S)[1]).split()))
        self.html = units(inner)
        self.links = document.links
        self.holds = (re.search("<h1[^>]*>(.*?)</h1>", inner) or re.search("<title>(.*?)</title>", inner))[1]


# ---------------------------------------------------------------- addresses

def get_protocol(address):
    """The protocol, and the address less that many characters."""
    for protocol in PROTOCOLS:
        if in_str_text(address, protocol):
            break
    return protocol, address[len(protocol):]


def get_server(address, keep_protocol):
    """Type and www are always kept here."""
    copy, found = low(address), ""
    protocol = ""
    if copy != "":
        protocol, rest = get_protocol(copy)[0], get_protocol(address)[1]
        if "\\" not in copy:
            found = server_of(copy, rest)
    return protocol + found if keep_protocol else found


def server_of(copy, rest):
    hit = False
    for kind in SERVER_TYPES:
        p = in_str(1, copy, kind)
        if p:
            if kind == ".ph" and len(copy) >= p + 4 and mid(copy, p + 3, 1) == "p":
                continue
            hit = True
            break
    if hit and "@" in copy:
        p = in_str(1, copy, "@")
        return rest[p:] if len(rest) > p else ""
    while "/" in rest:
        rest = rest[:rest.rindex("/")]
    if hit:
        return rest
    return rest if len(digit_groups(rest)) == 4 else ""


def ends_in_a_url(text):
    text = low(text).strip(" ")
    return any(text.endswith(kind) for kind in SERVER_TYPES)


def email_or_link(text):
    """0 neither, 1 e-mail address, 2 link; a link needs no prefix."""
    text = low(text)
    if text == "" or "." not in text or "\\" in text:
        return 0
    for kind in SERVER_TYPES:
        p = text.rfind(kind)
        if p >= 0 and (p + len(kind) == len(text) or text[p + len(kind)] == "/"):
            return 1 if "@" in text else 2
    rest = text
    if "/" in text:
        start = len("http://") if text.startswith("http://") else 0
        while rest.find("/", start) >= 0:
            rest = rest[:rest.rindex("/")]
    groups = digit_groups(rest)
    return 2 if len(groups) == 4 and all(len(group) <= 3 for group in groups) else 0


def dec_to_hex(number):
    return f"{number % 256:02X}" if number > 0 else ""


def hex_to_dec(text):
    p = in_str(1, text, "%")
    while p:
        code, left, right = mid(text, p + 1, 2).upper(), text[:p - 1], text[p + 2:]
        if code == "25" and len(text) > p + 3:
            code, right = mid(text, p + 3, 2).upper(), text[p + 4:]
            p += 2
        first = code[:1]
        base = {"A": 160, "B": 176, "C": 192, "D": 208, "E": 224, "F": 240}.get(
            first, int(first) * 16 if first.isdigit() else 0)
        for number in range(base, base + 16):
            if code and dec_to_hex(number) == code:
                text = left + bytes([number]).decode("windows-1252", "replace") + right
                break
        p = in_str(p + 1, text, "%")
    return text


# ---------------------------------------------------------------- the finders

def refused_in_email(character):
    """Of a lower-cased character; none at all (behind the end of the text) is not refused."""
    return character != "" and character not in "@-._0123456789abcdefghijklmnopqrstuvwxyz"


def collect_email(text):
    """All that looks like an address, in order, repeats and all. Values found in a pass stay until another pass changes
    them, and the scan gives up at the thousandth pass."""
    if len(text) < 10:
        return []
    found = []
    start_found = end_found = False
    start = end = 0
    resume, passes = 1, 0
    while True:
        hit = in_str(resume, text, "@")
        if hit == resume:
            resume += 5
            hit += 15
        passes += 1
        if passes == 1000 or hit == 0:
            return found
        i = hit
        while i >= 1:
            if refused_in_email(low(mid(text, i, 1))) or (i == 1 and hit < 35):
                start_found, start = True, i if i == 1 else i + 1
                break
            i -= 1
        for j in range(hit, len(text) + 1):
            if refused_in_email(low(mid(text, j, 1))):
                end_found, end = True, j - 1
                break
            if j == len(text) and ends_in_a_url(text):
                end_found, end = True, j
                break
        if start_found and end_found and start < end:
            candidate = mid(text, start, end - start + 1)
            if ends_in_a_url(candidate):
                found.append(candidate)
        if end > 0:
            resume = end


def find_phone_numbers(text):
    """With all area codes, not fax alone; repeats and all."""
    if "-" not in text:
        return []
    found = []
    for code in AREA_CODES:
        p = in_str(1, text, code)
        while p:
            if p + 15 <= len(text):
                candidate = mid(text, p, 15)
                if "-" in candidate or ")" in candidate:
                    number = read_number(candidate.replace(" ", ""))
                    if len(number) == 10:
                        found.append(number)
            p = in_str(p + 1, text, code)
    return found


def read_number(candidate):
    number, separators = "", 0
    for character in candidate:
        if character in "0123456789":
            number += character
            separators = 0
        elif character in "-)":
            separators += 1
            if separators == 2:
                break
        else:
            break
    return number


# ---------------------------------------------------------------- the result links of a page

def parts(value):
    text, mark, count = value.partition(MARK)
    return (text, count) if mark else (value, value)


def values(record, family):
    """The filled slots of a family, packed."""
    return [record[f"{family}-{n}"] for n in range(1, 6) if record.get(f"{family}-{n}")]


def start_stop(links, record):
    begins, ends = values(record, "BUrlCol"), values(record, "EUrlCol")
    if not begins and not ends:
        return links
    holds = lambda link, texts: any(in_str_text(link, text) for text in texts)
    kept, started = [], False
    for link in links:
        if not begins:
            if holds(link, ends):
                break
            kept.append(link)
        elif not started:
            started = holds(link, begins)
        else:
            kept.append(link)
            if holds(link, ends):
                break
    return kept


def convert_hex(links, record):
    return [hex_to_dec(link) for link in links] if record.get("CnvHex") == "1" else links


def min_max(links, record):
    if not record.get("UrlLen"):
        return links
    how, length = (int(part) for part in parts(record["UrlLen"]))
    if length <= 0:
        return links
    keep = {0: lambda n: n == length, 1: lambda n: n > length, 2: lambda n: n < length,
            3: lambda n: n >= length, 4: lambda n: n <= length}[how]
    return [link for link in links if keep(len(link))]


def hits(link, family):
    for value in family:
        text, count = parts(value)
        n = count_char(link, text)
        if n == int(count) if int(count) > 0 else n > 0:
            return True
    return False


def must_contain(links, record):
    family = values(record, "UrlMC")
    return [link for link in links if hits(link, family)] if family else links


def must_not_contain(links, record):
    family = values(record, "UrlMNC")
    return [link for link in links if not hits(link, family)] if family else links


def begin_end(links, record):
    cut = []
    for link in links:
        for text in values(record, "BeginUrl"):
            p = in_str_text(link, text)
            link = link[p - 1 + len(text):] if p else link
        for text in values(record, "EndUrl"):
            p = in_str_text(link, text)
            link = link[:p - 1] if p else link
        cut.append(link)
    return cut


def result_links(address, record):
    page = Page(address)
    assert get_server(page.url, False) == record["Url-1"]
    links = page.links
    for stage in (start_stop, convert_hex, min_max, must_contain, must_not_contain, begin_end):
        kept = stage(links, record)
        if kept and kept[0] != "":              # a stage that leaves nothing is undone
            links = kept
    return without_repeats(links)


# ---------------------------------------------------------------- the harvest

class Harvest:
    def __init__(self):
        self.summary, self.emails, self.phones, self.pass_urls = [], [], [], []

    def visit(self, link):
        """False for a link that is not opened at all."""
        if email_or_link(link) != 2:
            return False
        page = Page(link)
        if self.looks_missing(page):
            page = Page(get_server(page.url, True))
        self.save_summary(page)
        self.save_emails(page)
        self.save_phones(page)
        self.save_pass_url(page)
        return True

    @staticmethod
    def looks_missing(page):
        if len(page.html) > SWITCHES["incNotFoundMinSize"]:
            return False
        return any(in_str_text(page.html, text) or in_str_text(page.title, text) for text in
                   ("not found", "404", "page missing", "cannot find server", "url Broken", "system cannot find"))

    def index_of(self, url, page):
        """The first row that is the page's own, by any of four comparisons; "" takes part in them too."""
        key, key_server = (url, "") if url else (page.url, get_server(page.url, False))
        for position, row in enumerate(self.summary, 1):
            row_url = low(row["Url"])
            row_server = low(get_server(row["Url"], False))
            if low(key) in (row_url, row_server) or low(key_server) in (row_url, row_server):
                return position
        return -1

    @staticmethod
    def stored(rows, name, value):
        return any(low(row[name]) == low(value) for row in rows)     # the tables compare without regard to case

    def save_summary(self, page):
        url = get_server(page.url, False).replace("'", "")
        if url and not self.stored(self.summary, "Url", url):
            self.summary.append({"Title": whole(page.title[:255]), "Url": url, "FullPage": page.html != "",
                                 "FullPageHolds": page.holds})

    def save_emails(self, page):
        for address in without_repeats(collect_email(page.html)):
            if not self.stored(self.emails, "Address", address):
                self.emails.append({"SSIndex": self.index_of("", page), "Address": address, "Url": page.url})

    def save_phones(self, page):
        for number in without_repeats(find_phone_numbers(page.html)):
            if not self.stored(self.phones, "Number", number):
                self.phones.append({"SSIndex": self.index_of("", page), "Number": number, "Type": "Any", "Url": page.url})

    def save_pass_url(self, page):
        url = page.url.replace("'", "")
        if not self.stored(self.pass_urls, "Url", url):
            self.pass_urls.append({"SSIndex": self.index_of(url, page), "MaskName": f"PassUrl-{100 + len(self.pass_urls)}",
                                   "Url": url})

    def tables(self):
        return {"SiteSummary": self.summary, "EmailAddress": self.emails, "PhoneNumber": self.phones,
                "PassUrlsA": self.pass_urls}


def derive():
    record = json.loads((HERE / "searchsite.json").read_text(encoding="utf-8"))
    harvest = Harvest()
    first, second = result_links(START, record), result_links(START_2, record)
    refused = [link for link in first if not harvest.visit(link)]
    tables = {name: list(rows) for name, rows in harvest.tables().items()}
    refused_2 = [link for link in second if not harvest.visit(link)]
    added = {name: rows[len(tables[name]):] for name, rows in harvest.tables().items()}
    return {
        "about": "Made by derive.py. SSIndex is the position of the SiteSummary row, from 1; -1 stands for no row. "
                 "FullPage tells whether it is filled, FullPageHolds what must occur in it.",
        "switches": SWITCHES,
        "result_page": START, "links": first, "links_refused": refused, **tables,
        "page_2": {"about": "rows added when this page is harvested next, into the same database",
                   "result_page": START_2, "links": second, "links_refused": refused_2, **added},
        "browser_dependent": BROWSER_DEPENDENT,
    }


def main():
    file = HERE / "expected.json"
    text = json.dumps(derive(), indent=1, ensure_ascii=False) + "\n"
    if "--check" in sys.argv[1:]:
        same = file.read_text(encoding="utf-8") == text
        print("expected.json holds" if same else "expected.json is out of date")
        sys.exit(0 if same else 1)
    file.write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
