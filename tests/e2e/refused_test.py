#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Before and after a run over the direct route with the built program, in a private network with a real name server and a
real mail server: a test copy from "Prova messaggio..." arrives, a silent name server does not block the window, and after
a run with one unknown mailbox "Esito degli invii..." says who was served, who was refused, and why. The windows are
operated as by an assistive program.

    refused_test.py BUILD_FOLDER
"""
import email
import email.policy
import os
import pwd
import signal
import tempfile

from sender_check_test import NameServer, resolves  # moves into a private network
import desktop
import direct_route_test
from desktop import fail, wait_for
import samples
from accessible import Window, act, choose_file, is_shown, leave, send
import postfix
from postfix import Postfix
import pyatspi

OWN, CLIENTS = "bottega.example", "clienti.example"
MAIL, ADDRESS = "mx.bottega.example", "127.0.0.2"
SENDER = f"notizie@{OWN}"
KNOWN, UNKNOWN = [f"ada@{CLIENTS}", f"bice@{CLIENTS}"], f"ignota@{CLIENTS}"
RECORDS = [f'"{OWN}. MX 10 {MAIL}."', f'"{CLIENTS}. MX 10 {MAIL}."', f'"{MAIL}. A {ADDRESS}"']

NO_ANSWER = ("La prova non è stata consegnata. Ricerca del server di posta non riuscita: il DNS non risponde. "
             "Riprovare più tardi.")

MAILBOXES = """mydestination =
mynetworks =
virtual_mailbox_domains = {domains}
virtual_mailbox_maps = inline:{{ {boxes} }}
virtual_mailbox_base = {folder}/mail
virtual_uid_maps = static:65534
virtual_gid_maps = static:65534
"""


class MailServer(Postfix):
    """A Postfix for the mailboxes of two domains, which puts the mail of each address into a Maildir of its own."""

    def __init__(self, folder):
        boxes = ", ".join(f"{{ {address} = {address}/ }}" for address in [SENDER, *KNOWN])
        super().__init__(folder, MAIL, f"{ADDRESS}:25", MAILBOXES.format(folder=folder, boxes=boxes, domains=f"{OWN}, {CLIENTS}"))
        (self.folder / "mail").mkdir()
        os.chown(self.folder / "mail", pwd.getpwnam("nobody").pw_uid, -1)

    def mail(self, address):
        """The first message in the mailbox, once there is one."""
        def arrived():
            return [*(self.folder / "mail" / address / "new").glob("*")]
        path = wait_for(arrived, f"mail for {address}", self.log)[0]
        return email.message_from_bytes(path.read_bytes(), policy=email.policy.default)


def make_program_folder(stage):
    people = [(f"Ditta {number}", address.split("@")[0].capitalize(), address) for number, address in enumerate([*KNOWN, UNKNOWN])]
    samples.make_folder(stage.program_folder, 0, samples.write_table(stage.work / "recipients.tsv", people))
    (stage.program_folder / "data" / "mx-interni.txt").write_text(MAIL + "\n", encoding="ascii")


def open_tool(main, command, title):
    act(main.find("menu item", "Strumenti"), "ShowMenu")
    act(main.find("menu item", command), "Press")
    return Window("dialog", title)


def told(window):
    """What the window says of the copy; None before there is a verdict."""
    label = pyatspi.findDescendant(
        window.frame, lambda one: one.getRoleName() == "label" and one.name.startswith("La prova ") and is_shown(one))
    return label and label.name


def try_message(main, names, server, message):
    window = open_tool(main, "Prova messaggio...", "Prova messaggio")
    window.press("Sfoglia il messaggio")
    choose_file("Apri messaggio", message)

    names.process.send_signal(signal.SIGSTOP)
    window.press("Invia una copia di prova")
    window.press("Successivo")  # the window is not blocked
    window.find("label", NO_ANSWER)
    names.process.send_signal(signal.SIGCONT)

    window.write("Indirizzo della prova", UNKNOWN)
    window.press("Invia una copia di prova")
    words = wait_for(lambda: (told(window) or "") if "550" in (told(window) or "") else None, "the refusal of the copy",
                     lambda: told(window))
    if "5.1.1" not in words:
        fail(f"the refusal of the copy is told as {words}")

    window.write("Indirizzo della prova", SENDER)
    window.press("Invia una copia di prova")
    words = wait_for(lambda: (told(window) or "") if "accettata" in (told(window) or "") else None, "the copy to be taken",
                     lambda: told(window))
    if not words.startswith(f"La prova è stata accettata dal server per {SENDER}. Il server ha risposto: 250"):
        fail(f"the copy is told as {words}")
    copy = server.mail(SENDER)
    if copy["Subject"] != desktop.SUBJECT.replace(":::nom:::", "Bice"):
        fail(f"the copy is not that of the recipient on show:\n{copy}")
    desktop.picture(desktop.pictures() / "copy.png")
    window.press("Chiudi")
    window.gone()


def rows(window):
    """The lines of the book by address: outcome, reason, the server's words."""
    cells = [cell.name for cell in pyatspi.findAllDescendants(
        window.frame, lambda one: one.getRoleName() == "table cell" and is_shown(one))]
    return dict(zip(cells[1::5], zip(cells[2::5], cells[3::5], cells[4::5])))


