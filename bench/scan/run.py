#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Reading every column of 100,000 recipients as UTF-8, compared with mdb-export on the same file, as whole processes.

    run.py BUILD_FOLDER WORK_FOLDER [ROUNDS]
"""
import json
import pathlib
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import tools  # noqa: E402

ROWS = 100_000


def seconds(command):
    start = time.perf_counter()
    subprocess.run(command, stdout=subprocess.DEVNULL, check=True)
    return time.perf_counter() - start


def main():
    build, work = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 7
    program = str(build / "bench/scan/scan_recipients")
    database = work / "recipients.mdb"
    if not database.exists():
        subprocess.run([program, "--make", str(database), str(ROWS)], stdout=subprocess.DEVNULL, check=True)
    ours, peers = [], []
    for _ in range(rounds):
        ours.append(seconds([program, "--scan", str(database)]))
        peers.append(seconds(["mdb-export", str(database), "tb_destinatari"]))
    ratio = tools.median(peers) / tools.median(ours)
    print(json.dumps([{"name": "scan 100,000 recipients", "value": ROWS / tools.median(ours), "unit": "rows/s",
                       "peer": "mdb-export", "ratio": ratio, "goal": 3.0, "met": ratio >= 3.0}]))


if __name__ == "__main__":
    main()
