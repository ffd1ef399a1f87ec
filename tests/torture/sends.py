#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs of the send window that are killed at random, and long ones.

    sends.py BUILD_FOLDER kills SEED KILLS [real]
    sends.py BUILD_FOLDER long SEED RECIPIENTS [real]

The ticks follow one another at once, unless "real" asks for the real timer. `kills`: no recipient is lost, and each kill serves
at most one recipient twice. `long`: after the first thousand recipients memory, descriptors and speed stay the same.
The last line is one of JSON, which torture.py adds up.
"""
import asyncio
import json
import os
import pathlib
import random
import subprocess
import sys
import tempfile
import threading
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "demo"))
import catch_all  # noqa: E402

MEMORY = "/dev/shm" if pathlib.Path("/dev/shm").is_dir() else None
PER_LIST = 60
# what is allowed after the first thousand: a tenth more memory and 8 MiB, as many descriptors, twice the time
MORE_MEMORY, MORE_KIB, MORE_DESCRIPTORS, MORE_TIME = 1.1, 8 * 1024, 4, 2.0


class Server:
    """Accepts every message and remembers its recipient, in order."""

    def __init__(self):
        self.received = []
        self.loop = asyncio.new_event_loop()
        ready = threading.Event()
        threading.Thread(target=self.run, args=(ready,), daemon=True).start()
        ready.wait()

    def run(self, ready):
        asyncio.set_event_loop(self.loop)
        server = self.loop.run_until_complete(asyncio.start_server(self.serve, "127.0.0.1", 0, limit=catch_all.LIMIT))
        self.port = server.sockets[0].getsockname()[1]
        ready.set()
        self.loop.run_forever()

    def keep(self, message):
        line = next(line for line in message.split(b"\r\n") if line.startswith(b"X-Envelope-To: "))
        self.received.append(line[15:].decode())
        return "message"

    async def serve(self, reader, writer):
        try:
            await catch_all.Session(self.keep, reader, writer).run()
        except (ConnectionError, asyncio.IncompleteReadError):
            pass
        finally:
            writer.close()


class Stage:
    """A program folder with so many selected recipients."""

    def __init__(self, build, folder, server, count):
        self.build, self.program, self.server = build, pathlib.Path(folder) / "vestrola", server
        self.first = len(server.received)
        self.people = [f"persona{number:05d}@cliente.test" for number in range(count)]
        self.environment = {"QT_QPA_PLATFORM": "offscreen", "QTWEBENGINE_DISABLE_SANDBOX": "1", **os.environ}
        table = pathlib.Path(folder) / "people.tsv"
        rows = [("gruppo", "rgs", "nom", "email", "sel")]
        rows += [("Clienti", f"Ditta {address}", "Nome", address, "1") for address in self.people]
        table.write_text("".join("\t".join(row) + "\n" for row in rows), encoding="utf-8")
        subprocess.run([str(build / "demo" / "demo_make"), str(self.program), str(server.port), str(table)],
                       env=self.environment, stdout=subprocess.DEVNULL, check=True)

    def received(self):
        return self.server.received[self.first:]

    def start(self, timer, every, **options):
        return subprocess.Popen([str(self.build / "tests" / "torture" / "torture_send_run"), str(self.program), timer,
                                 str(every)], env=self.environment, text=True, **options)


class Tally:
    def __init__(self, campaign, seed):
        self.figures = {"campaign": campaign, "seed": seed, "cases": 0, "survived": 0, "lost": 0, "damaged": 0,
                        "duplicates": 0, "more": ""}

    def add(self, what, count=1):
        self.figures[what] += count

    def wrong(self, what, text, count=1):
        self.add(what, count)
        print(f"seed {self.figures['seed']}, case {self.figures['cases']}: {text}", file=sys.stderr)

    def report(self):
        print(json.dumps(self.figures))
        return 0 if self.figures["cases"] and not sum(self.figures[kind] for kind in ("lost", "damaged", "duplicates")) else 1


def still_selected(stage):
    exported = subprocess.run(["mdb-export", str(stage.program / "data" / "data.mdb"), "tb_destinatari"],
                              stdout=subprocess.PIPE, text=True, check=True).stdout.splitlines()
    place = exported[0].split(",").index("sel")
    return sum(line.rsplit(",", len(exported[0].split(",")) - place)[1].strip('"') != "0" for line in exported[1:])


def again(stage, before):
    """Who was served before that many messages and once more after."""
    served = stage.received()
    return [address for address in served[before:] if address in set(served[:before])]


def kill_one(stage, moment, timer):
    """False when the run came to its end before it was killed."""
    before = len(stage.received())
    run = stage.start(timer, 10 ** 9, stdout=subprocess.DEVNULL)
    wanted = min(len(stage.people) - 1, before + moment.randint(1, 8))
    end = time.monotonic() + 120
    while len(stage.received()) < wanted and run.poll() is None:
        if time.monotonic() > end:
            run.kill()
            raise SystemExit("FAILED: a run sends nothing")
        time.sleep(0.0005)
    time.sleep(moment.uniform(0, moment.choice((0.002, 0.02))))
    killed = run.poll() is None
    run.kill()
    status = run.wait()
    if not killed and status != 0:
        raise SystemExit(f"FAILED: a run ended by itself with {status}")
    time.sleep(0.02)  # what was in transit may still reach the server
    return killed


def kills(build, seed, count, timer):
    tally, server, moment = Tally("send kills" + (", real timer" if timer == "real" else ""), seed), Server(), random.Random(seed)
    twice = 0
    while tally.figures["cases"] < count:
        with tempfile.TemporaryDirectory(dir=MEMORY) as folder:
            stage = Stage(build, folder, server, PER_LIST)
            before = 0
            while tally.figures["cases"] < count and len(set(stage.received())) < PER_LIST - 1:
                if not kill_one(stage, moment, timer):
                    continue
                tally.add("cases")
                repeated = again(stage, before)
                twice += len(repeated)
                if len(repeated) > 1:
                    tally.wrong("duplicates", f"one kill served twice: {repeated}", len(repeated) - 1)
                else:
                    tally.add("survived")
                before = len(stage.received())
            if still_selected(stage):
                # Who was accepted and not marked leaves the queue when the program starts. Was he the last one, then it
                # refuses to begin a run, and ends here.
                all_served = set(stage.people) <= set(stage.received())
                last = stage.start("none", 10 ** 9, stdout=subprocess.DEVNULL)
                if last.wait(timeout=300) != 0 and not all_served:
                    raise SystemExit(f"FAILED: the last run ended with {last.returncode}")
                time.sleep(0.05)
            twice += len(again(stage, before))
            lost = set(stage.people) - set(stage.received())
            if lost:
                tally.wrong("lost", f"never served: {sorted(lost)}", len(lost))
            if left := still_selected(stage):
                tally.wrong("damaged", f"{left} still selected at the end", left)
    tally.figures["more"] = f"{twice} served twice"
    return tally.report()


def long_run(build, seed, count, timer):
    tally, server = Tally("long run" + (", real timer" if timer == "real" else ""), seed), Server()
    every = 1000 if count >= 3000 else max(1, count // 3)
    with tempfile.TemporaryDirectory(dir=MEMORY) as folder:
        stage = Stage(build, folder, server, count)
        run = stage.start(timer, every, stdout=subprocess.PIPE)
        states = [tuple(map(int, line.split())) for line in run.stdout if line[0].isdigit()]
        if run.wait() != 0:
            raise SystemExit(f"FAILED: the run ended with {run.returncode}")
        time.sleep(0.2)
        served = stage.received()
        tally.add("cases", count)
        tally.add("survived", len(set(served) & set(stage.people)))
        lost = set(stage.people) - set(served)
        if lost:
            tally.wrong("lost", f"never served: {sorted(lost)[:5]} …", len(lost))
        if len(served) != len(set(served)):
            tally.wrong("duplicates", "served twice", len(served) - len(set(served)))
        if left := still_selected(stage):
            tally.wrong("damaged", f"{left} still selected at the end", left)
    print("done   ms each   KiB   descriptors", file=sys.stderr)
    for done, milliseconds, memory, descriptors in states[:: max(1, len(states) // 10)]:
        print(f"{done:6} {milliseconds / every:8.2f} {memory:8} {descriptors:5}", file=sys.stderr)
    first, last = states[0], states[-1]
    if last[2] > first[2] * MORE_MEMORY + MORE_KIB:
        tally.wrong("damaged", f"memory grew from {first[2]} to {last[2]} KiB")
    if last[3] > first[3] + MORE_DESCRIPTORS:
        tally.wrong("damaged", f"descriptors grew from {first[3]} to {last[3]}")
    # Other work on the machine disturbs the time: printed, and checked only where there is enough of it.
    half = len(states) // 2
    if half >= 5:
        middle = [sorted(state[1] for state in part)[len(part) // 2] for part in (states[:half], states[half:])]
        if middle[1] > middle[0] * MORE_TIME:
            tally.wrong("damaged", f"{every} recipients took {middle[0]} ms in the first half, {middle[1]} ms in the second")
    tally.figures["more"] = (f"{first[2] // 1024} to {last[2] // 1024} MiB, {first[3]} to {last[3]} descriptors, "
                             f"{first[1] / every:.1f} to {last[1] / every:.1f} ms each")
    return tally.report()


def main():
    build, what, seed, count = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2], int(sys.argv[3]), int(sys.argv[4])
    timer = "real" if sys.argv[5:6] == ["real"] else "none"
    return {"kills": kills, "long": long_run}[what](build, seed, count, timer)


if __name__ == "__main__":
    sys.exit(main())
