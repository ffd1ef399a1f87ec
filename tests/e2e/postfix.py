# SPDX-License-Identifier: GPL-3.0-or-later
"""A complete private Postfix: configuration, queue and log are in a folder of its own."""
import os
import pathlib
import pwd
import subprocess

SETTINGS = """compatibility_level = 3.6
queue_directory = {folder}/spool
data_directory = {folder}/data
mail_owner = postfix
setgid_group = postdrop
maillog_file = {folder}/log
maillog_file_prefixes = {folder}
inet_interfaces = loopback-only
inet_protocols = ipv4
myhostname = {host}
alias_maps =
alias_database =
"""
SERVICES = """{listen} inet n - n - - smtpd
pickup unix n - n 60 1 pickup
cleanup unix n - n - 0 cleanup
qmgr unix n - n 300 1 qmgr
tlsmgr unix - - n 1000? 1 tlsmgr
rewrite unix - - n - - trivial-rewrite
bounce unix - - n - 0 bounce
defer unix - - n - 0 bounce
trace unix - - n - 0 bounce
flush unix n - n 1000? 0 flush
proxymap unix - - n - - proxymap
smtp unix - - n - - smtp
showq unix n - n - - showq
error unix - - n - - error
retry unix - - n - - error
virtual unix - n n - - virtual
anvil unix - - n - 1 anvil
scache unix - - n - 1 scache
postlog unix-dgram n - n - 1 postlogd
"""
SKIPPED = "skipped: files cannot be given to the users that the mail server's parts run as"


def is_possible():
    """Whether this user may give files to the users that the server's parts run as."""
    return not os.geteuid() and pathlib.Path("/proc/self/uid_map").read_text(encoding="ascii").split()[2] != "1"


def last_of_each(settings):
    """Each name once, with its last value: each part warns of a second one, and so many warnings before the log is served would
    block the part that starts the log."""
    values = dict((line.split("=", 1)[0].strip(), line.split("=", 1)[1]) for line in settings.splitlines() if line and not line.startswith("#"))
    return "".join(f"{name}={value}\n" for name, value in values.items())


class Postfix:
    """Runs between `with` and its end. `listen`: address and port; `settings`: further lines of main.cf."""

    def __init__(self, folder, host, listen, settings):
        self.folder = pathlib.Path(folder)
        self.folder.chmod(0o755)  # the server's own users need access to their folders
        for name in ("spool", "data"):
            (self.folder / name).mkdir()
        os.chown(self.folder / "data", pwd.getpwnam("postfix").pw_uid, -1)
        (self.folder / "main.cf").write_text(last_of_each(settings + SETTINGS.format(folder=self.folder, host=host)),
                                             encoding="ascii")
        (self.folder / "master.cf").write_text(SERVICES.format(listen=listen), encoding="ascii")

    def __enter__(self):
        self.command("start")
        return self

    def __exit__(self, *_):
        self.command("stop")

    def command(self, word):
        # The daemons keep the output open.
        with open(self.folder / "output", "w+b") as output:
            command = ["/usr/sbin/postfix", "-c", self.folder, word]
            if subprocess.run(command, stdout=output, stderr=output, check=False, timeout=60).returncode:
                output.seek(0)
                raise SystemExit(f"FAILED: the mail server does not {word}: {output.read().decode(errors='replace')}{self.log()}")

    def log(self):
        log = self.folder / "log"
        return log.read_text(encoding="utf-8", errors="replace") if log.exists() else ""