def read_outcomes(main, stage):
    window = open_tool(main, "Esito degli invii...", "Esito degli invii")
    window.find("label", "3 destinatari.")
    lines = wait_for(lambda: rows(window), "the lines of the book")
    desktop.picture(desktop.pictures() / "outcomes.png")
    if sorted(lines) != sorted([*KNOWN, UNKNOWN]):
        fail(f"the book tells of {sorted(lines)}")
    for address in KNOWN:
        if lines[address][:2] != ("Consegnato", "") or not lines[address][2].startswith("250 2.0.0 "):
            fail(f"{address}: {lines[address]}")
    outcome, reason, words = lines[UNKNOWN]
    if (outcome, reason) != ("Rifiutato", "Casella o indirizzo inesistente") or not words.startswith("550 5.1.1 "):
        fail(f"{UNKNOWN}: {lines[UNKNOWN]}")
    window.write("Trova", "inesistente")
    window.find("label", "1 di 3 destinatari.")
    if list(rows(window)) != [UNKNOWN]:
        fail(f"found: {rows(window)}")
    window.press("Deseleziona gli indirizzi inesistenti")
    Window("alert", "").press("OK")
    direct_route_test.expect(direct_route_test.selected(stage), [], "still selected")
    window.press("Chiudi")
    window.gone()


def play(stage, program):
    make_program_folder(stage)
    names = NameServer(stage, RECORDS)
    wait_for(resolves, "the name server")
    message = stage.write_message()
    with tempfile.TemporaryDirectory() as folder, MailServer(folder) as server:
        running = stage.start([program])
        main = Window("frame", "Vestrola")
        try_message(main, names, server, message)
        direct_route_test.expect(direct_route_test.selected(stage), sorted([*KNOWN, UNKNOWN]), "selected after the copy")
        if (stage.program_folder / "data" / "esiti").exists():
            fail("the test copy entered the book")

        send(main, message, delivered=2, failed=1)
        for address in KNOWN:
            if server.mail(address)["Subject"] != desktop.SUBJECT.replace(":::nom:::", address.split("@")[0].capitalize()):
                fail(f"the mail of {address} is another one's")
        direct_route_test.expect(direct_route_test.selected(stage), [UNKNOWN], "selected after the run")
        read_outcomes(main, stage)

        leave(main)
        stage.ends(running, 0)
    print("a copy tried, a run with an unknown mailbox, and its outcomes told")


if __name__ == "__main__":
    if not postfix.is_possible():
        print(postfix.SKIPPED)
    else:
        desktop.run(play)
