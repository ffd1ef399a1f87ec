#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Starts the built program twice over one program folder: the second start is not prevented, both programs stay and show
the groups of the one database, and Error.txt reports only the second start.

    second_start_test.py BUILD_FOLDER
"""
import time

import desktop
from desktop import fail

desktop.inside()
from accessible import applications, is_shown, wait_for  # noqa: E402  looks for the bus when it is imported
import pyatspi  # noqa: E402


def main_windows():
    """The main windows that show the root of the groups."""
    def shows_groups(window):
        return pyatspi.findDescendant(
            window, lambda one: one.getRoleName() == "table cell" and one.name == "Database Mailing" and is_shown(one))
    programs = [program for program in applications() if program is not None and program.name == "Vestrola"]
    return [window for program in programs for window in program
            if window and window.getRoleName() == "frame" and window.name.startswith("Vestrola") and is_shown(window)
            and shows_groups(window)]


def one_line(log):
    line = log.read_bytes()
    if not line.startswith(b"Inizio applicazione: ") or line.count(b"\r\n") != 1 or not line.endswith(b"\r\n"):
        fail(f"{log.name} holds {line}")
    return line


def play(stage, program):
    log = stage.program_folder / "Error.txt"
    first = stage.start([program])
    wait_for(lambda: len(main_windows()) == 1, "the first main window")
    line = one_line(log)
    time.sleep(1.1)  # the line has whole seconds
    second = stage.start([program])
    wait_for(lambda: len(main_windows()) == 2, "a second main window")
    if one_line(log) == line:
        fail(f"the second start left {line}")
    if first.poll() is not None or second.poll() is not None:
        fail("one of the two programs has ended")
    print("two programs over one folder, the log tells of the second start")


if __name__ == "__main__":
    desktop.run(play)
