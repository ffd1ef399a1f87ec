#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Sends the sample newsletter to the sample recipients through a local mail server and compares what arrived with
what should have.

    demo.py BUILD_FOLDER OUTPUT_FOLDER

Leaves in the output folder: messages/*.eml as received, the program folder vestrola/ with data/data.mdb after the run,
transcript.xt1, send-window.png, and program.log with what the toolkit had to say. Ends with 1 if anything is not as it should
be.
"""
import csv
import email
import email.policy
import os
import pathlib
import re
import shutil
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
NULL = "\\N"
FIELDS = ["rgs", "nom", "email", "piva", "ind", "cap", "loc", "prov", "campo1", "campo2"]


def recipients():
    with open(HERE / "recipients.tsv", encoding="utf-8", newline="") as file:
        return list(csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE))


def message_count():
    return sum(row["sel"] == "1" for row in recipients())


def personalised(text, row):
    """The placeholders that must be gone, and the ones that stay because the field is Null."""
    for name in FIELDS:
        if row[name] != NULL:
            text = text.replace(f":::{name}:::", row[name])
    return text


class Report:
    def __init__(self):
        self.problems = []

    def check(self, condition, text):
        if not condition:
            self.problems.append(text)
        return condition


def catch_all(folder):
    server = subprocess.Popen([sys.executable, str(HERE / "catch_all.py"), str(folder)], stdout=subprocess.PIPE, text=True)
    line = server.stdout.readline()
    if not line.startswith("port "):
        raise SystemExit("the catch-all server did not start")
    return server, line.split()[1]


def run(output, *command, **settings):
    """Runs one of the demo's programs; what it writes as errors is shown only where it fails."""
    with open(output / "program.log", "a+", encoding="utf-8") as log:
        try:
            return subprocess.run([str(word) for word in command], stderr=log, text=True, check=True, **settings)
        except subprocess.SubprocessError:
            log.seek(0)
            sys.stderr.write(log.read())
            raise


def send(build, output):
    environment = dict(os.environ)
    if not environment.get("DISPLAY") and not environment.get("WAYLAND_DISPLAY"):
        environment["QT_QPA_PLATFORM"] = "offscreen"
    messages = output / "messages"
    server, port = catch_all(messages)
    try:
        program = output / "vestrola"
        made = run(output, build / "demo" / "demo_make", program, port, stdout=subprocess.PIPE,
                   env={**environment, "QT_QPA_PLATFORM": "offscreen"})
        message = made.stdout.strip()
        print(f"sending {message_count()} messages, one at a time ...", flush=True)
        run(output, build / "demo" / "demo_send", program, message, output / "transcript.xt1", output / "send-window.png",
            env=environment, timeout=300)
        return pathlib.Path(message)
    finally:
        server.terminate()
        server.wait()


def check_message(report, raw, rows, attachment):
    """Returns the row of the table for one received message."""
    message = email.message_from_bytes(raw, policy=email.policy.default)
    to = message["X-Envelope-To"]
    row = rows.get(to)
    if not report.check(row is not None, f"a message for {to}, who was not selected"):
        return [to, "?", "", ""]
    who = f"message for {to}"
    defects = [defect for part in message.walk() for defect in part.defects]
    report.check(not defects, f"{who}: malformed: {defects}")
    subject = personalised(":::nom:::, le novità d’autunno per :::rgs::: (codice :::campo1:::)", row)
    report.check(message["Subject"] == subject, f"{who}: subject is {message['Subject']!r}, not {subject!r}")
    name = next(row[field] for field in ("rgs", "nom", "email") if row[field] not in ("", NULL))
    addresses = message["To"].addresses
    report.check(len(addresses) == 1 and addresses[0].display_name == name and addresses[0].addr_spec == to,
                 f"{who}: To is {message['To']}")
    html = message.get_body(("html",)).get_content()
    text = message.get_body(("plain",)).get_content()
    for kind, content in (("HTML", html), ("text", text)):
        left = set(re.findall(r":::(\w+):::", content))
        expected = {field for field in FIELDS if row[field] == NULL}
        report.check(left == expected, f"{who}: {kind} part keeps placeholders {left}, expected {expected}")
        report.check(row["rgs"] in content, f"{who}: {kind} part lacks the name {row['rgs']!r}")
    pictures = [part for part in message.walk() if part.get_content_type() == "image/png"]
    report.check(len(pictures) == 1 and f"cid:{pictures[0]['Content-ID'].strip('<>')}" in html,
                 f"{who}: the picture is not embedded")
    files = list(message.iter_attachments())
    report.check(len(files) == 1 and files[0].get_filename() == attachment.name
                 and files[0].get_content() == attachment.read_bytes(), f"{who}: the attachment did not arrive whole")
    return [to, name, message["Subject"], f"{len(raw):,}".replace(",", ".")]


def check_database(report, path, rows):
    exported = subprocess.run(["mdb-export", str(path), "tb_destinatari"], stdout=subprocess.PIPE, text=True, check=True)
    after = {row["email"]: row for row in csv.DictReader(exported.stdout.splitlines())}
    report.check(len(after) == len(rows), f"the database holds {len(after)} recipients, not {len(rows)}")
    for row in rows:
        left = after.get(row["email"], {}).get("sel")
        report.check(left == "0", f"{row['email']} has sel {left} after the run")
    journals = list(path.parent.glob("*-journal"))
    report.check(not journals, f"a journal was left behind: {journals}")


def print_table(head, lines):
    widths = [max(len(line[i]) for line in [head, *lines]) for i in range(len(head))]
    widths = [min(width, limit) for width, limit in zip(widths, (36, 28, 56, 9))]
    show = lambda line: "  ".join(cell[:width].ljust(width) for cell, width in zip(line, widths)).rstrip()
    print(show(head))
    print("  ".join("-" * width for width in widths))
    for line in lines:
        print(show(line))


def print_where_to_look(folder, message):
    print("\nTo look at what arrived:")
    for what, command in (("a message, as it arrived", f"less {message}"),
                          ("its parts in a mail program", f"xdg-open {message}"),
                          ("the send window, half way", f"xdg-open {folder}/send-window.png"),
                          ("the talk with the server", f"less {folder}/transcript.xt1"),
                          ("the recipients after it", f"mdb-export {folder}/vestrola/data/data.mdb tb_destinatari")):
        print(f"  {what:<28}  {command}")


def main():
    build, output = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()
    shutil.rmtree(output, ignore_errors=True)
    output.mkdir(parents=True)
    message = send(build, output)
    report = Report()
    rows = recipients()
    selected = {row["email"]: row for row in rows if row["sel"] == "1"}
    attachment = next(message.parent.glob("*.pdf"))
    received = sorted((output / "messages").glob("*.eml"))
    lines = [check_message(report, file.read_bytes(), selected, attachment) for file in received]
    report.check(sorted(line[0] for line in lines) == sorted(selected), "not every selected recipient got one copy")
    check_database(report, output / "vestrola" / "data" / "data.mdb", rows)
    transcript = (output / "transcript.xt1").read_text(encoding="utf-8")
    report.check(all(address in transcript for address in selected), "the transcript lacks recipients")
    report.check((output / "send-window.png").stat().st_size > 0, "there is no picture of the window")

    print_table(["recipient", "name", "subject", "bytes"], lines)
    print(f"\n{len(lines)} messages arrived for the {len(selected)} selected of {len(rows)} recipients.")
    if not report.problems:
        print(f"Each has its recipient's fields, the picture and {attachment.name}; nobody is selected any more.")
    if unknown := [row["rgs"] for row in selected.values() if row["nom"] == NULL]:
        print(f"Where the database has no value a placeholder stays, as the name of {' and '.join(unknown)}.")
    print_where_to_look(os.path.relpath(output), os.path.relpath(received[0]) if received else "")
    for problem in report.problems:
        print("PROBLEM:", problem)
    return 1 if report.problems else 0


if __name__ == "__main__":
    sys.exit(main())
