#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The story of a first day, on the built program from outside: an empty folder; 1,000 recipients from a text file and 50
from an Access database; a second group, a drag, an edit; a newsletter with a table, a picture, a link with a placeholder,
a piece of a web page that is pasted, and an attachment; an account; a run that is stopped and one that sends the rest
under a block limit, with three recipients that the server refuses; a restart. With VESTROLA_SHOTS set to a folder,
pictures are left there.

    first_day_test.py BUILD_FOLDER
"""
import csv
import email
import email.policy
import pathlib
import subprocess
import sys

import desktop
from desktop import fail
import samples

desktop.inside()
desktop.PATIENCE = 150  # the wait of the block limit lasts up to a minute
from accessible import Window, act, click, has, wait_for  # noqa: E402  looks for the bus when it is imported
from assistive_test import type_into  # noqa: E402
from drag_test import drag, middle  # noqa: E402
from keyboard_test import add_account, choose_text_file, keys, make_group, type_file, type_text  # noqa: E402
from scripted_mail import ScriptedMail  # noqa: E402
import pyatspi  # noqa: E402

MANY, FEW, BLOCK = 1000, 50, 30
REFUSED = {f"f{number:02}@fiera.test" for number in (7, 21, 42)}
OFFER = "<meta charset=\"utf-8\"><p>Offerta <b>:::nom:::</b> di giugno</p>"
LINK = "https://bottega.test/?n=:::nom:::"


def keep(name):
    desktop.picture(desktop.pictures() / f"giorno_{name}.png")


def rows(database, table):
    """The rows of a table, read with a foreign tool; none while the program writes."""
    told = subprocess.run(["mdb-export", str(database), table], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
                          check=False)
    return list(csv.DictReader(told.stdout.splitlines()))


def recipients(database, **wanted):
    return [row for row in rows(database, "tb_destinatari") if all(row[name] == value for name, value in wanted.items())]


def group_number(database, name):
    return next(row["id"] for row in rows(database, "tb_gruppi") if row["nome"] == name)


def import_text(stage):
    path = stage.work / "clienti.csv"
    path.write_text("".join(f"Società {number};c{number}@clienti.test\r\n" for number in range(MANY)), encoding="utf-8")
    # the name from field 1, the address from field 2
    window = choose_text_file(path, "Tab", "Tab", "Tab", "Down", "Tab", "Tab", "Down", "Down")
    keep("testo")
    keys("alt+i")
    window.gone()


def add_group(main, name):
    act(main.find("table cell", "Database Mailing"), "Press")
    keys("ctrl+shift+n")
    act(main.find("table cell", "Nuovo gruppo"), "Press")
    keys("F2")
    type_text(name)
    keys("Return")
    main.find("table cell", name)


def import_access(stage, main):
    folder = stage.work / "fiera"
    heads = "gruppo rgs nom email piva ind cap loc prov campo1 campo2 sel".split()
    people = [("Clienti", f"Ditta {n}", f"Ospite{n}", f"f{n:02}@fiera.test", *[""] * 7, "1") for n in range(FEW)]
    samples.make_folder(folder, table=samples.write_table(stage.work / "fiera.tsv", people, heads))
    act(main.find("table cell", "Fiera"), "Press")
    main.press("Importa Mailing List da Microsoft Access")
    window = Window("dialog", "Importa destinatari da Database Access")
    window.write("Percorso Database", str(folder / "data" / "data.mdb"))
    window.press("Apri")
    window.wait_focus("text", "Percorso Database")
    keys(*["Tab"] * 6)
    type_text("nom")
    keys("Tab")
    type_text("email")
    wait_for(lambda: has(window.find("push button", "Importa destinatari"), pyatspi.STATE_SENSITIVE), "the import to be on")
    keep("access")
    keys("alt+i")
    window.gone()


def choose_and_edit(main, database):
    """Only the fair's recipients are to be served; one of them moves to the other group, another gets a new name."""
    act(main.find("table cell", "Database Mailing"), "Press")
    keys("ctrl+shift+a")
    wait_for(lambda: rows(database, "tb_destinatari") and not recipients(database, sel="1"), "nobody to be ticked")
    act(main.find("table cell", "Fiera"), "Press")
    keys("ctrl+a")
    wait_for(lambda: len(recipients(database, sel="1")) == FEW, "the fair to be ticked")
    drag(middle(main.find("table cell", "f00@fiera.test")), middle(main.find("table cell", "Clienti")))
    clients = group_number(database, "Clienti")
    wait_for(lambda: recipients(database, email="f00@fiera.test", id_grp=clients), "the dragged recipient to have moved")
    act(main.find("table cell", "Fiera"), "Press")
    main.find("table cell", "f01@fiera.test")
    keys("Tab", "Home", "Return")
    form = Window("dialog", "Modifica destinatario")
    act(form.value("Nome"), "Edit")
    type_into(form.value("Nome"), "Zoe")
    form.press("Salva")
    form.gone()
    wait_for(lambda: len(recipients(database, nom="Zoe")) == 1, "the new name to be stored")
    keep("gruppi")
    return recipients(database, nom="Zoe")[0]["email"]


def paste(stage, html):
    """What another program has copied goes into the control that has the keyboard."""
    neighbour = stage.start([pathlib.Path(sys.argv[1]).resolve() / "tests" / "e2e" / "e2e_clipboard"], stdin=subprocess.PIPE,
                            stdout=subprocess.PIPE, text=True)
    neighbour.stdin.write(html)
    neighbour.stdin.close()
    wait_for(neighbour.stdout.readline, "the neighbour's clipboard")
    keys("ctrl+v")


