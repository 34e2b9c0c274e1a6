#!/usr/bin/python3
"""The clipboard before and after expansions that paste, whoever owns it, and however late it is read."""

import os
import random
import unittest

from long_test import DesktopTest
from editors import Mousepad, Xterm, clipboard, set_clipboard
from selections import ClipboardManager, LateReader, Owner
from session import wait_for

PASTES = int(os.environ.get("TESSARIN_PASTES", "500"))
PICTURE = b"\x89PNG\r\n\x1a\n" + random.Random(1).randbytes(5_000_000)
TEXT = "größer".encode()
CONTENTS = {
    "text": {"UTF8_STRING": TEXT},
    "HTML with its plain text": {"text/html": b"<b>gr\xc3\xb6\xc3\x9fer</b>", "UTF8_STRING": TEXT, "STRING": b"gr\xf6\xdfer"},
    "a large picture": {"image/png": PICTURE},
    "a list of files": {"text/uri-list": b"file:///tmp/a%20b\r\n", "x-special/gnome-copied-files": b"copy\nfile:///tmp/a%20b"},
    "forty types": {f"application/x-type-{i}": bytes([i]) * i * 1000 for i in range(40)},
    "a secret": {"UTF8_STRING": b"hunter2", "x-kde-passwordManagerHint": b"secret"},
}


class Contents(DesktopTest):
    preferences = {"pasteFallbackApps": ["org.xfce.mousepad", "mousepad"]}

    def offered(self, selection="clipboard"):
        ours = {b"TARGETS", b"TIMESTAMP", b"MULTIPLE"}
        return [name for name in clipboard(self.session, "TARGETS", selection).split() if name not in ours]

    def test_every_kind_comes_back(self):
        for program in (Mousepad, Xterm):
            with program(self.session, self.typist) as editor:
                for name, contents in CONTENTS.items():
                    with self.subTest(program=program.__name__, contents=name), \
                         Owner(self.session, contents), Owner(self.session, {"UTF8_STRING": b"marked"}, "PRIMARY"):
                        self.check(editor, ["a:smile\n:tada\tb"], "a😄🎉b")
                        self.expect_back(contents)
                        wait_for(lambda: clipboard(self.session, None, "primary") == b"marked", 5, "PRIMARY")

    def expect_back(self, contents):
        wanted = [name.encode() for name in contents]
        wait_for(lambda: self.offered() == wanted, 5, f"{wanted} to come back")
        for target, data in contents.items():
            self.assertTrue(clipboard(self.session, target) == data, target)

    def test_an_empty_clipboard_stays_empty(self):
        with Mousepad(self.session, self.typist) as editor:
            self.check(editor, ["a:smile\nb"], "a😄b")
            wait_for(lambda: clipboard(self.session, "TARGETS") == b"", 5, "the clipboard to be empty")

    def test_contents_outlive_their_owner(self):
        with Mousepad(self.session, self.typist) as editor:
            with Owner(self.session, CONTENTS["text"]) as owner:
                self.play(["a:smile\n"])
                wait_for(lambda: self.offered() != [b"UTF8_STRING"], what="the loan")
            self.assertEqual(editor.wait_for_document("a😄"), "a😄")
            wait_for(lambda: clipboard(self.session) == TEXT, 5, "the text to come back")

    def test_of_a_hung_owner_what_it_delivered(self):
        contents = {"UTF8_STRING": TEXT, "image/png": b"picture", "image/bmp": b"bitmap"}
        with Mousepad(self.session, self.typist) as editor, Owner(self.session, contents, silent_from=1):
            self.check(editor, ["a:smile\nb"], "a😄b")
            wait_for(lambda: self.offered() == [b"UTF8_STRING"], 5, "what was delivered")
            self.assertEqual(clipboard(self.session), TEXT)
        self.assertIn("2 types were not delivered in time", self.tessarin.log)

    def test_the_next_expansion_sees_the_users_text(self):
        with Mousepad(self.session, self.typist) as editor:
            owner = set_clipboard(self.session, TEXT)
            self.check(editor, [":smile\n:quote\n:tada\t:quote\t" * 3], "😄[größer]🎉[größer]" * 3)
            self.session.stop(owner)

    def test_quitting_in_the_middle_loses_nothing(self):
        with Mousepad(self.session, self.typist):
            for name, contents in CONTENTS.items():
                with self.subTest(contents=name), Owner(self.session, contents):
                    self.play([":smile\n"])
                    wait_for(lambda: self.offered() != [name.encode() for name in contents], what="the loan")
                    self.assertEqual(self.tessarin.stop(), 0)
                    self.expect_back(contents)
                    self.tessarin.start()


class LatePastes(DesktopTest):
    def test_never_the_old_contents(self):
        for watches in (False, True):
            with self.subTest(watches=watches), LateReader(self.session, watches) as field:
                wait_for(lambda: self.typist.active_window() == field.window.id, what="the field")
                owner = set_clipboard(self.session, b"OLD")
                expected = ""
                for i in range(PASTES // 2):
                    expected += "a😄b"
                    self.play(["a:smile\nb"])
                    try:
                        wait_for(lambda: field.text == expected, 6)
                    except TimeoutError:
                        self.assertEqual(field.text, expected, i)
                self.session.stop(owner)


if __name__ == "__main__":
    unittest.main(verbosity=2)
