#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Finding and sorting among 1,000,000 recipients: a full miss against one scan of the engine, the longest time that the window's
thread is blocked, the answer to a key struck in the middle of a search.

    run.py BUILD_FOLDER WORK_FOLDER [ROUNDS]

Every measurement is a process of its own, which reports its thread's processor time: other programs do not change it much.
A round measures all, forwards and backwards in turn; the ratio is the median of those of the rounds.
"""
import json
import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import tools  # noqa: E402

ROWS = 1_000_000
SLICE = 20.0
ANSWER = 100.0
SCANS = 2.0


def measure(program, what, path):
    done = subprocess.run([program, what, str(path)], stdout=subprocess.PIPE, text=True, check=True)
    result = json.loads(done.stdout)
    if result.get("rows", ROWS) != ROWS:
        raise SystemExit(f"{what} met {result['rows']} rows")
    return result


def record(name, value, unit, peer, ratio, goal):
    return {"name": name, "value": value, "unit": unit, "peer": peer, "ratio": ratio, "goal": goal, "met": ratio <= goal}


def main():
    build, work = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 5
    program = str(build / "bench/find/find_rows")
    database = work / "million.mdb"
    if not database.exists():
        making = work / "making.mdb"
        making.unlink(missing_ok=True)
        subprocess.run([str(build / "bench/scan/scan_recipients"), "--make", str(making), str(ROWS)], stdout=subprocess.DEVNULL,
                       check=True)
        subprocess.run([program, "--one-folder", str(making)], check=True)
        making.rename(database)
    runs = {what: [] for what in ("--scan", "--everywhere", "--grid")}
    for one in range(rounds):
        for what in list(runs)[::-1 if one % 2 else 1]:
            runs[what].append(measure(program, what, database))

    def median(what, key):
        return tools.median([result[key] for result in runs[what]])

    def scans(what, key):
        return tools.median(result[key] / scan["ms"] for result, scan in zip(runs[what], runs["--scan"]))

    records = [record(f"a full miss {where}", median(what, key), "ms", "one scan of the engine", scans(what, key), SCANS)
               for where, what, key in (("everywhere", "--everywhere", "ms"), ("in the folder", "--grid", "search"))]
    for name, what, key, most in (("slice of a search everywhere", "--everywhere", "longest", SLICE),
                                  ("slice of a search in the folder", "--grid", "searchLongest", SLICE),
                                  ("slice of a sort", "--grid", "sortLongest", SLICE),
                                  ("answer to a key during a search", "--grid", "answer", ANSWER)):
        value = median(what, key)
        records.append(record(f"longest {name}", value, "ms", f"{most:.0f} ms", value / most, 1.0))
    print(json.dumps(records))


if __name__ == "__main__":
    main()
