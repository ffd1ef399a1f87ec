#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A delimited file of a million lines (about 200 MB) imported, compared with `sqlite3` with the INSERT statements of that import.

    run.py BUILD_FOLDER WORK_FOLDER [ROUNDS [LINES]]

Whole processes, both with their full durability and in groups of equal size. The peer has its statements made already;
the import reads the file, splits and cleans the fields and tests the addresses as well.
"""
import json
import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import tools  # noqa: E402

GROUP = 5000
TABLE = ("CREATE TABLE tb_destinatari (id INTEGER PRIMARY KEY AUTOINCREMENT, id_grp, sel, email, rgs, nom, piva, ind, "
         "cap, loc, prov, tel, fax, campo1, campo2, campo3, campo4, campo5, campo6, campo7, campo8, campo9);\n")
TOWNS = [("00184", "Roma", "RM"), ("67100", "L'Aquila", "AQ"), ("47521", "Forlì", "FC"), ("22063", "Cantù", "CO"),
         ("30027", "San Donà di Piave", "VE")]


def line(number):
    code, town, province = TOWNS[number % len(TOWNS)]
    address = "senza indirizzo" if number % 1000 == 0 else f"contatto.{number}@azienda{number % 5000}.example.it"
    return ";".join([f"Azienda \"La Rapida\" {number} S.r.l.", "D'Angelo Niccolò", address, f"IT0{1000000000 + number}",
                     f"Via della Libertà {number % 300}, scala B", code, town, province, f"06 {5000000 + number}",
                     f"06/{7000000 + number}", f"Cliente dal {1990 + number % 30}", "Listino A, sconto 12%"])


def import_file(program, source, database, lines):
    """Imports into a new database; seconds, processor seconds and the peak of memory in KB."""
    database.unlink(missing_ok=True)
    taken, processor, told = tools.timed([program, str(source), str(database)])
    told = json.loads(told)
    if told["rows"] != lines - (lines + 999) // 1000:
        raise SystemExit(f"{told['rows']} rows were imported")
    return taken, processor, told["kilobytes"]


def write_list(path, lines):
    with open(path, "w", encoding="cp1252", newline="") as file:
        file.writelines(line(number) + "\r\n" for number in range(lines))


def main():
    build, work = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 3
    lines = int(sys.argv[4]) if len(sys.argv) > 4 else 1_000_000
    program = str(build / "bench/text_import/import_text")
    source, statements, tenth = work / "list.txt", work / "statements.sql", work / "tenth.txt"
    database, sqlite = work / "list.mdb", work / "list.sqlite"
    write_list(source, lines)
    write_list(tenth, lines // 10)
    with open(statements, "w", encoding="utf-8") as file:
        file.write(TABLE)
        file.flush()
        subprocess.run([program, str(source), "--statements", str(GROUP)], stdout=file, check=True)
    small_peak = import_file(program, tenth, database, lines // 10)[2]
    ours, peers = [], []
    for _ in range(rounds):
        ours.append(import_file(program, source, database, lines))
        sqlite.unlink(missing_ok=True)
        with open(statements, encoding="utf-8") as file:
            peers.append(tools.timed(["sqlite3", str(sqlite)], stdin=file))
    megabytes = source.stat().st_size / 1e6
    for file in (source, tenth, statements, database, sqlite):
        file.unlink()
    name = f"import a text file of {lines:,} lines, {megabytes:.0f} MB"

    def record(what, index, peer):
        mine, other = (tools.median([taken[index] for taken in side]) for side in (ours, peers))
        return {"name": name + what, "value": lines / mine, "unit": "lines/s", "peer": peer, "ratio": mine / other,
                "goal": 1.4, "met": mine / other <= 1.4}

    peak = max(taken[2] for taken in ours)
    print(json.dumps([
        record("", 0, "sqlite3 with its statements, time of ours over its"),
        record(", processor", 1, "sqlite3 with its statements, processor time of ours over its"),
        {"name": name + ", memory", "value": peak / 1024, "unit": "MB", "peer": "a tenth of the lines, memory over its",
         "ratio": peak / small_peak, "goal": 1.5, "met": peak / small_peak <= 1.5}]))


if __name__ == "__main__":
    main()
