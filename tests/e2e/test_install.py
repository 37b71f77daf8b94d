"""What `make install` puts into place: complete, without a dead link in the manual, and running from there."""
import gzip
import html.parser
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

import trawlex

FILES = ["bin/trawlex", "bin/trawlex-harvest", "libexec/trawlex/trawlex-mdb-reader",
         "libexec/trawlex/trawlex-browser-holder", "libexec/trawlex/trawlex-harvest.so", "libexec/trawlex/trawlex-browser.so",
         "share/applications/trawlex.desktop", "share/applications/z-trawlex-pictures.desktop",
         "share/metainfo/trawlex.metainfo.xml",
         "share/icons/hicolor/scalable/apps/trawlex.svg", "share/man/man1/trawlex.1.gz", "share/man/man1/trawlex-harvest.1.gz",
         "share/doc/trawlex/manual/index.html", "share/doc/trawlex/copyright", "share/doc/trawlex/changelog.gz"]


class Links(html.parser.HTMLParser):
    """What a page refers to."""

    def __init__(self, page):
        super().__init__()
        self.found = []
        self.anchors = set()
        self.feed(page.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attrs):
        for name, value in attrs:
            if name in ("href", "src", "srcset"):
                self.found.append(value)
            elif name == "id":
                self.anchors.add(value)


class Installed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.prefix = pathlib.Path(tempfile.mkdtemp(prefix="trawlex-install-"))
        subprocess.run(["cmake", "--install", trawlex.BIN.parent, "--prefix", cls.prefix], check=True, stdout=subprocess.DEVNULL)

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.prefix)

    def test_everything_has_its_place(self):
        for name in FILES:
            with self.subTest(name):
                self.assertTrue((self.prefix / name).is_file())

    def test_no_link_of_the_manual_is_dead(self):
        pages = {page: Links(page) for page in (self.prefix / "share/doc/trawlex/manual").glob("*.html")}
        self.assertGreaterEqual(len(pages), 9)
        for page, links in pages.items():
            for link in links.found:
                path, _, anchor = link.partition("#")
                target = (page.parent / path).resolve() if path else page
                with self.subTest(page=page.name, link=link):
                    self.assertTrue(target.is_file())
                    if anchor:
                        self.assertIn(anchor, pages[target].anchors)

    def test_every_page_of_the_manual_leads_to_every_other(self):
        pages = list((self.prefix / "share/doc/trawlex/manual").glob("*.html"))
        for page in pages:
            self.assertLessEqual({other.name for other in pages}, set(Links(page).found), page.name)

    def test_the_man_page_knows_every_switch(self):
        told = subprocess.run([self.prefix / "bin/trawlex-harvest", "--help"], capture_output=True, text=True, check=True).stdout
        page = gzip.decompress((self.prefix / "share/man/man1/trawlex-harvest.1.gz").read_bytes()).decode().replace("\\-", "-")
        for switch in sorted(set(re.findall(r"^  (--[a-z-]+)", told, re.MULTILINE))):
            with self.subTest(switch):
                self.assertIn(switch, page)

    def test_the_front_answers_by_itself_and_says_when_the_rest_is_missing(self):
        with tempfile.TemporaryDirectory() as alone:
            front = shutil.copy(self.prefix / "bin/trawlex-harvest", alone)
            self.assertEqual(subprocess.run([front, "--help"], capture_output=True, text=True).returncode, 0)
            self.assertEqual(subprocess.run([front, "--no-such"], capture_output=True, text=True).returncode, 2)
            work = subprocess.run([front, "--auto"], capture_output=True, text=True)
            self.assertEqual(work.returncode, 1)
            self.assertIn(f"trawlex-harvest.so is not installed: it is neither in {alone} nor in ", work.stderr)

    def test_the_man_pages_are_well_formed(self):
        pages = list((self.prefix / "share/man/man1").glob("*.1.gz"))
        self.assertEqual(len(pages), 2)
        for page in pages:
            done = subprocess.run(["groff", "-man", "-Tutf8", "-ww"], input=gzip.decompress(page.read_bytes()).decode(),
                                  capture_output=True, text=True, check=True)
            self.assertEqual(done.stderr, "", page.name)

    def test_the_desktop_entry_names_what_is_installed(self):
        entry = dict(line.split("=", 1) for line in
                     (self.prefix / "share/applications/trawlex.desktop").read_text(encoding="utf-8").splitlines() if "=" in line)
        self.assertTrue(os.access(self.prefix / "bin" / entry["Exec"].split()[0], os.X_OK))
        self.assertTrue((self.prefix / f"share/icons/hicolor/scalable/apps/{entry['Icon']}.svg").is_file())
        entries = list((self.prefix / "share/applications").glob("*.desktop"))
        done = subprocess.run(["desktop-file-validate", *entries], capture_output=True, text=True, check=False)
        self.assertEqual(done.stdout, "")
        metainfo = ElementTree.parse(self.prefix / "share/metainfo/trawlex.metainfo.xml").getroot()
        self.assertEqual(metainfo.findtext("launchable"), "trawlex.desktop")
        for binary in metainfo.findall("provides/binary"):
            self.assertTrue((self.prefix / "bin" / binary.text).is_file())

    def test_pictures_are_offered_and_no_default_is_taken(self):
        """Beside another program for pictures, with nothing set as the default."""
        with tempfile.TemporaryDirectory() as folder:
            programs = pathlib.Path(folder, "data/applications")
            shutil.copytree(self.prefix / "share/applications", programs)
            kinds = ("image/jpeg", "image/gif", "image/bmp")
            (programs / "viewer.desktop").write_text("[Desktop Entry]\nType=Application\nName=Viewer\nExec=viewer %f\n"
                                                     f"MimeType={';'.join(kinds)};\n", encoding="utf-8")
            subprocess.run(["update-desktop-database", programs], check=True)
            env = dict(os.environ, XDG_DATA_HOME=f"{folder}/data", XDG_DATA_DIRS=f"{folder}/none", XDG_CONFIG_HOME=f"{folder}/config",
                       XDG_CONFIG_DIRS=f"{folder}/none", XDG_CURRENT_DESKTOP="X-Generic")
            offered = (programs / "mimeinfo.cache").read_text(encoding="utf-8")
            for kind in kinds:
                with self.subTest(kind):
                    self.assertRegex(offered, rf"{kind}=.*z-trawlex-pictures\.desktop;")
                    told = subprocess.run(["xdg-mime", "query", "default", kind], env=env, capture_output=True, text=True, check=True)
                    self.assertEqual(told.stdout.strip(), "viewer.desktop")


if __name__ == "__main__":
    unittest.main()
