"""What people type that is no shortcode, and what is one: tables, and how they are typed into a program."""

import pathlib
import time

from desktop_test import DesktopTest

DATA = pathlib.Path(__file__).resolve().parents[1] / "data"
ORDINARY = (DATA / "ordinary-lines.txt").read_text().splitlines()
MEANT = [line.split("|") for line in (DATA / "meant-shortcodes.txt").read_text().splitlines()]

PAUSE_AT_200_WORDS_A_MINUTE = 60 / (200 * 5)


class OrdinaryLines(DesktopTest):
    """With the preference as it is when nobody has touched it."""

    preferences = {"confirmsOnlyWhatIsMeant": True}

    def type_into(self, program, lines):
        """Each with Return, as by a person: gives them as they stand there."""
        self.typist.borrow_keys("".join(lines))
        with program(self.session, self.typist) as editor:
            before = len(editor.lines())
            for line in lines:
                self.typist.type(line, PAUSE_AT_200_WORDS_A_MINUTE)
                time.sleep(PAUSE_AT_200_WORDS_A_MINUTE)
                self.typist.type("\n", PAUSE_AT_200_WORDS_A_MINUTE)
            editor.wait_for_document("", 0.5)
            return editor.lines()[before:before + len(lines)]

    def check_ordinary(self, program, lines):
        self.assertListEqual(self.type_into(program, lines), lines, program.__name__)

    def check_meant(self, program, rows):
        typed = [f"{before}:{shortcode}\n" for before, shortcode, *_ in rows]
        expected = [before + emoji for before, _, emoji, *_ in rows]
        self.assertListEqual(self.type_into(program, typed), expected, program.__name__)
