#!/usr/bin/env python3
"""The figures that the program promises, in one table: what they were once, what is wanted, what this run gave.

Reads what all benchmarks have printed, from a file or standard input. A row that the run did not print says so.

    python3 summary.py [FILE]
"""
import re
import sys

# What is measured, what it once was, what is wanted, and where the run tells it: the figure is the first group.
ROWS = [
    ("each page while another program writes to the same database, 100,000 rows", "336 ms", "under 5 ms",
     r"\| each page while another program writes.*?\|.*?\| ([\d.]+ ms)"),
    ("first page of a run at 1,000,000 rows in each table", "5.2 s, 209 MB", "under 50 ms, 80 MB",
     r"\| first page of a run at 1,000,000.*?\|.*?\| ([^|]+?) \|"),
    ("40 wanted and 40 unwanted texts, none found", "7 scans", "under 3.5 scans",
     r"\| must and must not contain, 40 texts each \| [\d.]+ \| ([\d.]+) "),
    ("all 80 wanted", "10 scans", "under 5 scans", r"\| must contain, 80 texts \| [\d.]+ \| ([\d.]+) "),
    ("unwanted texts or e-mail blocks of 10,000 texts, a page", "28 ms", "under 1 ms",
     r"\| 10000 unwanted and as many blocked texts, a page \| ([\d.]+) "),
    ("100,000 blocked texts: start", "0.55 s", "0.2 s", r"\| 100,000 blocked texts loaded \| ([\d.]+) "),
    ("100,000 blocked texts: each page", "51 ms", "under 5 ms",
     r"\| 100000 unwanted and as many blocked texts, a page \| ([\d.]+) "),
    ("20,000 links through the chain, 1,000 blocks", "106 ms", "under 30 ms", r"\| 20,000 links, 1,000 blocked texts \| ([\d.]+) "),
    ("storing one page in memory, against bare statements", "1.4 to 1.57", "under 1.3",
     r"\| storing one page, 1000 rows in each table, against bare statements \|.*?\| ([\d.]+) "),
    ("the same with 1,000,000 rows", "", "under 1.3",
     r"\| storing one page, 1000000 rows in each table, against bare statements \|.*?\| ([\d.]+) "),
    ("walking 1,000,000 rows, a row", "3.4 us", "under 0.5 us", r"\| walking 1,000,000 rows.*?\|.*?\| ([\d.]+ us)"),
    ("window to usable, cold", "3.0 s", "under 0.5 s", r"the window on the screen, cold\s+([\d.]+ ms)"),
    ("trawlex-harvest --help", "36 ms", "under 10 ms", r"trawlex-harvest --help\s+([\d.]+ ms)"),
    ("a whole harvest against a bare script on the same browser", "1.05 to 1.12", "1.0",
     r"ratio\s+([\d.]+)\s+\(harvest time"),
]


def main():
    text = open(sys.argv[1], encoding="utf-8").read() if len(sys.argv) > 1 else sys.stdin.read()
    print("| Work | before | wanted | now |\n|---|---|---|---|")
    for work, before, wanted, place in ROWS:
        found = re.search(place, text)
        print(f"| {work} | {before} | {wanted} | {found[1] if found else 'not measured in this run'} |")


if __name__ == "__main__":
    main()
