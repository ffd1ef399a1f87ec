#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs the benchmarks several times each, keeps every run, and writes docs/performance.md from what was kept.

    run.py BUILD_FOLDER OUTPUT_FOLDER [--runs N] [--docs FOLDER] [NAME...]

Each benchmark is a folder below bench/ with a run.py of its own, which is called with the build folder and a work folder of its
own and prints a JSON list of measures (name, value, unit, peer, ratio, goal, met) and of lines in a chart (chart, line, points).
A ratio compares with the peer in the same run, on the same machine. Runs that are there already, of the same sources on the same
machine, count: what was interrupted continues where it was. `--runs 0` measures nothing and writes the page again.
"""
import argparse
import json
import os
import pathlib
import subprocess
import sys

import kept
import page

HERE = pathlib.Path(__file__).resolve().parent


def measure(bench, build, work):
    """One run of a benchmark. The load is that of the machine before it begins."""
    work.mkdir(parents=True, exist_ok=True)
    load = os.getloadavg()[0]
    done = subprocess.run([sys.executable, str(bench / "run.py"), str(build), str(work)], stdout=subprocess.PIPE, text=True,
                          check=True)
    return {"load": round(load, 2), "records": json.loads(done.stdout)}


def complete(bench, build, output, wanted):
    """Measures until `wanted` runs are kept; returns whether they are."""
    runs = kept.read(output, bench.name)
    conditions = kept.conditions(bench)
    if runs["conditions"] != conditions:
        runs = {"conditions": conditions, "runs": []}
    while len(runs["runs"]) < wanted:
        print(f"-- {bench.name}, run {len(runs['runs']) + 1} of {wanted}", file=sys.stderr, flush=True)
        try:
            runs["runs"].append(measure(bench, build, output / bench.name))
        except (subprocess.CalledProcessError, json.JSONDecodeError) as failure:
            print(f"-- {bench.name} has failed: {failure}", file=sys.stderr, flush=True)
            return False
        kept.write(output, bench.name, runs)
    return True


def arguments():
    parser = argparse.ArgumentParser()
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("output", type=pathlib.Path)
    parser.add_argument("--runs", type=int, default=5)
    parser.add_argument("--docs", type=pathlib.Path, default=HERE.parent / "docs")
    parser.add_argument("names", nargs="*")
    return parser.parse_intermixed_args()


def main(benches=HERE):
    asked = arguments()
    build, output = asked.build.resolve(), asked.output.resolve()
    every = sorted(path.parent.name for path in benches.glob("*/run.py"))
    if unknown := set(asked.names) - set(every):
        raise SystemExit(f"no benchmark is called {', '.join(sorted(unknown))}")
    output.mkdir(parents=True, exist_ok=True)
    done = [complete(benches / name, build, output, asked.runs) for name in asked.names or every]
    results = {name: found for name in every if (found := kept.read(output, name))["runs"]}
    page.write(asked.docs, results, [name for name in every if name not in results])
    measures = [measured for found in results.values() for measured in kept.measures(found["runs"])]
    (output / "results.json").write_text(json.dumps(measures, indent=1) + "\n", encoding="utf-8")
    for one in measures:
        print(f"{one['name']:<44} {one['value']:>12.1f} {one['unit']:<12} ratio {one['ratio']:6.2f}  goal {one['goal']:5.2f}"
              f"  {'met' if one['met'] else 'MISSED'}  ({one['peer']})")
    return 0 if all(done) and all(one["met"] for one in measures) else 1


if __name__ == "__main__":
    sys.exit(main())
