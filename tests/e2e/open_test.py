#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Opens message files as a double click does, by the starter: at the very first start, beside a running program, after a
program that left a rescue copy, and a file whose name is not valid UTF-8.

    open_test.py BUILD_FOLDER
"""
import os
import pathlib
import signal
import subprocess

import desktop
from desktop import fail

desktop.inside()
from accessible import Window, wait_for  # noqa: E402  looks for the bus when it is imported


def keys(*names):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *names], check=True)


def write(path, subject):
    rows = [f"[<INI-SUBJ>]{subject}[<END-SUBJ>]", "[<INI-PRIO>]NR[<END-PRIO>]", "[<INI-ALLG>]", "[<END-ALLG>]",
            "[<INI-MESS>]", f"<HTML><BODY><P>{subject} per lei</P></BODY></HTML>", "[<END-MESS>]", ""]
    path.parent.mkdir(exist_ok=True)
    path.write_bytes("\r\n".join(rows).encode("cp1252"))
    return path


def editor_of(name, subject):
    """The editor with that file in it, and its program."""
    editor = Window("frame", f"Editor Messaggi - [{name}]")
    editor.wait_focus("text", "Oggetto")
    told = editor.find("text", "Oggetto").queryText().getText(0, -1)
    if told != subject:
        fail(f"the editor shows the subject {told!r}, not {subject!r}")
    editor.find("document web", "")
    return editor


def leave_editor_and_program(stage, running, editor):
    keys("ctrl+w")
    editor.gone()
    Window("frame", "Vestrola")
    keys("ctrl+q")
    stage.ends(running, 0)


def first_start(stage, starter):
    """By a path relative to the starter's folder, which has a blank and a line break in its name."""
    message = write(stage.work / "di\nmaggio è" / "offerta uno.mss", "Prima offerta")
    running = stage.start([starter, message.relative_to(stage.work)], cwd=stage.work)
    editor = editor_of("offerta uno.mss", "Prima offerta")
    if pathlib.Path(f"/proc/{running.pid}/cmdline").read_bytes().rstrip(b"\0").count(b"\0"):
        fail("the program was given an argument")
    if (stage.program_folder / "data" / "riavvio.imp").exists():
        fail("the path is left for another start")
    return running, editor


def beside(stage, starter):
    message = write(stage.work / "posta" / "due.mss", "Seconda offerta")
    second = stage.start([starter, message])
    leave_editor_and_program(stage, second, editor_of("due.mss", "Seconda offerta"))


def rescued(stage, starter, answer):
    """A program that is killed while a message is changed leaves a copy, which is offered before the message is opened."""
    message = write(stage.work / "posta" / "tre.mss", "Terza offerta")
    running = stage.start([starter, message])
    editor_of("tre.mss", "Terza offerta")
    subprocess.run(["xdotool", "type", "--clearmodifiers", " cambiata"], check=True)

    def copied():
        return any(b"cambiata" in copy.read_bytes()
                   for copy in (stage.program_folder / "data" / "recuperati").glob("*.copia"))

    wait_for(copied, "the rescue copy")
    running.send_signal(signal.SIGKILL)
    running.wait()
    other = write(stage.work / "posta" / "quattro.mss", "Quarta offerta")
    running = stage.start([starter, other])
    Window("frame", "Vestrola", active=False)
    question = Window("alert", "Attenzione", active=False)
    question.press(answer)
    if answer == "No":
        return leave_editor_and_program(stage, running, editor_of("quattro.mss", "Quarta offerta"))
    editor = Window("frame", "Editor Messaggi - [NuovoFile.mss*]")
    keys("ctrl+w")
    Window("alert", "Attenzione").press("No")
    editor.gone()
    Window("frame", "Vestrola")
    keys("ctrl+q")
    return stage.ends(running, 0)


def no_text(stage, starter):
    path = os.fsencode(stage.work) + b"/posta/\xff\xfe.mss"
    os.rename(write(stage.work / "posta" / "x.mss", "Quinta"), path)
    running = subprocess.Popen([os.fsencode(starter), path], stdout=subprocess.DEVNULL)
    stage.processes.append(running)
    Window("frame", "Vestrola", active=False)
    notice = Window("alert", "Attenzione")
    notice.press("OK")
    notice.gone()
    Window("frame", "Vestrola")
    keys("ctrl+q")
    stage.ends(running, 0)


def play(stage, program):
    starter = program.with_name("vestrola-apri")
    running, editor = first_start(stage, starter)
    beside(stage, starter)
    leave_editor_and_program(stage, running, editor)
    rescued(stage, starter, "No")
    rescued(stage, starter, "Sì")
    no_text(stage, starter)
    print("messages were opened at the first start, beside another program and after a rescue copy")


if __name__ == "__main__":
    desktop.run(play)
