"""Listens to the program through Orca, as a person does who does not see the window."""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

from desktop import DOUBLET, FOLDER, RealWindow, run, wait_for
from synthesiser import Synthesiser

GROUP = "Specify look up in list or full search"
# What Orca says of its own between the phrases of a test, more or less of it in its various versions:
# roles, the names of keys and the letters typed. And a group once more, at each of its options.
OWN = GROUP + """
alert|box|button|check|frame|items?|List|only|panel|push|radio|read|text|with \\d+
entire document selected|Selection deleted|escape|page down|page up|return|right|space|tab|F10
backspace|left (alt|control|shift)|[a-zåäö]""".replace("\n", "|")
BETWEEN = rf"(?:[\W_]|\b(?:{OWN})\b)*"
GLUE, SIZE = "S: lim, E: glue, Sticks paper, and board", "S: lim, E: size, D: Leim"
REST = 0.2  # seconds in which Orca goes on with what it says, if it does


class OrcaTest(RealWindow):
    def setUp(self):
        home = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.addCleanup(home.cleanup)
        self.voice = Synthesiser(home.name + "/voice")
        self.addCleanup(self.voice.server_close)
        # Qt keeps keys that a reader has not yet answered, and lets go of them only as the program ends.
        os.environ["ASAN_OPTIONS"] = "detect_leaks=0"
        own = dict.fromkeys(("HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"), home.name)
        orca = subprocess.Popen(["orca"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                env={**os.environ, **own, "GSETTINGS_BACKEND": "memory",
                                     "SPEECHD_ADDRESS": "unix_socket:" + self.voice.server_address})
        self.addCleanup(orca.wait)
        self.addCleanup(orca.terminate)
        self.hears("Screen reader on")
        super().setUp()
        # It may have begun to listen only after the window had come.
        while "Search" not in " ".join(self.voice.utterances):
            self.reach("Tab", "Words")
            self.reach("shift+Tab", "Search")

    def rests(self):
        acts = None
        while acts != self.voice.acts:
            acts = self.voice.acts
            time.sleep(REST)

    def hears(self, *phrases):
        """All that is said since the reader was last silenced, and nothing between it but OWN."""
        expected = BETWEEN + BETWEEN.join(map(re.escape, phrases)) + BETWEEN

        def look():
            acts, said = self.voice.acts, " ".join(self.voice.utterances)
            if re.fullmatch(expected, said):
                time.sleep(REST)
                said = phrases if self.voice.acts == acts else "more"
            return said

        wait_for(look, phrases)

    def reach(self, keys, name):
        """By a way on which Orca says what depends on its version."""
        run("xdotool", "key", *keys.split())
        wait_for(lambda: self.has_focus(name), True)
        self.rests()

    def press(self, keys, *phrases):
        self.voice.be_silent()
        run("xdotool", "key", *keys.split())
        self.hears(*phrases)

    def types(self, text, *phrases):
        self.voice.be_silent()
        run("xdotool", "type", "--delay", 90, text)
        self.hears(*phrases)

    def test_words_are_looked_up(self):
        self.reach("Tab Tab", "Article")
        self.press("Tab", "Graphical glossary", "not selected", "Glossary")
        self.press("Down", "Tools glossary", "selected", "Glossary", "2 words")
        self.press("Down", "Both", "selected", "Glossary", "5 words")
        self.reach("shift+Tab shift+Tab", "Words")
        self.press("shift+Tab", "Search")
        self.types("lim", f"{DOUBLET}. {GLUE}")
        self.press("Down", f"{DOUBLET}. {SIZE}")
        self.press("Up", f"{DOUBLET}. {GLUE}")
        self.press("Left", "m")
        self.reach("End", "Search")
        self.types("x", f"no match. {DOUBLET}. {GLUE}")
        self.press("BackSpace", f"{DOUBLET}. {GLUE}")
        self.press("Page_Up", "ark. S: ark, E: sheet")
        self.press("Page_Down", f"{DOUBLET}. {SIZE}")
        self.press("Return", f"{DOUBLET}. {GLUE}")
        self.press("Tab", "Words", DOUBLET)
        self.press("Down", DOUBLET, SIZE)
        self.press("Up", DOUBLET, GLUE)
        self.press("Up", "färg", "S: färg, E: ink")
        self.press("Tab", "Article", "S: färg")
        self.press("Down", "E: ink")

    def test_searches_and_marks_say_their_numbers(self):
        self.press("shift+Tab", "Markera dubletter!", "checked")
        self.press("shift+Tab", GROUP, "Look up word in list", "selected")
        self.press("shift+Tab", "Graphical glossary", "not selected", "Glossary")
        self.press("space", "selected", "3 words")
        self.press("Down", "Tools glossary", "selected", "Glossary", "2 words")
        self.press("Down", "Both", "selected", "Glossary", "5 words")
        self.reach("shift+Tab shift+Tab", "Words")
        self.press("shift+Tab", "Search")
        self.types("glue file", "no match. ark. S: ark, E: sheet")
        self.press("shift+Tab", "Markera dubletter!", "checked")
        self.press("space", "not checked", "5 words")
        self.press("space", "checked", "5 words")
        self.press("shift+Tab", GROUP, "Look up word in list", "selected")
        self.press("Down", GROUP, "Search words in whole glossary", "selected", "2 hits")
        self.press("Tab", "Search again")
        self.press("space", "2 hits")
        self.press("Tab", "Markera dubletter!", "checked")
        self.reach("Tab", "Search")
        self.press("Down", "glue. " + GLUE)
        self.reach("End", "Search")
        self.types("x", "glue. " + GLUE)
        self.press("Return", "1 hit. glue. " + GLUE)
        self.reach("ctrl+a", "Search")
        self.types("xyz", "glue. " + GLUE)
        self.press("Return", "no hits")

    def test_menu_and_boxes_are_read(self):
        self.press("F10", "English")
        self.press("Return", "Search", "English. no words")
        self.press("F10", "English")
        for item in "Svenska", "Deutsch", "Francais", "About":
            self.press("Right", item)
        self.press("Return", "About Termvik", "OK")
        self.press("Tab", "Disclaimer", "Disclaimer: Sandvret do not in any way warrant the results you may obtain by")
        self.press("Escape", "Termvik - Graphical and tools glossary", "Search")
        self.press("F10", "English")
        self.press("Left", "Skapa lista över dubbletter")
        self.press("Left", "Skapa ordlistefil", "grayed")
        self.press("Left", "Visa ordlisteversioner")
        names = (str(FOLDER.absolute() / name) for name in ("graphword.txt", "toolsword.txt"))
        self.press("Return", "Termvik", "Graphical glossary", "Filename", next(names), "First line",
                   "Graphical, small", "Tools glossary", "Filename", next(names), "First line", "Tools", "OK")
        self.press("Return", "Termvik - Graphical and tools glossary", "Search")
        self.close()
        self.start()
        self.hears("Termvik - Graphical and tools glossary", "Search")


if shutil.which("orca") is None:
    print("Skipped: Orca is not installed")
else:
    unittest.main(argv=sys.argv[:1] + sys.argv[3:], verbosity=2)
