#!/usr/bin/env python3
"""Teaches a Trawlex database how to read the demo's search services.

    python3 record.py PATH/Trawlex-0.mdb

Writes searchsite.json and the records of services.json as rows of SearchSites, unless a row of that name stands there already.
"""
import datetime
import json
import sqlite3
import sys
from contextlib import closing
from pathlib import Path

HERE = Path(__file__).resolve().parent


def records():
    first = json.loads((HERE / "searchsite.json").read_text(encoding="utf-8"))
    return [first] + [service["record"] for service in json.loads((HERE / "services.json").read_text(encoding="utf-8"))]


def quoted(name):
    return '"' + name.replace('"', '""') + '"'


def write(database, record):
    """True if the row was added."""
    record = dict(record, Date=datetime.date.today().isoformat())
    uri = Path(database).resolve().as_uri() + "?mode=rw"          # a missing file is an error, not a new database
    with closing(sqlite3.connect(uri, uri=True, timeout=10)) as db, db:
        db.execute("BEGIN IMMEDIATE")
        if db.execute('SELECT 1 FROM SearchSites WHERE "SiteName" = ?', [record["SiteName"]]).fetchone():
            return False
        columns = [row[1] for row in db.execute("PRAGMA table_info(SearchSites)") if row[1] != "Index"]
        if unknown := record.keys() - set(columns):
            raise SystemExit(f"SearchSites has no column {', '.join(sorted(unknown))}")
        db.execute(f"INSERT INTO SearchSites ({', '.join(map(quoted, columns))}) VALUES ({', '.join('?' * len(columns))})",
                   [record.get(column, "") for column in columns])
        return True


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__.strip())
    try:
        for record in records():
            print(f"{record['SiteName']}: {'added' if write(sys.argv[1], record) else 'stands there already'}")
    except sqlite3.Error as error:
        sys.exit(f"{sys.argv[1]}: {error}")


if __name__ == "__main__":
    main()
