#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Kills the built program while a message is written, starts it again and recovers the message from its rescue copy; then
stops the browser's process, saves, and verifies that nothing older is written; then makes a save fail, and recovers the
text in the new start that the failure offers. Verifies meanwhile that the editor's window
keeps its state, its owner and its modality from its first opening on.

    rescue_test.py BUILD_FOLDER
"""
import os
import pathlib
import signal
import subprocess
import time

import desktop
from desktop import fail

desktop.inside()
from accessible import Window, wait_for  # noqa: E402  looks for the bus when it is imported
from keyboard_test import keys, type_file, type_text  # noqa: E402

OFFER = 10  # seconds after a start in which no new one is offered


def properties(name):
    """What the window manager knows of the program's window of that name: its number, and its properties."""
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{name}"], stdout=subprocess.PIPE, text=True,
                           check=True).stdout.split()
    if len(found) != 1:
        fail(f"{len(found)} windows are called {name}")
    told = subprocess.run(["xprop", "-id", found[0]], stdout=subprocess.PIPE, text=True, check=True).stdout
    return int(found[0]), {line.split("(")[0]: line for line in told.splitlines() if "(" in line}


def copies(stage):
    return b"".join(file.read_bytes() for file in (stage.program_folder / "data" / "recuperati").glob("*.copia"))


def renderers(running):
    """The processes that hold the documents of a program."""
    found, parents = [], {}
    for folder in pathlib.Path("/proc").iterdir():
        if folder.name.isdigit():
            try:
                parents[int(folder.name)] = int((folder / "stat").read_text().rsplit(")", 1)[1].split()[1])
                if b"--type=renderer" in (folder / "cmdline").read_bytes():
                    found.append(int(folder.name))
            except OSError:
                pass  # it has ended
    def belongs(process):
        while process in parents and process != running.pid:
            process = parents[process]
        return process == running.pid
    return [process for process in found if belongs(process)]


def check_window(maximised):
    main, _ = properties("Vestrola")
    _, told = properties("Editor Messaggi")
    state = told.get("_NET_WM_STATE", "")
    if ("MAXIMIZED" in state) != maximised:
        fail(f"the editor's state is {state}, maximised should be {maximised}")
    if "_NET_WM_STATE_MODAL" not in state:
        fail(f"the editor is not modal: {state}")
    owner = told.get("WM_TRANSIENT_FOR", "")
    if f"{main:#x}" not in owner:
        fail(f"the editor belongs to {owner!r} instead of {main:#x}")


def write_and_kill(stage, program):
    running = stage.start([program])
    Window("frame", "Vestrola")
    keys("ctrl+n")
    editor = Window("frame", "Editor Messaggi")
    editor.wait_focus("text", "Oggetto")
    check_window(maximised=False)
    editor.find("document web", "")
    type_text("Listino")
    keys("Tab")
    type_text(desktop.TEXT)
    wait_for(lambda: b"aspettiamo." in copies(stage) and b"Listino" in copies(stage), "a copy of what was typed")
    running.send_signal(signal.SIGKILL)
    running.wait()


def take_up(stage, program):
    place = stage.program_folder / "data" / "frmEditor.imp"
    place.write_bytes(b"\r\n".join([b"[Form frmMain]", b"mnLeft........: 1500", b"mnTop.........: 1500",
                                    b"mnWidth.......: 12000", b"mnHeight......: 9000", b"mnWindowState.: 2", b""]))
    running = stage.start([program])
    Window("frame", "Vestrola", active=False)
    question = Window("alert", "Attenzione", active=False)
    question.press("Sì")
    editor = Window("frame", "Editor Messaggi - [NuovoFile.mss*]")
    editor.wait_focus("text", "Oggetto")
    editor.find("document web", "")
    check_window(maximised=True)
    return running, editor


def save_over_a_stalled_browser(stage, running, path):
    stopped = renderers(running)
    if not stopped:
        fail("no process holds the document")
    for process in stopped:
        os.kill(process, signal.SIGSTOP)
    save(path)
    notice = Window("alert", "Attenzione")
    if path.exists():
        fail(f"something was written: {path.read_bytes()}")
    for process in stopped:
        os.kill(process, signal.SIGCONT)
    notice.press("OK")
    notice.gone()
    save(path)
    wait_for(lambda: path.is_file() and path.read_bytes().endswith(b"[<END-MESS>]\r\n"), "the message in its file")
    written = path.read_text(encoding="cp1252")
    if "[<INI-SUBJ>]Listino[<END-SUBJ>]" not in written or desktop.TEXT not in written:
        fail(f"the saved message is {written}")
    wait_for(lambda: not copies(stage), "the copy to go")


def save(path):
    Window("frame", "Editor Messaggi")
    keys("ctrl+s")
    type_file("Salva messaggio", path)


def restart_after_a_failed_save(stage, running, path):
    """The text that could not be saved is offered in the new start."""
    path.unlink()
    path.mkdir()
    editor = Window("frame", "Editor Messaggi")
    editor.find("text", "Oggetto").queryComponent().grabFocus()
    editor.wait_focus("text", "Oggetto")
    type_text("Poscritto")
    wait_for(lambda: b"Poscritto" in copies(stage), "a copy of what was added")
    keys("ctrl+s")
    Window("alert", "Vestrola").press("Riavvia")
    stage.ends(running, 1)
    question = Window("alert", "Attenzione", active=False)
    second = question.frame.getApplication().get_process_id()
    question.press("Sì")
    editor = Window("frame", "Editor Messaggi - [NuovoFile.mss*]")
    editor.wait_focus("text", "Oggetto")
    if "Poscritto" not in editor.find("text", "Oggetto").queryText().getText(0, -1):
        fail("the new start lost what was added")
    keys("ctrl+w")
    Window("alert", "Attenzione").press("No")
    editor.gone()
    if copies(stage):
        fail("the copy is still there after No")
    Window("frame", "Vestrola")
    keys("ctrl+q")
    wait_for(lambda: not os.path.exists(f"/proc/{second}"), "the end of the new start")


def play(stage, program):
    path = stage.work / "nuovo.mss"
    write_and_kill(stage, program)
    begin = time.monotonic()
    running, _ = take_up(stage, program)
    save_over_a_stalled_browser(stage, running, path)
    time.sleep(max(0.0, begin + OFFER + 1 - time.monotonic()))  # the offer is a matter of time
    restart_after_a_failed_save(stage, running, path)
    again = stage.start([program])
    Window("frame", "Vestrola")
    keys("ctrl+q")
    stage.ends(again, 0)
    print("a message outlived SIGKILL and a failed save, and a stalled browser had nothing older saved")


if __name__ == "__main__":
    desktop.run(play)
