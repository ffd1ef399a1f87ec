#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Does the whole job with the keyboard alone, on the built program, from its very first start to the message in a Maildir:
a group, a recipient in it, its tick, an account, the send window, and last a message of its own. What assistive programs
are told is only read, to know when the next key may be pressed.

    keyboard_test.py BUILD_FOLDER
"""
import subprocess

import desktop
from desktop import fail

desktop.inside()
import pyatspi  # noqa: E402  looks for the bus when it is imported
from accessible import Window, has, wait_for  # noqa: E402


def keys(*names):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *names], check=True)


def type_text(text):
    subprocess.run(["xdotool", "type", "--clearmodifiers", str(text)], check=True)


def type_file(title, path):
    """Answers the file dialog of that title with the keyboard."""
    chooser = Window("dialog", title)
    chooser.wait_focus("text", "Nome del file:")
    type_path(chooser, path)
    keys("Return")
    chooser.gone()


def type_path(chooser, path):
    """As a hand does, no letter before the last one is seen: keys that arrive together while the dialog's list of suggestions opens
    or closes are lost on a busy machine."""
    field = chooser.find("text", "Nome del file:")
    for number, letter in enumerate(str(path), 1):
        type_text(letter)
        wait_for(lambda typed=str(path)[:number]: field.queryText().getText(0, -1) == typed, f"{letter!r} of {path} to be typed")


def choose_text_file(path, *boxes):
    """Opens the text import and chooses the file, and by these keys the boxes of its columns. "alt+i" in the window imports it."""
    keys("ctrl+i")
    window = Window("dialog", "Importa destinatari da file di testo")
    window.write("Percorso file di testo", str(path))
    window.wait_focus("text", "Percorso file di testo")
    keys(*boxes)
    wait_for(lambda: has(window.find("push button", "Importa destinatari"), pyatspi.STATE_SENSITIVE), "the import to be on")
    return window


def play(stage, program):
    server = desktop.MailServer(stage)
    message = stage.write_message()
    running = stage.start([program])

    main = Window("frame", "Vestrola")
    make_group(main)
    add_recipient()
    tick(main)
    add_account(server.port)
    send(message)

    server.check_the_one_message()
    if has(main.find("table cell", "Send"), pyatspi.STATE_CHECKED):
        fail("the recipient who was served is still ticked")
    open_editor(stage, running)
    keys("ctrl+q")
    stage.ends(running, 0)
    print("a group, a recipient, an account, one message sent and one written, by keys alone")


def make_group(main):
    main.wait_focus("tree", "Gruppi mailing")
    keys("space")  # the root
    main.find("push button", "Nuova cartella dentro questo livello")
    keys("ctrl+shift+n")
    main.find("table cell", "Nuovo gruppo")
    keys("Down", "F2")
    type_text("Clienti")
    keys("Return")
    main.find("table cell", "Clienti")


def add_recipient():
    keys("Insert")
    form = Window("dialog", "Aggiungi destinatario")
    form.wait_focus("tree", "Dati destinatario")
    type_text(desktop.ADDRESS)  # the form opens on the address
    keys("Return", "Down")
    type_text(desktop.NAME)
    keys("Return", "Up", "Up", "Up", "Up", "space")
    keys("alt+s")
    form.gone()


def tick(main):
    main.find("table cell", desktop.ADDRESS)
    if has(main.find("table cell", "Send"), pyatspi.STATE_CHECKED):
        fail("the new recipient is ticked, but was saved without the tick")
    keys("Tab", "space")
    wait_for(lambda: has(main.find("table cell", "Send"), pyatspi.STATE_CHECKED), "the tick")


def add_account(port):
    keys("ctrl+comma")
    window = Window("dialog", "Impostazioni Account")
    window.wait_focus("text", "Nome visualizzato")
    for text, tabs in (("La bottega", 1), ("notizie@bottega.test", 2), ("127.0.0.1", 1)):
        type_text(text)
        keys(*["Tab"] * tabs)
    type_text(port)
    keys("alt+n")
    window.find("list item", "La bottega [notizie@bottega.test]")
    keys("alt+c")
    window.gone()


def send(message):
    keys("ctrl+Return")
    window = Window("dialog", "Invia messaggi")
    window.wait_focus("text", "File messaggio da inviare")
    keys("Tab", "space")
    type_file("Apri messaggio", message)
    keys("alt+i")
    window.find("label", "Email inviate: 1")
    keys("alt+c")
    window.gone()


def open_editor(stage, running):
    """The engine of its views is loaded when the editor is first opened, and not before."""
    if stage.has_browser(running):
        fail("the browser engine was loaded without the editor")
    keys("ctrl+n")
    editor = Window("frame", "Editor Messaggi")
    wait_for(lambda: stage.has_browser(running), "the browser engine")
    write_message(editor, stage.work / "nuovo.mss")
    keys("ctrl+w")
    editor.gone()


def write_message(editor, path):
    """A subject, the Tab key, a text, all saved."""
    editor.wait_focus("text", "Oggetto")
    editor.find("document web", "")  # the browser has the empty document
    type_text(desktop.NAME)
    keys("Tab")
    type_text(desktop.TEXT)
    keys("ctrl+s")
    type_file("Salva messaggio", path)
    saved = wait_for(lambda: whole_message(path), "the whole message in its file")
    if f"[<INI-SUBJ>]{desktop.NAME}[<END-SUBJ>]" not in saved or desktop.TEXT not in saved:
        fail(f"the saved message is {saved}")


def whole_message(path):
    """The text of a message file once it is complete."""
    text = path.read_text(encoding="cp1252") if path.is_file() else ""
    return text if text.endswith("[<END-MESS>]\n") else None


if __name__ == "__main__":
    desktop.run(play)
