#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The values of 100,000 selected recipients, checked for the placeholders of a message, compared with one scan of the table
by the same layer with every column read as text.

    run.py BUILD_FOLDER WORK_FOLDER [ROUNDS]
"""
import json
import pathlib
import subprocess
import sys

ROWS = 100_000


def main():
    build, work = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    rounds = sys.argv[3] if len(sys.argv) > 3 else "5"
    database = work / "selected.mdb"
    if not database.exists():
        subprocess.run([str(build / "bench/scan/scan_recipients"), "--make", str(database), str(ROWS)], check=True)
    told = subprocess.run([str(build / "bench/prova/check_fields"), str(database), rounds], check=True,
                          stdout=subprocess.PIPE, text=True).stdout.split()
    scan, check, rows = float(told[0]), float(told[1]), int(told[2])
    if rows != ROWS:
        raise SystemExit(f"{rows} recipients were checked instead of {ROWS}")
    ratio = check / scan
    print(json.dumps([{"name": "check 100,000 selected recipients for empty placeholders", "value": check, "unit": "s",
                       "peer": "a scan of the table", "ratio": ratio, "goal": 1.5, "met": ratio <= 1.5}]))


if __name__ == "__main__":
    main()
