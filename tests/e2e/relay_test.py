#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A run through a local Postfix, configured as packaging/postfix-relay has it: the provider's server is down, the run ends
with everybody served, and what is queued arrives when the provider is up.

    relay_test.py BUILD_FOLDER
"""
import os
import pathlib
import subprocess
import sys
import tempfile
import time

import network
import postfix
import samples

PATIENCE = 120
PORT, PROVIDER = 25, 2525
ROOT = pathlib.Path(__file__).resolve().parents[2]
PEOPLE = [f"persona{number}@cliente.test" for number in range(5)]
# Settings that a test cannot have: the provider's name, certificate and login.
OURS = """relayhost = [127.0.0.1]:{port}
smtp_sasl_auth_enable = no
smtp_sasl_password_maps =
smtp_tls_security_level = none
smtp_tls_CAfile =
minimal_backoff_time = 1s
maximal_backoff_time = 1s
"""


def fail(text):
    raise SystemExit(f"FAILED: {text}")


def settings():
    """The example, and what the test puts in place of some of its lines."""
    return (ROOT / "packaging/postfix-relay/main.cf").read_text(encoding="ascii") + OURS.format(port=PROVIDER)


def run_list(build, work):
    table = samples.write_table(work / "people.tsv", [("Ditta", "Nome", address) for address in PEOPLE])
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
    folder = work / "vestrola"
    message = samples.make_folder(folder, PORT, table)
    subprocess.run([build / "demo/demo_send", folder, message, "-", "-"], env=environment, check=True, timeout=PATIENCE)
    exported = subprocess.run(["mdb-sql", "-HFP", folder / "data/data.mdb"], input="select sel from tb_destinatari\n",
                              stdout=subprocess.PIPE, text=True, check=True).stdout.split()
    if exported != ["0"] * len(PEOPLE):
        fail(f"still selected after the run: {exported}")


def queued(server):
    listed = subprocess.run(["/usr/sbin/postqueue", "-c", server.folder, "-j"], stdout=subprocess.PIPE, text=True, check=True)
    return listed.stdout.count('"queue_id"')


def wait_for(condition, what, server):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            fail(f"waited for {what}\n{server.log()}")
        time.sleep(0.05)


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory() as spool, tempfile.TemporaryDirectory() as folder:
        work = pathlib.Path(folder)
        with postfix.Postfix(spool, "ufficio.example", f"127.0.0.1:{PORT}", settings()) as server:
            run_list(build, work)
            wait_for(lambda: queued(server) == len(PEOPLE), "the messages in the queue", server)
            catch_all = subprocess.Popen([sys.executable, ROOT / "demo/catch_all.py", work / "arrived", "files", "127.0.0.1",
                                          str(PROVIDER)], stdout=subprocess.DEVNULL)
            try:
                arrived = work / "arrived"
                wait_for(arrived.is_dir, "the provider", server)
                subprocess.run(["/usr/sbin/postqueue", "-c", server.folder, "-f"], check=True)
                wait_for(lambda: len([*arrived.glob("*.eml")]) == len(PEOPLE), "what was queued", server)
            finally:
                catch_all.terminate()
                catch_all.wait()
            to = sorted(line.split(": ")[1] for path in arrived.glob("*.eml")
                        for line in path.read_text(encoding="utf-8").splitlines() if line.startswith("X-Envelope-To: "))
            if to != PEOPLE:
                fail(f"arrived for {to}")
            wait_for(lambda: queued(server) == 0, "an empty queue", server)
    print(f"{len(PEOPLE)} messages were queued while the provider was down, and arrived once it was up")


if __name__ == "__main__":
    if postfix.is_possible():
        network.enter()
        network.raise_loopback()
        main()
    else:
        print(postfix.SKIPPED)
