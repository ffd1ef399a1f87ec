#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Kills the program in the middle of a run, twenty times, and starts it again: no recipient is lost, and each kill serves at most
one recipient twice.

    kill_test.py BUILD_FOLDER [KILLS [RECIPIENTS]]

Each run is killed with SIGKILL a random moment after the server took one of the first messages of that run, so that the
kills spread over the time between the delivery, the change in the database and the next delivery. Without a number of
RECIPIENTS they are those of the demo.
"""
import csv
import os
import pathlib
import random
import re
import subprocess
import sys
import tempfile
import time

import samples

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
SEED = 20260715


def wait_for(condition, seconds, what):
    end = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > end:
            raise SystemExit(f"FAILED: waited {seconds} s for {what}")
        time.sleep(0.002)


class Stage:
    """A sample folder with its catch-all server."""

    def __init__(self, build, work, people):
        self.build, self.program, self.messages = build, work / "vestrola", work / "messages"
        self.environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
        self.server = subprocess.Popen([sys.executable, str(ROOT / "demo" / "catch_all.py"), str(self.messages)],
                                       stdout=subprocess.PIPE, text=True)
        port = self.server.stdout.readline().split()[1]
        rows = [(f"Ditta {address}", "Nome", address) for address in people]
        table = samples.write_table(work / "people.tsv", rows) if people else None
        self.wanted = people or selected_recipients()
        self.message = samples.make_folder(self.program, port, table)
        self.database = self.program / "data" / "data.mdb"

    def received(self):
        """Recipients in the order of arrival."""
        files = sorted(self.messages.glob("*.eml"))
        return [re.search(rb"X-Envelope-To: (.*)\r\n", file.read_bytes()).group(1).decode() for file in files]

    def start(self):
        return subprocess.Popen([str(self.build / "demo" / "demo_send"), str(self.program), self.message, "-", "-"],
                                env=self.environment)

    def close(self):
        self.server.terminate()
        self.server.wait()


def selected_recipients():
    with open(ROOT / "demo" / "recipients.tsv", encoding="utf-8", newline="") as file:
        return [row["email"] for row in csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE) if row["sel"] == "1"]


def fail(text):
    raise SystemExit(f"FAILED: {text}")


def play(stage, kills, moment):
    """Up to `kills` killed runs over one folder, then one to the end; returns how many were killed."""
    wanted = stage.wanted
    done = 0
    while done < kills:
        before = stage.received()
        if len(set(before)) >= len(wanted) - 1:
            break
        run = stage.start()
        # So that a run is never over before the kill.
        arrived = min(len(wanted) - 1, len(before) + moment.randint(1, 3))
        wait_for(lambda: len(stage.received()) >= arrived or run.poll() is not None, 60, "the first messages of a run")
        if run.poll() is not None:
            fail(f"a run ended by itself with {run.returncode}")
        # Half of the kills fall around the acceptance, the other half anywhere up to the next one.
        time.sleep(moment.uniform(0, moment.choice((0.02, 0.25))))
        run.kill()
        run.wait()
        done += 1
        time.sleep(0.05)  # what was in transit at the kill may still reach the server
        again = [address for address in stage.received()[len(before):] if address in before]
        if len(again) > 1:
            fail(f"one kill served more than one recipient twice: {again}")
    before = stage.received()
    last = stage.start()
    if last.wait(timeout=120) != 0:
        fail(f"the last run ended with {last.returncode}")
    arrived = stage.received()
    again = [address for address in arrived[len(before):] if address in before]
    if len(again) > 1:
        fail(f"the last kill served more than one recipient twice: {again}")
    if set(arrived) != set(wanted):
        fail(f"never served: {set(wanted) - set(arrived)}, served unasked: {set(arrived) - set(wanted)}")
    exported = subprocess.run(["mdb-export", str(stage.database), "tb_destinatari"], stdout=subprocess.PIPE, text=True,
                              check=True)
    left = [row["email"] for row in csv.DictReader(exported.stdout.splitlines()) if row["sel"] != "0"]
    if left:
        fail(f"still selected at the end: {left}")
    return done, len(arrived) - len(wanted)


def check_pages(database):
    checker = ROOT.parent / "shared" / "tools" / "jetfsck.py"
    if not checker.exists():
        print("skipped: the outside page checker is not there")
        return
    if subprocess.run([sys.executable, str(checker), "fsck", str(database)]).returncode != 0:
        fail("the page checker has findings")


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    kills = int(sys.argv[2]) if len(sys.argv) > 2 else 20
    people = [f"persona{number:03d}@cliente.test" for number in range(int(sys.argv[3]))] if len(sys.argv) > 3 else []
    moment = random.Random(SEED)
    killed = twice = 0
    while killed < kills:
        with tempfile.TemporaryDirectory() as folder:
            stage = Stage(build, pathlib.Path(folder), people)
            try:
                more, extra = play(stage, kills - killed, moment)
                check_pages(stage.database)
            finally:
                stage.close()
        killed += more
        twice += extra
    print(f"{killed} runs killed, nobody lost, {twice} served twice")
    return 0


if __name__ == "__main__":
    sys.exit(main())
