#!/usr/bin/python3
"""A thousand expansions in a row in each editor: as fast as keys can be sent, at a person's speed, and into a
program that stops answering again and again."""

import concurrent.futures
import contextlib
import os
import pathlib
import random
import signal
import sys
import threading
import time
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools/desktop"))

from editors import (ALL, Calc, Chromium, ChromiumRichText, Epiphany, Falkon, Firefox, Geany, Jedit, Kate, Scite, Texstudio,
                     Thunderbird)
from session import Session, Tessarin
from typist import Typist

EXPANSIONS = int(os.environ.get("TESSARIN_EXPANSIONS", "1000"))
EXPANSIONS_PER_LINE = 20  # a terminal takes lines of 4,096 bytes at most
CONFIRMATIONS = "\n\t:"
PAUSE_AT_120_WORDS_A_MINUTE = 60 / (120 * 5)


def typed_lines(expansions):
    """Lines of shortcodes between plain words, confirmed by Return, Tab and trigger in turn."""
    words = [f"to:smile{CONFIRMATIONS[i % 3]}go " for i in range(expansions)]
    return ["".join(words[i:i + EXPANSIONS_PER_LINE]) for i in range(0, expansions, EXPANSIONS_PER_LINE)]


def stop_again_and_again(pid, over):
    """Stops a program for 50 to 500 ms at random moments."""
    chance = random.Random(pid)
    while not over.wait(chance.uniform(0.1, 1.5)):
        os.kill(pid, signal.SIGSTOP)
        time.sleep(chance.uniform(0.05, 0.5))
        os.kill(pid, signal.SIGCONT)


@contextlib.contextmanager
def hiccups(editor):
    over = threading.Event()
    thread = threading.Thread(target=stop_again_and_again, args=(editor.pid, over))
    thread.start()
    try:
        yield
    finally:
        over.set()
        thread.join()


def expand(program, pause=0.0, disturbance=lambda editor: contextlib.nullcontext(), expansions=EXPANSIONS):
    """Types everything; gives the document as it should be and as it is, and the end of the log."""
    with contextlib.ExitStack() as stack:
        session = stack.enter_context(Session())
        typist = stack.enter_context(contextlib.closing(Typist(session)))
        tessarin = stack.enter_context(Tessarin(session))
        editor = stack.enter_context(program(session, typist))
        lines = typed_lines(expansions)
        expected = ("\n" if editor.keeps_lines else "").join("to😄go " * line.count("smile") for line in lines)
        with disturbance(editor):
            typist.type("\n".join(lines), pause)
            editor.wait_for_document(expected, 600)
        return expected, editor.wait_for_document(expected, 10), tessarin.log


class Speed(unittest.TestCase):
    maxDiff = 2000
    programs = (*ALL, Firefox, Chromium, Geany, Scite)
    others = (ChromiumRichText, Kate, Texstudio, Epiphany, Falkon, Thunderbird, Jedit)

    def check(self, program, expected, found, log):
        with self.subTest(program=program.__name__):
            self.assertMultiLineEqual(found, expected, log)

    def test_without_a_pause(self):
        for program in self.programs:
            self.check(program, *expand(program))

    def test_at_120_words_a_minute(self):
        with concurrent.futures.ThreadPoolExecutor() as pool:
            runs = {program: pool.submit(expand, program, PAUSE_AT_120_WORDS_A_MINUTE) for program in self.programs}
        for program, run in runs.items():
            self.check(program, *run.result())

    def test_into_others_that_are_pasted_into(self):
        runs = [(program, pause) for program in self.others for pause in (0.0, 0.06)]
        for program, pause in (*runs, (Calc, 0.06)):  # docs/reliability.md says what Calc does without a pause
            self.check(program, *expand(program, pause, expansions=min(EXPANSIONS, 200)))

    def test_into_a_program_that_hangs_again_and_again(self):
        for program in self.programs:
            self.check(program, *expand(program, disturbance=hiccups))


if __name__ == "__main__":
    unittest.main(verbosity=2)