def write_newsletter(stage):
    attachment, picture, path = stage.work / "listino.txt", stage.work / "foto.png", stage.work / "notizie.mss"
    attachment.write_text("listino", encoding="ascii")
    desktop.picture(picture)
    keys("ctrl+n")
    editor = Window("frame", "Editor Messaggi")
    editor.wait_focus("text", "Oggetto")
    editor.find("document web", "")
    type_text("Notizie per :::nom:::")
    keys("Tab")
    type_text("Gentile :::nom:::, ecco le novita. ")
    keys("ctrl+k")
    link = Window("dialog", "Collegamento")
    link.write("Indirizzo", LINK)
    link.write("Testo", "Il listino")
    link.press("OK")
    link.gone()
    editor.press("Inserisci immagine")
    image = Window("dialog", "Immagine")
    image.write("File o indirizzo", str(picture))
    image.press("OK")
    image.gone()
    keys("ctrl+End")
    paste(stage, OFFER)
    keys("ctrl+End")
    click(editor.find("push button", "Tabella"))
    keys("Down", "Return")
    keys("ctrl+shift+a")
    type_file("Inserisci allegato", attachment)
    keys("ctrl+s")
    type_file("Salva messaggio", path)

    def whole():
        text = path.read_text(encoding="cp1252") if path.is_file() else ""
        return text if text.endswith("[<END-MESS>]\n") else None

    saved = wait_for(whole, "the whole message in its file")
    for part in ("Cella2", "Offerta <b>:::nom:::</b>", LINK, "foto.png", "Gentile :::nom:::", str(attachment)):
        if part not in saved:
            fail(f"{part!r} is not in the saved message {saved!r}")
    keep("messaggio")
    keys("ctrl+w")
    editor.gone()
    return path


def figures(window):
    told = [one.name for one in pyatspi.findAllDescendants(window.frame, lambda one: one.getRoleName() == "label")]
    return {text.split(":")[0]: int(text.split(":")[1].replace(".", "")) for text in told if text.startswith("Email ")}


def run(message, stopped_at=None):
    """One run of the send window; how many it delivered and how many failed."""
    keys("ctrl+Return")
    window = Window("dialog", "Invia messaggi")
    if stopped_at:
        window.press("Apri messaggio")
        type_file("Apri messaggio", message)
        act(window.find("check box", "Non inviare più di"), "Toggle")
        window.write("Non inviare più di … email ogni", str(BLOCK))
        window.write("email ogni … minuti.", "1")
    window.press("Invia messaggi")
    if stopped_at:
        # The attachment and the picture are outside the home: asked about once.
        question = Window("dialog", "Attenzione")
        question.press("Sì")
        question.gone()
        wait_for(lambda: figures(window)["Email inviate"] >= stopped_at, f"{stopped_at} messages")
        window.press("Ferma invio")
        keep("fermato")
    else:
        window.find("label", "Email da inviare: 0")
        keep("fine")
    wait_for(lambda: has(window.find("push button", "Invia messaggi"), pyatspi.STATE_SENSITIVE), "the end of the run")
    told = figures(window)
    keys("alt+c")
    window.gone()
    return told["Email inviate"], told["Email non inviate"]


def check_newsletter(message):
    """What was pasted and what was inserted have arrived, with the recipient's own name."""
    text = email.message_from_bytes(message, policy=email.policy.default).get_body(("html",)).get_content()
    for part in ("Offerta <b>Zoe</b>", "Cella2"):
        if part not in text:
            fail(f"{part!r} is not in the message that came: {text!r}")


def play(stage, program):
    database = stage.program_folder / "data" / "data.mdb"
    server = ScriptedMail(delay=0.1, refused=REFUSED)
    running = stage.start([program])
    main = Window("frame", "Vestrola")
    keep("inizio")
    make_group(main)
    import_text(stage)
    wait_for(lambda: len(rows(database, "tb_destinatari")) == MANY, f"{MANY} recipients")
    add_group(main, "Fiera")
    import_access(stage, main)
    fair = group_number(database, "Fiera")
    wait_for(lambda: len(recipients(database, id_grp=fair)) == FEW, f"{FEW} recipients of the fair")
    changed = choose_and_edit(main, database)
    message = write_newsletter(stage)
    add_account(server.port)
    first, _ = run(message, stopped_at=5)
    if not 5 <= first < FEW - len(REFUSED):
        fail(f"the run that was stopped delivered {first}")
    left = {row["email"] for row in recipients(database, sel="1")}
    rest, failed = run(message)
    # A message whose reply was still on its way at the stop is delivered, but counts in neither run.
    if FEW - len(REFUSED) - first - rest not in (0, 1) or failed != len(REFUSED):
        fail(f"{first} and {rest} were delivered, {failed} failed")
    copies = server.copies()
    expected = {f"f{number:02}@fiera.test": 1 for number in range(FEW)}
    if copies != {address: 1 for address in expected if address not in REFUSED}:
        fail(f"the server has {copies}")
    if FEW - first - len(left) not in (0, 1):
        fail(f"after the stop {len(left)} were left, {first} delivered")
    if b"Zoe" not in dict(server.messages)[changed]:
        fail("the message to the changed recipient does not name Zoe")
    check_newsletter(dict(server.messages)[changed])

    keys("ctrl+q")
    stage.ends(running, 0)
    running = stage.start([program])
    main = Window("frame", "Vestrola")
    act(main.find("table cell", "Fiera"), "Press")
    main.find("table cell", changed)
    keep("riavvio")
    if {row["email"] for row in recipients(database, sel="1")} != REFUSED:
        fail("after the restart others than the refused ones are ticked")
    keys("ctrl+q")
    stage.ends(running, 0)
    print(f"{MANY} and {FEW} imported, {first} and {rest} delivered, {failed} refused, once each")


if __name__ == "__main__":
    desktop.run(play)
