"""Drives the program in its real window."""
import itertools
import os
import re
import signal
import subprocess
import sys
import threading
import time
import unittest
import unittest.mock

from desktop import DOUBLET, FOLDER, PROGRAM, RealWindow, place, run, wait_for, walk
from gi.repository import Atspi

WINDOW_MANAGER = int(os.environ["WINDOW_MANAGER"])  # its process
RULE = "=" * 39
REPORT = (f"DUBBLETTER\n{RULE}\n\n\n\nS: lim\nE: glue\n\nSticks paper\nand board."
          f"\n\nS: lim\nE: size\nD: Leim\n\n\n{RULE}\n\n").replace("\n", "\r\n")
NAMES = """Search;Words;Article;Graphical glossary;Tools glossary;Both;termvik.test;Search again
Specify look up in list or full search;Look up word in list;Search words in whole glossary
Markera dubletter!;English;Svenska;Deutsch;Francais;About;Läs in ordlistefilerna igen
Visa ordlisteversioner;Skapa ordlistefil;Skapa lista över dubbletter"""


def layout(width, height):
    """Where a window of that outer size has its parts, in twips: left, top, width, height."""
    column = round(width * 0.35)
    return {"Words": (240, 1680, column, max(0, height - 1680 - 800)),
            "Article": (min(width, 240 + column + 200), 2280,
                        max(0, width - 240 - column - 200 - 200), max(0, height - 2280 - 800)),
            "Termvik logo": (max(2400, width - 3000), 0, 2535, 1695)}


