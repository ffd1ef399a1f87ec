#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The database's part of the program at 1,000,000 recipients.

    run.py BUILD_FOLDER WORK_FOLDER [ROWS]

Processor times, each the least of three runs, so that other programs on the machine count little; what writes is measured
on the clock as well.
"""
import json
import pathlib
import shutil
import sqlite3
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import tools  # noqa: E402

ROUNDS = 3
COLUMNS = ("id_grp INTEGER, rgs TEXT, nom TEXT, piva TEXT, ind TEXT, cap TEXT, loc TEXT, prov TEXT, tel TEXT, fax TEXT, "
           "email TEXT, campo1 TEXT, campo2 TEXT, campo3 TEXT, campo4 TEXT, campo5 TEXT, campo6 TEXT, campo7 TEXT, "
           "campo8 TEXT, campo9 TEXT, sel INTEGER")
TOWNS = ("Roma", "Milano", "L'Aquila", "Forlì", "Cantù", "San Donà di Piave", "Bolzano")
PROVINCES = ("RM", "MI", "AQ", "FC", "CO", "VE", "BZ")
NAMES = ("Giulia Bianchi", "Niccolò D'Amico", "Anna Maria Però", "Luca Rossi")
RUN_ORDER = ", ".join(["sel"] + [f"{column} COLLATE NOCASE" for column in ("rgs", "email", "nom", "loc", "ind")])
# What a tick does, for which SQLite's calls are counted: the table has an index in the order of the run.
TICK = """import sqlite3, sys
base = sqlite3.connect(sys.argv[1], isolation_level=None)
for _ in range(int(sys.argv[2])):
    row = base.execute("SELECT * FROM tb_destinatari WHERE sel = 1 ORDER BY rgs, email, nom, loc, ind").fetchone()
    base.execute("UPDATE tb_destinatari SET sel = 0 WHERE id = ?", (row[0],))
