#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A whole run of the send window, one tick after the other: row, placeholders, signature, delivery by TLS, commit. Compared with
the sum of its parts, each done by the smallest program that can do it: a raw pipelined client of canned octets over TLS, an SQLite commit
with a DELETE journal, one RSA signature with a kept key.

    run.py BUILD_FOLDER WORK_FOLDER [ROUNDS]

What the ratio compares is done without painting; the time with the window on a screen is shown beside it. With the database on a
tmpfs and on disk (the work folder), client and server on a core each where there are two. A line of the chart over the round-trip
time has the pause of the window besides.
"""
import contextlib
import json
import os
import pathlib
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import tools  # noqa: E402

MESSAGES = 300
SIZE = 10240
MEMORY = pathlib.Path("/dev/shm")


def openssl(*arguments):
    subprocess.run(["openssl", *arguments], check=True, stderr=subprocess.DEVNULL)


def certificate(folder):
    """A server's certificate, its key in the same file, that is its own authority; and a key for signatures."""
    key, own, server, signing = (folder / name for name in ("key", "own.pem", "server.pem", "signing.pem"))
    openssl("req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes", "-keyout", str(key),
            "-out", str(own), "-subj", "/CN=localhost", "-addext", "subjectAltName=IP:127.0.0.1", "-days", "30")
    server.write_text(own.read_text() + key.read_text())
    openssl("genpkey", "-algorithm", "RSA", "-pkeyopt", "rsa_keygen_bits:2048", "-out", str(signing))
    return own, server, signing


def told(command, **more):
    done = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, text=True, check=True, **more)
    return json.loads(done.stdout)


def surroundings(folder):
    return dict(os.environ, TMPDIR=str(folder), QT_QPA_PLATFORM="offscreen", XDG_RUNTIME_DIR=str(folder))


def compare(build, port, own, signing, folder, rounds):
    environment = surroundings(folder)
    ours, peers = [], []
    for _ in range(rounds):
        run = [build / "bench/whole_run/bench_whole_run", port, MESSAGES, SIZE, own, signing]
        unseen, seen = told(run, env=environment), told([*run, "shown"], env=environment)
        ours.append((unseen["microseconds"], unseen["processorMicroseconds"], seen["microseconds"]))
        parts = told([build / "bench/whole_run/bench_commit_and_sign", folder / "peer.sqlite", MESSAGES, signing])
        raw = told([build / "bench/smtp/bench_smtp_raw_client", port, MESSAGES, SIZE, "flight", "tls"])
        peers.append([seconds * 1e6 / MESSAGES for seconds in (raw["seconds"], parts["commits"], parts["signatures"])])
    return ours, peers


def over_lines(build, port, own, signing, folder):
    """The chart's line of the window over the round-trip time: with its pause, which every message waits for."""
    points = []
    for trip in tools.ROUND_TRIPS:
        with tools.delayed(build, port, [], trip // 2) as line:
            run = [build / "bench/whole_run/bench_whole_run", line, 30, SIZE, own, signing, "paced"]
            points.append((trip, 1e6 / told(run, env=surroundings(folder))["microseconds"]))
    return {"chart": "line", "line": "the send window, with its shortest pause", "points": points}


def record(place, ours, peers, goal):
    ratio = tools.median(mine[0] / sum(theirs) for mine, theirs in zip(ours, peers))
    client, commit, signature = (tools.median(part) for part in zip(*peers))
    unseen, processor, seen = (tools.median(part) for part in zip(*ours))
    return {"name": f"whole run with commit, {place}", "value": unseen, "unit": "µs/message",
            "peer": f"raw client {client:.0f} + SQLite commit {commit:.0f} + signature {signature:.0f} µs; of ours "
                    f"{processor:.0f} of the processor; {seen:.0f} with the window on the screen",
            "ratio": ratio, "goal": goal, "met": ratio <= goal}


@contextlib.contextmanager
def sink(build, server, core):
    process = subprocess.Popen([str(build / "bench/smtp/bench_smtp_sink"), str(server)], text=True, stdin=subprocess.PIPE,
                               stdout=subprocess.PIPE, preexec_fn=lambda: os.sched_setaffinity(0, {core}))
    try:
        yield int(process.stdout.readline())
    finally:
        process.stdin.close()
        process.wait()


def main():
    build, work = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 5
    own, server, signing = certificate(work)
    cores = sorted(os.sched_getaffinity(0))
    records = []
    with sink(build, server, cores[0]) as port:
        os.sched_setaffinity(0, {cores[-1]})
        with tempfile.TemporaryDirectory(dir=MEMORY) as folder:
            records.append(record("on a tmpfs", *compare(build, port, own, signing, pathlib.Path(folder), rounds), 1.15))
        records.append(record("on disk", *compare(build, port, own, signing, work, rounds), 1.0))
        records.append(over_lines(build, port, own, signing, work))
    print(json.dumps(records))


if __name__ == "__main__":
    main()
