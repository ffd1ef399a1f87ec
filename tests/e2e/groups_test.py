#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Works on the groups of the built program by keys: what moves, what is asked before a deletion, what a key leaves alone, and a
database under a name that no old code page contains. What the database contains afterwards is read with foreign tools.

    groups_test.py BUILD_FOLDER
"""
import os
import shutil

import desktop
from desktop import fail
import samples

desktop.inside()
import pyatspi  # noqa: E402  looks for the bus when it is imported
from accessible import Window, choose_file, click, has, wait_for  # noqa: E402
from drag_test import Table, drag, middle  # noqa: E402
from keyboard_test import keys  # noqa: E402

FIRST = "banco@barsport.example"


def play(stage, program):
    folder = stage.work / "sample"
    samples.make_folder(folder)
    database = folder / "data" / "data.mdb"
    other = stage.work / "łódź; 2.mdb"
    shutil.copy(database, other)

    def start():
        return stage.start([program], env={**os.environ, "VESTROLA_FOLDER": str(folder)})

    running = start()
    main = Window("frame", "Vestrola")
    groups, people = Table(database, "tb_gruppi", "nome"), Table(database, "tb_destinatari", "email")
    move_by_keys(main, groups, people)
    leave_alone_what_is_not_shown(main, groups, people)
    ask_before_deleting(main, groups)
    open_database(main, other)
    keys("ctrl+q")
    stage.ends(running, 0)
    running = start()
    main = Window("frame", "Vestrola")
    Table(other, "tb_gruppi", "nome").expect("Nuovo gruppo", "id_up", "0")
    main.find("table cell", "Nuovo gruppo")
    keys("ctrl+q")
    stage.ends(running, 0)
    print("groups and recipients moved, left alone, asked about, and found again, by keys")


def select(main, group):
    cell = main.find("table cell", group)
    click(cell)
    wait_for(lambda: has(cell, pyatspi.STATE_SELECTED), f"{group!r} to be selected")


def menu_opens(main):
    """Once this key has its effect, the keys before it have been processed."""
    keys("F10")
    item = main.find("menu item", "Imposta Account")
    keys("Escape", "Escape")
    wait_for(lambda: not has(item, pyatspi.STATE_SHOWING), "the menu to close")


def move_by_keys(main, groups, people):
    select(main, "Clienti")
    click(main.find("table cell", FIRST))
    keys("ctrl+x")
    select(main, "Stampa")
    keys("ctrl+v")
    people.expect(FIRST, "id_grp", groups.value("Stampa", "id"))
    row = main.find("table cell", FIRST)
    heads = row.parent.queryTable()
    if heads.getRowDescription(heads.getRowAtIndex(row.getIndexInParent())) != FIRST:
        fail("the row is not named by its address")


def leave_alone_what_is_not_shown(main, groups, people):
    """After a drop the group of the drop is current, while the one before is shown as selected."""
    drag(middle(main.find("table cell", FIRST)), middle(main.find("table cell", "Clienti")))
    people.expect(FIRST, "id_grp", groups.value("Clienti", "id"))
    click(main.find("table cell", FIRST))
    keys("Delete")
    menu_opens(main)
    if groups.value("Clienti", "id") is None or people.value(FIRST, "id_grp") is None:
        fail("a key acted on a group that is not the one shown")


def ask_before_deleting(main, groups):
    select(main, "Stampa")
    keys("Delete")
    box = Window("alert", "Attenzione")
    if "Sicuro di voler eliminare questo gruppo?" not in box.frame.description:
        fail(f"the box is described as {box.frame.description!r}")
    wait_for(lambda: [one for one in descendants(main.frame, "label") if one.name.startswith("Stampa: ")],
             "the group's name and count in the status bar")
    keys("Return")
    box.gone()
    menu_opens(main)
    if groups.value("Stampa", "id") is None:
        fail("Return deleted the group")


def descendants(control, role):
    return pyatspi.findAllDescendants(control, lambda one: one.getRoleName() == role)


def open_database(main, path):
    keys("ctrl+o")
    box = Window("alert", "Attenzione")
    keys("Return")
    box.gone()
    choose_file("Apri Mailing List", path)
    select(main, "Database Mailing")
    keys("ctrl+shift+n")
    main.find("table cell", "Nuovo gruppo")


if __name__ == "__main__":
    desktop.run(play)
