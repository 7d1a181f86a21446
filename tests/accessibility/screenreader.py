#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
# SPDX-License-Identifier: MIT
"""Works the whole program as somebody who does not see it does: through the accessibility bus, by the
names that a screen reader speaks.

    dbus-run-session -- screenreader.py PROGRAM NAMES

PROGRAM is the program beside its simulated sounder, NAMES a file with the name of every control, a line
each. Exits with 0 if all are found, once each, the sounder is connected, a draft is changed, and the
outcome is read.
"""

import os
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 30  # seconds

# What Qt makes of our controls. A list that drops down bears its name on the list.
CONTROL_ROLES = {"check box", "push button", "radio button", "slider", "text", "list", "page tab list"}

# Of Qt's own making.
NOT_OURS = {"Scroll Left", "Scroll Right"}


SHOW_MENU = 0  # the first action of a list that drops down


class Failure(Exception):
    pass


def wait_for(what, condition):
    """The first true value of condition(); a Failure that says what did not come."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            value = condition()
        except GLib.Error:  # an object that has gone meanwhile
            value = None
        if value:
            return value
        time.sleep(0.05)
    raise Failure(f"{what} did not come")


def children(node):
    found = (node.get_child_at_index(place) for place in range(node.get_child_count()))
    return [child for child in found if child is not None]


def below(node):
    for child in children(node):
        yield child
        yield from below(child)


class Reader:
    def __init__(self, program):
        self.program = program

    def has_arrived(self):
        """Asked by a process of its own: who asks too early is not told of programs that come later."""
        return os.waitstatus_to_exitcode(os.waitpid(self.ask_in_child(), 0)[1]) == 0

    def ask_in_child(self):
        child = os.fork()
        if child == 0:
            Atspi.init()
            os._exit(0 if self.application() else 1)
        return child

    def application(self):
        name = os.path.basename(self.program)
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()  # with all below it: what is read is what is there now
        return next((app for app in children(desktop) if app.get_name() == name), None)

    def find(self, role, name):
        for node in below(self.application()):
            if node.get_role_name() == role and node.get_name() == name:
                return node
        return None

    def press(self, role, name):
        node = wait_for(f'{role} "{name}"', lambda: self.find(role, name))
        if not node.get_action_iface().do_action(0):
            raise Failure(f'"{name}" cannot be pressed')

    def hears(self, words):
        wait_for(f'The message "{words}"', lambda: self.find("label", words))

    def text_of(self, name):
        node = self.find("text", name)
        return Atspi.Text.get_text(node, 0, -1) if node else None

    def reads(self, name, text):
        wait_for(f'"{text}" as "{name}"', lambda: self.text_of(name) == text)

    def control_names(self):
        names = []
        for node in below(self.application()):
            if node.get_role_name() in CONTROL_ROLES and node.get_name() not in NOT_OURS:
                names.append(node.get_name())
        return names

    def choose(self, list_name, is_wanted):
        """Opens the list, and clicks on the entry where the bus says that it stands."""
        entries = wait_for(list_name, lambda: self.find("list", list_name))
        box = entries.get_parent()
        box.get_action_iface().do_action(SHOW_MENU)
        entry = next(item for item in children(entries) if is_wanted(item.get_name()))
        wanted = entry.get_name()
        wait_for(f"{wanted} in the open list", lambda: self.is_showing(entry))
        place = entry.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        middle = (place.x + place.width // 2, place.y + place.height // 2)
        subprocess.run(["xdotool", "mousemove", *map(str, middle), "click", "1"], check=True)
        wait_for(f"{wanted} as {list_name}", lambda: self.name_now(box) == wanted)

    @staticmethod
    def is_showing(node):
        node.clear_cache()
        return node.get_state_set().contains(Atspi.StateType.SHOWING)

    @staticmethod
    def name_now(node):
        node.clear_cache()
        return node.get_name()


def shows_window():
    """To be waited for before the bus is asked: it would start without knowing of the program."""
    search = ["xdotool", "search", "--onlyvisible", "--name", "^TAL-VERO Connect$"]
    return subprocess.run(search, stdout=subprocess.DEVNULL, check=False).returncode == 0


def check_names(reader, expected):
    found = reader.control_names()
    twice = {name for name in found if found.count(name) > 1}
    missing = set(expected) - set(found)
    unknown = set(found) - set(expected)
    for fault, names in (("twice", twice), ("missing", missing), ("not in the list", unknown)):
        if names:
            raise Failure(f"{fault}: {sorted(names)}")
    print(f"{len(found)} controls, each with a name of its own")


def work(reader, expected):
    wait_for("The window", shows_window)
    wait_for("The program on the accessibility bus", reader.has_arrived)
    Atspi.init()
    reader.choose("Port", lambda name: name.startswith("/dev/pts/"))
    reader.choose("Rate", lambda name: name == "9600")
    reader.press("push button", "Connect   ")
    reader.hears("Connected to TAL-VERO")
    reader.reads("High frequency draft", "0.40")
    reader.press("push button", "Increase high frequency draft")
    reader.hears("Setting High Frequency Draft to 0.50 m ... Success")
    reader.reads("High frequency draft", "0.50")
    reader.press("push button", "Open Graph")
    reader.press("push button", "Help: Port and Rate")
    wait_for("The help window", lambda: reader.find("push button", "Close"))
    check_names(reader, expected)


def start_display():
    read_end, write_end = os.pipe()
    display = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1400x1000x24", "-nolisten", "tcp"],
        pass_fds=[write_end], stderr=subprocess.DEVNULL)
    os.close(write_end)
    number = os.read(read_end, 16).decode().strip()
    os.environ["DISPLAY"] = ":" + number
    return display


def main():
    program, names = sys.argv[1:]
    with open(names, encoding="utf-8") as file:
        expected = file.read().splitlines()
    os.environ.update(QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
    display = start_display()
    running = subprocess.Popen([program], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        work(Reader(program), expected)
    except Failure as failure:
        print(f"The operator who hears the program: {failure}", file=sys.stderr)
        return 1
    finally:
        running.kill()
        running.wait()
        display.kill()
        display.wait()
    return 0


if __name__ == "__main__":
    sys.exit(main())
