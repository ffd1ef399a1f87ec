#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The book of outcomes of the built program: a server refuses some recipients, and the first run is killed in its middle.

    outcomes_test.py BUILD_FOLDER

The book of the first run contains every recipient that the server answered before the kill, with what the server did; the
second run serves the rest and has a book of its own.
"""
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
import samples  # noqa: E402
from scripted_mail import ScriptedMail  # noqa: E402

PATIENCE = 120
PEOPLE = [f"persona{number:02d}@cliente.test" for number in range(24)]
REFUSED = [PEOPLE[2], PEOPLE[5], PEOPLE[20]]


def fail(text):
    raise SystemExit(f"FAILED: {text}")


def make(build, work, port):
    table = samples.write_table(work / "people.tsv", [(f"Ditta {address}", "Nome", address) for address in PEOPLE])
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
    message = samples.make_folder(work / "vestrola", port, table)
    return [str(build / "demo/demo_send"), str(work / "vestrola"), message, "-", "-"], environment


def book(path):
    """The last line of each address; a line without an end is left out."""
    octets = path.read_bytes()
    lines = [json.loads(line) for line in octets[:octets.rfind(b"\n") + 1].splitlines()]
    if lines[0]["formato"] != "Vestrola esiti 1" or not lines[0]["database"].endswith("data.mdb"):
        fail(f"the head is {lines[0]}")
    return {line["indirizzo"]: line for line in lines[1:]}


def check(told, arrived):
    """Every line says what the server did."""
    for address, line in told.items():
        wanted = ("rifiutato", "destinatario", "5.1.1") if address in REFUSED else ("consegnato", "messaggio", None)
        if (line["esito"], line["fase"], line.get("stato")) != wanted:
            fail(f"the book says {line}")
    delivered = [address for address in told if address not in REFUSED]
    if not set(delivered) <= set(arrived):
        fail(f"told as delivered, never arrived: {set(delivered) - set(arrived)}")


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    server = ScriptedMail(delay=0.05, refused=REFUSED)
    with tempfile.TemporaryDirectory() as folder:
        command, environment = make(build, pathlib.Path(folder), server.port)
        books = pathlib.Path(folder) / "vestrola/data/esiti"
        run = subprocess.Popen(command, env=environment)
        end = time.monotonic() + PATIENCE
        while len(server.messages) < 8:
            if run.poll() is not None or time.monotonic() > end:
                fail("the first run did not get to its middle")
            time.sleep(0.005)
        run.kill()
        run.wait()
        time.sleep(0.2)  # what was in transit at the kill is noted by the server
        arrived = [address for address, _ in server.messages]
        files = sorted(books.glob("*.jsonl"))
        if len(files) != 1:
            fail(f"{len(files)} books after the first run")
        first = book(files[0])
        check(first, arrived)
        # The reply to the last one, or to the last two, may not have reached the program.
        if not set(arrived[:-2]) <= set(first) or not set(REFUSED[:2]) <= set(first):
            fail(f"after the kill the book holds {sorted(first)}, the server {arrived}")

        if subprocess.run(command, env=environment, timeout=PATIENCE, check=False).returncode != 0:
            fail("the second run failed")
        files = sorted(books.glob("*.jsonl"))
        if len(files) != 2 or files[0].stat().st_mode & 0o777 != 0o600:
            fail(f"the second run left {files}")
        second = book(files[1])
        check(second, [address for address, _ in server.messages])
        delivered = {address for told in (first, second) for address, line in told.items()
                     if line["esito"] == "consegnato"}
        if delivered | set(REFUSED) != set(PEOPLE) or not set(REFUSED) <= set(second):
            fail(f"nobody tells of {set(PEOPLE) - delivered - set(REFUSED)}")
    server.close()
    print(f"killed after {len(arrived)} messages: {len(first)} in the book, {len(second)} in the next")
    return 0


if __name__ == "__main__":
    sys.exit(main())
