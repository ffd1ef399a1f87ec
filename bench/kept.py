# SPDX-License-Identifier: GPL-3.0-or-later
"""The runs of a benchmark that are kept in OUTPUT/kept/NAME.json, and what several runs come to.

A file is {"conditions": {"sources": commit, "machine": {...}}, "runs": [{"load": L, "records": [...]}]}.
"""
import json
import os
import pathlib
import platform
import subprocess


def machine():
    """What a reader has to know of the machine, and no name of it."""
    processor = next((line.split(":", 1)[1].strip() for line in
                      pathlib.Path("/proc/cpuinfo").read_text(encoding="utf-8").splitlines() if line.startswith("model name")),
                     platform.machine())
    memory = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 2**30
    version = pathlib.Path("/etc/debian_version")
    return {"processor": processor, "cores": len(os.sched_getaffinity(0)), "memory": f"{memory:.0f} GB",
            "kernel": f"Linux {platform.release()}",
            "system": f"Debian {version.read_text(encoding='ascii').strip()}" if version.exists() else "not Debian"}


def sources(bench):
    """The last commit that has changed the program or the benchmark; with a "+" where something is not committed."""
    def git(*words):
        done = subprocess.run(["git", "-C", str(bench), *words, "--", ":/src", "."], stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True, check=False)
        return done.stdout.strip()
    commit = git("log", "-1", "--format=%h")
    return commit + "+" if commit and git("status", "--porcelain") else commit or "unknown"


def conditions(bench):
    return {"sources": sources(bench), "machine": machine()}


def _file(output, name):
    return output / "kept" / f"{name}.json"


def read(output, name):
    file = _file(output, name)
    return json.loads(file.read_text(encoding="utf-8")) if file.exists() else {"conditions": None, "runs": []}


def write(output, name, runs):
    """In one step, so that what is interrupted leaves the runs before it."""
    file = _file(output, name)
    file.parent.mkdir(exist_ok=True)
    new = file.with_suffix(".new")
    new.write_text(json.dumps(runs, indent=1) + "\n", encoding="utf-8")
    new.replace(file)


def measures(runs):
    """Each measure as in the run whose ratio is the median (of an even number of runs the worse one in the middle), with the
    ratios of all runs, and how many runs met the goal."""
    of = {}
    for run in runs:
        for record in run["records"]:
            if "chart" not in record:
                of.setdefault(record["name"], []).append(record)
    found = []
    for records in of.values():
        at_least = (records[0]["ratio"] >= records[0]["goal"]) == records[0]["met"]
        best_last = sorted(records, key=lambda record: record["ratio"], reverse=not at_least)
        found.append({**best_last[(len(best_last) - 1) // 2], "atLeast": at_least, "runs": len(records),
                      "runsMet": sum(record["met"] for record in records),
                      "ratios": sorted(record["ratio"] for record in records)})
    return found


def lines(runs, chart):
    """The lines of a chart: each point is the median of its runs."""
    of = {}
    for run in runs:
        for record in run["records"]:
            if record.get("chart") == chart:
                for x, y in record["points"]:
                    of.setdefault(record["line"], {}).setdefault(x, []).append(y)
    return {line: [(x, sorted(points[x])[(len(points[x]) - 1) // 2]) for x in sorted(points)] for line, points in of.items()}
