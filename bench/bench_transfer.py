#!/usr/bin/env python3
"""A series of 500 files of 100 kB from loopback, beside curl with one connection for the same addresses.

Both write each file into an empty folder; the whole program's time counts. Rounds take turns, medians are compared; the
server is a process of its own.

    python3 bench_transfer.py BIN_FOLDER [ROUNDS]
"""
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

import loopback

FILES, SIZE, AIM = 500, 100_000, 1.2


ANSWER = loopback.reply(b"image/jpeg", os.urandom(SIZE))


def seconds_of(command):
    started = time.monotonic()
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
    return time.monotonic() - started


def timed(make_command):
    with tempfile.TemporaryDirectory() as folder:
        seconds = seconds_of(make_command(folder))
        sizes = [entry.stat().st_size for entry in pathlib.Path(folder).iterdir()]
        assert sizes == [SIZE] * FILES, f"{len(sizes)} files"
        return seconds


def main():
    program = pathlib.Path(sys.argv[1]) / "fetch_series"
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 15
    with loopback.serving(lambda head: ANSWER) as port:
        addresses = [f"http://127.0.0.1:{port}/p-{number:03}.jpg" for number in range(1, FILES + 1)]
        commands = {
            "curl, one connection": lambda folder: ["curl", "-sS", "--no-progress-meter", "--output-dir", folder,
                                                    "--remote-name-all", *addresses],
            "trawlex": lambda folder: [program, folder, *addresses],
        }
        times = {name: [] for name in commands}
        for _ in range(rounds):
            for name, make_command in commands.items():
                times[name].append(timed(make_command))
    medians = {name: statistics.median(values) for name, values in times.items()}
    print(f"{FILES} files of {SIZE // 1000} kB, medians of {rounds} rounds\n")
    for name, median in medians.items():
        print(f"{name:24}{median * 1000:8.0f} ms")
    ratio = medians["trawlex"] / medians["curl, one connection"]
    print(f"\nratio {ratio:.2f} (aim {AIM}): {'met' if ratio <= AIM else 'missed'}")


if __name__ == "__main__":
    main()
