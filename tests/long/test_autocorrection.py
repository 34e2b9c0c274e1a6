#!/usr/bin/python3
"""Applications that change what was typed by themselves never lose other text to us."""

import pathlib
import unittest

from long_test import DesktopTest
from editors import Editor
from session import wait_for

# How the editor corrects; what stands in its document once ":smile" was typed and confirmed behind "abcdefgh ".
ROWS = [
    ("whole", "abcdefgh ☺"),
    ("beginning", "abcdefgh ☺ile"),
    ("ending", "abcdefgh :smile "),
    ("longer", "abcdefgh <a smiling face>"),
    ("bracket", "abcdefgh 😄)"),
]


class AutocorrectingEditor(Editor):
    def __init__(self, session, typist, correction):
        super().__init__(session, typist)
        self.command = ("/usr/bin/python3", pathlib.Path(__file__).parent / "autocorrecting_editor.py", correction)

    def save(self):
        pass


class Autocorrection(DesktopTest):
    def wait_until_it_answers(self, editor):
        """An editor that has just started may not answer on the bus yet."""
        for count in range(1, 11):
            lines = self.tessarin.log.count("[TextReplacer]")
            self.play([":tada\n"])
            self.tessarin.wait_for_log("[TextReplacer]", lines + 1)
            self.assertEqual(editor.wait_for_document("🎉" * count).rstrip(")"), "🎉" * count)
            if self.tessarin.log.splitlines()[-1].endswith("Replaced via Accessibility API"):
                break
        self.typist.press("a", "Control_L")
        self.typist.press("BackSpace")
        wait_for(lambda: not editor.path.read_text(), what="an empty document")

    def test_nothing_else_is_erased(self):
        for correction, expected in ROWS:
            for pause in (0, 0.05):
                with self.subTest(correction=correction, pause=pause), \
                        AutocorrectingEditor(self.session, self.typist, correction) as editor:
                    self.wait_until_it_answers(editor)
                    lines = self.tessarin.log.count("[TextReplacer]")
                    self.typist.type("abcdefgh :smile\n", pause)
                    self.tessarin.wait_for_log("[TextReplacer]", lines + 1)
                    self.assertEqual(editor.wait_for_document(expected, 10), expected)
                    self.typist.press("End", "Control_L")
                    self.play(["wxyz:tada\n."])
                    tail = "wxyz🎉." if correction != "bracket" else "wxyz🎉.)"
                    self.assertEqual(editor.wait_for_document(expected + tail, 10), expected + tail)


if __name__ == "__main__":
    unittest.main(verbosity=2)
