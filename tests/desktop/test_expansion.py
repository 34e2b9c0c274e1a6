#!/usr/bin/python3
"""Expansion in real programs: typed through XTest, read back from the saved document."""

import contextlib
import json
import re
import time
import unittest

from desktop_test import DesktopTest
from editors import ALL, Featherpad, Firefox, GnomeTextEditor, Mousepad, Shell, Xterm, clipboard, set_clipboard
from ordinary_lines import MEANT, ORDINARY, OrdinaryLines
from session import PREFERENCES, Session, Tessarin, wait_for
from typist import Typist


def key(name, *modifiers):
    return lambda typist: typist.press(name, *modifiers)


# What it shows, what is typed (texts and single keys), what must stand in the document afterwards.
ROWS = [
    ("Return confirms", ["a:smile\nb "], "a😄b "),
    ("Tab confirms", ["a:smile\tb "], "a😄b "),
    ("the trigger confirms", ["a:smile:b "], "a😄b "),
    # What was used comes first the next time: the second row of the pair puts the order back for the next program.
    ("Down chooses the next row", ["a:zqx", key("Down"), "\nb"], "asecondb"),
    ("Up wraps to the last row", ["a:zqx", key("Up"), "\nb"], "afirstb"),
    ("a skin tone", ["a:wave", key("Right"), key("Right"), "\nb"], "a👋🏻b"),
    ("Escape cancels", ["a:smile", key("Escape"), "b"], "a:smileb"),
    ("a space cancels", ["a:smile b"], "a:smile b"),
    ("BackSpace shortens the query", ["a:smilex\b\nb"], "a😄b"),
    ("BackSpace over the trigger ends it", ["a:s\b\bx:smile\nb"], "ax😄b"),
]


class InEveryProgram(DesktopTest):
    def test_rows(self):
        for program in (*ALL, Firefox):
            with program(self.session, self.typist) as editor:
                for name, steps, expected in ROWS:
                    with self.subTest(program=program.__name__, row=name):
                        self.check(editor, steps, expected)

    def test_two_hundred_without_a_pause(self):
        for program in ALL:
            with self.subTest(program=program.__name__), program(self.session, self.typist) as editor:
                for confirm in "\n\t:":
                    self.check(editor, [f"a:smile{confirm}b " * 67], "a😄b " * 67, seconds=90)

    def test_direct_insertion_where_it_can_be(self):
        for program, line in ((Mousepad, "Replaced via Accessibility API"),
                              (GnomeTextEditor, "Replaced via Accessibility API"),
                              (Featherpad, "Replaced via Accessibility API"),
                              (Xterm, "Falling back to paste method")):
            with self.subTest(program=program.__name__), program(self.session, self.typist) as editor:
                before = self.tessarin.log.count(line)
                for count in range(1, 6):  # an editor that has just started may not answer on the bus yet
                    self.play(["x:smile"])
                    self.wait_for_popup()
                    time.sleep(0.1)  # a person's pause: the editor has taken in the letters
                    self.play(["\n"])
                    self.assertEqual(editor.wait_for_document("x😄" * count), "x😄" * count)
                    if self.tessarin.log.count(line) > before:
                        break
                else:
                    self.fail(f"never: {line}")


class InAShell(DesktopTest):
    def test_nothing_is_erased_once_the_caret_has_moved(self):
        with Shell(self.session, self.typist) as shell:
            self.check(shell, ["abc:smi", lambda _: self.wait_for_popup(), key("Left"), "\nx"], "abc:smxi")
            self.check(shell, ["a:smile\nb"], "a😄b")


class WithThePointer(DesktopTest):
    def test_click_on_a_row_inserts_it(self):
        with Mousepad(self.session, self.typist) as editor:
            self.play(["a:zqxt"])
            x, y, width, height = self.wait_for_popup(lambda frame: frame[3] == 64 + 36)  # with one row
            self.typist.click(x + width / 2, y + height - 28 - 18)  # the last row, above the hints
            wait_for(lambda: self.typist.popup() is None, what="the click to be taken before the keys that save")
            self.assertEqual(editor.wait_for_document("asecond"), "asecond")

class Templates(DesktopTest):
    def test_variables_are_filled_in(self):
        owner = set_clipboard(self.session, "größer".encode())
        with Mousepad(self.session, self.typist) as editor:
            self.check(editor, [":quote\n"], "[größer]")
            self.play([" :today\n"])
            wait_for(lambda: re.search(r" \d+/\d+/\d+$", editor.document()), what="the date")
        self.session.stop(owner)


class HighResolution(unittest.TestCase):
    """Toolkits that draw twice as large also say twice too small where things are."""

    def test_the_popup_opens_at_the_caret(self):
        for program, scale in (Mousepad, 2.0), (GnomeTextEditor, 2.0), (Mousepad, 1.5):
            with self.subTest(program=program.__name__, scale=scale), Session("2560x1600x24", scale=scale) as session, \
                 contextlib.closing(Typist(session)) as typist, Tessarin(session):
                session.env |= {"GDK_SCALE": "2", "GDK_DPI_SCALE": "0.5"} if scale == 2 else {}
                typist.move_pointer(0, 0)
                with program(session, typist):
                    left, top, width, height = typist.active_frame()

                    def is_near_the_first_line():
                        x, y, *_ = typist.popup() or (0, 0)
                        return left < x < left + width / 2 and top < y < top + height / 2
                    typist.type("there :wav")
                    wait_for(is_near_the_first_line, what="the popup at the caret")
                    self.assertEqual(typist.popup()[2], 320 * scale)


