#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Starts, by the loader, a portable copy whose files have no execute permission, as on a USB stick: it keeps its data beside
itself, opens the editor by its plug-in, and a newer copy over it leaves the data unchanged.

    portable_test.py BUILD_FOLDER
"""
import pathlib
import subprocess
import sys

import desktop
from desktop import fail

desktop.inside()
from accessible import Window  # noqa: E402  looks for the bus when it is imported

LOADER = "/lib64/ld-linux-x86-64.so.2"


def lay_down(folder):
    subprocess.run(["cmake", "--install", sys.argv[1], "--component", "portable", "--prefix", str(folder)],
                   stdout=subprocess.DEVNULL, check=True)
    for name in ("vestrola", "vestrola-apri", "vestrola-pst"):
        (folder / name).chmod(0o644)


def contents(folder):
    return {path.relative_to(folder): path.read_bytes() for path in folder.rglob("*") if path.is_file()}


def play(stage, _):
    folder = stage.work / "chiavetta"
    lay_down(folder)
    try:
        subprocess.run([folder / "vestrola"], check=False)
        fail("the copy can be executed, so nothing was tried")
    except PermissionError:
        pass
    running = stage.start([LOADER, "./vestrola-apri", stage.write_message()], cwd=folder)
    editor = Window("frame", "Editor Messaggi - [invito.mss]")
    editor.wait_focus("text", "Oggetto")
    editor.find("document web", "")
    if not stage.has_browser(running):
        fail("the plug-in of the views was not found")
    subprocess.run(["xdotool", "key", "--clearmodifiers", "ctrl+w"], check=True)
    editor.gone()
    Window("frame", "Vestrola")
    subprocess.run(["xdotool", "key", "--clearmodifiers", "ctrl+q"], check=True)
    stage.ends(running, 0)
    if not (folder / "data" / "frmMain.imp").is_file() or stage.program_folder.exists():
        fail("the data are not beside the program")
    before = contents(folder / "data")
    (folder / "LANG.lng").write_bytes(b"mia\r\n")
    lay_down(folder)
    if contents(folder / "data") != before or pathlib.Path(folder / "LANG.lng").read_bytes() != b"mia\r\n":
        fail("a newer copy has changed the user's files")
    print("a copy without rights to be executed ran from its folder")


if __name__ == "__main__":
    desktop.run(play)
