# SPDX-License-Identifier: GPL-3.0-or-later
"""Verifies the DKIM signatures of messages with an independent implementation and prints "good" or why not, one line each.

    check_dkim.py MESSAGES NAME TEXT

MESSAGES contains the messages one after the other, each after a line with its length. TEXT is the DNS's answer for
NAME; there is none for any other name.
"""
import sys

import dkim


def verdict(message, name, text):
    def txt(asked, timeout=5):
        return text if asked.decode().rstrip(".") == name else None

    try:
        return "good" if dkim.verify(message, dnsfunc=txt) else "bad signature"
    except dkim.DKIMException as failure:
        return repr(failure)


def main():
    with open(sys.argv[1], "rb") as source:
        while length := source.readline():
            print(verdict(source.read(int(length)), sys.argv[2], sys.argv[3].encode()))


main()
