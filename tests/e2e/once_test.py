#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Nobody is served twice, and every copy was made for its recipient: runs of the built program during which a disk
becomes full, the database is moved away or locked by another process, the user stops and continues, a row has no address, or
the server's reply is late. Over the whole story and the run after it each recipient with an address gets exactly one copy.

    once_test.py BUILD_FOLDER [STORY [NUMBER]]

STORY is one of the names below, or a share of them such as 2/4: the second, the sixth and so on. Without it all are run in
their short form. NUMBER is how long the lock is held, in
seconds ("locked"), how often the user stops ("stops"), or how many recipients a run has (otherwise).
"""
import csv
import fcntl
import os
import pathlib
import random
import struct
import subprocess
import sys
import tempfile
import time

import desktop
from desktop import fail
import samples
from scripted_mail import ScriptedMail

PRIVATE = "VESTROLA_TEST_MOUNTS"
DISK = 4 * 1024 * 1024
SEED = 20261122


def isolate():
    """Runs this script again with private mounts, so that it can have a small file system; returns at once where it runs
    there already."""
    if PRIVATE in os.environ:
        return
    unshare = ["unshare", "--mount"] + (["--map-root-user"] if os.geteuid() else [])
    if subprocess.run([*unshare, "true"], stderr=subprocess.DEVNULL, check=False).returncode:
        print("skipped: the system allows no mounts")
        raise SystemExit(0)
    os.environ[PRIVATE] = "1"
    os.execvp(unshare[0], [*unshare, sys.executable, *sys.argv])


isolate()
desktop.inside()
from accessible import Window, choose_file, leave, wait_for  # noqa: E402  looks for the bus when it is imported


class Story:
    """One program folder on a small file system, its recipients, its server, and the program with its windows."""

    def __init__(self, stage, program, server, addresses):
        self.stage, self.server = stage, server
        self.addresses = addresses
        self.names = {address: f"Nome{number:03d}" for number, address in enumerate(addresses) if address}
        self.folder = stage.program_folder
        self.folder.mkdir(parents=True, exist_ok=True)
        subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={DISK},mode=700", "tmpfs", self.folder], check=True)
        self._make_folder()
        self.database = self.folder / "data" / "data.mdb"
        self.message = stage.write_message()
        self.program = program
        self.window = None
        self.start()

    def _make_folder(self):
        people = [(f"Ditta {number:04d}", f"Nome{number:03d}", address or "\\N") for number, address in enumerate(self.addresses)]
        with tempfile.TemporaryDirectory() as place:
            table = samples.write_table(pathlib.Path(place) / "people.tsv", people)
            samples.make_folder(self.folder, self.server.port, table)

    def start(self):
        self.running = self.stage.start([self.program])
        self.main = Window("frame", "Vestrola")

    def hide(self):
        """Moves the database away; returns its new path."""
        away = self.folder / "altrove.mdb"
        self.database.rename(away)
        return away

    def kill(self):
        self.running.kill()
        self.running.wait()

    def quit(self):
        leave(self.main)
        self.stage.ends(self.running, 0)

    def selected(self):
        exported = subprocess.run(["mdb-export", self.database, "tb_destinatari"], stdout=subprocess.PIPE, text=True,
                                  check=True)
        return sorted(row["email"] for row in csv.DictReader(exported.stdout.splitlines()) if row["sel"] != "0")

    def open(self):
        self.main.press("Invia messaggi")
        self.window = Window("dialog", "Invia messaggi")
        self.window.press("Apri messaggio")
        choose_file("Apri messaggio", self.message)

    def press_start(self):
        self.window.press("Invia messaggi")

    def stop(self):
        self.window.press("Ferma invio")
        self.window.find("push button", "Invia messaggi")

    def close(self):
        """Leaves the send window, once its button can be pressed again."""
        self.window.press("Chiudi")
        self.window.gone()

    def run(self):
        """A whole run, until nothing is left to do."""
        self.press_start()
        self.window.find("label", "Email da inviare: 0")
        self.window.find("push button", "Chiudi")

    def arrived(self, number):
        """Waits until so many messages have arrived."""
        wait_for(lambda: len(self.server.messages) >= number, f"message number {number}")

    def run_again(self):
        """The run after the story, if any recipient is left."""
        if self.selected():
            self.open()
            self.run()
            self.close()

    def check(self, what):
        copies = self.server.copies()
        twice = {address: number for address, number in copies.items() if number > 1}
        wanted = {address for address in self.addresses if address}
        raw = self.server.raw()
        wrong = self.server.greeted_wrongly(self.names)
        missing = wanted - set(copies)
        left = self.selected()
        figures = (f"{what}: {len(self.server.messages)} messages for {len(wanted)} recipients, more than one copy: "
                   f"{twice or 'nobody'}, raw: {len(raw)}, made for somebody else: {len(wrong)}, never served: "
                   f"{len(missing)}, still selected: {len(left)}")
        print(figures, flush=True)
        if twice or raw or wrong or missing or set(copies) - wanted or [address for address in left if address]:
            return figures
        return None

    def end(self):
        self.kill()
        self.server.close()
        subprocess.run(["umount", "--lazy", self.folder], check=True)


def people(number):
    return [f"persona{one:03d}@cliente.test" for one in range(number)]


def served_slowly(addresses):
    """A server that gives the test time to act between the arrival of the fourth message and its acceptance."""
    return ScriptedMail(delay=0.02, slow={addresses[3]: 1})


def fill(folder):
    """Fills the file system; returns the file that takes the room."""
    filler = folder / "riempie"
    with open(filler, "wb", buffering=0) as file:
        try:
            while True:
                file.write(b"\0" * 4096)
        except OSError:
            pass
    return filler


def four_arrived(make, addresses):
    """A story in the middle of its run, before the server accepts the fourth message."""
    story = make(served_slowly(addresses), addresses)
    story.open()
    story.press_start()
    story.arrived(4)
    return story


def end_of_run(story):
    story.window.find("label", "Email da inviare: 0")
    story.window.find("push button", "Chiudi")


def close_and_run_again(story):
    story.close()
    story.run_again()
    return story


def full_before(make, number):
    """The disk is full when the run is to begin: it does not begin, and a box says why."""
    addresses = people(number or 4)
    story = make(ScriptedMail(), addresses)
    story.open()
    filler = fill(story.folder)
    story.press_start()
    box = Window("alert", "Attenzione")
    if "L'invio non è iniziato." not in box.frame.description:
        fail(f"the box says {box.frame.description!r}")
    box.press("OK")
    box.gone()
    story.window.find("push button", "Invia messaggi")
    if story.server.messages or story.selected() != addresses:
        fail("a run began on a full disk")
    filler.unlink()
    story.run()
    return close_and_run_again(story)


def disk_full(make, number):
    """The disk becomes full in the middle of the run; it has room again before the window is closed."""
    story = four_arrived(make, people(number or 12))
    filler = fill(story.folder)
    end_of_run(story)
    filler.unlink()
    return close_and_run_again(story)


def moved(make, number):
    """The database is moved away in the middle of the run and back after its end."""
    story = four_arrived(make, people(number or 12))
    away = story.hide()
    end_of_run(story)
    away.rename(story.database)
    return close_and_run_again(story)


def killed(make, number):
    """The program is killed when a recipient has been accepted whose row cannot be marked."""
    story = four_arrived(make, people(number or 8))
    away = story.hide()
    story.window.find("label", "Email inviate: 4")
    story.kill()
    away.rename(story.database)
    story.start()
    story.run_again()
    return story


def locked(make, seconds):
    """Another process has the whole database locked in the middle of the run."""
    story = four_arrived(make, people(12))
    ofd_setlkw = 38
    with open(story.database, "r+b") as file:
        fcntl.fcntl(file, ofd_setlkw, struct.pack("hhqqhi", fcntl.F_WRLCK, os.SEEK_SET, 0, (1 << 62) + 1, 0, 0))
        time.sleep(seconds or 8)
    end_of_run(story)
    return close_and_run_again(story)


def stops(make, number):
    """The user stops and continues, at any moment of a delivery of 50 ms."""
    number = number or 6
    story = make(ScriptedMail(delay=0.05), people(8 + 4 * number))
    moment = random.Random(SEED)
    story.open()
    for _ in range(number):
        if len(story.selected()) < 4:
            fail("too few recipients for so many stops")
        before = len(story.server.messages)
        story.press_start()
        story.arrived(before + 1)
        time.sleep(moment.uniform(0, 0.4))
        story.stop()
    story.run()
    return close_and_run_again(story)


def null_address(make, number):
    """A selected row has no e-mail at all."""
    addresses = people(number or 6)
    addresses[3] = None
    story = make(ScriptedMail(), addresses)
    story.open()
    story.run()
    return close_and_run_again(story)


def late_reply(make, number):
    """The server's reply to one message takes longer than the window's default time-out."""
    addresses = people(number or 3)
    story = make(ScriptedMail(slow={addresses[1]: 7}), addresses)
    story.open()
    story.run()
    return close_and_run_again(story)


STORIES = {one.__name__: one for one in (disk_full, full_before, moved, killed, locked, stops, null_address, late_reply)}


def chosen(story):
    if "/" not in story:
        return [story]
    first, step = map(int, story.split("/"))
    return list(STORIES)[first - 1::step]


def play(stage, program):
    names = chosen(sys.argv[2]) if len(sys.argv) > 2 else list(STORIES)
    number = int(sys.argv[3]) if len(sys.argv) > 3 else None
    if number:
        desktop.PATIENCE = 600
    findings = []
    for name in names:
        made = []

        def make(server, addresses, made=made):
            made.append(Story(stage, program, server, addresses))
            return made[0]

        try:
            findings.append(STORIES[name](make, number).check(name))
        finally:
            for story in made:
                story.end()
    if any(findings):
        fail("\n".join(filter(None, findings)))


if __name__ == "__main__":
    desktop.run(play)
