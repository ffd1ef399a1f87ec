# SPDX-License-Identifier: GPL-3.0-or-later
"""A mail server whose answer to each message is set by the test; it counts the copies that reach each recipient."""
import email
import email.policy
import re
import socket
import threading
import time


class ScriptedMail:
    """Listens on a free port of the loopback address. A message is noted once its final point has arrived, since the
    server then has it, even if the reply is lost."""

    def __init__(self, delay=0.0, slow=None, refused=()):
        """`delay`: seconds before each reply to a final point; `slow`: those for single recipients; `refused`: the
        recipients that the server does not take."""
        self.delay, self.slow, self.refused = delay, slow or {}, refused
        self.messages = []  # recipient and message, in the order of arrival
        self.listener = socket.create_server(("127.0.0.1", 0), backlog=50)
        self.port = self.listener.getsockname()[1]
        self.accepting = threading.Thread(target=self._accept, daemon=True)
        self.accepting.start()

    def _accept(self):
        while True:
            try:
                connection, _ = self.listener.accept()
            except OSError:
                return
            threading.Thread(target=self._serve, args=(connection,), daemon=True).start()

    def _serve(self, connection):
        try:
            with connection, connection.makefile("rb") as lines:
                connection.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
                connection.sendall(b"220 prova.example\r\n")
                self._talk(connection, lines)
        except OSError:
            pass

    def _talk(self, connection, lines):
        recipient = None
        while True:
            line = lines.readline()
            word = line[:4].upper()
            if not line:
                return
            if word == b"EHLO":
                connection.sendall(b"250-prova.example\r\n250-PIPELINING\r\n250 8BITMIME\r\n")
            elif word == b"DATA" and not recipient:
                connection.sendall(b"503 nobody to send to\r\n")
            elif word == b"DATA":
                connection.sendall(b"354 go on\r\n")
                message = self._message(lines)
                if message is None:
                    return
                self.messages.append((recipient, message))
                time.sleep(self.slow.get(recipient, self.delay))
                connection.sendall(b"250 taken\r\n")
                recipient = None
            elif word == b"QUIT":
                connection.sendall(b"221 bye\r\n")
                return
            else:
                named = re.search(rb"<([^>]*)>", line).group(1).decode() if word == b"RCPT" else None
                recipient = named or recipient
                if named in self.refused:
                    recipient = None
                    connection.sendall(b"550 5.1.1 unknown here\r\n")
                    continue
                connection.sendall(b"250 ok\r\n")

    @staticmethod
    def _message(lines):
        message = []
        while True:
            line = lines.readline()
            if not line:
                return None
            if line == b".\r\n":
                return b"".join(message)
            message.append(line[1:] if line.startswith(b".") else line)

    def copies(self):
        """How many messages each recipient got."""
        count = {}
        for recipient, _ in list(self.messages):
            count[recipient] = count.get(recipient, 0) + 1
        return count

    def raw(self):
        """The recipients of messages that still contain a placeholder, in the subject or in a text."""
        found = []
        for recipient, message in list(self.messages):
            parsed = email.message_from_bytes(message, policy=email.policy.default)
            texts = [str(parsed["Subject"])] + [part.get_content() for part in parsed.walk()
                                                if part.get_content_maintype() == "text"]
            if any(":::" in text for text in texts):
                found.append(recipient)
        return found

    def greeted_wrongly(self, names):
        """The recipients of messages made for somebody else; `names` says what each message must contain."""
        return [recipient for recipient, message in list(self.messages)
                if recipient in names and names[recipient].encode() not in message]

    def close(self):
        # The thread has to be out of accept() first: the descriptor's number goes to the next server, and a call that the
        # kernel restarts takes that server's connections.
        self.listener.shutdown(socket.SHUT_RDWR)
        self.accepting.join()
        self.listener.close()
