#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A message is tested before its run, on the built program, as an assistive program finds it: from the menu "Strumenti" to the
window, a message file that names a column which does not exist, the finding that says so, the next recipient, and a test copy
that arrives at a local mail server while the recipients stay selected.

    prova_test.py BUILD_FOLDER
"""
import email
import email.policy
import os

import desktop
from desktop import fail, wait_for
import samples

desktop.inside()
from accessible import Window, choose_file, has  # noqa: E402  looks for the bus when it is imported
from keyboard_test import keys  # noqa: E402
from scripted_mail import ScriptedMail  # noqa: E402
import pyatspi  # noqa: E402


def make_program_folder(stage, port):
    people = [("Alfa", "Anna", "alfa@x.test"), ("Beta", "Bice", "beta@x.test")]
    samples.make_folder(stage.program_folder, port, samples.write_table(stage.work / "recipients.tsv", people))


def write_message(folder):
    path = folder / "offerta.mss"
    rows = ["[<INI-SUBJ>]Per :::rgs:::[<END-SUBJ>]", "[<INI-PRIO>]NR[<END-PRIO>]", "[<INI-ALLG>]", "[<END-ALLG>]",
            "[<INI-MESS>]", "<HTML><BODY><P>Cara :::nom::: :::cognome:::</P></BODY></HTML>", "[<END-MESS>]", ""]
    path.write_bytes("\r\n".join(rows).encode("cp1252"))
    return path


def play(stage, program):
    home = stage.work / "casa"
    home.mkdir()
    server = ScriptedMail()
    make_program_folder(stage, server.port)
    message = write_message(home)
    running = stage.start([program], env={**os.environ, "HOME": str(home)})
    main = Window("frame", "Vestrola")
    main.wait_focus("tree", "Gruppi mailing")
    keys("alt+s")
    main.find("menu item", "Prova messaggio...")
    keys("p")
    window = Window("dialog", "Prova messaggio")
    window.press("Sfoglia il messaggio")
    choose_file("Apri messaggio", message)

    window.find("list item", 'Grave: ":::cognome:::" non viene sostituito: nessuna colonna ha questo nome.')
    window.press("Successivo")
    wait_for(lambda: has(window.find("push button", "Precedente"), pyatspi.STATE_SENSITIVE), "the recipient before")
    window.press("Invia una copia di prova")
    wait_for(lambda: server.messages, "the test copy")
    desktop.picture(desktop.pictures() / "prova.png")
    recipient, taken = server.messages[0]
    copy = email.message_from_bytes(taken, policy=email.policy.default)
    if recipient.endswith("@x.test"):
        fail(f"the copy went to {recipient}")
    if copy["Subject"] != "Per Beta" or "Cara Bice" not in copy.get_body(("plain",)).get_content():
        fail(f"the copy is not that of the recipient on show:\n{copy}")
    window.press("Chiudi")
    window.gone()
    main.press("Invia messaggi")
    sending = Window("dialog", "Invia messaggi")
    sending.find("label", "Email da inviare: 2")
    sending.press("Chiudi")
    sending.gone()
    keys("ctrl+q")
    stage.ends(running, 0)
    print("a message was looked at, found wanting, and one copy of it was tried")


if __name__ == "__main__":
    desktop.run(play)
