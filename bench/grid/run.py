#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A group of 100,000 recipients in the grid: time to the first rows on screen, and memory.

    run.py BUILD_FOLDER WORK_FOLDER [ROUNDS]

Peers: the same statement with its rows taken and not shown; and a QSqlTableModel over a SQLite file with the same rows, fetched whole.
Every measurement is a process of its own.
"""
import json
import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import tools  # noqa: E402

ROWS = 100_000


def measure(program, what, path):
    done = subprocess.run([program, what, str(path)], stdout=subprocess.PIPE, text=True, check=True)
    result = json.loads(done.stdout)
    if result["rows"] != ROWS:
        raise SystemExit(f"{what} showed {result['rows']} rows")
    return result


def record(name, value, unit, peer, ratio, goal):
    return {"name": name, "value": value, "unit": unit, "peer": peer, "ratio": ratio, "goal": goal,
            "met": ratio <= goal}


def main():
    build, work = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 7
    program = str(build / "bench/grid/fill_grid")
    database, sqlite = work / "recipients.mdb", work / "recipients.sqlite"
    if not sqlite.exists():
        database.unlink(missing_ok=True)
        subprocess.run([str(build / "bench/scan/scan_recipients"), "--make", str(database), str(ROWS)],
                       stdout=subprocess.DEVNULL, check=True)
        making = work / "making.sqlite"
        making.unlink(missing_ok=True)
        subprocess.run([program, "--prepare", str(database), str(making)], check=True)
        making.rename(sqlite)
    runs = {what: [] for what in ("--query", "--grid", "--model")}
    for _ in range(rounds):
        for what, results in runs.items():
            results.append(measure(program, what, sqlite if what == "--model" else database))

    def median(what, key):
        return tools.median([result[key] for result in runs[what]])

    grid, growth = median("--grid", "ms"), median("--grid", "kilobytes")
    row_kilobytes = runs["--grid"][0]["rowBytes"] / 1024
    print(json.dumps([
        record("first rows of 100,000 on screen", grid, "ms", "the query itself", grid / median("--query", "ms"),
               1.5),
        record("first rows of 100,000 on screen, model", grid, "ms", "QSqlTableModel fetched whole",
               grid / median("--model", "ms"), 1.0),
        record("memory of 100,000 rows in the grid", growth, "KB", "bytes of the rows in the file",
               growth / row_kilobytes, 1.5),
    ]))


if __name__ == "__main__":
    main()
