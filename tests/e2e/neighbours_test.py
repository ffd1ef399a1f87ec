#!/usr/bin/env python3
"""Starts and ends the built program in a folder in which a neighbour has put links where the program writes: what they lead
to stays as it is, and what the program writes are files of its own that nobody else can read.

    neighbours_test.py BUILD_FOLDER
"""
import os
import pathlib
import shutil
import signal
import stat
import subprocess
import sys
import tempfile
import time

PATIENCE = 60  # seconds; only a broken program uses them up
LETTER = b"Cara mamma,"
WRITTEN = ("Error.txt", "data/frmMain.imp", "data/LayoutMain.imp")
STRANGER = 65534


def fail(text):
    raise SystemExit(f"FAILED: {text}")


def wait_for(condition, what):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            fail(f"waited {PATIENCE} s for {what}")
        time.sleep(0.05)


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


def start_and_end(build, folder):
    environment = {**os.environ, "VESTROLA_FOLDER": str(folder), "QT_QPA_PLATFORM": "offscreen",
                   "QTWEBENGINE_DISABLE_SANDBOX": "1"}
    program = subprocess.Popen([str(build / "vestrola")], env=environment, stderr=subprocess.DEVNULL, umask=0)
    try:
        # the engine of the database opens it once the start is over
        wait_for(lambda: program.poll() is not None or (folder / "data" / "data.mdb-journal").exists()
                 or has_open(program, folder / "data" / "data.mdb"), "the database to be opened")
        program.send_signal(signal.SIGTERM)
        program.wait(PATIENCE)
    finally:
        program.kill()
        program.wait()


def has_open(program, path):
    try:
        return any(os.path.samefile(one, path) for one in pathlib.Path(f"/proc/{program.pid}/fd").iterdir())
    except FileNotFoundError:
        return False


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    for how in (os.symlink, os.link):
        with tempfile.TemporaryDirectory() as work:
            folder, letters = pathlib.Path(work) / "programma", pathlib.Path(work) / "lettere"
            letters.mkdir()
            sample(build, folder)
            planted = list(plant(folder, letters, how))
            start_and_end(build, folder)
            for letter in planted:
                if letter.read_bytes() != LETTER:
                    fail(f"{letter.name} was written through the link")
            for name in WRITTEN:
                state = os.lstat(folder / name)
                if is_link(folder / name) or stat.S_IMODE(state.st_mode) != 0o600 or not state.st_size:
                    fail(f"{name} is no file of the user's own: {stat.filemode(state.st_mode)}, {state.st_size} bytes")
    print("links in the program folder are not followed; what is written is its owner's alone")


if __name__ == "__main__":
    main()
