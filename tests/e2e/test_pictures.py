"""The picture browser as the whole program: a folder of pictures is sorted by keys, and every file ends where it belongs."""
import os
import pathlib
import random
import re
import shutil
import signal
import subprocess
import tempfile
import unittest

import trawlex
import window

KINDS = ("jpg", "gif", "bmp")
INSERT, DELETE, UP = "Insert", "Delete", "Up"


class PictureCase(unittest.TestCase):
    screen = "1280x1000"

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="trawlex-e2e-"))
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        self.pictures = self.folder / "my pictures"
        self.target = self.folder / "kept"
        for place in (self.pictures, self.target):
            place.mkdir()
        self.env = dict(os.environ, XDG_CONFIG_HOME=f"{self.folder}/config", XDG_DATA_HOME=f"{self.folder}/data",
                        XDG_RUNTIME_DIR=str(self.folder), LC_ALL="C.UTF-8")
        self.display = window.Display(self, self.screen)
        self.samples = {kind: self.sample(kind) for kind in KINDS}

    def sample(self, kind):
        path = self.folder / f"sample.{kind}"
        subprocess.run(["convert", "-size", "320x240", "gradient:navy-orange", str(path)], check=True, timeout=60)
        return path.read_bytes()

    def make(self, name):
        """A picture whose file tells its name, behind what readers look at."""
        content = self.samples[name[-3:].lower()] + name.encode()
        (self.pictures / name).write_bytes(content)
        return content

    def start(self, picture):
        self.program = subprocess.Popen([trawlex.WINDOW, str(picture)], env=self.env, cwd=self.folder,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(lambda program: (program.poll() is None and program.kill(), program.wait()), self.program)
        self.id = trawlex.wait_for(lambda: self.display.do("search", "--onlyvisible", "--pid", self.program.pid), 30,
                                   "the picture window")[-1]
        self.display.do("windowactivate", "--sync", self.id)

    def title(self):
        return " ".join(self.display.do("getwindowname", self.id))

    def wait_for_title(self, text):
        trawlex.wait_for(lambda: self.title().startswith(text + " "), 20, f"the title '{text}', which is '{self.title()}'")

    def press(self, key):
        self.display.do("key", key)

    def end(self):
        self.press("Escape")
        self.assertEqual(self.program.wait(timeout=20), 0)

    def store_target(self):
        """Stores the directory to move to beside the place of the window that a first start has stored."""
        path = self.folder / "config/trawlex/trawlex.ini"
        text = path.read_text(encoding="utf-8")
        prefix = re.search(r"^(.*frmFoto\\)NSWE_W=", text, re.MULTILINE)[1]
        path.write_text(text.rstrip("\n") + f"\n{prefix}mnuSetMoveToDir={self.target}/\n", encoding="utf-8")


class Sorting(PictureCase):
    def test_fifty_pictures_are_sorted_by_keys(self):
        chance = random.Random(20261121)
        names = [f"{chance.choice(['Boat', 'pier', '0'])}{number:02}.{chance.choice([*KINDS, 'JPG'])}" for number in range(50)]
        contents = {name: self.make(name) for name in names}
        (self.pictures / "notes.txt").write_text("no picture", encoding="utf-8")
        order = [name for kind in KINDS for name in sorted(names, key=str.lower) if name.lower().endswith(kind)]
        taken = order[7]
        (self.target / taken).write_bytes(b"was here before")
        self.start(self.pictures / order[0])
        self.wait_for_title("50 of 50")
        self.end()
        self.store_target()
        self.start(self.pictures / order[0])
        self.wait_for_title("50 of 50")

        keys = {name: chance.choice([INSERT, DELETE, UP]) for name in order}
        keys[taken] = INSERT
        left = len(order)
        for index in reversed(range(1, len(order))):
            self.press(keys[order[index]])
            left -= keys[order[index]] != UP
            self.wait_for_title(f"{index} of {left}")
        keys[order[0]] = UP  # the first one stays
        self.end()

        stay = {name for name in order if keys[name] == UP}
        self.assertEqual({path.name for path in self.pictures.iterdir()}, stay | {"notes.txt"})
        moved = {name for name in order if keys[name] == INSERT}
        found = {path.name: path.read_bytes() for path in self.target.iterdir()}
        self.assertEqual(found.pop(taken), b"was here before")
        self.assertEqual(sorted(found.values()), sorted(contents[name] for name in moved))
        self.assertEqual(len(set(found) - moved), 1, "one name was taken and got another number")
        for name in stay:
            self.assertEqual((self.pictures / name).read_bytes(), contents[name])

    def test_a_kill_in_the_middle_of_moving_loses_no_picture(self):
        contents = {name: self.make(name) for name in (f"p{number:02}.jpg" for number in range(40))}
        self.start(self.pictures / "p00.jpg")
        self.wait_for_title("40 of 40")
        self.end()
        self.store_target()
        self.start(self.pictures / "p00.jpg")
        self.wait_for_title("40 of 40")
        self.display.do("keydown", INSERT)
        try:
            trawlex.wait_for(lambda: len(list(self.target.iterdir())) >= 5, 30, "five pictures moved")
            self.program.send_signal(signal.SIGKILL)
        finally:
            self.display.do("keyup", INSERT)
        self.program.wait()
        for name, content in contents.items():
            places = [place / name for place in (self.pictures, self.target) if (place / name).exists()]
            self.assertTrue(places, f"{name} is lost")
            for path in places:
                self.assertEqual(path.read_bytes(), content)


class SmallScreen(PictureCase):
    screen = "1366x768"

    def test_the_window_comes_up_whole_at_every_scale(self):
        """A picture that is larger than the screen, in a window whose frame nobody knows before it is drawn."""
        path = self.pictures / "large.jpg"
        subprocess.run(["convert", "-size", "3000x2000", "gradient:navy-orange", str(path)], check=True, timeout=60)
        for scale in ("1", "1.5", "2", "3"):
            with self.subTest(scale):
                self.env["QT_SCALE_FACTOR"] = scale
                self.start(path)
                self.wait_for_title("1 of 1")
                trawlex.wait_for(lambda: self.display.property(self.id, "_NET_FRAME_EXTENTS"), 10, "a frame")
                left, top, right, bottom = self.display.frame(self.id)
                self.assertGreaterEqual(min(left, top), 0)
                self.assertLessEqual(right, 1366)
                self.assertLessEqual(bottom, 768)
                self.end()


class Alone(PictureCase):
    def test_nothing_but_the_pictures_is_loaded(self):
        self.make("one.jpg")
        self.start(self.pictures / "one.jpg")
        self.wait_for_title("1 of 1")
        children = pathlib.Path(f"/proc/{self.program.pid}/task/{self.program.pid}/children").read_text(encoding="ascii")
        self.assertEqual(children.split(), [], "no browser and no process of one")
        opened = [os.readlink(entry) for entry in pathlib.Path(f"/proc/{self.program.pid}/fd").iterdir()]
        self.assertEqual([path for path in opened if path.endswith((".mdb", ".lock"))], [])
        self.assertFalse((self.folder / "data").exists(), "no database, no browser profile")
        self.assertNotIn("WebEngine", pathlib.Path(f"/proc/{self.program.pid}/maps").read_text(encoding="utf-8"), "no engine")
        self.end()

    def test_it_runs_beside_another_one(self):
        self.make("one.jpg")
        self.start(self.pictures / "one.jpg")
        self.wait_for_title("1 of 1")
        first = self.program
        self.start(self.pictures / "one.jpg")
        self.wait_for_title("1 of 1")
        self.assertIsNone(first.poll())
        self.end()

    def test_a_hostile_picture_does_not_end_the_walk(self):
        self.make("a.jpg")
        (self.pictures / "b.bmp").write_bytes(b"BM" + os.urandom(4000))
        self.start(self.pictures / "a.jpg")
        self.wait_for_title("2 of 2")
        self.press(UP)
        self.wait_for_title("1 of 2")
        self.end()

    def test_a_key_held_down_walks_on(self):
        for number in range(40):
            self.make(f"p{number:02}.jpg")
        self.start(self.pictures / "p00.jpg")
        self.wait_for_title("40 of 40")
        self.display.do("keydown", DELETE)
        try:
            trawlex.wait_for(lambda: len(list(self.pictures.iterdir())) <= 20, 30, "twenty pictures gone")
        finally:
            self.display.do("keyup", DELETE)
        self.assertIsNone(self.program.poll())
        self.end()


if __name__ == "__main__":
    unittest.main()
