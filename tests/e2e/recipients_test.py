#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Maintains the recipients of the built program by keys: finds them in the folder and everywhere, sorts them, deselects double
addresses, brings back lost folders, looks at the last import; waits for another program that locks the file, reports a file
that is damaged while the program runs. What the database contains is read with foreign tools.

    recipients_test.py BUILD_FOLDER
"""
import os

import desktop
from desktop import fail
import samples

desktop.inside()
import pyatspi  # noqa: E402  looks for the bus when it is imported
from accessible import Window, has, is_shown, wait_for  # noqa: E402
from drag_test import Table  # noqa: E402
from keyboard_test import choose_text_file, keys, type_text  # noqa: E402
from locked_test import Lock  # noqa: E402

PEOPLE = """gruppo\trgs\temail\tsel\tid_grp
Clienti\tAzienda Uno\tzeta@x.test\t1
Clienti\tCaffè Due\tuno@x.test\t1
Soci\tCircolo PERÙ\tperu@x.test\t0
Soci\tSocio Due\tUNO@x.test\t1
Soci\tPerduto Sei\tsei@x.test\t0\t777
"""
CLIENTS, COMPANY = ["Azienda Uno", "Caffè Due"], 3
PAGE = 4096


def play(stage, program):
    folder = stage.work / "sample"
    table = stage.work / "people.tsv"
    table.write_text(PEOPLE, encoding="utf-8")
    samples.make_folder(folder, table=table)
    database = folder / "data" / "data.mdb"
    running = stage.start([program], env={**os.environ, "VESTROLA_FOLDER": str(folder)})
    main = Window("frame", "Vestrola")
    people = Table(database, "tb_destinatari", "rgs")
    find(main)
    sort(main)
    deselect_doubles(people)
    bring_back_lost_ones(main, people)
    last_import(stage)
    wait_for_another_program(main, database)
    tell_of_damage(stage, main, database)
    keys("ctrl+q")
    stage.ends(running, 0)
    print("recipients were found, sorted, looked after; a lock was waited for and damage told")


def said(main, text):
    """The find bar's answer."""
    main.find("label", text)


def companies(main):
    """The texts of that column of the grid, from the top."""
    cells = pyatspi.findAllDescendants(main.frame, lambda one: one.getRoleName() == "table cell" and one.name in {
        row.split("\t")[1] for row in PEOPLE.splitlines()})
    return [cell.name for cell in sorted(cells, key=lambda one: one.getIndexInParent())]


def show_companies(main, wanted):
    wait_for(lambda: companies(main) == wanted, f"the rows {wanted}", lambda: companies(main))


def chosen(main, name):
    cell = main.find("table cell", name)
    wait_for(lambda: has(cell, pyatspi.STATE_SELECTED), f"{name!r} to be the current row")


def find(main):
    main.wait_focus("tree", "Gruppi mailing")
    keys("space", "Down", "space")  # the root, then its first group
    show_companies(main, CLIENTS)
    keys("ctrl+f")
    main.wait_focus("text", "Trova")
    type_text("CAFFE")
    said(main, "1 di 1")
    chosen(main, "Caffè Due")
    keys("ctrl+a")
    type_text("peru")
    said(main, "Nessun risultato")
    keys("Tab", "Tab", "Tab", "Down")  # past the two buttons: where to look
    said(main, "1 in 1 cartella")
    keys("ctrl+f", "Return")
    chosen(main, "Circolo PERÙ")
    said(main, "1 in 1 cartella; qui 1 di 1")
    keys("ctrl+a")
    type_text("azienda")
    said(main, "1 in 1 cartella")
    keys("Return")
    chosen(main, "Azienda Uno")
    desktop.picture(desktop.pictures() / "trova.png")
    keys("Escape")
    show_companies(main, CLIENTS)


def sort(main):
    """The match was in the column of the companies, which is the current one."""
    wait_for(lambda: has(main.find("table cell", "Azienda Uno"), pyatspi.STATE_FOCUSED), "the grid to have the keyboard")
    for wanted, told in ((CLIENTS, "Ordinati per Ragione Sociale, crescente"),
                         (CLIENTS[::-1], "Ordinati per Ragione Sociale, decrescente"), (CLIENTS, "Ordine dell'elenco")):
        keys("ctrl+shift+o")
        main.find("label", told)
        show_companies(main, wanted)
    keys("Left", "ctrl+shift+o")
    main.find("label", "Ordinati per Email, crescente")
    show_companies(main, CLIENTS[::-1])
    chosen(main, "Azienda Uno")
    desktop.picture(desktop.pictures() / "ordinati.png")


