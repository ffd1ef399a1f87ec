#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The editor: the design view's first opening, a key in newsletters of 100 KB and 2.5 MB, a newsletter whose images are
missing, and 5 MB in the source view.

    run.py BUILD_FOLDER WORK_FOLDER [ROUNDS]

Peers: a bare browser view with the same document, which for a key asks for the same states and the same text; the same
newsletter whose images name no file; and the preview of the same text. Every measurement is a process of its own, those
that are compared in turn.
"""
import json
import os
import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import tools  # noqa: E402

SIZES = {"100 KB": "100000", "2.5 MB": "2500000"}


def measure(program, *arguments):
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    if os.getuid() == 0:
        environment["QTWEBENGINE_DISABLE_SANDBOX"] = "1"
    done = subprocess.run([str(program), *arguments], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
                          check=True, env=environment)
    return json.loads(done.stdout)


def record(name, value, peer, ratio, goal):
    return {"name": name, "value": value, "unit": "ms", "peer": peer, "ratio": ratio, "goal": goal,
            "met": ratio <= goal}


def main():
    build = pathlib.Path(sys.argv[1]) / "bench/editor"
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 9
    bare, ours = [], []
    for _ in range(rounds):
        bare.append(measure(build / "bare_view")["ms"])
        ours.append(measure(build / "edit_view", "--open")["ms"])
    opening = tools.median(ours)
    keys = {}
    for name, size in SIZES.items():
        pairs = [(measure(build / "bare_view", "--keys", size)["ms"], measure(build / "edit_view", "--keys", size)["ms"])
                 for _ in range(min(rounds, 3))]
        keys[name] = [tools.median(times) for times in zip(*pairs)]
    pictures = [[measure(build / "missing_images", *arguments)["ms"] for _ in range(min(rounds, 3))]
                for arguments in ((), ("--missing",))]
    none, missing = map(tools.median, pictures)
    sources = [(name, measure(build / "source_view", *arguments))
               for name, arguments in (("", ()), (" of one line", ("--line",)))]
    print(json.dumps([
        record("first opening of the design view", opening, "a bare browser view", opening / tools.median(bare), 2.0),
        *(record(f"key to states and text in {name}", ours, "a bare browser view", ours / theirs, 1.5)
          for name, (theirs, ours) in keys.items()),
        record("2.5 MB with 16,000 missing images", missing, "images without an address", missing / none, 2.5),
        *(record(f"source view of 5 MB{name}", shown["source"], "the preview", shown["source"] / shown["preview"], 3.0)
          for name, shown in sources),
    ]))


if __name__ == "__main__":
    main()
