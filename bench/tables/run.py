#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Opening a database and listing its tables, compared with mdb-tables, on each sample file: as one process for each file, and
with all files in one process of ours, as the program itself does it.

    run.py BUILD_FOLDER WORK_FOLDER [ROUNDS]

Without the sample files the built empty database is the only one. The first record is bound by the start of the process,
so the tool is linked statically with the C++ library; loading that costs about as much as listing the tables.
"""
import json
import pathlib
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import tools  # noqa: E402

SAMPLES = pathlib.Path(__file__).resolve().parents[3] / "shared" / "mdb"


def seconds(command):
    start = time.perf_counter()
    subprocess.run(command, stdout=subprocess.DEVNULL, check=True)
    return time.perf_counter() - start


def record(name, value, unit, ratio):
    return {"name": name, "value": value, "unit": unit, "peer": "mdb-tables", "ratio": ratio, "goal": 1.0,
            "met": ratio >= 1.0}


def main():
    build = pathlib.Path(sys.argv[1])
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 7
    program = str(build / "bench/tables/list_tables")
    files = sorted(map(str, SAMPLES.glob("*.mdb"))) or [str(build / "data/data.mdb")]
    single, peers, together = [], [], []
    for _ in range(rounds):
        single.append(sum(seconds([program, file]) for file in files))
        peers.append(sum(seconds(["mdb-tables", "-1", file]) for file in files))
        together.append(seconds([program, *files]))
    ours, peer, one = map(tools.median, (single, peers, together))
    count = len(files)
    print(json.dumps([record(f"list tables of {count} files, a process each", count / ours, "files/s", peer / ours),
                      record(f"list tables of {count} files, one process", count / one, "files/s", peer / one)]))


if __name__ == "__main__":
    main()