def start_tool(letter):
    keys("alt+s", letter)


def deselect_doubles(people):
    start_tool("i")
    question = Window("dialog", "Indirizzi doppi")
    question.find("table cell", "Viene deselezionato")
    desktop.picture(desktop.pictures() / "doppi.png")
    question.press("Sì")
    question.gone()
    people.expect("Socio Due", "sel", "0")
    if [people.value(name, "sel") for name in CLIENTS] != ["1", "1"]:
        fail("more than the double address was deselected")
    start_tool("i")
    notice = Window("alert", "Indirizzi doppi")
    if "Nessun indirizzo è selezionato più di una volta." not in notice.frame.description:
        fail(f"the box says {notice.frame.description!r}")
    keys("Return")
    notice.gone()


def bring_back_lost_ones(main, people):
    start_tool("c")
    question = Window("dialog", "Recupera cartelle perdute")
    question.find("table cell", "(cartella 777)")
    desktop.picture(desktop.pictures() / "perdute.png")
    question.press("Sì")
    question.gone()
    people.expect("Perduto Sei", "id_grp", "0")
    select_root(main)
    show_companies(main, ["Perduto Sei"])


def select_root(main):
    pyatspi_cell = main.find("table cell", "Database Mailing")
    pyatspi_cell.queryAction().doAction(0)


def last_import(stage):
    start_tool("u")
    window = Window("dialog", "Ultima importazione")
    window.find("label", "Dall'avvio del programma non è stata fatta nessuna importazione.")
    window.press("Chiudi")
    window.gone()
    path = stage.work / "lista.csv"
    path.write_text("buono@x.test\r\nnessun indirizzo\r\n", encoding="utf-8")
    importing = choose_text_file(path, *["Tab"] * 5, "Down")  # the box of the address
    keys("alt+i")
    importing.gone()
    start_tool("u")
    window = Window("dialog", "Ultima importazione")
    window.find("table cell", "Rifiutata")
    window.find("table cell", "nessun indirizzo")
    if [one for one in pyatspi.findAllDescendants(window.frame, is_shown) if one.name == "buono@x.test"]:
        fail("the lines that were taken are shown unasked")
    desktop.picture(desktop.pictures() / "importazione.png")
    window.press("Chiudi")
    window.gone()


def wait_for_another_program(main, database):
    lock = Lock(database)
    keys("ctrl+f", "ctrl+a")
    type_text("x.test")
    said(main, "Trovati: 0. Il database è usato da un altro programma: la ricerca riprende quando è libero.")
    lock.release()
    wait_for(lambda: "6 in 3 cartelle" in answer(main), "the search to end", lambda: answer(main))
    lock = Lock(database)
    keys("Escape")
    start_tool("i")

    def given_up():
        keys("Escape")  # one for the wait; others are dropped
        return Window.shown("alert", "Indirizzi doppi", active=False)
    notice = wait_for(given_up, "the box after Esc")
    if "Impossibile controllare gli indirizzi." not in notice.description:
        fail(f"the box says {notice.description!r}")
    lock.release()
    keys("Return")


def answer(main):
    return next((one.name for one in pyatspi.findAllDescendants(main.frame, lambda one: one.getRoleName() == "label")
                 if " cartelle" in one.name or "trovati" in one.name), "")


def tell_of_damage(stage, main, database):
    whole = bytearray(database.read_bytes())
    for page in range(0, len(whole), PAGE):
        if b"x.test" in whole[page:page + PAGE]:
            whole[page:page + PAGE] = b"\xee" * PAGE
    database.write_bytes(whole)
    keys("ctrl+f", "ctrl+a")
    type_text("uno")
    wait_for(lambda: [one for one in pyatspi.findAllDescendants(main.frame, lambda one: one.getRoleName() == "label")
                      if one.name.startswith("Ricerca non riuscita: ")], "the search to tell of the damage")
    desktop.picture(desktop.pictures() / "danneggiato.png")
    keys("Escape")
    for letter, title in (("i", "Indirizzi doppi"), ("c", "Recupera cartelle perdute")):
        start_tool(letter)
        notice = Window("alert", title)
        if "Impossibile" not in notice.frame.description:
            fail(f"the box says {notice.frame.description!r}")
        keys("Return")
        notice.gone()
    if database.read_bytes() != whole:
        fail("the damaged file was written to")


if __name__ == "__main__":
    desktop.run(play)
