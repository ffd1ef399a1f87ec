#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A million INSERT statements of recipients, committed in groups, compared with `sqlite3` with transactions of equal size.

    run.py BUILD_FOLDER WORK_FOLDER [ROUNDS [ROWS]]

Whole processes, both with their full durability. Each reads the statements from a text file, one a line.
"""
import json
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import tools  # noqa: E402

GROUP = 5000
COLUMNS = ("id_grp, sel, email, rgs, nom, piva, ind, cap, loc, prov, tel, fax, campo1, campo2, campo3, campo4, campo5, "
           "campo6, campo7, campo8, campo9")
TOWNS = [("Roma", "RM"), ("Milano", "MI"), ("Forlì", "FC"), ("Cantù", "CO"), ("San Donà di Piave", "VE")]


def statement(number):
    town, province = TOWNS[number % len(TOWNS)]
    values = [f"contatto{number}@azienda{number % 5000}.example", f"Azienda {number} S.r.l.", "Giulia Bianchi",
              f"IT0{1000000000 + number}", f"Via della Libertà {number % 300}, scala B", str(10000 + number % 90000),
              town, province, f"06 {5000000 + number % 4000000}", "", f"Cliente dal {1990 + number % 30}", "Listino A",
              "", "", "", "", "", "", ""]
    return f"INSERT INTO [tb_destinatari] ({COLUMNS}) VALUES (1, True, '" + "', '".join(values) + "') "


def main():
    build, work = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 3
    rows = int(sys.argv[4]) if len(sys.argv) > 4 else 1_000_000
    plain, grouped = work / "statements.sql", work / "grouped.sql"
    database, sqlite = work / "import.mdb", work / "import.sqlite"
    with open(plain, "w", encoding="utf-8") as ours, open(grouped, "w", encoding="utf-8") as theirs:
        theirs.write("CREATE TABLE tb_destinatari (id INTEGER PRIMARY KEY AUTOINCREMENT, " + COLUMNS + ");\n")
        for number in range(rows):
            line = statement(number)
            ours.write(line + "\n")
            theirs.write(("BEGIN;\n" if number % GROUP == 0 else "") + line + ";\n" +
                         ("COMMIT;\n" if number % GROUP == GROUP - 1 or number == rows - 1 else ""))
    ours, peers, peak = [], [], 0
    for _ in range(rounds):
        for file in (database, sqlite):
            file.unlink(missing_ok=True)
        taken, _, told = tools.timed([str(build / "bench/import/import_rows"), str(plain), str(database), str(GROUP)])
        ours.append(taken)
        told = json.loads(told)
        if told["rows"] != rows:
            raise SystemExit(f"{told['rows']} rows stand in the file")
        peak = max(peak, told["kilobytes"])
        with open(grouped, encoding="utf-8") as statements:
            peers.append(tools.timed(["sqlite3", str(sqlite)], stdin=statements)[0])
    for file in (plain, grouped, database, sqlite):
        file.unlink()
    ratio = tools.median(ours) / tools.median(peers)
    print(json.dumps([{"name": f"import {rows:,} rows in groups of {GROUP:,}", "value": rows / tools.median(ours),
                       "unit": "rows/s", "peer": "sqlite3, time of ours over its", "ratio": ratio, "goal": 2.0,
                       "met": ratio <= 2.0}]))
    print(f"   peak memory {peak} KB", file=sys.stderr)


if __name__ == "__main__":
    main()
