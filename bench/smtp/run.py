#!/usr/bin/env python3
"""Composing and delivering over one kept session, against smtp-source with messages of the same size.

    run.py BUILD_FOLDER WORK_FOLDER [ROUNDS]

Both sides send to the same smtp-sink, in turns; the medians count. smtp-source sends one canned message again and again
over one connection (-d); ours composes each message for its recipient. With a large attachment the processor's time
counts, that of the whole process with its start.
"""
import contextlib
import json
import os
import pathlib
import re
import shutil
import socket
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import tools  # noqa: E402

SIZE = 10240
ATTACHMENT = 5 * 1024 * 1024


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


@contextlib.contextmanager
def sink(work):
    program, environment = tools.unpacked("postfix", "smtp-sink", work)
    port = free_port()
    user = ["-u", "nobody"] if os.geteuid() == 0 else []
    process = subprocess.Popen([str(program), *user, f"127.0.0.1:{port}", "100"], env=environment)
    try:
        for _ in range(200):
            with contextlib.suppress(OSError), socket.create_connection(("127.0.0.1", port), 1):
                break
            time.sleep(0.05)
        yield port
    finally:
        process.terminate()
        process.wait()


def deliver(build, port, count, *book):
    """Messages a second, as our program measures them: without its start."""
    done = subprocess.run([str(build / "bench/smtp/bench_smtp_deliver"), "127.0.0.1", str(port), str(count), str(SIZE), *book],
                          stdout=subprocess.PIPE, text=True, check=True)
    return json.loads(done.stdout)["perSecond"]


def source(work, port, count):
    """Messages a second of the peer; the cost of its start, an empty run, is taken off."""
    program, environment = tools.unpacked("postfix", "smtp-source", work)

    def seconds(messages):
        start = time.perf_counter()
        subprocess.run([str(program), "-d", "-s", "1", "-m", str(messages), "-l", str(SIZE), f"127.0.0.1:{port}"],
                       env=environment, check=True)
        return time.perf_counter() - start

    return (count - 1) / max(seconds(count) - seconds(1), 1e-9)


def processor_seconds(command, environment=None):
    """Time that a process and its children have spent in the processor."""
    process = subprocess.Popen([str(word) for word in command], env=environment, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        raise SystemExit(f"{command[0]} failed")
    return usage.ru_utime + usage.ru_stime


def with_attachment(build, work, port, rounds):
    """100 messages with an attachment of 5 MB and the support log, against as many bytes of the peer."""
    attachment, log = work / "attachment", work / "log.xt1"
    attachment.write_bytes(os.urandom(ATTACHMENT))
    program, environment = tools.unpacked("postfix", "smtp-source", work)
    ours, peers = [], []
    for _ in range(rounds):
        log.unlink(missing_ok=True)
        ours.append(processor_seconds([build / "bench/smtp/bench_smtp_deliver", "127.0.0.1", port, 100, SIZE, attachment,
                                       log]))
        sizes = [int(size) for size in re.findall(r"\(messaggio: (\d+) byte\)", log.read_text(encoding="utf-8"))]
        assert len(sizes) == 100
        peers.append(processor_seconds([program, "-d", "-s", 1, "-m", 100, "-l", sum(sizes) // 100, f"127.0.0.1:{port}"],
                                       environment))
    ratio = tools.median(ours) / tools.median(peers)
    return {"name": "processor time of 100 messages with 5 MB", "value": tools.median(ours) * 1000, "unit": "ms",
            "peer": "smtp-source, time of ours over its", "ratio": ratio, "goal": 1.3, "met": ratio <= 1.3}


@contextlib.contextmanager
def delayed(build, port, flights):
    """A line to `port` that delays 10 ms each way; the number of flights towards the server goes to `flights`."""
    proxy = subprocess.Popen([str(build / "bench/smtp/bench_smtp_delay_proxy"), str(port), "10"], text=True,
                             stdin=subprocess.PIPE, stdout=subprocess.PIPE)
    try:
        yield int(proxy.stdout.readline())
    finally:
        proxy.stdin.close()
        flights.append(int(proxy.stdout.readline()))
        proxy.wait()


def with_book(build, work, port, rounds):
    """The same delivery with and without the book of outcomes, in turns."""
    book = work / "esiti"
    shutil.rmtree(book, ignore_errors=True)
    kept, none = [], []
    for one in range(rounds):
        for where, figures in ((f"{book}/", kept), ("-", none))[::-1 if one % 2 else 1]:
            figures.append(deliver(build, port, 2000, where))
    lines = [file.read_bytes().count(b"\n") for file in book.iterdir()]
    assert lines == [2001] * rounds
    ratio = tools.median(kept) / tools.median(none)
    return {"name": "deliver with the book of outcomes", "value": tools.median(kept), "unit": "messages/s",
            "peer": "the same without", "ratio": ratio, "goal": 0.95, "met": ratio >= 0.95}


def record(name, ours, peers, goal):
    ratio = tools.median(ours) / tools.median(peers)
    return {"name": name, "value": tools.median(ours), "unit": "messages/s", "peer": "smtp-source -d",
            "ratio": ratio, "goal": goal, "met": ratio >= goal}


def main():
    build, work = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 7
    records = []
    with sink(work) as port:
        ours, peers = [], []
        for _ in range(rounds):
            ours.append(deliver(build, port, 2000))
            peers.append(source(work, port, 2000))
        records.append(record("deliver 2,000 messages of 10 KB", ours, peers, 1.0))

        records.append(with_attachment(build, work, port, 5))
        records.append(with_book(build, work, port, 3 * rounds))

        ours, peers, flights = [], [], []
        count = 100
        for _ in range(3):
            with delayed(build, port, flights) as line:
                ours.append(deliver(build, line, count))
            with delayed(build, port, []) as line:
                peers.append(source(work, line, count))
        records.append(record("deliver over a line of 10 ms each way", ours, peers, 1.7))
        # The greeting is followed by EHLO, and the last message by QUIT: two flights that belong to no message.
        trips = (tools.median(flights) - 2) / count
        records.append({"name": "round trips a message", "value": trips, "unit": "round trips",
                        "peer": "two", "ratio": 2 / trips, "goal": 1.0, "met": trips <= 2})
    print(json.dumps(records))


if __name__ == "__main__":
    main()
