# SPDX-License-Identifier: GPL-3.0-or-later
"""What several benchmarks need: tools of packages that are unpacked and never installed, process times, medians, a line with
latency."""
import contextlib
import os
import pathlib
import shutil
import statistics
import subprocess
import time

ROUND_TRIPS = (0, 10, 20, 50, 100)  # milliseconds, of the chart over them


def unpacked(package, program, folder):
    """Path of a package's program. Where it is not installed, the package is downloaded and unpacked below `folder`, so
    that measuring against a mail server's tools does not start that server on the user's machine. Returns the path and
    the environment it needs."""
    environment = dict(os.environ)
    for place in ("/usr/sbin", "/usr/bin"):
        path = pathlib.Path(place) / program
        if path.exists():
            return path, environment
    root = pathlib.Path(folder) / "packages" / package
    if not root.exists():
        download = root.parent / (package + "-download")
        shutil.rmtree(download, ignore_errors=True)
        download.mkdir(parents=True)
        subprocess.run(["apt-get", "download", "-qq", package], cwd=download, check=True)
        subprocess.run(["dpkg", "-x", str(next(download.glob("*.deb"))), str(root)], check=True)
    found = [path for path in root.rglob(program) if path.is_file()]
    if not found:
        raise SystemExit(f"{package} holds no {program}")
    libraries = sorted({str(path.parent) for path in root.rglob("*.so*")})
    environment["LD_LIBRARY_PATH"] = ":".join(libraries)
    return found[0], environment


def timed(command, **more):
    """Runs a process, which must succeed: seconds on the clock, seconds of processor time, what it printed."""
    start = time.perf_counter()
    process = subprocess.Popen(command, stdout=subprocess.PIPE, text=True, **more)
    printed = process.stdout.read()
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        raise subprocess.CalledProcessError(process.returncode, command)
    return time.perf_counter() - start, usage.ru_utime + usage.ru_stime, printed


def median(values):
    return statistics.median(values)


@contextlib.contextmanager
def delayed(build, port, flights, each_way=10):
    """A line to `port` that delays some ms each way; the number of flights towards the server goes to `flights`."""
    proxy = subprocess.Popen([str(build / "bench/smtp/bench_smtp_delay_proxy"), str(port), str(each_way)], text=True,
                             stdin=subprocess.PIPE, stdout=subprocess.PIPE)
    try:
        yield int(proxy.stdout.readline())
    finally:
        proxy.stdin.close()
        flights.append(int(proxy.stdout.readline()))
        proxy.wait()
