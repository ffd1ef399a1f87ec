#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Composing and delivering over one kept session, against smtp-source with messages of the same size.

    run.py BUILD_FOLDER WORK_FOLDER [ROUNDS]

Both sides send to the same server, in turns; the medians count. smtp-source sends one canned message again and again
over one connection (-d); ours composes each message for its recipient. A raw pipelined client of canned octets is shown beside
them. Where the processes run is pinned: client and server on one core, and on two. With a large attachment the processor's
time counts, that of the whole process with its start.
"""
import contextlib
import functools
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
        yield port, process.pid
    finally:
        process.terminate()
        process.wait()


@contextlib.contextmanager
def own_sink(build, *arguments):
    """A sink of ours, which knows BDAT as well; see sink.cpp."""
    process = subprocess.Popen([str(build / "bench/smtp/bench_smtp_sink"), *arguments], text=True,
                               stdin=subprocess.PIPE, stdout=subprocess.PIPE)
    try:
        yield int(process.stdout.readline())
    finally:
        process.stdin.close()
        process.wait()


def told(command):
    """What a client of ours reports of itself: messages a second, without its start, and processor time for each."""
    done = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, text=True, check=True)
    told = json.loads(done.stdout)
    return told["perSecond"], told["processorMicroseconds"]


def deliver(build, port, count, *book):
    return told([build / "bench/smtp/bench_smtp_deliver", "127.0.0.1", port, count, SIZE, *book])


def raw(build, port, count, *how):
    return told([build / "bench/smtp/bench_smtp_raw_client", port, count, SIZE, *how])


def source(work, port, count):
    """The same of the peer; the cost of its start, an empty run, is subtracted."""
    program, environment = tools.unpacked("postfix", "smtp-source", work)

    def spent(messages):
        return tools.timed([str(program), "-d", "-s", "1", "-m", str(messages), "-l", str(SIZE), f"127.0.0.1:{port}"],
                           env=environment)

    (seconds, used, _), (start, used_by_start, _) = spent(count), spent(1)
    count -= 1
    return count / max(seconds - start, 1e-9), max(used - used_by_start, 0) * 1e6 / count


def processor_seconds(command, environment=None):
    """Time that a process and its children have spent in the processor."""
    process = subprocess.Popen([str(word) for word in command], env=environment, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        raise SystemExit(f"{command[0]} failed")
    return usage.ru_utime + usage.ru_stime


def with_attachment(build, work, port, rounds):
    """100 messages with an attachment of 5 MB and the support log, against as many bytes from the peer."""
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


def processor_microseconds(pid):
    """Time that a process of one thread has spent in the processor, in the system's finest unit."""
    return int(pathlib.Path(f"/proc/{pid}/schedstat").read_text(encoding="ascii").split()[0]) / 1000


def with_book(build, work, server, rounds):
    """The same delivery with and without the book of outcomes, in turns, on one core. The processor's time for a message counts,
    that of client and server together: it is what bounds the throughput on loopback. Other programs change it by as much as is
    measured, but both of a pair alike: hence many short pairs, and the median of their ratios."""
    port, pid = server
    book, count = work / "esiti", 1000
    kept, none = [], []
    for one in range(rounds):
        shutil.rmtree(book, ignore_errors=True)
        for where, figures in ((f"{book}/", kept), ("-", none))[::-1 if one % 2 else 1]:
            before = processor_microseconds(pid)
            client = deliver(build, port, count, where)[1]
            figures.append(client + (processor_microseconds(pid) - before) / count)
        assert [file.read_bytes().count(b"\n") for file in book.iterdir()] == [count + 1]
    ratio = tools.median(without / with_it for with_it, without in zip(kept, none))
    return {"name": "deliver with the book of outcomes", "value": 1e6 / tools.median(kept),
            "unit": "messages/s", "peer": f"the same without, {1e6 / tools.median(none):.0f}; both of the processor",
            "ratio": ratio, "goal": 0.95, "met": ratio >= 0.95}


def shown(name, measured):
    return (f"{name} {tools.median(rate for rate, _ in measured):.0f}/s with "
            f"{tools.median(used for _, used in measured):.0f} µs")


def record(name, ours, peers, raws, goal):
    """Each of them is a list of messages a second and processor microseconds a message. The ratio is that of the rounds, since
    what else runs on the machine weighs on both sides of a round."""
    ratio = tools.median(mine[0] / theirs[0] for mine, theirs in zip(ours, peers))
    return {"name": name, "value": tools.median(rate for rate, _ in ours), "unit": "messages/s",
            "peer": "; ".join([shown("ours", ours), shown("smtp-source -d", peers), shown("raw client", raws)]) +
                    " of the processor",
            "ratio": ratio, "goal": goal, "met": ratio >= goal}


@contextlib.contextmanager
def pinned(cores):
    """What starts inside runs on these cores alone."""
    before = os.sched_getaffinity(0)
    os.sched_setaffinity(0, cores)
    try:
        yield
    finally:
        os.sched_setaffinity(0, before)


def placed(build, work, rounds, place, server, client, goal):
    with contextlib.ExitStack() as stack:
        with pinned(server):
            port, _ = stack.enter_context(sink(work))
        ours, peers, raws = [], [], []
        with pinned(client):
            for _ in range(rounds):
                ours.append(deliver(build, port, 2000))
                peers.append(source(work, port, 2000))
                raws.append(raw(build, port, 2000))
    return record(f"deliver 2,000 messages of 10 KB, {place}", ours, peers, raws, goal)


def over_a_line(build, work):
    """Over a line with latency, to a sink that knows BDAT: smtp-sink does not."""
    ours, peers, raws, flights = [], [], [], []
    count = 100
    with own_sink(build) as port:
        for _ in range(3):
            with tools.delayed(build, port, flights) as line:
                ours.append(deliver(build, line, count))
            with tools.delayed(build, port, []) as line:
                peers.append(source(work, line, count))
            with tools.delayed(build, port, []) as line:
                raws.append(raw(build, line, count, "flight"))
    # The greeting is followed by EHLO, and the last message by QUIT: two flights that belong to no message. The first
    # message takes two.
    trips = (tools.median(flights) - 3) / count
    return [record("deliver over a line of 10 ms each way", ours, peers, raws, 3.5),
            {"name": "round trips a message", "value": trips, "unit": "round trips", "peer": "one", "ratio": 1 / trips,
             "goal": 1.0, "met": trips <= 1}]


def over_lines(build, work):
    """The chart's lines over the round-trip time."""
    ours, peers = [], []
    with own_sink(build) as port:
        for trip in tools.ROUND_TRIPS:
            for points, rate in ((ours, functools.partial(deliver, build)), (peers, functools.partial(source, work))):
                with tools.delayed(build, port, [], trip // 2) as line:
                    points.append((trip, rate(line, 50)[0]))
    return [{"chart": "line", "line": "delivery alone, without the pause", "points": ours},
            {"chart": "line", "line": "smtp-source -d, one connection", "points": peers}]


def main():
    build, work = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 7
    one, *others = sorted(os.sched_getaffinity(0))
    records = [placed(build, work, rounds, "both on one core", {one}, {one}, 1.15)]
    if others:
        records.append(placed(build, work, rounds, "on two cores", {one}, {others[0]}, 1.6))
    with sink(work) as (port, _):
        records.append(with_attachment(build, work, port, 5))
    with pinned({one}), sink(work) as server:
        records.append(with_book(build, work, server, 9 * rounds))
    records += over_a_line(build, work)
    records += over_lines(build, work)
    print(json.dumps(records))


if __name__ == "__main__":
    main()
