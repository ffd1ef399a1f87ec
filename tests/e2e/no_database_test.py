#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Starts the built program with a damaged database: the box, the file dialog and the last box stand above the splash
window, are answered by the keyboard, and the program ends.

    no_database_test.py BUILD_FOLDER
"""
import re
import subprocess

import desktop
from desktop import fail

desktop.inside()
from accessible import Window, wait_for  # noqa: E402  looks for the bus when it is imported


def output(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, text=True, check=False).stdout


def stacked():
    """The names of the windows, from the lowest to the highest."""
    numbers = re.findall(r"0x[0-9a-f]+", output("xprop", "-root", "_NET_CLIENT_LIST_STACKING"))
    return [re.sub(r'.*= "(.*)"\n', r"\1", output("xprop", "-id", number, "_NET_WM_NAME")) for number in numbers]


def answer(role, name, key):
    window = Window(role, name)
    wait_for(lambda: name in stacked(), f"{name!r} among the windows")
    order = stacked()
    if order[-1] != name:
        fail(f"{name!r} is not above the others: {order}")
    subprocess.run(["xdotool", "key", "--clearmodifiers", key], check=True)
    window.gone()


def play(stage, program):
    first = stage.start([program])
    Window("frame", "Vestrola")
    subprocess.run(["xdotool", "key", "--clearmodifiers", "ctrl+q"], check=True)
    stage.ends(first, 0)
    database = stage.program_folder / "data" / "data.mdb"
    sound = database.read_bytes()
    database.write_bytes(sound[:0x3000] + bytes(octet ^ 0x5A for octet in sound[0x3000:]))
    second = stage.start([program])
    answer("alert", "Attenzione", "Return")
    answer("dialog", "Apri Mailing List", "Escape")
    answer("alert", "Attenzione", "Return")
    stage.ends(second, 1)
    print("a damaged database was told above the splash window")


if __name__ == "__main__":
    desktop.run(play)
