#!/usr/bin/python3
"""The same shortcodes under other keyboard layouts, with dead keys, AltGr and Compose, and with layouts that change."""

import contextlib
import re
import unittest

from long_test import EXPANSIONS, LEFT, DesktopTest
from editors import Featherpad, Mousepad, Xterm
from session import wait_for
from typist import Typist

PROGRAMS = (Mousepad, Featherpad, Xterm)


def keys(*names):
    """Keys by name; "Control_L+s" is a chord."""
    def press(typist):
        for name in names:
            *modifiers, key = name.split("+")
            typist.press(key, *modifiers)
    return press


REST = "rest"


def steps_for(editor, steps):
    """REST is before composed text. While assistive technologies are switched on, Qt's programs ask them about plain keys
    and not about composed text, which so overtakes those that they have not come to yet, with Tessarin and without."""
    def rest(_):
        wait_for(editor.is_at_rest, what="the letters to have been read")
    return [rest if step is REST else step for step in steps if step is not REST or isinstance(editor, Featherpad)]


CYRILLIC = keys("Cyrillic_pe", "Cyrillic_er", "Cyrillic_i")
# The layout and its variant; what is typed besides the shortcodes, and what that leaves.
LAYOUTS = [
    ("us", "", [], ""),
    ("us", "dvorak", [], ""),
    ("fr", "", [":caf", keys("eacute"), "\n"], "<coffee>"),
    ("fr", "", [":s", keys("ISO_Level3_Shift+e"), "mile "], ":s€mile "),
    ("de", "", [keys("at"), ":smi", keys("at"), " ", keys("ISO_Level3_Shift+e")], "@:smi@ €"),
    ("de", "", [":caf", REST, keys("dead_acute"), "e\n"], "<coffee>"),
    ("de", "", [":caf", REST, keys("dead_acute"), "e\b\b\b\b\bx"], "x"),
]


class Layouts(DesktopTest):
    snippets = {"café": "<coffee>", "при": "<hello>"}

    @contextlib.contextmanager
    def layout(self, layout, variant="", option="", group=0):
        before = self.typist
        self.session.run("setxkbmap", "-layout", layout, "-variant", variant, "-option", "", *(["-option", option] * bool(option)))
        self.typist = Typist(self.session, group)
        try:
            yield
        finally:
            self.typist.close()
            self.typist = before
            self.session.run("setxkbmap", "-layout", "us", "-option", "")

    def test_every_layout(self):
        for program in PROGRAMS:
            for layout, variant, steps, left in LAYOUTS:
                with self.subTest(program=program.__name__, layout=layout, variant=variant, left=left), \
                     self.layout(layout, variant), program(self.session, self.typist) as editor:
                    self.check(editor, [EXPANSIONS, *steps_for(editor, steps), EXPANSIONS], LEFT + left + LEFT)

    def test_compose(self):
        for program in PROGRAMS:
            with self.subTest(program=program.__name__), self.layout("us", option="compose:ralt"), \
                 program(self.session, self.typist) as editor:
                self.check(editor, steps_for(editor, [":caf", REST, keys("Multi_key", "apostrophe", "e"), "\n"]), "<coffee>")
                # What becomes of a sequence that is broken off is up to the program, and so is the dead key.
                self.play(steps_for(editor, [":smi", REST, keys("Multi_key", "apostrophe", "Escape"), " ", EXPANSIONS]))
                wait_for(lambda: re.fullmatch(f"<coffee>:smi'? ?{LEFT}", editor.wait_for_document("", 0.3)), what=editor.document())

    def test_cyrillic_beside_latin_switched_while_running(self):
        for program in PROGRAMS:
            with self.subTest(program=program.__name__), self.layout("us,ru", option="grp:menu_toggle"), \
                 program(self.session, self.typist) as editor:
                russian = Typist(self.session, 1)
                self.check(editor, [EXPANSIONS], LEFT)
                self.play([keys("ISO_Next_Group")])
                russian.type(":")
                CYRILLIC(russian)
                russian.type("\n:")
                CYRILLIC(russian)
                keys("Cyrillic_ve", "space")(russian)
                self.assertEqual(editor.wait_for_document(LEFT + "<hello>:прив "), LEFT + "<hello>:прив ")
                self.play([keys("ISO_Next_Group"), EXPANSIONS])
                self.assertEqual(editor.wait_for_document(LEFT + "<hello>:прив " + LEFT), LEFT + "<hello>:прив " + LEFT)
                russian.close()

    def test_a_layout_that_changes_while_collecting(self):
        with Mousepad(self.session, self.typist) as editor:
            replaced = self.tessarin.log.count("[TextReplacer]")
            self.play(["a:smi"])
            wait_for(self.typist.popup, what="the popup")
            # Programs read a key by the layout of the time when they come to it.
            wait_for(editor.is_at_rest, what="the letters to have been read")
            with self.layout("us", "dvorak"):
                self.play(["le\nb ", EXPANSIONS])
                with contextlib.suppress(TimeoutError):
                    wait_for(lambda: self.tessarin.log.count("[TextReplacer]") == replaced + 4, what="the insertions")
            self.assertEqual(editor.wait_for_document("a😄b " + LEFT), "a😄b " + LEFT, self.tessarin.log[-600:])

    def test_chords_stay_chords(self):
        """No shortcut opens a popup, and none is held."""
        for layout in ("us", "fr", "de"):
            with self.subTest(layout=layout), self.layout(layout), Mousepad(self.session, self.typist) as editor:
                self.play(["ab", keys("Control_L+a", "Control_L+x", "Control_L+v", "Control_L+colon"), "smile "])
                self.assertEqual(editor.wait_for_document("absmile "), "absmile ")


if __name__ == "__main__":
    unittest.main(verbosity=2)
