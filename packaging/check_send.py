#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Sends the demo's newsletter with the installed program, as its user would: run by packaging/check in the bare system.

    check_send.py prepare FOLDER USER    as root: puts the demo's recipients, account and message into the user's folder
    check_send.py send FOLDER            as the user: sends it and verifies what arrives
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
PORT = "2525"
sys.path[:0] = [str(ROOT / "tests" / "e2e"), str(ROOT / "demo")]


def prepare(folder, user):
    sample = folder.parent.parent.parent / "demo"
    subprocess.run(["demo_make", sample, PORT], env={**os.environ, "QT_QPA_PLATFORM": "offscreen"}, check=True,
                   stdout=subprocess.DEVNULL)
    for name in ("Account.imp", "pathDBase.imp"):
        shutil.copy(sample / "data" / name, folder / "data" / name)
    for path in [sample, *sample.rglob("*"), folder / "data" / "Account.imp", folder / "data" / "pathDBase.imp"]:
        shutil.chown(path, user, user)


def send(folder):
    import desktop
    desktop.inside()
    from accessible import Window
    import accessible
    import demo

    sample = pathlib.Path.home() / "demo"
    selected = sorted(row["email"] for row in demo.recipients() if row["sel"] == "1")
    with tempfile.TemporaryDirectory() as work:
        stage = desktop.Desktop(pathlib.Path(work))
        try:
            os.environ["XDG_DATA_HOME"] = str(folder.parent)
            if subprocess.run(["unshare", "--user", "true"], stderr=subprocess.DEVNULL, check=False).returncode == 0:
                del os.environ["QTWEBENGINE_DISABLE_SANDBOX"]
            arrived = stage.work / "messages"
            server = stage.start([sys.executable, ROOT / "demo" / "catch_all.py", arrived, "eml", "127.0.0.1", PORT],
                                 stdout=subprocess.PIPE, text=True)
            desktop.wait_for(server.stdout.readline, "the mail server")
            running = stage.start(["vestrola"])
            main = Window("frame", "Vestrola")
            accessible.send(main, sample / "messaggi" / "autunno.mss", len(selected), asked=True)
            subprocess.run(["xdotool", "key", "--clearmodifiers", "ctrl+q"], check=True)
            stage.ends(running, 0)
            report = demo.Report()
            rows = {row["email"]: row for row in demo.recipients()}
            attachment = next((sample / "messaggi").glob("*.pdf"))
            came = sorted(demo.check_message(report, file.read_bytes(), rows, attachment)[0]
                          for file in arrived.glob("*.eml"))
            report.check(came == selected, f"messages came for {came}, not for {selected}")
            if report.problems:
                desktop.fail("; ".join(report.problems))
            print(f"{len(came)} personal copies arrived, with picture and attachment")
        finally:
            stage.close()


if __name__ == "__main__":
    if sys.argv[1] == "prepare":
        prepare(pathlib.Path(sys.argv[2]), sys.argv[3])
    else:
        send(pathlib.Path(sys.argv[2]))
