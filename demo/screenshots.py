#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes a sample program folder and takes the pictures of its windows.

    screenshots.py BUILD_FOLDER SAMPLE_FOLDER OUTPUT_FOLDER

docs/screenshots contains the result, and the picture that the demo takes in the middle of its run.
"""
import os
import pathlib
import shutil
import subprocess
import sys

WINDOWS = ["frmMain", "frmAccount", "frmDestinatario", "frmInfoSu", "frmInvia_pronta", "frmImpTXT", "frmImpDB",
           "frmScelta", "frmSplash", "frmEditor_modifica", "frmEditor_origine", "frmEditor_anteprima",
           "frmEditor_collegamento", "frmEditor_immagine", "frmEditor_elemento", "frmEditor_trova",
           "frmEditor_variabili", "frmColor", "frmPropBody"]


def main():
    build, sample, output = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
    shutil.rmtree(sample, ignore_errors=True)
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "QTWEBENGINE_DISABLE_SANDBOX": "1"}
    made = subprocess.run([str(build / "demo" / "demo_make"), str(sample), "25"], env=environment,
                          stdout=subprocess.PIPE, text=True, check=True)
    subprocess.run([str(build / "demo" / "demo_screenshots"), str(sample), made.stdout.strip(), str(output)],
                   env=environment, check=True, timeout=120)
    missing = [name for name in WINDOWS if not (output / f"{name}.png").is_file()]
    if missing:
        print("no picture of", ", ".join(missing))
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main())
