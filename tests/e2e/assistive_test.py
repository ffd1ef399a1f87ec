#!/usr/bin/env python3
"""Does the whole job as an assistive program does it for its user, on the built program, from its very first start to the
message in a Maildir: a group, a recipient in it, its tick, an account, the send window. Every control is found by its
role and name; buttons, menus and boxes are worked by their actions, texts are written into them, and rows of lists are
clicked where they say that they are.

    assistive_test.py BUILD_FOLDER
"""
import time

import desktop
from desktop import fail, wait_for

desktop.inside()
import pyatspi  # noqa: E402  looks for the bus when it is imported
from gi.repository import GLib  # noqa: E402
from accessible import Window, act, click, extents, has  # noqa: E402


def play(stage, program):
    server = desktop.MailServer(stage)
    message = stage.write_message()
    running = stage.start([program])

    main = Window("frame", "Vestrola")
    click(main.find("table cell", "Database Mailing"))
    main.press("Nuova cartella dentro questo livello")
    click(main.find("table cell", "Nuovo gruppo"))
    add_recipient(main)
    hear_the_count(main, lambda: tick(main))
    add_account(main, server.port)
    send(main, message)

    server.check_the_one_message()
    if has(main.find("table cell", "Send"), pyatspi.STATE_CHECKED):
        fail("the recipient who was served is still ticked")
    act(main.find("menu item", "File"), "ShowMenu")
    act(main.find("menu item", "Esci"), "Press")
    stage.ends(running, 0)
    print("a group, a recipient, an account and one message by actions of assistive programs")


def add_recipient(main):
    main.press("Nuovo destinatario in questa cartella")
    form = Window("dialog", "Aggiungi destinatario")
    click(form.value("Send"))
    for name, text in (("Email", desktop.ADDRESS), ("Nome", "Ada")):
        click(form.value(name), "b1d")
        pyatspi.Registry.generateKeyboardEvent(0, text, pyatspi.KEY_STRING)
    form.press("Salva")
    form.gone()


def tick(main):
    main.find("table cell", desktop.ADDRESS)
    box = main.find("table cell", "Send")
    if has(box, pyatspi.STATE_CHECKED):
        fail("the new recipient is ticked, but was saved without the tick")
    click(box)
    wait_for(lambda: has(main.find("table cell", "Send"), pyatspi.STATE_CHECKED), "the tick")


def hear_the_count(main, first_move):
    """A count is told when the pointer first comes to the list, and not at each move that shows it anew."""
    told = []

    def listen(event):
        if event.source.getRoleName() == "label":
            told.append(event.source.name)

    def heard():
        while GLib.MainContext.default().iteration(False):
            pass
        return told

    pyatspi.Registry.registerEventListener(listen, "object:property-change:accessible-name")
    first_move()
    rows, tree = extents(main.find("table", "Mailing List")), extents(main.find("tree", "Gruppi mailing"))
    for left, top, _, _ in (tree, rows, tree, rows):
        for way in (60, 80):
            pyatspi.Registry.generateMouseEvent(left + way, top + 2 * way, "abs")
            time.sleep(0.2)
    wait_for(heard, "the count")
    pyatspi.Registry.deregisterEventListener(listen, "object:property-change:accessible-name")
    if told != ["Email presenti: 1"]:
        fail(f"the texts that were told are {told}")


def add_account(main, port):
    main.press("Imposta Account")
    window = Window("dialog", "Impostazioni Account")
    for name, text in (("Nome visualizzato", "La bottega"), ("Email", "notizie@bottega.test"),
                       ("Server SMTP", "127.0.0.1"), ("PORTA", port)):
        window.write(name, text)
    window.press("Nuovo Account")
    window.find("list item", "La bottega [notizie@bottega.test]")
    window.press("Chiudi")
    window.gone()


def send(main, message):
    main.press("Invia messaggi")
    window = Window("dialog", "Invia messaggi")
    window.press("Apri messaggio")
    chooser = Window("dialog", "Apri messaggio")
    chooser.write("Nome del file:", str(message))
    chooser.press("Apri")
    chooser.gone()
    window.press("Invia messaggi")
    window.find("label", "Email inviate: 1")
    window.press("Chiudi")
    window.gone()


if __name__ == "__main__":
    desktop.run(play)
