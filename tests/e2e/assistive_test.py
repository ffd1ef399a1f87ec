#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Does the whole job as an assistive program does it for its user, on the built program, from its very first start to the
message in a Maildir: a group, a recipient in it, its tick, an account, the send window. Every control is found by its
role and name; buttons, menus, boxes and the rows of lists are worked by their actions, and texts are written into them.
The pointer is only moved to hear what is announced.

    assistive_test.py BUILD_FOLDER
"""
import time

import desktop
from desktop import fail

desktop.inside()
import pyatspi  # noqa: E402  looks for the bus when it is imported
from gi.repository import GLib  # noqa: E402
from accessible import Window, act, extents, has, leave, send, wait_for  # noqa: E402


def play(stage, program):
    server = desktop.MailServer(stage)
    message = stage.write_message()
    running = stage.start([program])

    main = Window("frame", "Vestrola")
    act(main.find("table cell", "Database Mailing"), "Press")
    main.press("Nuova cartella dentro questo livello")
    rename_group(main)
    add_recipient(main)
    hear("object:state-changed:checked", "table cell", lambda: tick(main), ["Send"])
    hear_the_count(main)
    add_account(main, server.port)
    hear("object:state-changed:showing", "notification", lambda: send(main, message),
         ["Invio terminato, Email da inviare: 0, Email non inviate: 0, Email inviate: 1"])

    server.check_the_one_message()
    if has(main.find("table cell", "Send"), pyatspi.STATE_CHECKED):
        fail("the recipient who was served is still ticked")
    leave(main)
    stage.ends(running, 0)
    print("a group, a recipient, an account and one message by actions of assistive programs")


def rename_group(main):
    act(main.find("table cell", "Nuovo gruppo"), "Press")
    act(main.find("table cell", "Nuovo gruppo"), "Edit")
    type_into(main.find("table cell", "Nuovo gruppo"), "Clienti")
    main.find("table cell", "Clienti")


def type_into(item, text):
    """Writes into the editor in the item and leaves it."""
    editor = wait_for(lambda: item.childCount and item[0], f"the editor of {item.name!r}")
    if not editor.queryEditableText().setTextContents(text):
        fail(f"the editor of {item.name!r} cannot be written")
    pyatspi.Registry.generateKeyboardEvent(0xff0d, None, pyatspi.KEY_SYM)


def add_recipient(main):
    main.press("Nuovo destinatario in questa cartella")
    form = Window("dialog", "Aggiungi destinatario")
    act(form.value("Send"), "Toggle")
    for name, text in (("Email", desktop.ADDRESS), ("Nome", "Ada")):
        act(form.value(name), "Edit")
        type_into(form.value(name), text)
    form.press("Salva")
    form.gone()


def tick(main):
    main.find("table cell", desktop.ADDRESS)
    box = main.find("table cell", "Send")
    if has(box, pyatspi.STATE_CHECKED):
        fail("the new recipient is ticked, but was saved without the tick")
    act(box, "Toggle")
    wait_for(lambda: has(main.find("table cell", "Send"), pyatspi.STATE_CHECKED), "the tick")


def hear(event_name, role, doing, wanted):
    """What the controls of that role announce while something is done."""
    told = []

    def listen(event):
        begins = event.detail1 == 1 or not event.type.startswith("object:state-changed")
        try:
            if begins and event.source.getRoleName() == role:
                told.append(event.source.name)
        except GLib.GError:
            pass  # it has disappeared meanwhile

    def heard():
        while GLib.MainContext.default().iteration(False):
            pass
        return told

    pyatspi.Registry.registerEventListener(listen, event_name)
    doing()
    wait_for(heard, wanted)
    pyatspi.Registry.deregisterEventListener(listen, event_name)
    if told != wanted:
        fail(f"what was told is {told} instead of {wanted}")


def hear_the_count(main):
    """A count is announced when the pointer first enters the list, and not at each move that shows it again."""
    def move():
        rows, tree = extents(main.find("table", "Mailing List")), extents(main.find("tree", "Gruppi mailing"))
        for left, top, _, _ in (tree, rows, tree, rows):
            for way in (60, 80):
                pyatspi.Registry.generateMouseEvent(left + way, top + 2 * way, "abs")
                time.sleep(0.2)

    hear("object:property-change:accessible-name", "label", move, ["Email presenti: 1"])


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


if __name__ == "__main__":
    desktop.run(play)
