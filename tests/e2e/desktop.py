# SPDX-License-Identifier: GPL-3.0-or-later
"""A private desktop for the built program: a session bus, an X server without a screen, a window manager, the registry
of assistive programs, and a copy of the program as newly installed, whose user has never started it.

Needs the system's Python, which knows pyatspi.
"""
import email
import email.policy
import mailbox
import os
import pathlib
import struct
import subprocess
import sys
import tempfile
import time
import zlib

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
INSIDE = "VESTROLA_TEST_SESSION"
PATIENCE = 60  # seconds; only a broken program uses them up
ADDRESS = "ufficio@cliente.test"
NAME = "Ada"
SUBJECT = "Invito per :::nom:::"
TEXT = "Gentile :::nom:::, la aspettiamo."


def inside(size="1280x1000"):
    """Runs the calling script again on a screen of this size and a private session bus, and exits with its result. Returns
    at once where the script runs there already."""
    if INSIDE in os.environ:
        return
    own, server = os.pipe()
    with tempfile.TemporaryDirectory() as frame:
        # -r: a busy machine may release a key so late that it would be repeated
        screen = subprocess.Popen(["Xvfb", "-r", "-displayfd", str(server), "-screen", "0", size + "x24", "-nolisten", "tcp",
                                   "-fbdir", frame], pass_fds=[server], stderr=subprocess.DEVNULL)
        os.close(server)
        # The bus of assistive programs puts its socket there; in the user's folder it would be named after the screen alone,
        # and an ended session's bus could take away that of the next on a screen of the same number.
        runtime = pathlib.Path(frame) / "runtime"
        runtime.mkdir(mode=0o700)
        with os.fdopen(own) as display:
            environment = {**os.environ, INSIDE: frame, "DISPLAY": ":" + display.readline().strip(),
                           "XDG_RUNTIME_DIR": str(runtime)}
        try:
            raise SystemExit(subprocess.run(["dbus-run-session", "--", sys.executable, *sys.argv], env=environment,
                                            check=False).returncode)
        finally:
            screen.kill()
            screen.wait()


def pictures():
    """Where pictures are kept: the folder that VESTROLA_SHOTS names, else one that goes away."""
    return pathlib.Path(os.environ.get("VESTROLA_SHOTS") or os.environ[INSIDE])


def picture(path):
    """Writes what the screen shows as a PNG file."""
    dump = (pathlib.Path(os.environ[INSIDE]) / "Xvfb_screen0").read_bytes()
    head = struct.unpack(">25I", dump[:100])  # XWD, version 7
    size, width, height, stride, colours = head[0], head[4], head[5], head[12], head[19]
    start = size + 12 * colours
    lines = bytearray()
    for line in range(height):
        row = dump[start + line * stride:start + line * stride + 4 * width]
        pixels = bytearray(3 * width)
        pixels[0::3], pixels[1::3], pixels[2::3] = row[2::4], row[1::4], row[0::4]
        lines += b"\0" + pixels

    def chunk(kind, content):
        return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))

    header = struct.pack(">2I5B", width, height, 8, 2, 0, 0, 0)
    pathlib.Path(path).write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) +
                                   chunk(b"IDAT", zlib.compress(bytes(lines), 6)) + chunk(b"IEND", b""))


def fail(text):
    raise SystemExit(f"FAILED: {text}")


def wait_for(condition, what, instead=None):
    """The first true value of `condition`; if it never comes, the failure shows `instead`."""
    end = time.monotonic() + PATIENCE
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            fail(f"waited {PATIENCE} s for {what}" + (f"; there is {instead()}" if instead else ""))
        time.sleep(0.05)


class Desktop:
    def __init__(self, work):
        self.processes = []
        self.work = work
        for name in ("data", "config", "runtime"):
            (work / name).mkdir(mode=0o700)
            os.environ[f"XDG_{name.upper()}_{'DIR' if name == 'runtime' else 'HOME'}"] = str(work / name)
        os.environ.pop("LC_ALL", None)
        os.environ.update(LANG="it_IT.UTF-8", QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                          QTWEBENGINE_DISABLE_SANDBOX="1")
        self.start(["openbox", "--sm-disable"])

    def start(self, command, **options):
        process = subprocess.Popen([str(part) for part in command], **{"stdout": subprocess.DEVNULL, **options})
        self.processes.append(process)
        return process

    def install(self, build):
        """Returns the path of a program outside the build tree, so that its user's folder is made at its start."""
        place = self.work / "installed"
        subprocess.run(["cmake", "--install", str(build), "--prefix", str(place)], stdout=subprocess.DEVNULL, check=True)
        return place / "bin" / "vestrola"

    @property
    def program_folder(self):
        return self.work / "data" / "vestrola"

    def write_message(self):
        path = self.work / "invito.mss"
        rows = [f"[<INI-SUBJ>]{SUBJECT}[<END-SUBJ>]", "[<INI-PRIO>]NR[<END-PRIO>]", "[<INI-ALLG>]", "[<END-ALLG>]",
                "[<INI-MESS>]", f"<HTML><BODY><P>{TEXT}</P></BODY></HTML>", "[<END-MESS>]", ""]
        path.write_bytes("\r\n".join(rows).encode("cp1252"))
        return path

    @staticmethod
    def has_browser(process):
        """Whether the engine of the editor's views is in the program's memory."""
        return "WebEngineCore" in pathlib.Path(f"/proc/{process.pid}/maps").read_text(encoding="utf-8")

    @staticmethod
    def ends(process, status):
        wait_for(lambda: process.poll() is not None, "the end of the program")
        if process.returncode != status:
            fail(f"the program ended with {process.returncode} instead of {status}")

    def close(self):
        for process in reversed(self.processes):
            process.kill()
            process.wait()


class MailServer:
    """Accepts every message and puts it into a Maildir."""

    def __init__(self, desktop):
        self.folder = desktop.work / "Maildir"
        server = desktop.start([sys.executable, ROOT / "demo" / "catch_all.py", self.folder, "maildir"],
                               stdout=subprocess.PIPE, text=True)
        self.port = wait_for(server.stdout.readline, "the mail server").split()[1]

    def check_the_one_message(self):
        """One message for ADDRESS came, made of SUBJECT and TEXT."""
        arrived = [email.message_from_bytes(message.as_bytes(), policy=email.policy.default)
                   for message in mailbox.Maildir(self.folder)]
        if len(arrived) != 1:
            fail(f"{len(arrived)} messages arrived")
        told = [str(arrived[0][header]) for header in ("X-Envelope-To", "To", "Subject")]
        if told != [ADDRESS, f"{NAME} <{ADDRESS}>", SUBJECT.replace(":::nom:::", NAME)]:
            fail(f"what arrived says {told}")
        if TEXT.replace(":::nom:::", NAME) not in arrived[0].get_body(("plain",)).get_content():
            fail(f"the text that arrived is {arrived[0]}")


def run(play):
    """Runs one test on the program of the build folder that the command line names."""
    with tempfile.TemporaryDirectory() as folder:
        stage = Desktop(pathlib.Path(folder))
        try:
            play(stage, stage.install(pathlib.Path(sys.argv[1]).resolve()))
        finally:
            stage.close()
