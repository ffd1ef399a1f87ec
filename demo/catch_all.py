#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A catch-all mail server for the demo: accepts every message for everybody and writes each as one .eml file.

    catch_all.py FOLDER [maildir [ADDRESS PORT]]

prints "port N" once it listens, on a free port of the loopback address unless told otherwise. With "maildir" the folder
is a Maildir.

It speaks SMTP with PIPELINING, SIZE and 8BITMIME and keeps what it received byte for byte, with the envelope in front as
X-Envelope-From and X-Envelope-To.
"""
import asyncio
import itertools
import mailbox
import pathlib
import re
import sys

LIMIT = 50 * 1024 * 1024


class Session:
    def __init__(self, keep, reader, writer):
        self.keep, self.reader, self.writer = keep, reader, writer
        self.sender = None
        self.recipients = []

    def say(self, line):
        self.writer.write(line.encode("ascii") + b"\r\n")

    async def run(self):
        self.say("220 demo.invalid catch-all ready")
        while True:
            line = await self.reader.readline()
            if not line:
                return
            word, _, rest = line.decode("utf-8", "replace").strip().partition(" ")
            handler = getattr(self, "on_" + word.lower(), None)
            if handler is None:
                self.say("500 not understood")
            elif await handler(rest) == "end":
                await self.writer.drain()
                return
            await self.writer.drain()

    async def on_ehlo(self, _):
        for line in ("250-demo.invalid", "250-PIPELINING", f"250-SIZE {LIMIT}", "250 8BITMIME"):
            self.say(line)

    async def on_helo(self, _):
        self.say("250 demo.invalid")

    async def on_mail(self, rest):
        self.sender = re.match(r"FROM:\s*<([^>]*)>", rest, re.I)
        self.recipients = []
        self.say("250 ok" if self.sender else "501 no address")

    async def on_rcpt(self, rest):
        address = re.match(r"TO:\s*<([^>]+)>", rest, re.I)
        if not self.sender or not address:
            self.say("503 no sender yet" if address else "501 no address")
            return
        self.recipients.append(address.group(1))
        self.say("250 ok")

    async def on_data(self, _):
        if not self.recipients:
            self.say("503 no recipients")
            return
        self.say("354 go ahead")
        lines, size = [], 0
        while True:
            line = await self.reader.readline()
            if not line:
                return "end"
            if line == b".\r\n":
                break
            size += len(line)
            if size > LIMIT:
                self.say("552 too large")
                return "end"
            lines.append(line[1:] if line.startswith(b".") else line)
        envelope = f"X-Envelope-From: {self.sender.group(1)}\r\nX-Envelope-To: {', '.join(self.recipients)}\r\n"
        name = self.keep(envelope.encode("utf-8") + b"".join(lines))
        self.sender, self.recipients = None, []
        self.say(f"250 kept as {name}")

    async def on_rset(self, _):
        self.sender, self.recipients = None, []
        self.say("250 ok")

    async def on_noop(self, _):
        self.say("250 ok")

    async def on_quit(self, _):
        self.say("221 bye")
        return "end"


def in_files(folder):
    """What keeps messages as 001.eml, 002.eml and so on."""
    folder.mkdir(parents=True, exist_ok=True)
    numbers = itertools.count(1)

    def keep(message):
        name = folder / f"{next(numbers):03d}.eml"
        unfinished = name.with_suffix(".part")
        unfinished.write_bytes(message)
        unfinished.rename(name)  # a reader of the folder sees only complete messages
        return name.name

    return keep


async def main(keep, address, port):
    async def serve(reader, writer):
        try:
            await Session(keep, reader, writer).run()
        except (ConnectionError, asyncio.IncompleteReadError):
            pass
        finally:
            writer.close()

    server = await asyncio.start_server(serve, address, port, limit=LIMIT)
    print("port", server.sockets[0].getsockname()[1], flush=True)
    async with server:
        await server.serve_forever()


if __name__ == "__main__":
    maildir = sys.argv[2:3] == ["maildir"]
    keeper = mailbox.Maildir(sys.argv[1]).add if maildir else in_files(pathlib.Path(sys.argv[1]))
    asyncio.run(main(keeper, *(sys.argv[3:5] or ["127.0.0.1", 0])))
