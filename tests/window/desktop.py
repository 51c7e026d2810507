"""The program in its real window, for tests: hands through xdotool, eyes through accessibility."""
import pathlib
import re
import shutil
import subprocess
import sys
import time
import unittest

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PROGRAM, FOLDER = map(pathlib.Path, sys.argv[1:3])
GLOSSARIES = {"graphword.txt": "Graphical, small\n---\nS: färg\nE: ink\n---\nS: lim\nE: glue\n"
                               "C: Sticks paper\nand board.\n---\nS: ark\nE: sheet\n---\n",
              "toolsword.txt": "Tools\n---\nS: lim\nE: size\nD: Leim\n---\nS: fil\nE: file\n"}
DOUBLET = "lim, doublet"  # as a reader calls the row


def run(*command):
    arguments = [str(argument) for argument in command]
    return subprocess.check_output(arguments, stderr=subprocess.DEVNULL, timeout=10).decode()


def active_window():
    return run("xdotool", "getactivewindow").strip()


def attempt(look):
    try:
        return look()
    except (GLib.Error, LookupError, subprocess.SubprocessError) as error:
        return error


def wait_for(look, expected):
    """Until look() gives what is expected."""
    deadline = time.monotonic() + 15
    while (seen := attempt(look)) != expected:
        if time.monotonic() > deadline:
            raise AssertionError(f"{seen!r} has not become {expected!r}")
        time.sleep(0.02)


def walk(node):
    yield node
    for child in filter(None, map(node.get_child_at_index, range(node.get_child_count()))):
        yield from walk(child)


def place(node):
    seen = node.get_extents(Atspi.CoordType.SCREEN)
    return seen.x, seen.y, seen.width, seen.height


class RealWindow(unittest.TestCase):
    def setUp(self):
        shutil.rmtree(FOLDER, ignore_errors=True)
        FOLDER.mkdir(parents=True)
        shutil.copy(PROGRAM, FOLDER)
        for name, text in GLOSSARIES.items():
            (FOLDER / name).write_bytes(text.replace("\n", "\r\n").encode("cp1252"))
        self.start()

    def start(self):
        self.program = subprocess.Popen([FOLDER / PROGRAM.name])
        self.addCleanup(self.program.kill)
        wait_for(lambda: run("xdotool", "getactivewindow", "getwindowname"),
                 "Termvik - Graphical and tools glossary\n")
        self.window = active_window()
        wait_for(lambda: self.has_focus("Search"), True)

    def close(self):
        """Closes the window as a person does; what it leaves in its parameter file."""
        def press():
            if active_window() == self.window:
                run("xdotool", "key", "alt+F4")
            return self.program.wait(3)

        wait_for(press, 0)  # a busy window manager may miss the key
        return (FOLDER / "Termvik.par").read_bytes()

    def tearDown(self):
        if self.program.poll() is None:
            self.close()

    def nodes(self):
        for node in walk(Atspi.get_desktop(0)):
            if node.get_process_id() == self.program.pid:
                yield node

    def control(self, name):
        for node in self.nodes():
            if node.get_name() == name:
                return node
        raise LookupError(f"No control is named {name}")

    def has_focus(self, name):
        return self.control(name).get_state_set().contains(Atspi.StateType.FOCUSED)

    def click(self, name):
        left, top, width, height = place(self.control(name))
        run("xdotool", "mousemove", left + width // 2, top + height // 2, "click", 1)

    def rows(self, *states):
        return [row.get_name() for row in list(walk(self.control("Words")))[1:]
                if all(map(row.get_state_set().contains, states))]

    def selected(self):
        return self.rows(Atspi.StateType.SELECTED)

    def text(self, name="Article"):
        return Atspi.Text.get_text(self.control(name), 0, -1)

    def choose_both(self):
        self.click("Both")
        wait_for(self.rows, ["ark", "fil", "färg", DOUBLET, DOUBLET])

    def client(self):
        lines = run("xwininfo", "-id", self.window)
        return tuple(int(re.search(name + r": +(-?\d+)", lines)[1]) for name in
                     ("Absolute upper-left X", "upper-left Y", "Width", "Height"))

    def outer(self):
        x, y, width, height = self.client()
        frame = run("xprop", "-id", self.window, "_NET_FRAME_EXTENTS")
        left, right, top, bottom = map(int, re.findall(r"\d+", frame))
        return x - left, y - top, width + left + right, height + top + bottom

    def bring_to(self, x, y, *size):
        """Moves and resizes the client area; the outer rectangle that it then has."""
        run("xdotool", "windowsize", self.window, *size, "windowmove", self.window, x, y)
        wait_for(self.client, (x, y, *size))
        return self.outer()
