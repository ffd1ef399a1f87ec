#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Another program locks the database while the built program wants to write: it waits and then continues, and Esc cancels
the statement, which is a failure like any other.

    locked_test.py BUILD_FOLDER
"""
import fcntl
import os
import struct
import time

import desktop

desktop.inside()
import pyatspi  # noqa: E402  looks for the bus when it is imported
from accessible import Window, has, wait_for  # noqa: E402
from keyboard_test import add_recipient, keys, make_group  # noqa: E402


class Lock:
    """The whole content, locked as by a program that writes."""

    def __init__(self, path):
        self.file = os.open(path, os.O_RDWR)
        wait_for(self.take, "the lock")

    def take(self):
        try:
            fcntl.fcntl(self.file, fcntl.F_OFD_SETLK, struct.pack("hhqqi4x", fcntl.F_WRLCK, os.SEEK_SET, 0, 0, 0))
        except BlockingIOError:
            return False
        return True

    def release(self):
        os.close(self.file)


def ticked(main):
    return has(main.find("table cell", "Send"), pyatspi.STATE_CHECKED)


def play(stage, program):
    running = stage.start([program])
    main = Window("frame", "Vestrola")
    make_group(main)
    add_recipient()
    main.find("table cell", desktop.ADDRESS)
    database = stage.program_folder / "data" / "data.mdb"

    lock = Lock(database)
    keys("Tab", "space")
    time.sleep(2)  # as long as another program's slow statement
    lock.release()
    wait_for(lambda: ticked(main), "the tick after the wait")

    lock = Lock(database)
    keys("space")

    def given_up():
        keys("Escape")  # once for the wait, once for the box that reports the failure
        return running.poll() is not None
    wait_for(given_up, "the end after Esc")
    stage.ends(running, 1)
    lock.release()
    print("a wait ends with the other program, and can be given up")


if __name__ == "__main__":
    desktop.run(play)
