#!/usr/bin/env python3
"""A catch-all mail server for the demo: takes every message for everybody and writes each as one .eml file.

    catch_all.py FOLDER      prints "port N" once it listens on a free port of the loopback address

It speaks SMTP with PIPELINING, SIZE and 8BITMIME and keeps what it received byte for byte, with the envelope in front as
X-Envelope-From and X-Envelope-To.
"""
import asyncio
import pathlib
import re
import sys

LIMIT = 50 * 1024 * 1024


class Session:
    def __init__(self, folder, counter, reader, writer):
        self.folder, self.counter, self.reader, self.writer = folder, counter, reader, writer
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
        self.counter[0] += 1
        envelope = f"X-Envelope-From: {self.sender.group(1)}\r\nX-Envelope-To: {', '.join(self.recipients)}\r\n"
        name = self.folder / f"{self.counter[0]:03d}.eml"
        unfinished = name.with_suffix(".part")
        unfinished.write_bytes(envelope.encode("utf-8") + b"".join(lines))
        unfinished.rename(name)  # whoever watches the folder meets whole messages only
        self.sender, self.recipients = None, []
        self.say(f"250 kept as {name.name}")

    async def on_rset(self, _):
        self.sender, self.recipients = None, []
        self.say("250 ok")

    async def on_noop(self, _):
        self.say("250 ok")

    async def on_quit(self, _):
        self.say("221 bye")
        return "end"


async def main(folder):
    folder.mkdir(parents=True, exist_ok=True)
    counter = [0]

    async def serve(reader, writer):
        try:
            await Session(folder, counter, reader, writer).run()
        except (ConnectionError, asyncio.IncompleteReadError):
            pass
        finally:
            writer.close()

    server = await asyncio.start_server(serve, "127.0.0.1", 0, limit=LIMIT)
    print("port", server.sockets[0].getsockname()[1], flush=True)
    async with server:
        await server.serve_forever()


if __name__ == "__main__":
    asyncio.run(main(pathlib.Path(sys.argv[1])))
