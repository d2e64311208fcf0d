"""The program as a second process meets it: over the accessibility bus and by keys from the X
server. `Program` starts valkorin-drive, whose script commands bring it to any screen; in between its
window lives as the user's does."""

import subprocess
import time
from functools import cached_property

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

# How long the bus may take to tell what has happened; nothing waits that long when all is well.
PATIENCE = 30


def wait_for(what, look):
    """What `look` returns, as soon as that is anything."""
    end = time.monotonic() + PATIENCE
    while True:
        found = look()
        if found:
            return found
        if time.monotonic() > end:
            raise TimeoutError(what)
        time.sleep(0.02)


class Object:
    """A thing on the bus, with what a screen reader asks of it."""

    def __init__(self, accessible):
        self.accessible = accessible

    @cached_property
    def states(self):
        return self.accessible.get_state_set()

    def is_(self, state):
        return self.states.contains(getattr(Atspi.StateType, state))

    @cached_property
    def role(self):
        return self.accessible.get_role_name()

    @cached_property
    def name(self):
        return self.accessible.get_name() or ""

    @cached_property
    def description(self):
        return self.accessible.get_description() or ""

    @cached_property
    def place(self):
        """Left, top, width and height on the display."""
        box = self.accessible.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        return box.x, box.y, box.width, box.height

    @property
    def key(self):
        """The same for the same thing, whenever and wherever it was met."""
        return self.accessible

    @property
    def spoken(self):
        """What names it: its own name, or the label that says it belongs to it."""
        if self.name:
            return self.name
        for relation in self.accessible.get_relation_set():
            if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
                return relation.get_target(0).get_name()
        return ""

    @property
    def access_key(self):
        """Alt and a letter, if anything."""
        action = self.accessible.get_action_iface()
        keys = [action.get_key_binding(i) for i in range(action.get_n_actions())] if action else []
        return next((key.upper() for key in keys if key.startswith("Alt+")), "")

    def children(self):
        for i in range(self.accessible.get_child_count()):
            child = self.accessible.get_child_at_index(i)
            if child:
                yield Object(child)

    def __str__(self):
        return f"{self.role} {self.name!r}"


class Program:
    def __init__(self, driver, folder):
        self.driver = subprocess.Popen(
            [driver, "-"], cwd=folder, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True
        )
        self.window = wait_for("the program on the bus", self._find_window)
        self.take_keys()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.driver.stdin.close()
        self.driver.wait(PATIENCE)

    def _find_window(self):
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            program = desktop.get_child_at_index(i)
            if program and program.get_process_id() == self.driver.pid:
                for window in Object(program).children():
                    if window.is_("SHOWING") and window.role == "frame":
                        return window
        return None

    def play(self, *commands):
        """Plays script commands; returns the lines that they print."""
        for command in (*commands, "form"):
            self.driver.stdin.write(command + "\n")
        self.driver.stdin.flush()
        lines = []
        while True:
            line = self.driver.stdout.readline().rstrip("\n")
            if line.startswith("form = "):
                return lines
            if not line or line.startswith("FAIL "):
                raise RuntimeError(f"{commands}: {line or 'the driver has ended'}")
            lines.append(line)

    def ask(self, command):
        """The one line that the command prints."""
        return self.play(command)[0]

    def take_keys(self):
        """Without a window manager nobody else gives a window the keyboard."""
        found = subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--pid", str(self.driver.pid), "--name", "."],
            check=True, capture_output=True, text=True)
        subprocess.run(["xdotool", "windowfocus", "--sync", found.stdout.split()[0]], check=True)

    def press(self, *keys):
        """Real keys, in the X server's names: Tab, alt+f, ctrl+Next. Behind it the program has done
        with them."""
        subprocess.run(["xdotool", "key", *keys], check=True)
        self.play()

    def objects(self, within=None):
        """Every object that can be seen, in the order of the bus; a table without its cells."""
        for child in (within or self.window).children():
            if not child.is_("SHOWING"):
                continue
            yield child
            if child.role != "table":
                yield from self.objects(child)

    def open_menu(self):
        """The items of the menu that is open."""
        for each in self.objects():
            if each.role == "popup menu":
                return list(each.children())
        return []

    def focused(self):
        """The innermost object with the focus; None when nothing has it."""
        found = None
        for each in self.objects():
            if each.is_("FOCUSED"):
                found = each
        return found
