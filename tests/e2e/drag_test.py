#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Drags recipients and groups with the mouse over the built program, and floats the pane of the groups; what the database
contains afterwards is read with foreign tools.

    drag_test.py BUILD_FOLDER
"""
import csv
import os
import subprocess

import desktop
import samples

desktop.inside()
from accessible import Window, act, click, extents, wait_for  # noqa: E402  looks for the bus when it is imported


class Table:
    """A table of the database, read with foreign tools."""

    def __init__(self, database, name, key):
        self.database, self.name, self.key = database, name, key

    def expect(self, row, column, value):
        wait_for(lambda: self.value(row, column) == value, f"{column} of {row} to be {value}")

    def value(self, row, column):
        """None where the row is not found, which can happen while the program writes."""
        exported = subprocess.run(["mdb-export", str(self.database), self.name], stdout=subprocess.PIPE, text=True, check=False)
        return {one[self.key]: one for one in csv.DictReader(exported.stdout.splitlines())}.get(row, {}).get(column)


def middle(control):
    left, top, width, height = extents(control)
    return left + min(width // 2, 60), top + height // 2


def below(control):
    """The empty space of a list under its last entry."""
    left, top, width, height = extents(control)
    return left + width // 2, top + height - 40


def drag(begin, end):
    steps = [(begin[0] + (end[0] - begin[0]) * n // 10, begin[1] + (end[1] - begin[1]) * n // 10) for n in range(1, 11)]
    moves = [word for x, y in steps for word in ("mousemove", str(x), str(y), "sleep", "0.05")]
    # pressed late enough not to be a double click's second press; moved slowly, as the program handles each step
    subprocess.run(["xdotool", "mousemove", *map(str, begin), "sleep", "0.6", "mousedown", "1", "sleep", "0.3", *moves, "sleep", "0.5",
                    "mouseup", "1", "sleep", "0.2"], check=True)


def play(stage, program):
    folder = stage.work / "sample"
    samples.make_folder(folder)
    database = folder / "data" / "data.mdb"
    running = stage.start([program], env={**os.environ, "VESTROLA_FOLDER": str(folder)})
    main = Window("frame", "Vestrola")
    groups(main, Table(database, "tb_gruppi", "nome"))
    float_the_pane(main)
    recipients(main, Table(database, "tb_destinatari", "email"), Table(database, "tb_gruppi", "nome"))
    Window("alert", "Vestrola").press("Chiudi")  # the failure of the recipient that was dropped on nothing
    stage.ends(running, 1)
    print("recipients and groups dragged to groups, to the root, to a descendant and to nothing")


def groups(main, table):
    def node(name):
        return main.find("table cell", name)

    def drop(group, place, parent):
        click(node(group))
        drag(middle(node(group)), place)
        table.expect(group, "id_up", parent)

    number = table.value("Clienti", "id")
    drop("Rivenditori", middle(node("Clienti")), number)
    click(node("Clienti"))
    subprocess.run(["xdotool", "key", "Right"], check=True)  # shows the group that is now below
    drop("Clienti", middle(node("Rivenditori")), "0")
    drop("Rivenditori", middle(node("Rivenditori")), number)
    drop("Rivenditori", below(main.find("tree", "Gruppi mailing")), number)
    drop("Rivenditori", middle(node("Database Mailing")), "0")


def float_the_pane(main):
    act(main.find("push button", "Fluttua"), "Press")
    pane = Window("frame", "Gruppi mailing", active=False)
    pane.press("Fluttua")
    main.find("tree", "Gruppi mailing")


def recipients(main, table, group):
    first = "banco@barsport.example"

    def row():
        return middle(main.find("table cell", first))

    number = group.value("Stampa", "id")
    click(main.find("table cell", "Clienti"))
    drag(row(), middle(main.find("table cell", "Stampa")))
    table.expect(first, "id_grp", number)
    drag(row(), middle(main.find("table cell", "Database Mailing")))
    table.expect(first, "id_grp", "0")
    drag(row(), below(main.find("tree", "Gruppi mailing")))
    table.expect(first, "id_grp", "0")


if __name__ == "__main__":
    desktop.run(play)
