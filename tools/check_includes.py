#!/usr/bin/env python3
"""Fails when a folder of src includes a header of a folder that it must not know.

The graph below is the architecture. A folder knows itself and what stands in its row, nothing else; a private sub-folder is
included from its own folder alone; the two engines do not know each other.
"""
import pathlib
import re
import sys

MIDDLE = "driver app controls browser pages store transfer util"
SUBJECTS = "sites lists harvest data"
KNOWS = {
    "util": "",
    "pages": "util",
    "store": "util",
    "transfer": "util",
    "browser": "util",
    "engine": "browser util",
    "controls": "util",
    "app": "controls util",
    "driver": "app controls browser pages util",
    **{subject: f"{MIDDLE} {SUBJECTS}" for subject in SUBJECTS.split()},
    "window": f"{MIDDLE} {SUBJECTS}",
    "ui": "controls app browser store util",
    "desktop": f"{MIDDLE} {SUBJECTS} window engine ui",
    "cli": f"{MIDDLE} {SUBJECTS} window engine",
}
KNOWS = {folder: set(known.split()) | {folder} for folder, known in KNOWS.items()}

PRIVATE = {("store", room) for room in ("sqlite", "sql", "rows", "foreign", "reader")}

# Rooms of one folder that must not know each other.
STRANGERS = {("engine", "chromium"): "webengine", ("engine", "webengine"): "chromium"}

# ui shows; of what it may link it includes only this room's interface.
ONLY = {("ui", "store"): {"Recordset.h"}}

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"')


def is_wrong(here: tuple, target: str):
    """Whether a file of the folder and room `here` must not include the header `target`."""
    folder, *rest = target.split("/")
    room = rest[0] if len(rest) > 1 else ""
    if folder not in KNOWS:
        return False
    return (
        folder not in KNOWS.get(here[0], set())
        or ((folder, room) in PRIVATE and folder != here[0])
        or (folder == here[0] and room == STRANGERS.get(here))
        or rest[-1] not in ONLY.get((here[0], folder), {rest[-1]})
    )


def faults(src: pathlib.Path):
    for path in sorted([*src.rglob("*.h"), *src.rglob("*.cpp")]):
        folder, *rest = path.relative_to(src).parts
        if folder not in KNOWS:
            yield f"{path}: {folder}/ is no folder of the architecture"
        here = (folder, rest[0] if len(rest) > 1 else "")
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            if match and "/" in match[1] and is_wrong(here, match[1]):
                yield f"{path}:{number}: {'/'.join(filter(None, here))}/ must not include {match[1]}"


def main():
    found = list(faults(pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "src")))
    print("\n".join(found), file=sys.stderr) if found else None
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