class HeldKeys(DesktopTest):
    def test_repeating_letter_and_backspace(self):
        self.session.run("xset", "r", "rate", "150", "40")
        for program in ALL:
            with self.subTest(program=program.__name__), program(self.session, self.typist) as editor:
                self.play(["a:"])
                self.typist.hold("k", 0.6)
                self.play(["\nb"])
                wait_for(lambda: editor.save() or re.fullmatch(r"a<(\d+)>b", editor.document()), what="one snippet for all letters")
                self.assertGreater(int(re.search(r"\d+", editor.document()).group()), 3)

                # A key that is held while a terminal's PRIMARY is still lent to a paste may not repeat.
                wait_for(lambda: b"<" not in clipboard(self.session, selection="primary"), what="PRIMARY to come back")
                self.play([" " if program is not Xterm else "", "x:kkk"])
                self.typist.hold("BackSpace", 0.4)
                self.play(["y:smile\n"])
                self.assertRegex(editor.wait_for_document("", 1), r"y😄$")


class Modes(DesktopTest):
    def set_preferences(self, **values):
        self.preferences_path.write_text(json.dumps(PREFERENCES | values))

    def tearDown(self):
        self.set_preferences()

    def test_paste_mode_keeps_the_clipboard(self):
        self.set_preferences(pasteFallbackApps=["org.xfce.mousepad", "mousepad"])
        picture = bytes(range(256)) * 8192
        for data, target in ((b"plain text", None), (picture, "image/png")):
            with self.subTest(target=target), Mousepad(self.session, self.typist) as editor:
                owner = set_clipboard(self.session, data, target)
                pasted = self.tessarin.log.count("Falling back to paste method")
                self.check(editor, ["a:smile\nb :tada\tc"], "a😄b 🎉c")
                self.assertEqual(self.tessarin.log.count("Falling back to paste method"), pasted + 2)
                wait_for(lambda: clipboard(self.session, target) == data, 5, "the clipboard to come back")
                self.session.stop(owner)

    def test_blocked_application(self):
        with Mousepad(self.session, self.typist) as editor:
            self.check(editor, [":smile\n"], "😄")
            self.set_preferences(blacklistedApps=["org.xfce.mousepad", "mousepad"])
            self.check(editor, ["a:smile\tb"], "a:smile\tb")
            self.assertIsNone(self.typist.popup())

    def test_other_trigger_at_once(self):
        with Mousepad(self.session, self.typist) as editor:
            self.set_preferences(triggerCharacter=";")
            time.sleep(0.3)  # another program's change of the file has to be noticed first
            self.check(editor, ["a:smile\tb;smile;c"], "a:smile\tb😄c")

    def test_switched_off_and_on(self):
        with Mousepad(self.session, self.typist) as editor:
            self.tessarin.command("--toggle")
            self.check(editor, ["a:smile\tb"], "a:smile\tb")
            self.tessarin.command("--toggle")
            self.check(editor, [":smile\tb"], "😄b")


class Meant(OrdinaryLines):
    def test_only_what_is_meant_expands(self):
        for program, ordinary, meant in ((Mousepad, ORDINARY[:72:8], MEANT[:32:8]), (Xterm, ORDINARY[3:72:8], MEANT[1:24:8])):
            with self.subTest(program=program.__name__):
                self.check_ordinary(program, ordinary)
                self.check_meant(program, meant)

    def test_a_space_before_at_full_speed(self):
        for program in ALL:
            with self.subTest(program=program.__name__), program(self.session, self.typist) as editor:
                self.check(editor, ["a :smile\nb :tada\t:fire:c " * 10], "a 😄b 🎉🔥c " * 10, seconds=60)

    def test_a_chosen_row_confirms_a_doubtful_one(self):
        with Mousepad(self.session, self.typist) as editor:
            popup = lambda _: self.wait_for_popup()
            for steps, expected in ((["a:zqxo", popup, "\nb"], "a:zqxo\nb"),
                                    (["a:zqxo", popup, key("Down"), "\nb"], "afirstb"), (["a:zqxo:b"], "afirstb")):
                self.check(editor, steps, expected)


class NeverInTheLog(DesktopTest):
    def test_typed_text_stays_out_of_the_log(self):
        with Mousepad(self.session, self.typist) as editor:
            self.check(editor, ["sesame:zqxone\n sesame:zqxunknown "], "sesamefirst sesame:zqxunknown ")
        for word in ("sesame", "zqxone", "zqxunknown", "first"):
            self.assertNotIn(word, self.tessarin.log)


class Quitting(DesktopTest):
    def test_quit_leaves_the_keyboard_alone(self):
        with Mousepad(self.session, self.typist) as editor:
            self.play(["a:smi"])
            self.wait_for_popup()
            self.assertEqual(self.tessarin.stop(), 0)
            self.check(editor, ["le\tb"], "le\tb")
            self.assertIn("Event tap stopped", self.tessarin.log)


if __name__ == "__main__":
    unittest.main(verbosity=2)
