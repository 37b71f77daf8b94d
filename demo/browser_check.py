#!/usr/bin/env python3
"""Lets a real browser read every page that derive.py speaks about, and compares address, title, links and innerHTML.

    python3 browser_check.py [BROWSER] [more switches for it]

BROWSER is a Chromium-family browser (default: chromium). It runs without a window and talks over its DevTools pipe.
Exit status 0 if all pages agree. Needs about half a minute; nothing leaves loopback.
"""
import json
import os
import subprocess
import sys
import tempfile

import derive
import server


class Browser:
    """One page of a browser, and as much of DevTools as the visit of a page takes."""

    def __init__(self, program, switches, profile):
        out_read, out_write = os.pipe()
        in_read, in_write = os.pipe()

        def pipes():                                    # the browser reads descriptor 3 and writes descriptor 4
            os.dup2(os.dup(in_read), 13)
            os.dup2(os.dup(out_write), 14)
            os.dup2(13, 3)
            os.dup2(14, 4)

        self.process = subprocess.Popen(
            [program, "--headless=new", "--remote-debugging-pipe", f"--user-data-dir={profile}", "--disable-gpu",
             "--no-first-run", "--disable-background-networking", "--disable-component-update", "--disable-sync",
             "--disable-features=HttpsUpgrades", *switches, "about:blank"],
            preexec_fn=pipes, close_fds=False, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(in_read)
        os.close(out_write)
        self.to, self.of = os.fdopen(in_write, "wb"), os.fdopen(out_read, "rb")
        self.count, self.session, self.buffer, self.loads, self.dialogs = 0, None, b"", 0, 0
        target = self.ask("Target.createTarget", url="about:blank")["targetId"]
        self.session = self.ask("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]
        self.ask("Page.enable")
        self.ask("Fetch.enable", handleAuthRequests=True, patterns=[{"urlPattern": "*", "resourceType": "Document"}])

    def send(self, method, **params):
        self.count += 1
        message = {"id": self.count, "method": method, "params": params}
        if self.session:
            message["sessionId"] = self.session
        self.to.write(json.dumps(message).encode() + b"\0")
        self.to.flush()
        return self.count

    def receive(self):
        while b"\0" not in self.buffer:
            more = self.of.read1(1 << 20)
            if not more:
                raise EOFError("the browser has left")
            self.buffer += more
        line, _, self.buffer = self.buffer.partition(b"\0")
        message = json.loads(line)
        if message.get("method") == "Page.loadEventFired":
            self.loads += 1
        if message.get("method") == "Page.javascriptDialogOpening":
            self.dialogs += 1
            self.send("Page.handleJavaScriptDialog", accept=True)
        if message.get("method") == "Fetch.requestPaused":
            self.send("Fetch.continueRequest", requestId=message["params"]["requestId"])
        if message.get("method") == "Fetch.authRequired":          # no name, no password: the page behind is what counts
            self.send("Fetch.continueWithAuth", requestId=message["params"]["requestId"],
                      authChallengeResponse={"response": "CancelAuth"})
        return message

    def ask(self, method, **params):
        number = self.send(method, **params)
        while (message := self.receive()).get("id") != number:
            pass
        if "error" in message:
            raise RuntimeError(f"{method}: {message['error']}")
        return message["result"]

    def visit(self, url):
        before = self.loads
        if "loaderId" in self.ask("Page.navigate", url=url):        # else a move within the page
            while self.loads == before:
                self.receive()

    def value(self, script):
        return self.ask("Runtime.evaluate", expression=script, returnByValue=True)["result"].get("value")

    def close(self):
        self.session = None
        self.ask("Browser.close")
        self.process.wait(20)


def compare(browser, address):
    page = derive.Page(address)
    browser.visit(address)
    differences = []
    for what, script, told in (
            ("address", "location.href", page.url),
            ("title", "document.title", derive.whole(page.title)),
            ("links", "[...document.links].map(link => link.href)", page.links),
            ("innerHTML", "document.documentElement.innerHTML", derive.whole(page.html))):
        seen = browser.value(script)
        if seen != told:
            differences.append(f"  {what}\n    browser {seen!r:.1500}\n    derived {told!r:.1500}")
    print("same" if not differences else "DIFFERENT", address, *differences, sep="\n" if differences else " ", flush=True)
    return not differences


def main():
    program, switches = (sys.argv[1:] or ["chromium"])[0], sys.argv[2:]
    if hasattr(os, "geteuid") and os.geteuid() == 0:
        switches.append("--no-sandbox")
    expected = derive.derive()
    pages = [derive.START, derive.START_2] + expected["links"] + expected["page_2"]["links"]
    pages += ["http://www.ferry-timetable.com", "http://www.atlanta-rowing.com"]       # the front pages fallen back to
    pages = [page for page in derive.without_repeats(pages) if derive.email_or_link(page) == 2]
    with server.start() as demo, tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as profile:
        browser = Browser(program, [f"--host-resolver-rules=MAP * 127.0.0.1:{demo.port}", *switches], profile)
        results = [compare(browser, page) for page in pages]
        browser.close()
    print(f"{sum(results)} of {len(results)} pages agree; {browser.dialogs} dialogs answered")
    sys.exit(0 if all(results) else 1)


if __name__ == "__main__":
    main()
