#!/usr/bin/env python3
"""The figures that the program promises, in one table: what they were once, what is wanted, what this run gave, and
whether that is enough.

Reads what all benchmarks have printed, from a file or standard input. A row that the run did not print says so.

    python3 summary.py [FILE]
"""
import re
import sys

# What is measured, what it once was, the most that is wanted, and where the run tells it: the figures of the first group
# stand for the limits one by one. One that is printed without a unit is in that of its limit.
ROWS = [
    ("each page while another program writes to the same database, 100,000 rows", "336 ms", "5 ms",
     r"\| each page while another program writes.*?\|.*?\| ([\d.e+]+ ms)"),
    ("first page of a run at 1,000,000 rows in each table", "5.2 s, 209 MB", "50 ms, 80 MB",
     r"\| first page of a run at 1,000,000.*?\|.*?\| ([^|]+?) \|"),
    ("40 wanted and 40 unwanted texts, none found", "7 scans", "3.5 scans",
     r"\| must and must not contain, 40 texts each \| [\d.]+ \| ([\d.]+) "),
    ("the same, against Hyperscan in the same run", "", "1.0", r"over UTF-8 alone: ([\d.]+)"),
    ("all 80 wanted", "10 scans", "5 scans", r"\| must contain, 80 texts \| [\d.]+ \| ([\d.]+) "),
    ("unwanted texts or e-mail blocks of 10,000 texts, a page", "28 ms", "1 ms",
     r"\| 10000 unwanted and as many blocked texts, a page \| ([\d.]+) "),
    ("100,000 blocked texts: start", "550 ms", "200 ms", r"\| 100,000 blocked texts loaded \| ([\d.]+) "),
    ("100,000 blocked texts: each page", "51 ms", "5 ms",
     r"\| 100000 unwanted and as many blocked texts, a page \| ([\d.]+) "),
    ("20,000 links through the chain, 1,000 blocks", "106 ms", "30 ms", r"\| 20,000 links, 1,000 blocked texts \| ([\d.]+) "),
    ("storing one page in memory, against bare statements", "1.4 to 1.57", "1.3",
     r"(?s)== bench_store in memory.*?\| storing one page, 1000 rows in each table, against bare statements \|.*?\| ([\d.]+) "),
    ("the same with 1,000,000 rows", "", "1.3",
     r"(?s)== bench_store in memory.*?\| storing one page, 1000000 rows in each table, against bare statements \|.*?\| ([\d.]+) "),
    ("walking 1,000,000 rows, a row", "3.4 us", "0.5 us", r"\| walking 1,000,000 rows.*?\|.*?\| ([\d.e+-]+ us)"),
    ("window to usable, cold", "3.0 s", "0.5 s", r"the window on the screen, cold\s+([\d.]+ ms)"),
    ("trawlex-harvest --help", "36 ms", "10 ms", r"trawlex-harvest --help\s+([\d.]+ ms)"),
    ("a whole harvest against a bare script on the same browser", "1.05 to 1.12", "1.0",
     r"ratio\s+([\d.]+)\s+\(harvest time"),
]
SCALES = {"us": 1e-6, "ms": 1e-3, "s": 1.0}


def figures(text):
    return [(float(number), unit) for number, unit in re.findall(r"(\d[\d.]*(?:e[+-]\d+)?) ?(us|ms|s|MB)?\b", text)]


def is_met(wanted, found):
    def size(number, unit):
        return number * SCALES.get(unit, 1.0)

    return all(size(number, unit or limit_unit) <= size(limit, limit_unit)
               for (limit, limit_unit), (number, unit) in zip(figures(wanted), figures(found), strict=True))


def table(text):
    lines = ["| Work | before | at most | now | |", "|---|---|---|---|---|"]
    for work, before, wanted, place in ROWS:
        found = re.search(place, text)
        now = found[1] if found else "not measured in this run"
        verdict = "" if not found else "met" if is_met(wanted, found[1]) else "not met"
        lines.append(f"| {work} | {before} | {wanted} | {now} | {verdict} |")
    return lines


if __name__ == "__main__":
    print("\n".join(table(open(sys.argv[1], encoding="utf-8").read() if len(sys.argv) > 1 else sys.stdin.read())))
