#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Sends over the direct route with the built program, in a private network: a real name server leads to the mail servers
of three domains, one of which is down. Its recipients stay selected and the others are served; once it is up, a second run
serves them and nobody else. A fourth domain leads to an internal server that the list of own servers does not name: nothing
ever connects there. The send window is operated as by an assistive program.

    direct_route_test.py BUILD_FOLDER
"""
import csv
import mailbox
import os
import socket
import subprocess
import sys
import tempfile

import desktop
from desktop import fail, wait_for
import network
import samples

SERVERS = {"alfa.example": "127.0.0.2", "beta.example": "127.0.0.3", "spento.example": "127.0.0.4"}
DOWN = "spento.example"
HOSTILE, INSIDE_SERVER = "ladro.example", "127.0.0.9"
RECIPIENTS = [f"{name}@{domain}" for name in ("ada", "bice") for domain in SERVERS] + [f"ada@{HOSTILE}"]


def isolate():
    """Runs this script again in a private network, where resolv.conf names the test's name server."""
    network.enter()
    if desktop.INSIDE not in os.environ:
        network.raise_loopback()
        with tempfile.NamedTemporaryFile("w", prefix="resolv-") as file:
            file.write("nameserver 127.0.0.1\n")
            file.flush()
            os.chmod(file.name, 0o644)
            subprocess.run(["mount", "--bind", file.name, "/etc/resolv.conf"], check=True)


isolate()
desktop.inside()
from accessible import Window, leave, send  # noqa: E402  looks for the bus when it is imported


def start_name_server(stage):
    lines = ["server:", "interface: 127.0.0.1", "do-daemonize: no", "use-syslog: no", 'chroot: ""', 'username: ""',
             f'directory: "{stage.work}"', 'pidfile: ""', "do-ip6: no", 'module-config: "iterator"',
             'local-zone: "." static']
    for domain, address in {**SERVERS, HOSTILE: INSIDE_SERVER}.items():
        lines += [f'local-data: "{domain}. MX 10 mx.{domain}."', f'local-data: "mx.{domain}. A {address}"']
    settings = stage.work / "unbound.conf"
    settings.write_text("\n".join(lines) + "\n", encoding="ascii")
    server = stage.start(["/usr/sbin/unbound", "-d", "-c", settings])

    def resolves():
        if server.poll() is not None:
            fail("the name server does not run")
        try:
            return socket.gethostbyname("mx.alfa.example") == SERVERS["alfa.example"]
        except OSError:
            return False
    wait_for(resolves, "the name server")


class MailServer:
    """The mail server of one domain, which puts every message into a Maildir."""

    def __init__(self, stage, domain):
        self.folder = stage.work / domain
        command = [sys.executable, desktop.ROOT / "demo" / "catch_all.py", self.folder, "maildir", SERVERS[domain], "25"]
        wait_for(stage.start(command, stdout=subprocess.PIPE, text=True).stdout.readline, f"the mail server of {domain}")

    def served(self):
        return sorted(message["X-Envelope-To"] for message in mailbox.Maildir(self.folder))


def make_program_folder(stage):
    people = [(f"Ditta {number}", address.split("@")[0].capitalize(), address) for number, address in enumerate(RECIPIENTS)]
    samples.make_folder(stage.program_folder, 0, samples.write_table(stage.work / "recipients.tsv", people))


    names = "".join(f"mx.{domain}\n" for domain in SERVERS)
    (stage.program_folder / "data" / "mx-interni.txt").write_text(names, encoding="ascii")


def selected(stage):
    exported = subprocess.run(["mdb-export", stage.program_folder / "data" / "data.mdb", "tb_destinatari"],
                              stdout=subprocess.PIPE, text=True, check=True)
    return sorted(row["email"] for row in csv.DictReader(exported.stdout.splitlines()) if row["sel"] != "0")


def of(domain):
    return sorted(address for address in RECIPIENTS if address.endswith("@" + domain))


def expect(value, wanted, what):
    if value != wanted:
        fail(f"{what}: {value} instead of {wanted}")


def play(stage, program):
    make_program_folder(stage)
    start_name_server(stage)
    servers = {domain: MailServer(stage, domain) for domain in SERVERS if domain != DOWN}
    inside = socket.create_server((INSIDE_SERVER, 25))
    inside.setblocking(False)
    message = stage.write_message()
    running = stage.start([program])
    main = Window("frame", "Vestrola")

    send(main, message, delivered=4, failed=3)
    for domain, server in servers.items():
        expect(server.served(), of(domain), f"what came to {domain}")
    expect(selected(stage), sorted(of(DOWN) + of(HOSTILE)), "still selected")

    servers[DOWN] = MailServer(stage, DOWN)
    send(main, message, delivered=2, failed=1)
    for domain, server in servers.items():
        expect(server.served(), of(domain), f"what came to {domain} in both runs")
    expect(selected(stage), of(HOSTILE), "still selected at the end")
    try:
        fail(f"a connection came to the inside: {inside.accept()}")
    except BlockingIOError:
        pass

    leave(main)
    stage.ends(running, 0)
    print("three domains by the direct route: two served, the third one once its server was up")


if __name__ == "__main__":
    desktop.run(play)
