# SPDX-License-Identifier: GPL-3.0-or-later
"""A private network and private mounts for a story: every port may be bound, and nothing outside is reached."""
import fcntl
import os
import socket
import struct
import subprocess
import sys

ISOLATED = "VESTROLA_TEST_NETWORK"


def raise_loopback():
    up_and_running = 0x41
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as any_socket:
        fcntl.ioctl(any_socket, 0x8914, struct.pack("16sH14x", b"lo", up_and_running))  # SIOCSIFFLAGS


def enter():
    """Runs this script again in there; returns at once where it runs there already."""
    if ISOLATED in os.environ:
        return
    unshare = ["unshare", "--net", "--mount"] + (["--map-root-user"] if os.geteuid() else [])
    if subprocess.run([*unshare, "true"], stderr=subprocess.DEVNULL, check=False).returncode:
        print("skipped: the system allows no private network")
        raise SystemExit(0)
    os.environ[ISOLATED] = "1"
    os.execvp(unshare[0], [*unshare, sys.executable, *sys.argv])
