#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Starts and ends the built program in a folder in which another user has put links where the program writes: their targets
stay unchanged, and the program writes files of its own that nobody else can read.

    neighbours_test.py BUILD_FOLDER
"""
import os
import pathlib
import shutil
import signal
import stat
import sys
import tempfile

import desktop
from desktop import fail

desktop.inside()
from accessible import Window  # noqa: E402  looks for the bus when it is imported

LETTER = b"Cara mamma,"
WRITTEN = ("Error.txt", "data/frmMain.imp", "data/LayoutMain.imp")
STRANGER = 65534


def sample(build, folder):
    """A program folder as an installation makes it."""
    folder.mkdir()
    shutil.copy(build / "LANG.lng", folder)
    (folder / "LANGz.lng").write_bytes(b"Italiano\r\n")
    shutil.copytree(build / "data", folder / "data")
    (folder / "data" / "pathDBase.imp").write_bytes(b"[Path dabatase Quintara]\r\nXXX\r\n")


def is_link(path):
    return path.is_symlink() or os.lstat(path).st_nlink > 1


def plant(folder, letters, how):
    """A letter of the user's for each file that the program writes, and a link to it in that file's place."""
    for name in WRITTEN:
        letter = letters / (how.__name__ + name.replace("/", "_"))
        letter.write_bytes(LETTER)
        link = folder / name
        link.unlink(missing_ok=True)
        how(letter, link)
        if os.geteuid() == 0 and how is os.symlink:
            os.lchown(link, STRANGER, STRANGER)
        yield letter


def start_and_end(stage, build, folder):
    program = stage.start([build / "vestrola"], env={**os.environ, "VESTROLA_FOLDER": str(folder)}, umask=0)
    Window("frame", "Vestrola")  # a program that is told to end earlier stores no window placements
    program.send_signal(signal.SIGTERM)
    stage.ends(program, 0)


def play(stage, _):
    build = pathlib.Path(sys.argv[1]).resolve()
    for how in (os.symlink, os.link):
        with tempfile.TemporaryDirectory() as work:
            folder, letters = pathlib.Path(work) / "programma", pathlib.Path(work) / "lettere"
            letters.mkdir()
            sample(build, folder)
            planted = list(plant(folder, letters, how))
            start_and_end(stage, build, folder)
            for letter in planted:
                if letter.read_bytes() != LETTER:
                    fail(f"{letter.name} was written through the link")
            for name in WRITTEN:
                state = os.lstat(folder / name)
                if is_link(folder / name) or stat.S_IMODE(state.st_mode) != 0o600 or not state.st_size:
                    fail(f"{name} is no file of the user's own: {stat.filemode(state.st_mode)}, {state.st_size} bytes")
    print("links in the program folder are not followed; what is written is its owner's alone")


if __name__ == "__main__":
    desktop.run(play)
