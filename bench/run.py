#!/usr/bin/env python3
"""Runs every benchmark and writes results.json: a list of name, value, unit, peer, ratio, goal, met.

    run.py BUILD_FOLDER OUTPUT_FOLDER [NAME...]

Each benchmark is a folder below bench/ with a run.py of its own, which is called with the build folder and a work
folder of its own and prints its records as a JSON list. A ratio compares with the peer in the same run, on the same machine.
"""
import json
import pathlib
import subprocess
import sys


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    output = pathlib.Path(sys.argv[2]).resolve()
    here = pathlib.Path(__file__).resolve().parent
    names = sys.argv[3:] or sorted(path.parent.name for path in here.glob("*/run.py"))
    output.mkdir(parents=True, exist_ok=True)
    records = []
    for name in names:
        work = output / name
        work.mkdir(exist_ok=True)
        print(f"-- {name}", file=sys.stderr, flush=True)
        done = subprocess.run([sys.executable, str(here / name / "run.py"), str(build), str(work)],
                              stdout=subprocess.PIPE, text=True, check=True)
        records += json.loads(done.stdout)
    (output / "results.json").write_text(json.dumps(records, indent=1) + "\n", encoding="utf-8")
    for record in records:
        print(f"{record['name']:<44} {record['value']:>12.1f} {record['unit']:<12}"
              f" ratio {record['ratio']:6.2f}  goal {record['goal']:5.2f}  {'met' if record['met'] else 'MISSED'}"
              f"  ({record['peer']})")
    return 0 if all(record["met"] for record in records) else 1


if __name__ == "__main__":
    sys.exit(main())
