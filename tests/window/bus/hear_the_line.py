"""hear_the_line.py DRIVER FILES: plays a session in the real window and listens on the accessibility
bus, from a process of its own as a screen reader does, to what the live line says."""

import subprocess
import sys
import threading
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

# How long the bus may take; nothing waits that long when all is well.
PATIENCE = 30

# What a user does, and what is said then. Nothing is typed: without a window manager the keyboard may
# be nobody's.
FIRST = ["file nine.vkr", "menu menuopen"]
SESSION = [
    (["delrow 9"], "1 row deleted."),
    (["click DetecChB"], "One detection range serves the whole series"),
    (["tab plot", "menu MenuLowLim", "bar VScLowLimit 60"], "estimated by the line through"),
    (["tab raw"], "Raw data has put GM and GSD of all outcomes in force again"),
    (["tab descript"], "outcomes lie outside the detection range"),
    (["tab grenzen"], "1 is only the starting value: state your limit."),
    (["up VkrValTxB"], "GM, GSD and df are those of all 8 outcomes."),
    (["tab basis", "down SampSizTxB"], "The highest outcome is left out"),
    (["click OriModiCmd", "tab raw"], "Raw data is closed. Other values are tried"),
]


class Driver:
    """valkorin-drive, kept busy: one that waits for its next command answers nobody on the bus."""

    def __init__(self, path, folder):
        self.process = subprocess.Popen(
            [path, "-"], cwd=folder, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.lock = threading.Lock()
        self.over = threading.Event()
        threading.Thread(target=self._keep_busy, daemon=True).start()

    def _keep_busy(self):
        while not self.over.wait(0.05) and self.process.poll() is None:
            self.play("size 1000 700")

    def play(self, *commands):
        with self.lock:
            try:
                self.process.stdin.write("".join(command + "\n" for command in commands))
                self.process.stdin.flush()
            except (BrokenPipeError, ValueError):
                self.over.set()

    def end(self):
        self.over.set()
        with self.lock:
            printed, _ = self.process.communicate(timeout=PATIENCE)
        if self.process.returncode != 0:
            sys.exit(f"the driver ended with {self.process.returncode}: {printed}")


class Ear:
    """The names that changed on the bus, with the roles of what bears them."""

    def __init__(self, process):
        self.program = process.pid
        self.alive = lambda: process.poll() is None
        self.heard = []
        self.listener = Atspi.EventListener.new(self._hear)
        self.listener.register("object:property-change:accessible-name")

    def _hear(self, event):
        if event.source.get_process_id() == self.program:
            try:
                event.source.clear_cache()
                self.heard.append((event.source.get_role_name(), event.source.get_name()))
            except GLib.GError:
                pass  # a tab of a strip that is another by now

    def alerts(self):
        return [name for role, name in self.heard if role in ("alert", "notification")]

    def wait_for(self, words, patience=PATIENCE):
        """Whether an alert says the words, as soon as one does."""
        end = time.monotonic() + patience
        context = GLib.MainContext.default()
        while time.monotonic() < end and self.alive():
            while context.pending():
                context.iteration(False)
            if any(words in name for name in self.alerts()):
                return True
            time.sleep(0.02)
        return False


def wait_for_program(pid):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            program = desktop.get_child_at_index(i)
            if program and program.get_process_id() == pid:
                return
        time.sleep(0.05)
    sys.exit("the program is not on the bus")


def main():
    path, files = sys.argv[1:]
    driver = Driver(path, files)
    wait_for_program(driver.process.pid)
    ear = Ear(driver.process)
    driver.play(*FIRST)
    # The program hears some time later that somebody listens.
    if not any(ear.wait_for("9 outcomes read.", 1) or driver.play("tab basis", "tab raw")
               for _ in range(PATIENCE)):
        sys.exit("nothing is heard")
    wrong = 0
    for commands, words in SESSION:
        ear.heard.clear()
        driver.play(*commands)
        if not ear.wait_for(words):
            wrong += 1
            if driver.over.is_set():
                driver.end()
            print(f"{commands}: {words!r} was not said, but {ear.heard}", flush=True)
    driver.end()
    print(f"{len(SESSION)} steps, {wrong} unheard")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
