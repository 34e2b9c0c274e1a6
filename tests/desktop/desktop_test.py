"""What the tests of expansion share: a session with snippets of its own, and the program running in it."""

import json
import pathlib
import sys
import time
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools/desktop"))

from session import PREFERENCES, Session, Tessarin, wait_for
from typist import Typist

SNIPPETS = {
    "zqxone": "first",
    "zqxtwo": "second",
    "today": "{{date}}",
    "quote": "[{{clipboard}}]",
} | {"k" * length: f"<{length}>" for length in range(1, 64)}


def snippets(texts):
    """A file of snippets: trigger -> text."""
    return json.dumps([{"id": f"USER-{trigger}", "name": trigger, "trigger": trigger, "replacement": text, "keywords": [],
                        "category": "Custom", "isBuiltIn": False} for trigger, text in texts.items()])


class DesktopTest(unittest.TestCase):
    """One session and one running program for all tests of a class."""

    preferences = {}
    snippets = {}

    @classmethod
    def setUpClass(cls):
        cls.session = cls.enterClassContext(Session())
        data = pathlib.Path(cls.session.env["XDG_DATA_HOME"]) / "Tessarin"
        data.mkdir(parents=True)
        (data / "user-snippets.json").write_text(snippets(SNIPPETS | cls.snippets))
        config = pathlib.Path(cls.session.env["XDG_CONFIG_HOME"]) / "tessarin"
        config.mkdir(parents=True)
        cls.preferences_path = config / "preferences.json"
        cls.preferences_path.write_text(json.dumps(PREFERENCES | cls.preferences))
        cls.typist = Typist(cls.session)
        cls.addClassCleanup(cls.typist.close)
        cls.tessarin = cls.enterClassContext(Tessarin(cls.session))

    def play(self, steps):
        for step in steps:
            step(self.typist) if callable(step) else self.typist.type(step)

    def check(self, editor, steps, expected, seconds=8):
        start = editor.document()
        self.play(steps)
        self.assertEqual(editor.wait_for_document(start + expected, seconds), start + expected, self.tessarin.log[-600:])

    def wait_for_popup(self, is_wanted=lambda frame: True):
        """Its frame, once it has come to rest: letters may still be on their way."""
        def frame_at_rest():
            frame = self.typist.popup()
            if not frame or not is_wanted(frame):
                return None
            time.sleep(0.2)
            return frame if self.typist.popup() == frame else None
        return wait_for(frame_at_rest, what="the popup")
