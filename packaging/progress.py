# SPDX-License-Identifier: GPL-3.0-or-later
"""Shows how far a build is: how much of how much, and about how long it still takes.

    ninja ... | progress.py LOG

Reads what ninja prints with NINJA_STATUS='built %f of %t after %e s: ', keeps it in LOG, and shows LOG where the build fails.
"""
import re
import sys

STEP = re.compile(r"built (\d+) of (\d+) after ([\d.]+) s: ")


def span(seconds):
    return f"{seconds // 60} min {seconds % 60} s" if seconds >= 60 else f"{seconds} s"


def main():
    terminal = sys.stdout.isatty()
    shown, last = -1, ""
    with open(sys.argv[1], "w", encoding="utf-8") as log:
        for line in sys.stdin:
            log.write(line)
            last = line
            step = STEP.match(line)
            if not step:
                continue
            done, total, elapsed = int(step[1]), int(step[2]), float(step[3])
            if not done:
                continue
            tenth = 10 * done // total
            if not terminal and tenth == shown:
                continue
            shown = tenth
            left = round(elapsed * (total - done) / done)
            text = f"built {done} of {total}" + (f", about {span(left)} left" if done < total else f" in {span(round(elapsed))}")
            print(f"\r{text:<60}" if terminal else text, end="" if terminal else "\n", flush=True)
    if terminal and shown >= 0:
        print()
    if "build stopped" in last or "FAILED" in last:
        with open(sys.argv[1], encoding="utf-8") as log:
            print("".join(log.readlines()[-60:]), end="")


if __name__ == "__main__":
    main()
