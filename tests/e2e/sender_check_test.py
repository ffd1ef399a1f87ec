#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks a sender with the built program, in a private network with a real name server and a mail server: what the lines
say, a new key and its record, a name server that stops answering. The window is operated as by an assistive program.

    sender_check_test.py BUILD_FOLDER
"""
import signal
import socket
import subprocess
import sys

import direct_route_test  # noqa: F401  moves into a private network
import desktop
from desktop import fail, wait_for
import samples
from accessible import Window, act, is_shown, leave
import pyatspi

DOMAIN = "bottega.example"
MAIL = "mx.bottega.example"
RECORDS = [f'"{DOMAIN}. MX 10 {MAIL}."', f'"{MAIL}. A 127.0.0.2"', f'"{DOMAIN}. A 127.0.0.2"',
           f"'{DOMAIN}. TXT \"v=spf1 mx ipv4:192.0.2.1 -all\"'", f"'_dmarc.{DOMAIN}. TXT \"v=DMARC1; p=reject\"'"]


class NameServer:
    def __init__(self, stage, records):
        self.stage, self.settings = stage, stage.work / "unbound.conf"
        self.start(records)

    def start(self, records):
        lines = ["server:", "interface: 127.0.0.1", "do-daemonize: no", "use-syslog: no", 'chroot: ""', 'username: ""',
                 f'directory: "{self.stage.work}"', 'pidfile: ""', "do-ip6: no", 'module-config: "iterator"',
                 'local-zone: "." static', *(f"local-data: {record}" for record in records)]
        self.settings.write_text("\n".join(lines) + "\n", encoding="ascii")
        self.process = self.stage.start(["/usr/sbin/unbound", "-d", "-c", self.settings])

    def publish(self, record):
        self.process.kill()
        self.process.wait()
        self.start([*RECORDS, record])
        wait_for(resolves, "the name server")


def resolves():
    try:
        return socket.gethostbyname(MAIL)
    except OSError:
        return None


def rows(window):
    """What the lines say, by what they are about."""
    cells = [cell.name for cell in pyatspi.findAllDescendants(
        window.frame, lambda one: one.getRoleName() == "table cell" and is_shown(one))]
    return dict(zip(cells[0::3], zip(cells[1::3], cells[2::3])))


def check(window, first=False):
    if not first:  # the previous result disappears first
        window.press("Copia tutto")
        window.find("label", "Il rapporto è negli appunti.")
    window.press("Controlla")
    wait_for(lambda: pyatspi.findDescendant(
        window.frame, lambda one: one.getRoleName() == "label" and one.name.startswith("Controllo finito")), "the check's end")
    return rows(window)


def expect(told, line, word):
    if told.get(line, ("nothing",))[0] != word:
        fail(f"{line}: {told.get(line)} instead of {word}; all: {told}")


def make_key(window):
    """Makes the key by the window and returns the line for a zone file that it shows."""
    window.press("Crea chiave DKIM...")
    Window("alert", "Chiave DKIM").press("Sì")
    shown = Window("dialog", "Chiave DKIM di")
    desktop.picture(desktop.pictures() / "key.png")
    line = shown.find("text", "Riga per un file di zona").queryText().getText(0, -1)
    shown.press("Chiudi")
    shown.gone()
    return line


def play(stage, program):
    samples.make_folder(stage.program_folder)
    names = NameServer(stage, RECORDS)
    wait_for(resolves, "the name server")
    server = stage.start([sys.executable, desktop.ROOT / "demo" / "catch_all.py", stage.work / "Maildir", "maildir", "127.0.0.1",
                          "25"], stdout=subprocess.PIPE, text=True)
    wait_for(server.stdout.readline, "the mail server")
    running = stage.start([program])
    main = Window("frame", "Vestrola")
    act(main.find("menu item", "Strumenti"), "ShowMenu")
    act(main.find("menu item", "Controllo del mittente..."), "Press")
    window = Window("dialog", "Controllo del mittente")

    told = check(window, first=True)
    desktop.picture(desktop.pictures() / "check.png")
    for line, word in {"Posta in arrivo (MX)": "In ordine", "Indirizzo del dominio (A)": "In ordine", "SPF": "Da correggere",
                       "Firma DKIM": "Attenzione", "DMARC": "Da correggere", "Server raggiunto": "In ordine",
                       "TLS": "Attenzione", "Accesso": "In ordine", "Dimensione massima": "In ordine"}.items():
        expect(told, line, word)
    if "ipv4:192.0.2.1" not in told["SPF"][1]:
        fail(f"the faulty term is not told: {told['SPF']}")

    name, _, value = make_key(window).partition(" IN TXT ( ")
    key = stage.program_folder / "data" / "dkim" / f"{DOMAIN}.pem"
    if key.stat().st_mode & 0o777 != 0o600:
        fail(f"the key has the mode {key.stat().st_mode:o}")
    expect(check(window), "Firma DKIM", "Da correggere")
    names.publish(f"'{name} TXT {value.removesuffix(' )')}'")
    told = check(window)
    expect(told, "Firma DKIM", "In ordine")
    expect(told, "DMARC", "In ordine")

    names.process.send_signal(signal.SIGSTOP)
    window.press("Controlla")
    window.find("label", "Controllo in corso… Esc per interrompere.")
    subprocess.run(["xdotool", "key", "Escape"], check=True)
    window.find("label", "Controllo interrotto.")
    window.press("Chiudi")
    window.gone()

    leave(main)
    stage.ends(running, 0)
    print("a sender checked line by line, its key made and found, and a silent name server left")


if __name__ == "__main__":
    desktop.run(play)
