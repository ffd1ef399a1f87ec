#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""How the built program ends, and how it comes back: a failure names its subject, is written to the log, ends the program
with status 1 and, on "Riavvia", brings it back to its place and group; SIGTERM saves the placement; language texts that
were lost are there again at the next start.

    ending_test.py BUILD_FOLDER
"""
import os
import re
import signal
import subprocess
import time

import desktop
from desktop import fail

desktop.inside()
import pyatspi  # noqa: E402  looks for the bus when it is imported
from accessible import Window, extents, has, wait_for  # noqa: E402
from keyboard_test import choose_text_file, keys, make_group  # noqa: E402

OFFER = 10  # seconds after a start in which no new one is offered


def import_broken(stage, path):
    """Imports a file whose last line is blank, up to the failure's box."""
    choose_text_file(path, *["Tab"] * 5, "Down")  # the box of the address
    keys("alt+i")
    return Window("alert", "Vestrola")


def texts(window):
    return " ".join(one.name for one in pyatspi.findAllDescendants(
        window.frame, lambda one: one.getRoleName() == "label"))


def buttons(window):
    return sorted(one.name for one in pyatspi.findAllDescendants(
        window.frame, lambda one: one.getRoleName() == "push button" and one.name))


def program_number(window):
    return window.frame.getApplication().get_process_id()


def play(stage, program):
    wrong = stage.work / "lista.csv"
    wrong.write_bytes("perù@x.it;no\r\na@x.it;Perù\r\n\r\n".encode("utf-8"))
    begin = time.monotonic()
    running = stage.start([program])
    main = Window("frame", "Vestrola")
    make_group(main)
    placement = stage.program_folder / "data" / "frmMain.imp"
    before = placement.read_bytes()
    number = subprocess.run(["xdotool", "getactivewindow"], stdout=subprocess.PIPE, text=True, check=True).stdout.strip()
    subprocess.run(["xdotool", "windowmove", "--sync", number, "60", "90"], check=True)
    subprocess.run(["xdotool", "windowsize", "--sync", number, "900", "600"], check=True)
    wait_for(lambda: extents(main.frame)[2:] == (900, 600), "the new size")
    place = extents(main.frame)
    time.sleep(max(0.0, begin + OFFER + 1 - time.monotonic()))  # the offer is a matter of time

    failure = import_broken(stage, wrong)
    told = texts(failure)
    for part in ("Errore 9:", "Riga 3: il campo 1 non c'è; inserito 1 destinatario", "Importazione da file di testo",
                 str(wrong), "Il programma viene chiuso"):
        if part not in told:
            fail(f"the box says {told!r}, not {part!r}")
    if buttons(failure) != ["Chiudi", "Riavvia"] or not has(failure.find("push button", "Chiudi"), pyatspi.STATE_FOCUSED):
        fail(f"the box offers {buttons(failure)}")
    desktop.picture(desktop.pictures() / "guasto.png")
    keys("alt+r")
    stage.ends(running, 1)
    if placement.read_bytes() != before:
        fail("the failure wrote the placement file")

    again = Window("frame", "Vestrola")
    second = program_number(again)
    if second == running.pid:
        fail("the program that failed is still there")
    group = again.find("table cell", "Clienti")
    wait_for(lambda: has(group, pyatspi.STATE_SELECTED), "the group to be open again")
    again.find("table cell", "a@x.it")
    wait_for(lambda: extents(again.frame) == place, f"the old place {place}, not {extents(again.frame)}")
    entry = (stage.program_folder / "data" / "guasti.txt").read_text(encoding="utf-8")
    if not re.search(r"Errore 9: Riga 3: .*\n+Operazione: Importazione da file di testo\s+File: .*lista\.csv", entry):
        fail(f"guasti.txt holds {entry!r}")

    keys("ctrl+n")
    Window("frame", "Editor Messaggi")
    (stage.program_folder / "LANG.lng").unlink()
    os.kill(second, signal.SIGTERM)
    wait_for(lambda: not os.path.exists(f"/proc/{second}"), "the end of the program after SIGTERM")
    if placement.read_bytes() == before:
        fail("SIGTERM did not save the placement")

    third = stage.start([program])
    Window("frame", "Vestrola").find("table cell", "Clienti")
    if not (stage.program_folder / "LANG.lng").is_file():
        fail("the language texts are not there again")
    third.send_signal(signal.SIGTERM)
    stage.ends(third, 0)
    print("a failure is told, kept and made good; SIGTERM saves; lost texts come back")


if __name__ == "__main__":
    desktop.run(play)