class RealWindowTest(RealWindow):
    def test_mouse_and_typed_word_select_rows(self):
        self.choose_both()
        wait_for(self.text, "S: ark\nE: sheet\n\n")
        self.click("färg")
        wait_for(self.text, "S: färg\nE: ink\n\n")
        self.assertEqual(self.selected(), ["färg"])
        self.click("Search")
        run("xdotool", "type", "fi")
        wait_for(self.selected, ["fil"])
        run("xdotool", "key", "BackSpace", "BackSpace", "l")
        wait_for(self.selected, [DOUBLET])
        wait_for(self.text, "S: lim\nE: glue\n\nSticks paper\nand board.")

    def test_layout_follows_outer_size(self):
        for size in ((900, 600), (1301, 777), (640, 333), (320, 300)):
            _, _, width, height = self.bring_to(100, 80, *size)
            left, top, _, menu_height = place(self.control("English").get_parent())
            for name, (x, y, w, h) in layout(15 * width, 15 * height).items():
                x, y, right, bottom = (int(edge / 15 + 0.5) for edge in (x, y, x + w, y + h))
                expected = (left + x, top + menu_height + y, right - x, bottom - y)
                wait_for(lambda part=name: (part, place(self.control(part))), (name, expected))

    def test_every_control_has_its_name(self):
        kinds = (Atspi.Role.LABEL, Atspi.Role.PANEL, Atspi.Role.MENU_ITEM)
        # To newer versions of Qt a picture is a panel too, and so is what lies around all parts.
        names = {node.get_name() for node in self.nodes()
                 if node.get_role() in kinds and node.get_name() not in ("", "Termvik logo") or
                 node.get_state_set().contains(Atspi.StateType.FOCUSABLE)}
        self.assertEqual(names, set(re.split("[;\n]", NAMES)))

    def test_keyboard_reaches_menu(self):
        self.choose_both()
        run("xdotool", "key", "F10", "Return")
        wait_for(self.rows, ["file", "glue", "ink", "sheet", "size"])
        run("xdotool", "key", "F10", "Right", "Right", "Right", "Right", "Return")
        wait_for(lambda: self.has_focus("OK"), True)
        self.control("About Termvik")
        self.assertIn("Version: ", self.text("Authors and version"))
        run("xdotool", "key", "Escape")
        wait_for(lambda: "OK" in [node.get_name() for node in self.nodes()], False)

    def test_alt_and_f10_give_the_keyboard_back(self):
        self.choose_both()
        self.click("Search")
        for keys in ("Alt_L",), ("F10", "F10"), ("F10", "Escape"):
            run("xdotool", "type", "f")
            run("xdotool", "key", *keys)
            run("xdotool", "type", "i")
            wait_for(lambda: self.text("Search"), "fi")
            run("xdotool", "key", "BackSpace", "BackSpace")

    def test_without_a_display_it_says_what_is_missing(self):
        nothing = {"DISPLAY": "", "QT_QPA_PLATFORM": ""}
        for change in nothing, {"QT_QPA_PLATFORM": "none-such"}:
            ended = subprocess.run([FOLDER / PROGRAM.name], env={**os.environ, **change},
                                   stderr=subprocess.PIPE, text=True, timeout=15)
            self.assertEqual((ended.returncode, ended.stderr.count("\n")), (1, 1), ended.stderr)
            self.assertRegex(ended.stderr, "^Termvik .*(DISPLAY|qt6-wayland)")

    def test_boxes_keep_their_lines_at_every_scale(self):
        for scale in "1.25", "1.5", "1.75":
            self.close()
            (FOLDER / "Termvik.par").unlink()  # so that both boxes are empty
            with unittest.mock.patch.dict(os.environ, QT_SCALE_FACTOR=scale):
                self.start()
            wait_for(self.has_border, True)

    def has_border(self):
        """Whether both boxes of the window's lower part end in lines."""
        _, _, width, height = self.client()
        across = f"{width - 8}x1+4+{height * 3 // 4}"
        row = run("import", "-window", self.window, "-crop", across, "-depth", "8", "txt:-")
        colours = [colour for colour, _ in itertools.groupby(re.findall("#[0-9A-F]{6}", row))]
        background = colours[0]
        boxes = [n for n, colour in enumerate(colours) if colour == "#FFFFFF"]
        return len(boxes) == 2 and all(background not in (colours[n - 1], colours[n + 1]) for n in boxes)

    def test_doublets_reach_another_program(self):
        self.choose_both()
        self.click("Skapa lista över dubbletter")
        wait_for(lambda: self.has_focus("OK"), True)
        wait_for(lambda: run("xclip", "-o", "-selection", "clipboard"), REPORT)
        run("xdotool", "key", "Return")

    def test_place_and_glossary_are_kept(self):
        self.click("Tools glossary")
        wait_for(self.rows, ["fil", "lim"])
        left, top, width, height = outer = self.bring_to(211, 143, 833, 517)
        for _ in range(11):
            self.assertEqual(self.close(), (
                f"WINDOWSSTATE 0\r\nWINTOP {15 * top}\r\nWINLEFT {15 * left}\r\nWINWIDTH "
                f"{15 * width}\r\nWINHEIGHT {15 * height}\r\nGLOSSARYINDEX 1\r\n").encode())
            self.start()
            wait_for(self.outer, outer)
            rest = time.monotonic() + 0.6
            while time.monotonic() < rest:  # nor does it stir once it is there
                self.assertEqual(self.outer(), outer)
            self.assertEqual(self.rows(), ["fil", "lim"])

    def test_the_place_is_kept_where_the_window_manager_takes_its_time(self):
        outer = self.bring_to(211, 143, 833, 517)
        self.close()
        os.kill(WINDOW_MANAGER, signal.SIGSTOP)
        threading.Timer(1, os.kill, (WINDOW_MANAGER, signal.SIGCONT)).start()
        self.start()
        wait_for(self.outer, outer)

    def test_a_stored_size_that_does_not_fit_leaves_the_other_as_it_is(self):
        width, height = self.outer()[2:]
        for stored, expected in (((10500, 16000), (700, height)), ((99999, 6000), (width, 400))):
            self.close()
            (FOLDER / "Termvik.par").write_bytes(b"WINDOWSSTATE 0\r\nWINTOP 1500\r\nWINLEFT 1500\r\n"
                                                 b"WINWIDTH %d\r\nWINHEIGHT %d\r\n" % stored)
            self.start()
            wait_for(lambda: self.outer()[2:], expected)
            measures = b"WINWIDTH %d\r\nWINHEIGHT %d\r\n" % tuple(15 * n for n in expected)
            self.assertIn(measures, self.close())
            self.start()

    def test_asked_to_end_it_keeps_what_it_remembers(self):
        self.choose_both()
        for request in signal.SIGTERM, signal.SIGHUP, signal.SIGINT:
            (FOLDER / "Termvik.par").unlink(missing_ok=True)
            self.click("Skapa lista över dubbletter")
            wait_for(lambda: self.has_focus("OK"), True)
            self.program.send_signal(request)  # while a box is open
            self.assertEqual(self.program.wait(15), 0)
            self.assertIn(b"GLOSSARYINDEX 2", (FOLDER / "Termvik.par").read_bytes())
            self.start()

    def test_asked_to_end_while_it_starts(self):
        self.close()
        for name in "graphword.txt", "toolsword.txt":
            (FOLDER / name).unlink()
        self.program = subprocess.Popen([FOLDER / PROGRAM.name])
        self.addCleanup(self.program.kill)
        wait_for(lambda: run("xdotool", "getactivewindow", "getwindowname"), "Termvik\n")
        self.program.send_signal(signal.SIGTERM)  # while the first of two messages is shown
        self.assertEqual(self.program.wait(15), 0)

    def is_maximised(self):
        state = run("xprop", "-id", self.window, "_NET_WM_STATE")
        return "MAXIMIZED_VERT" in state and "MAXIMIZED_HORZ" in state

    def press_title_twice(self, maximises):
        left, top, width, _ = self.outer()
        run("xdotool", "mousemove", left + width // 2, top + 8, "click", "--repeat", 2, 1)
        wait_for(self.is_maximised, maximises)

    def test_maximised_comes_back_maximised(self):
        design = self.outer()[2:]
        self.press_title_twice(True)
        self.assertTrue(self.close().startswith(b"WINDOWSSTATE 2\r\n"))
        self.start()
        wait_for(self.is_maximised, True)
        self.press_title_twice(False)
        wait_for(lambda: [now >= then for now, then in zip(self.outer()[2:], design)], [True] * 2)


unittest.main(argv=sys.argv[:1] + sys.argv[3:], verbosity=2)
