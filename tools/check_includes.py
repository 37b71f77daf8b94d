#!/usr/bin/env python3
"""Fails when a folder of src includes a header of a folder that it must not know.

The order below is the architecture: a folder knows itself and what stands in its row, nothing else.
"""
import pathlib
import re
import sys

LADDER = ["util", "controls", "app", "web", "store", "sites", "lists", "harvest", "window"]
ALLOWED = {folder: set(LADDER[: place + 1]) for place, folder in enumerate(LADDER)}
ALLOWED["engine"] = {"util", "controls", "app", "web", "engine"}
ALLOWED["ui"] = {"util", "controls", "app", "web", "engine", "store", "ui"}
ALLOWED["desktop"] = set(LADDER) | {"engine", "ui", "desktop"}
ALLOWED["cli"] = set(LADDER) | {"engine", "cli"}

# ui shows; of what it may link it includes only these rooms' interfaces.
ONLY = {("ui", "web"): {"BrowserEngine.h"}, ("ui", "store"): {"Recordset.h"}}

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"]+)"')


def faults(src: pathlib.Path):
    for path in sorted([*src.rglob("*.h"), *src.rglob("*.cpp")]):
        folder = path.relative_to(src).parts[0]
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            match = INCLUDE.match(line)
            if not match or "/" not in match[1]:
                continue
            target, _, header = match[1].partition("/")
            if target not in ALLOWED:
                continue
            wrong = target not in ALLOWED.get(folder, set())
            wrong = wrong or header not in ONLY.get((folder, target), {header})
            if wrong:
                yield f"{path}:{number}: {folder}/ must not include {match[1]}"


def main():
    found = list(faults(pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "src")))
    print("\n".join(found), file=sys.stderr) if found else None
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