"""


def recipient(n):
    """The same rows as scan_recipients makes."""
    return (None, n % 12 + 1, f"Azienda {n}" + (" S.r.l." if n % 3 else " & C. – società agricola"), NAMES[n % 4],
            f"IT0{1000000000 + n}", f"Via della Libertà {n % 300}, scala B, interno {n % 40}", str(10000 + n % 90000),
            TOWNS[n % 7], PROVINCES[n % 7], f"06 {5000000 + n % 4000000}",
            f"06 {6000000 + n % 3000000}" if n % 5 else None, f"contatto{n}@azienda{n % 5000}.example",
            f"Cliente dal {1990 + n % 30}", "Listino A" if n % 2 else "",
            f"Nota: preferisce essere contattato al mattino, codice {n}" if n % 4 == 0 else None,
            None, None, None, None, None, None, int(n % 2 == 0))


def make_sqlite(path, rows):
    base = sqlite3.connect(path)
    base.execute(f"CREATE TABLE tb_destinatari (id INTEGER PRIMARY KEY AUTOINCREMENT, {COLUMNS})")
    base.executemany(f"INSERT INTO tb_destinatari VALUES ({', '.join('?' * 22)})", map(recipient, range(rows)))
    base.commit()
    base.close()


def calls(tracer, command):
    """System calls, and syncs among them, of a process and its start."""
    strace, environment = tracer
    counted = subprocess.run([str(strace), "-f", "-c", "-U", "name,calls", "-o", "/dev/stdout", *command],
                             stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=True, env=environment).stdout
    of = {}
    for line in counted.splitlines():
        words = line.split()
        if len(words) == 2 and words[1].isdigit():
            of[words[0]] = int(words[1])
    return of["total"], of.get("fdatasync", 0) + of.get("fsync", 0)


class Bench:
    def __init__(self, build, work, rows):
        self.build = build
        self.program = str(build / "bench/database/database_work")
        self.work = work
        self.rows = rows
        self.records = []
        self.base, self.sqlite = work / "base.mdb", work / "base.sqlite"
        if not self.base.exists():
            subprocess.run([str(build / "bench/scan/scan_recipients"), "--make", str(self.base), str(rows)], check=True)
        if not self.sqlite.exists():
            make_sqlite(self.sqlite, rows)

    def measured(self, what, file, *more, least="processor"):
        """The run of several that was the shortest."""
        runs = []
        for _ in range(ROUNDS):
            told = subprocess.run([self.program, what, str(file), *map(str, more)], stdout=subprocess.PIPE, text=True,
                                  check=True)
            runs.append(json.loads(told.stdout))
        return min(runs, key=lambda run: run[least])

    def add(self, name, value, unit, peer, ratio, goal):
        self.records.append({"name": name, "value": value, "unit": unit, "peer": peer, "ratio": ratio, "goal": goal,
                             "met": ratio <= goal})

    def reading(self):
        engine, scan = self.measured("engine", self.base), self.measured("scan", self.base)
        self.add("scan through a recordset, cells to text", self.rows / scan["processor"], "rows/s",
                 "the engine alone, time of ours over its", scan["processor"] / engine["processor"], 2.0)
        star, columns = self.measured("star", self.base), self.measured("columns", self.base)
        self.add("SELECT of four columns, memory", columns["kilobytes"] / 1000, "MB", "60 MB at a million rows",
                 columns["kilobytes"] / (60.0 * self.rows / 1000), 1.0)
        self.add("SELECT *, memory", star["kilobytes"] / 1000, "MB", "60 MB at a million rows",
                 star["kilobytes"] / (60.0 * self.rows / 1000), 1.0)

    def groups(self):
        """A group of a thousandth of the rows."""
        make = str(self.build / "bench/database/make_group")
        for name, index, reads, peer, goal in (
                ("without an index", [], 0, "the file read by 4 KiB", 1.5),
                ("with an index of the file", ["indexed"], self.rows // 1000, "as many pages read at random", 4.0)):
            base = self.work / ("indexed.mdb" if index else "grouped.mdb")
            if not base.exists():
                subprocess.run([make, str(base), str(self.rows), *index], check=True)
            group, read = self.measured("group", base, 13), self.measured("preads", base, reads)
            assert group["rows"] == self.rows // 1000, group
            self.add(f"one group of {group['rows']:,}, {name}", group["processor"] * 1000, "ms",
                     f"{peer}, time of ours over its", group["processor"] / read["processor"], goal)

    def sqlite_seconds(self, statement):
        least = None
        for _ in range(ROUNDS):
            copy = self.work / "peer.sqlite"
            shutil.copy(self.sqlite, copy)
            clock, processor, _ = tools.timed(["sqlite3", str(copy), "PRAGMA journal_mode=PERSIST;" + statement])
            copy.unlink()
            least = min(filter(None, (least, (processor, clock))))
        return least

    def selecting(self, base):
        """Turns of the UPDATE, each on a new copy: a second one on the same file would change nothing."""
        runs, copy = [], self.work / "own.mdb"
        for _ in range(ROUNDS):
            shutil.copy(base, copy)
            runs.append(json.loads(subprocess.run([self.program, "select", str(copy)], stdout=subprocess.PIPE,
                                                  text=True, check=True).stdout))
        return runs, copy

    def writing(self):
        runs, copy = self.selecting(self.base)
        processor, clock = self.sqlite_seconds("UPDATE tb_destinatari SET sel = 1;")
        ours = min(run["processor"] for run in runs)
        self.add("UPDATE … SET sel = True on all rows", ours, "s", "sqlite3, PERSIST, processor time of ours over its",
                 ours / processor, 1.0)
        ours = min(run["seconds"] for run in runs)
        self.add("the same on the clock", ours, "s", "the same", ours / clock, 1.0)
        # All rows are selected now.
        order, nothing = self.measured("order", copy), self.measured("nothing", copy)
        # Minus what a query without rows adds: the pages and what the program needs on first use.
        kept = (order["kilobytes"] - nothing["kilobytes"]) * 1024 / self.rows
        self.add("first ordered query, memory kept", kept, "bytes a row", "16 bytes a row", kept / 16, 1.0)
        processor, _ = self.sqlite_seconds(f"CREATE INDEX run ON tb_destinatari ({RUN_ORDER});")
        self.add("first ordered query", order["processor"], "s", "sqlite3's CREATE INDEX, time of ours over its",
                 order["processor"] / processor, 1.0)
        copy.unlink()

    def later_ticks(self):
        """The first tick of a run makes the order of its rows; the later ones should not depend on their number."""
        make = str(self.build / "bench/scan/scan_recipients")
        least = None
        for selected, failed in ((1000, 0), (self.rows // 10, 0), (self.rows // 10, 1000), (self.rows, 0), (self.rows, 1000)):
            base = self.work / "later.mdb"
            subprocess.run([make, "--make", str(base), str(selected)], check=True)
            subprocess.run([self.program, "select", str(base)], stdout=subprocess.DEVNULL, check=True)
            ticks = min(selected // 5, 2000)
            one = self.measured("tick", base, ticks, failed)["processor"] / ticks
            least = least or one
            self.add(f"a later tick of {selected:,}, {failed:,} failed", one * 1e6, "µs", "the same of 1,000", one / least, 2.0)
            if not failed and selected == self.rows:
                changed, read = self.measured("changed", base), self.measured("preads", base)
                self.add("a tick after another process has changed a row", changed["processor"] * 1000, "ms",
                         "the file read by 4 KiB, time of ours over its", changed["processor"] / read["processor"], 1.0)
            base.unlink()

    def growth(self):
        """The chart's lines over the size of the list."""
        make = str(self.build / "bench/scan/scan_recipients")
        lines = {}
        for rows in (self.rows // 1000, self.rows // 100, self.rows // 10, self.rows):
            base = self.work / "growing.mdb"
            subprocess.run([make, "--make", str(base), str(rows)], check=True)
            runs, selected = self.selecting(base)
            ticks = min(rows // 5, 2000)
            for line, spent in (("every cell as text", self.measured("scan", base)["processor"]),
                                ("UPDATE … SET sel = True", min(run["processor"] for run in runs)),
                                ("first query of a run", self.measured("order", selected)["processor"]),
                                ("a later tick", self.measured("tick", selected, ticks)["processor"] / ticks)):
                lines.setdefault(line, []).append((rows, spent * 1000))
            base.unlink()
            selected.unlink()
        self.records += [{"chart": "list", "line": line, "points": points} for line, points in lines.items()]

    def ticks(self):
        own, peer = self.work / "ticks.mdb", self.work / "ticks.sqlite"
        shutil.copy(self.base, own)
        shutil.copy(self.sqlite, peer)
        base = sqlite3.connect(peer)
        base.execute("CREATE INDEX run ON tb_destinatari (sel, rgs, email, nom, loc, ind)")
        base.commit()
        base.close()

        tracer = tools.unpacked("strace", "strace", self.work.parent)

        def of_one(command):
            few, many = calls(tracer, [*command, "10"]), calls(tracer, [*command, "30"])
            return [(more - less) / 20 for less, more in zip(few, many)]

        ours = of_one([self.program, "tick", str(own)])
        theirs = of_one([sys.executable, "-c", TICK, str(peer)])
        for name, own_calls, peer_calls, goal in (("calls", ours[0], theirs[0], 35), ("syncs", ours[1], theirs[1], 3)):
            self.add(f"a tick's part of the database, {name}", own_calls, "a tick",
                     f"{goal}; sqlite3, DELETE: {peer_calls:.0f}", own_calls / goal, 1.0)
        own.unlink()
        peer.unlink()


def main():
    build, work = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()
    bench = Bench(build, work, int(sys.argv[3]) if len(sys.argv) > 3 else 1_000_000)
    bench.reading()
    bench.groups()
    bench.writing()
    bench.later_ticks()
    bench.growth()
    bench.ticks()
    print(json.dumps(bench.records))


if __name__ == "__main__":
    main()
