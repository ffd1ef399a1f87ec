#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""From the start of the process to the main window on the screen, with 100,000 recipients in groups: against the first
window of keepassxc, and against an empty main window of the same toolkit. Besides what the start costs, until the
program has nothing left to do: instructions, which valgrind counts, and memory.

    run.py BUILD_FOLDER WORK_FOLDER [ROUNDS]

A window is there when a third of the screen is painted, for which a splash is too small. The screen is that of Xvfb, whose
memory is looked at directly, so that nothing runs beside the program that is measured.
"""
import json
import mmap
import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import tools  # noqa: E402

ROWS = 100_000
WIDTH, HEIGHT = 1200, 760
PAINTED = 1 / 3
PATIENCE = 60
TEMPLATES = pathlib.Path(__file__).resolve().parent.parent.parent / "assets" / "templates"


class Screen:
    """A screen without a window manager. It is black where no window is."""

    def __init__(self, folder):
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
        own, server = os.pipe()
        self.process = subprocess.Popen(["Xvfb", "-displayfd", str(server), "-screen", "0", f"{WIDTH}x{HEIGHT}x24",
                                         "-nolisten", "tcp", "-fbdir", str(folder)],
                                        pass_fds=[server], stderr=subprocess.DEVNULL)
        os.close(server)
        with os.fdopen(own) as display:
            self.name = ":" + display.readline().strip()
        with open(folder / "Xvfb_screen0", "rb") as file:
            self.memory = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        # The header of an X window dump: its own size comes first, then the bytes of a line and the colours.
        header = struct.unpack(">25I", self.memory[:100])
        begin, line = header[0] + header[19] * 12, header[12]
        self.points = [begin + line * y + 4 * x for y in range(10, HEIGHT, 20) for x in range(10, WIDTH, 20)]

    def painted(self):
        return sum(self.memory[point:point + 3] != b"\0\0\0" for point in self.points) / len(self.points)

    def close(self):
        self.process.kill()
        self.process.wait()


def until(condition, what):
    end = time.perf_counter() + PATIENCE
    while not condition():
        if time.perf_counter() > end:
            raise SystemExit(f"waited {PATIENCE} s for {what}")


def seconds(screen, command, environment):
    until(lambda: screen.painted() == 0, "an empty screen")
    start = time.perf_counter()
    process = subprocess.Popen(command, env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        until(lambda: screen.painted() > PAINTED or process.poll() is not None, command[0])
        if process.poll() is not None:
            raise SystemExit(f"{command[0]} ended with {process.returncode}")
        return time.perf_counter() - start
    finally:
        process.kill()
        process.wait()


def until_idle(process):
    """Returns when the process has used no processor time for a second."""
    used, since = None, time.perf_counter()
    while time.perf_counter() - since < 1:
        if process.poll() is not None:
            raise SystemExit(f"{process.args[0]} ended with {process.returncode}")
        fields = pathlib.Path(f"/proc/{process.pid}/stat").read_text(encoding="ascii").rsplit(") ", 1)[1].split()
        if fields[11:13] != used:
            used, since = fields[11:13], time.perf_counter()
        time.sleep(0.05)


def cost(screen, program, environment, tracer):
    """Millions of instructions, and the proportional set size in MB of a second process that is not traced."""
    prefix, more = tracer
    command = [*prefix, program]
    figures = []
    for begin in (command, [program]):
        process = subprocess.Popen(begin, env={**environment, **more}, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
                                   text=True)
        until(lambda: screen.painted() > PAINTED or process.poll() is not None, program)
        until_idle(process)
        size = pathlib.Path(f"/proc/{process.pid}/smaps_rollup").read_text(encoding="ascii")
        process.terminate()
        printed = process.communicate()[1]
        if begin is command:
            figures.append(int(re.search(r"Collected : (\d+)", printed)[1]) / 1e6)
        else:
            figures.append(int(re.search(r"^Pss: +(\d+)", size, re.MULTILINE)[1]) / 1024)
        until(lambda: screen.painted() == 0, "an empty screen")
    return figures


def instruction_counter(folder):
    path, environment = tools.unpacked("valgrind", "valgrind", folder)
    more = {} if str(path).startswith("/usr/") else {"VALGRIND_LIB": str(path.parent.parent / "libexec" / "valgrind")}
    more.update({name: environment[name] for name in ("LD_LIBRARY_PATH",) if name in environment})
    return [str(path), "--tool=callgrind", "--callgrind-out-file=/dev/null"], more


def program_folder(build, work):
    folder = work / "vestrola"
    if not (folder / "data" / "data.mdb").exists():
        shutil.copytree(TEMPLATES, folder, dirs_exist_ok=True)
        subprocess.run([str(build / "bench/scan/scan_recipients"), "--make", str(folder / "data" / "data.mdb"), str(ROWS)],
                       stdout=subprocess.DEVNULL, check=True)
    return folder


def record(name, ours, peer, peers, goal):
    ratio = tools.median(peers) / tools.median(ours)
    return {"name": name, "value": tools.median(ours) * 1000, "unit": "ms", "peer": peer, "ratio": ratio, "goal": goal,
            "met": ratio >= goal}


def at_most(name, value, unit, bare, goal):
    return {"name": name, "value": value, "unit": unit, "peer": "empty QMainWindow", "ratio": value / bare, "goal": goal,
            "met": value / bare <= goal}


def main():
    build, work = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 11
    home = work / "home"
    home.mkdir(exist_ok=True)
    counter = instruction_counter(work.parent)
    screen = Screen(work / "screen")
    environment = {**os.environ, "DISPLAY": screen.name, "QT_QPA_PLATFORM": "xcb", "HOME": str(home), "XDG_RUNTIME_DIR": str(home),
                   "VESTROLA_FOLDER": str(program_folder(build, work))}
    programs = {"ours": str(build / "vestrola"), "bare": str(build / "bench/startup/bench_bare_window"),
                "keepassxc": "keepassxc"}
    taken = {name: [] for name in programs}
    try:
        for _ in range(rounds + 1):
            for name, program in programs.items():
                taken[name].append(seconds(screen, [program], environment))
        (instructions, size), (fewest, least) = (cost(screen, programs[name], environment, counter)
                                                 for name in ("ours", "bare"))
    finally:
        screen.close()
    # The first round only fills the caches.
    ours, bare, peers = (taken[name][1:] for name in ("ours", "bare", "keepassxc"))
    print(json.dumps([record("start with 100,000 recipients", ours, "keepassxc", peers, 1.0),
                      record("start against an empty window", ours, "empty QMainWindow", bare, 1 / 6),
                      at_most("instructions of the start", instructions, "millions", fewest, 6.0),
                      at_most("memory of the idle program", size, "MB", least, 2.0)]))


if __name__ == "__main__":
    main()
