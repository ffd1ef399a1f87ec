#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Waits in the window's thread: messages with bodies of 0.1, 2.5 and 10 MB are opened, typed in, shown in each view, saved and
searched; a list of 1,000,000 recipients is opened, selected and emptied, and 200,000 lines of text are imported.

    run.py BUILD_FOLDER WORK_FOLDER [ROUNDS]

A wait is time in which the event loop does not turn and the hourglass is not shown. Of several rounds the best of each
operation counts, which a busy machine distorts least. Also: the longest time, hourglass or not, in which a window that asks
for it is not painted.
"""
import json
import os
import pathlib
import subprocess
import sys

BODIES = (100_000, 2_500_000, 10_000_000)
ROWS = 1_000_000
LINES = 200_000
GOAL = 200


def play(program, *arguments):
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    if os.getuid() == 0:
        environment["QTWEBENGINE_DISABLE_SANDBOX"] = "1"
    done = subprocess.run([str(program), *arguments], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=True,
                          env=environment)
    return [json.loads(line) for line in done.stdout.splitlines()]


def record(name, kind, played):
    place, value = max(((place, min(one[kind] for one in rounds)) for place, rounds in played.items()),
                       key=lambda found: found[1])
    return {"name": name, "value": value, "unit": "ms", "peer": f"{GOAL} ms; the longest is \"{place}\"", "ratio": value / GOAL,
            "goal": 1.0, "met": value <= GOAL}


def main():
    build, work = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 3
    program = build / "bench/waits/play_waits"
    lists = work / "list.mdb"
    if not lists.exists():
        subprocess.run([str(build / "bench/scan/scan_recipients"), "--make", str(lists), str(ROWS)], stdout=subprocess.DEVNULL,
                       check=True)
    text = work / "lines.txt"
    text.write_text("".join(f"Azienda {n};D'Angelo;contatto.{n}@azienda{n % 5000}.example.it;Roma\r\n" for n in range(LINES)),
                    encoding="cp1252")
    plays = {**{f"{size / 1e6:g} MB": ("--editor", str(size)) for size in BODIES}, "list": ("--lists", str(lists), str(text))}
    played = {}
    for _ in range(rounds):
        for what, arguments in plays.items():
            for one in play(program, *arguments):
                played.setdefault(f"{one['name']}, {what}", []).append(one)
    for place, times in played.items():
        print(f"{place:<32} wait {min(one['wait'] for one in times):8.1f}"
              f"  paint {min(one['paint'] for one in times):8.1f}  busy {min(one['busy'] for one in times):8.1f}",
              file=sys.stderr)
    print(json.dumps([record("longest wait without the hourglass", "wait", played),
                      record("longest time without a repaint", "paint", played)]))


if __name__ == "__main__":
    main()
