#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a DKIM signature (RSA, 2048 bits) adds to composing a message of 10 KB, compared with one signature with a kept key:
processor time, in turns within one process.

    run.py BUILD_FOLDER WORK_FOLDER [ROUNDS]
"""
import json
import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))
import tools  # noqa: E402

SIZE = 10240


def main():
    build, work = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]).resolve()
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 5
    key, selector = work / "mittente.example.pem", work / "mittente.example.selector"
    subprocess.run(["openssl", "genpkey", "-algorithm", "RSA", "-pkeyopt", "rsa_keygen_bits:2048", "-out", str(key)],
                   check=True, stderr=subprocess.DEVNULL)
    selector.write_text("bench")
    for file in (key, selector):
        file.chmod(0o600)
    added, alone = [], []
    for _ in range(rounds):
        done = subprocess.run([str(build / "bench/dkim/bench_sign_messages"), "1000", str(SIZE), str(work), str(key)],
                              stdout=subprocess.PIPE, text=True, check=True)
        told = json.loads(done.stdout)
        added.append(told["added"])
        alone.append(told["alone"])
    ratio = tools.median(ours / theirs for ours, theirs in zip(added, alone))
    print(json.dumps([{"name": "added time of a DKIM signature", "value": tools.median(added), "unit": "µs",
                       "peer": f"one signature with a kept key, {tools.median(alone):.0f} µs", "ratio": ratio, "goal": 1.3,
                       "met": ratio <= 1.3}]))


if __name__ == "__main__":
    main()
