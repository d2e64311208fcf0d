"""A printing system of its own for one test: cupsd on a domain socket, without a network. What its
queues have taken lies in its spool."""

import os
import pathlib
import pwd
import shutil
import subprocess
import time

PATH = os.environ.get("PATH", "") + ":/usr/sbin:/sbin"

FILES = """
ServerRoot {folder}
RequestRoot {folder}/spool
CacheDir {folder}/cache
StateDir {folder}/state
TempDir {folder}/spool/tmp
DocumentRoot {folder}/doc
AccessLog {folder}/access_log
ErrorLog {folder}/error_log
PageLog {folder}/page_log
Printcap
FileDevice Yes
{user}
"""

SERVER = """
LogLevel warn
Listen {socket}
Browsing No
WebInterface No
DirtyCleanInterval 0
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Location /admin>
  Order allow,deny
  Allow all
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  <Limit All>
    Order deny,allow
    Allow all
  </Limit>
</Policy>
"""


def missing():
    """Why there is no printing system here; empty where there is."""
    for program in ("cupsd", "lpadmin", "lpstat", "pdftotext"):
        if not shutil.which(program, path=PATH):
            return f"{program} is not installed"
    return ""


class Server:
    def __init__(self, folder):
        self.folder = pathlib.Path(folder).resolve()
        self.socket = self.folder / "sock"
        self.process = None
        for part in ("spool/tmp", "cache", "state", "doc", "out", "ppd", "ssl"):
            (self.folder / part).mkdir(parents=True, exist_ok=True)
        root = os.geteuid() == 0
        if root:
            lp = pwd.getpwnam("lp")
            for path in (self.folder, *self.folder.rglob("*")):
                os.chown(path, lp.pw_uid, lp.pw_gid)
        values = {"folder": self.folder, "socket": self.socket,
                  "user": "User lp\nGroup lp" if root else ""}
        (self.folder / "cups-files.conf").write_text(FILES.format(**values))
        (self.folder / "cupsd.conf").write_text(SERVER.format(**values))

    @property
    def environment(self):
        # The settings of the user must not name another server, or a printer of their own.
        return {**os.environ, "PATH": PATH, "CUPS_SERVER": str(self.socket),
                "HOME": str(self.folder)}

    def start(self):
        self.process = subprocess.Popen(
            ["cupsd", "-f", "-c", str(self.folder / "cupsd.conf"),
             "-s", str(self.folder / "cups-files.conf")],
            env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.wait(lambda: self.ask("lpstat", "-r").returncode == 0 and
                  b"not running" not in self.ask("lpstat", "-r").stdout, "the server runs")

    def stop(self):
        if self.process:
            self.process.kill()
            self.process.wait()
            self.process = None

    def ask(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, timeout=30,
                              check=False)

    def add_queue(self, name):
        done = self.ask("lpadmin", "-p", name, "-E", "-v", f"file:{self.folder}/out/{name}",
                        "-m", "raw")
        if done.returncode != 0:
            raise RuntimeError(f"no queue {name}: {done.stderr.decode()}")

    def jobs(self, queue):
        """The documents that the queue has taken, in their order."""
        listed = self.ask("lpstat", "-W", "all", "-o", queue).stdout.decode()
        numbers = sorted(int(line.split()[0].rsplit("-", 1)[1]) for line in listed.splitlines())
        return [self.folder / "spool" / f"d{number:05}-001" for number in numbers]

    def wait(self, condition, what):
        for _ in range(300):
            if condition():
                return
            time.sleep(0.1)
        log = self.folder / "error_log"
        told = log.read_text()[-3000:] if log.exists() else ""
        raise RuntimeError(f"not within half a minute: {what}\n{told}")

    def text_of(self, queue, job=0):
        """What pdftotext reads in a document of the queue."""
        self.wait(lambda: len(self.jobs(queue)) > job, f"document {job} of {queue}")
        return text_of(self.jobs(queue)[job])


def text_of(file):
    return subprocess.run(["pdftotext", "-layout", str(file), "-"], capture_output=True,
                          check=True).stdout.decode()
