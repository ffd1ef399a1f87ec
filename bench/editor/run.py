#!/usr/bin/env python3
"""The editor: the design view's first opening, the lag of a key in a newsletter of 100 KB, and 5 MB in the source view.

    run.py BUILD_FOLDER WORK_FOLDER [ROUNDS]

Peers: a bare browser view with the same document; one frame of a screen with 60 Hz; and the preview of the same text.
Every measurement is a process of its own, the two openings in turn.
"""
import json
import os
import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import tools  # noqa: E402

FRAME = 1000 / 60


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
    keys = measure(build / "edit_view", "--keys")
    sources = [(name, measure(build / "source_view", *arguments))
               for name, arguments in (("", ()), (" of one line", ("--line",)))]
    print(json.dumps([
        record("first opening of the design view", opening, "a bare browser view", opening / tools.median(bare), 2.0),
        record("key to changed mark in 100 KB", keys["mark"], "a frame", keys["mark"] / FRAME, 1.0),
        record("program's work for that key's states and text", keys["work"], "a frame", keys["work"] / FRAME, 1.0),
        *(record(f"source view of 5 MB{name}", shown["source"], "the preview", shown["source"] / shown["preview"], 3.0)
          for name, shown in sources),
    ]))


if __name__ == "__main__":
    main()
