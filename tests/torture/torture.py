#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Plays the campaigns of torture, in parts, and prints a table.

    torture.py BUILD_FOLDER SANITIZED_BUILD_FOLDER [MINUTES [SEED [CAMPAIGN...]]]

The cases of a campaign are played in slices; a slice's seed is the seed that is printed plus the number of the slice. After each
slice the file build/torture/SEED.json says how far every campaign is, so a run may be ended at any time, and the same SEED goes
on with it. With MINUTES one part is played, of at most so long; without them part after part of 90 minutes until nothing is
left. The campaign that is furthest behind comes next, so all keep the same proportion; with CAMPAIGNs only these are played.
A failure says how to repeat it.
"""
import json
import os
import pathlib
import re
import resource
import subprocess
import sys
import time

HERE = pathlib.Path(__file__).resolve().parent
STATES = HERE.parent.parent / "build" / "torture"
LONGEST_PART = 90  # minutes
COLUMNS = ("survived", "lost", "damaged", "duplicates")


class Campaign:
    def __init__(self, cases, slices, command, environment=None, minutes=0.3):
        self.cases, self.slices = cases, slices
        self.command, self.environment = command, environment or (lambda seed: {})
        self.minutes = minutes  # of a slice, about: whether it still fits into a part


def campaigns(build, sanitized):
    """By name; `command` and `environment` are functions of the seed of a slice."""
    programs, tests = build / "tests" / "torture", build / "tests" / "platform" / "jet"
    guarded = sanitized / "tests" / "torture"

    def own(name, cases, folder=programs, slices=100):
        return Campaign(cases, slices, lambda seed: [folder / f"torture_{name}", seed, cases // slices])

    def sends(what, cases, slices, timer, minutes=0.3):
        return Campaign(cases, slices, lambda seed: [sys.executable, HERE / "sends.py", build, what, seed, cases // slices, *timer],
                        minutes=minutes)

    return {
        "faults": own("faults", 20_000),
        "kills": Campaign(1_000, 100, lambda seed: [tests / "test_platform_jet", "kills_test"],
                          lambda seed: {"VESTROLA_KILLS": "10", "VESTROLA_SEED": str(seed)}),
        # under sanitizers for what is read and written, without them for what is used
        "mutated-sanitized": own("mutated", 100_000, guarded),
        "mutated": own("mutated", 100_000),
        "statements": own("statements", 100_000),
        "servers": own("servers", 10_000, slices=20),
        "servers-sanitized": own("servers", 10_000, guarded, 20),
        "names": own("names", 10_000, slices=20),
        "names-sanitized": own("names", 10_000, guarded, 20),
        "sends": sends("kills", 1_000, 100, []),
        "sends-real-timer": sends("kills", 10, 10, ["real"]),
        "long-real-timer": sends("long", 10, 1, ["real"]),
        "long": sends("long", 50_000, 1, [], minutes=30),
    }


class Run:
    """What was played with a seed; kept in a file."""

    def __init__(self, seed):
        self.seed, self.path = seed, STATES / f"{seed}.json"
        self.state = {"parts": 0, "campaigns": {}, "again": []}
        if self.path.exists():
            self.state = json.loads(self.path.read_text())

    def save(self):
        STATES.mkdir(parents=True, exist_ok=True)
        fresh = self.path.with_suffix(".new")
        fresh.write_text(json.dumps(self.state, indent=1))
        fresh.replace(self.path)

    def of(self, name):
        empty = {"slices": 0, "cases": 0, "seconds": 0.0, "processor": 0.0, "more": ""} | {column: 0 for column in COLUMNS}
        return self.state["campaigns"].setdefault(name, empty)

    def play(self, name, campaign):
        """One slice; its figures are in the last line that the program prints."""
        done = self.of(name)
        seed = self.seed + done["slices"]
        words, environment = [str(word) for word in campaign.command(seed)], campaign.environment(seed)
        begin, used = time.monotonic(), processor_seconds()
        ended = subprocess.run(words, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, env={**os.environ, **environment})
        done["seconds"] += time.monotonic() - begin
        done["processor"] += processor_seconds() - used
        done["slices"] += 1
        try:
            figures = read_figures(ended.stdout)
        except (IndexError, ValueError, AttributeError):
            figures = {}
        for column in ("cases", *COLUMNS):
            done[column] += figures.get(column, 0)
        done["more"] = figures.get("more", "")
        if ended.returncode != 0:
            again = " ".join([*(f"{key}={value}" for key, value in environment.items()), *words])
            self.state["again"].append(again)
            print(f"FAILED: {again}\n{ended.stdout[-2000:]}{ended.stderr[-2000:]}", flush=True)
        self.save()

    def print(self, all_campaigns):
        rows = [("campaign", "cases", "of", *COLUMNS, "processor", "")]
        for name, campaign in all_campaigns.items():
            done = self.of(name)
            rows.append((name, done["cases"], campaign.cases, *(done[column] for column in COLUMNS),
                         f"{done['processor'] / 60:.1f} min", done["more"] and "last slice: " + done["more"]))
        widths = [max(len(str(row[i])) for row in rows) for i in range(len(rows[0]))]
        for row in rows:
            print("  ".join([row[0].ljust(widths[0]), *(str(row[i]).rjust(widths[i]) for i in range(1, len(row) - 1)), row[-1]]))
        for command in self.state["again"]:
            print("again:", command)


def processor_seconds():
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


def read_figures(output):
    if told := re.search(r"(\d+) kills, (\d+) statements returned", output):
        passed = "[  PASSED  ]" in output
        return {"cases": int(told[1]), "survived": int(told[1]) if passed else 0, "damaged": 0 if passed else 1,
                "more": f"{told[2]} statements returned"}
    return json.loads(output.strip().splitlines()[-1])


def next_campaign(run, chosen, minutes_left):
    """The one that is furthest behind and whose next slice still fits; None: there is none."""
    def expected(name):
        done = run.of(name)
        return done["seconds"] / 60 / done["slices"] if done["slices"] else chosen[name].minutes

    open_ones = [name for name in chosen if run.of(name)["slices"] < chosen[name].slices and expected(name) <= minutes_left]
    return min(open_ones, key=lambda name: (run.of(name)["slices"] + 1) / chosen[name].slices, default=None)


def play_part(run, chosen, minutes):
    """At least one slice."""
    begin, left = time.monotonic(), float("inf")
    while name := next_campaign(run, chosen, left):
        run.play(name, chosen[name])
        left = minutes - (time.monotonic() - begin) / 60
    run.state["parts"] += 1
    run.save()
    print(f"\nseed {run.seed}, part {run.state['parts']}: {(time.monotonic() - begin) / 60:.0f} minutes", flush=True)


def main():
    build, sanitized = (pathlib.Path(word).resolve() for word in sys.argv[1:3])
    minutes = float(sys.argv[3]) if len(sys.argv) > 3 else None
    seed = int(sys.argv[4]) if len(sys.argv) > 4 else time.time_ns() // 1_000_000 % 1_000_000_000
    known = campaigns(build, sanitized)
    if unknown := [name for name in sys.argv[5:] if name not in known]:
        raise SystemExit(f"no such campaign: {' '.join(unknown)}; there are {' '.join(known)}")
    chosen = {name: known[name] for name in sys.argv[5:] or known}
    run = Run(seed)
    print(f"seed {seed}", flush=True)
    while True:
        play_part(run, chosen, min(minutes or LONGEST_PART, LONGEST_PART))
        left = any(run.of(name)["slices"] < campaign.slices for name, campaign in chosen.items())
        if minutes or not left:
            break
    run.print(known)
    if left:
        print(f"to go on: ./run torture {minutes or LONGEST_PART:g} {seed}" + "".join(" " + name for name in sys.argv[5:]))
    return 1 if run.state["again"] else 0


if __name__ == "__main__":
    sys.exit(main())
