#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Takes the pictures of the help, in each of its languages.

    help_pictures.py BUILD_FOLDER SAMPLE_FOLDER

They go to assets/help/LANGUAGE/img. Windows show paths of SAMPLE_FOLDER, so it should have a name that a reader
can understand.
"""
import os
import pathlib
import shutil
import subprocess
import sys

HELP = pathlib.Path(__file__).resolve().parent.parent / "assets" / "help"
LANGUAGES = {"it": "Italiano", "en": "English", "es": "Español", "fr": "Français", "de": "Deutsch"}
LOCALES = {"it": "it_IT", "en": "en_GB", "es": "es_ES", "fr": "fr_FR", "de": "de_DE"}


def main():
    build, sample = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "QTWEBENGINE_DISABLE_SANDBOX": "1"}
    for code, name in LANGUAGES.items():
        shutil.rmtree(sample, ignore_errors=True)
        made = subprocess.run([str(build / "demo" / "demo_make"), str(sample), "25"], env=environment,
                              stdout=subprocess.PIPE, text=True, check=True)
        (sample / "LANGz.lng").write_bytes(name.encode("cp1252") + b"\r\n")
        subprocess.run([str(build / "demo" / "demo_help_pictures"), str(sample), made.stdout.strip(),
                        str(HELP / code / "img")], env={**environment, "DEMO_LOCALE": LOCALES[code]}, check=True, timeout=120)
    return 0


if __name__ == "__main__":
    sys.exit(main())
