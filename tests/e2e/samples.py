# SPDX-License-Identifier: GPL-3.0-or-later
"""Program folders with recipients, as a user has them after some work. Made by demo_make of the build that the story's first
argument names."""
import os
import pathlib
import subprocess
import sys

HEADS = ("gruppo", "rgs", "nom", "email", "sel")


def write_table(path, rows, heads=HEADS):
    """A table of recipients; of the group "Clienti" and selected where a row has only company, name and address."""
    whole = [heads] + [("Clienti", *row, "1") if len(row) == 3 else row for row in rows]
    path.write_text("".join("\t".join(row) + "\n" for row in whole), encoding="utf-8")
    return path


def make_folder(folder, port=25, table=None):
    """Makes the program folder; its account sends to this port. The recipients are those of the table, else the demo's own.
    Returns the path of its message."""
    demo_make = pathlib.Path(sys.argv[1]).resolve() / "demo" / "demo_make"
    made = subprocess.run([demo_make, folder, str(port), *([table] if table else [])], stdout=subprocess.PIPE, text=True, check=True,
                          env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
    return made.stdout.strip()
