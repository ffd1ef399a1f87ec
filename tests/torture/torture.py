#!/usr/bin/env python3
"""Plays all campaigns of torture and prints a table.

    torture.py BUILD_FOLDER SANITIZED_BUILD_FOLDER [MINUTES [SEED]]

Without MINUTES it plays all cases, with them as many of each as fit, in the same proportion. The work is done in slices of a
hundredth of the cases, each with its own seed, counted up from the one that is printed. A failure says how to repeat it.
"""
import json
import os
import pathlib
import re
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent
SLICES = 100
COUNTS = {"faults": 20_000, "kills": 1_000, "mutated": 100_000, "statements": 100_000, "sends": 1_000}
LONG = 50_000
SHORTEST_LONG = 2_000
REAL = 10  # kills and recipients with the timer as it is
SHARE_OF_SLICES = 0.8  # of the minutes; the rest is for the long runs
COLUMNS = ("campaign", "cases", "survived", "lost", "damaged", "duplicates")


class Table:
    def __init__(self):
        self.rows, self.failed = {}, []

    def add(self, command, name, environment=None):
        """Runs a program and reads its figures from the last line that it prints."""
        done = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                              env={**os.environ, **(environment or {})})
        again = " ".join([*(f"{key}={value}" for key, value in (environment or {}).items()), *map(str, command)])
        try:
            figures = self.figures(done.stdout, name)
        except (IndexError, ValueError, AttributeError):
            figures = {"campaign": name, "cases": 0}
        row = self.rows.setdefault(figures["campaign"], {column: 0 for column in COLUMNS[1:]} | {"more": ""})
        for column in COLUMNS[1:]:
            row[column] += figures.get(column, 0)
        row["more"] = figures.get("more", "")
        if done.returncode != 0:
            self.failed.append(again)
            print(f"FAILED: {again}\n{done.stdout[-2000:]}{done.stderr[-2000:]}", flush=True)

    @staticmethod
    def figures(output, name):
        if told := re.search(r"(\d+) kills, (\d+) statements returned", output):
            passed = "[  PASSED  ]" in output
            return {"campaign": name, "cases": int(told[1]), "survived": int(told[1]) if passed else 0,
                    "damaged": 0 if passed else 1, "more": f"{told[2]} statements returned in the last hundredth"}
        return json.loads(output.strip().splitlines()[-1])

    def print(self):
        rows = [COLUMNS] + [(name, *(str(row[column]) for column in COLUMNS[1:])) for name, row in self.rows.items()]
        widths = [max(len(row[i]) for row in rows) for i in range(len(COLUMNS))]
        notes = ["last slice"] + [row["more"] for row in self.rows.values()]
        for row, note in zip(rows, notes):
            print("  ".join([row[0].ljust(widths[0]), *(cell.rjust(width) for cell, width in zip(row[1:], widths[1:])), note]))


def main():
    build, sanitized = (pathlib.Path(word).resolve() for word in sys.argv[1:3])
    minutes = float(sys.argv[3]) if len(sys.argv) > 3 else None
    seed = int(sys.argv[4]) if len(sys.argv) > 4 else time.time_ns() // 1_000_000 % 1_000_000_000
    print(f"seed {seed}", flush=True)
    programs = build / "tests" / "torture"
    sends = [sys.executable, HERE / "sends.py", build]
    table = Table()
    begin = time.monotonic()
    slices = 0
    while slices < SLICES:
        if minutes and slices and time.monotonic() - begin > minutes * 60 * SHARE_OF_SLICES * slices / (slices + 1):
            break
        now = seed + slices
        count = {name: count // SLICES for name, count in COUNTS.items()}
        table.add([programs / "torture_faults", now, count["faults"]], "faults")
        table.add([build / "tests" / "platform" / "jet" / "test_platform_jet", "kills_test"], "kills",
                  {"VESTROLA_KILLS": str(count["kills"]), "VESTROLA_SEED": str(now)})
        # under sanitizers for what it reads and writes, without them for what it uses
        table.add([sanitized / "tests" / "torture" / "torture_mutated", now, count["mutated"]], "mutated, sanitized")
        table.add([programs / "torture_mutated", now, count["mutated"]], "mutated")
        table.add([programs / "torture_statements", now, count["statements"]], "statements")
        table.add([*sends, "kills", now, count["sends"]], "send kills")
        slices += 1
    table.add([*sends, "kills", seed, REAL, "real"], "send kills, real timer")
    table.add([*sends, "long", seed, REAL, "real"], "long run, real timer")
    table.add([*sends, "long", seed, max(SHORTEST_LONG, LONG * slices // SLICES)], "long run")
    print(f"\nseed {seed}, {slices} of {SLICES} slices, {(time.monotonic() - begin) / 60:.0f} minutes")
    table.print()
    for command in table.failed:
        print("again:", command)
    return 1 if table.failed else 0


if __name__ == "__main__":
    sys.exit(main())
