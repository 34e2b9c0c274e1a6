#!/usr/bin/python3
"""Every line of the tables, typed into an editor, a terminal that tells its text and two that do not."""

import unittest

import long_test  # noqa: F401
from editors import Mousepad, Urxvt, XfceTerminal, Xterm
from ordinary_lines import MEANT, ORDINARY, OrdinaryLines

TERMINALS = {XfceTerminal: True, Xterm: False, Urxvt: False}  # whether it tells its text


class InEditorAndTerminals(OrdinaryLines):
    maxDiff = None

    def test_ordinary_lines_stay_as_typed(self):
        for program in (Mousepad, *TERMINALS):
            with self.subTest(program=program.__name__):
                self.check_ordinary(program, ORDINARY)

    def test_meant_shortcodes_expand(self):
        self.check_meant(Mousepad, MEANT)
        for program, tells in TERMINALS.items():
            with self.subTest(program=program.__name__):
                self.check_meant(program, [row for row in MEANT if row[0] and (tells or row[3:] != ["part"])])

if __name__ == "__main__":
    unittest.main(verbosity=2)
