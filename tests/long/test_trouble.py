#!/usr/bin/python3
"""Modifiers held in the middle of an insertion, and other programs that hang, crash, come and go."""

import os
import signal
import time
import unittest

from long_test import EXPANSIONS, LEFT, DesktopTest
from editors import DeafXterm, Emacs, Featherpad, GnomeTextEditor, Gvim, Mousepad, Xterm, clipboard, set_clipboard
from session import wait_for
from typist import Typist


def keys(move):
    def step(*names):
        def act(typist):
            for name in names:
                move(typist, name)
            typist.display.sync()
        return act
    return step


down, up = keys(Typist.down), keys(Typist.up)


def pause(seconds):
    return lambda typist: time.sleep(seconds)


# What is held while an insertion goes on; the text is the same in the end.
HELD = [
    ("Shift, long after it confirmed", [":smile", down("Shift_L", "semicolon"), up("semicolon"), pause(0.6), up("Shift_L")]),
    ("Shift, pressed again at once", [":smile", down("Shift_L", "semicolon"), up("semicolon", "Shift_L"), down("Shift_L"), pause(0.4), up("Shift_L")]),
    ("Control, pressed in the middle", [":smile\n", down("Control_L"), pause(0.4), up("Control_L")]),
    ("Control, let go in the middle", [":smile", down("Return", "Control_L"), up("Return"), pause(0.05), up("Control_L"), pause(0.3)]),
    # Alt alone would open a menu.
    ("Alt, pressed in the middle", [":smile\t", down("Alt_L"), pause(0.4), down("Shift_R"), up("Shift_R", "Alt_L")]),
    ("the confirming key itself", [":smile", down("Tab"), pause(0.15), up("Tab")]),
]


class Modifiers(DesktopTest):
    def modifiers_down(self):
        return self.typist.display.screen().root.query_pointer().mask & 0xFF

    def test_held_during_an_insertion(self):
        for program in (Mousepad, Featherpad, Xterm):
            with program(self.session, self.typist) as editor:
                for name, steps in HELD:
                    with self.subTest(program=program.__name__, held=name):
                        self.check(editor, ["x", *steps, "y "], "x😄y ")
                        self.assertEqual(self.modifiers_down(), 0)


class OtherPasteKeys(DesktopTest):
    def test_programs_with_keys_of_their_own(self):
        for program in (Gvim, Emacs):
            with self.subTest(program=program.__name__), program(self.session, self.typist) as editor:
                self.check(editor, [EXPANSIONS * 10], LEFT * 10, seconds=60)

    def test_what_nobody_takes_is_typed_again(self):
        """Be it that the program does not paste, or that it wakes too late; neither gets what the user had copied."""
        owners = [set_clipboard(self.session, b"copied", selection=name) for name in ("clipboard", "primary")]
        for program, hangs in ((DeafXterm, False), (Xterm, True)):
            with self.subTest(program=program.__name__), program(self.session, self.typist) as editor:
                self.play(["a:SmiL"])
                wait_for(self.typist.popup, what="the popup")
                before = self.tessarin.log.count("typed again")
                if hangs:
                    os.kill(editor.pid, signal.SIGSTOP)
                self.play(["\tb"])
                self.tessarin.wait_for_log("typed again", before + 1)
                os.kill(editor.pid, signal.SIGCONT)
                self.assertEqual(editor.wait_for_document("a:SmiLb"), "a:SmiLb")
                for name in ("clipboard", "primary"):
                    wait_for(lambda: clipboard(self.session, selection=name) == b"copied", what=f"{name} to come back")
        for owner in owners:
            self.session.stop(owner)


class Trouble(DesktopTest):
    def expands(self, program=Mousepad):
        with program(self.session, self.typist) as editor:
            self.check(editor, [EXPANSIONS], LEFT, seconds=20)

    def test_an_application_that_hangs(self):
        """Whoever goes on in another window is not held up by it."""
        for program in (Mousepad, GnomeTextEditor, Xterm):
            with self.subTest(program=program.__name__), Xterm(self.session, self.typist) as other, \
                 program(self.session, self.typist) as hung:
                self.play(["a:smile"])
                wait_for(self.typist.popup, what="the popup")
                os.kill(hung.pid, signal.SIGSTOP)
                self.play(["\n"])
                time.sleep(0.3)
                start = time.monotonic()
                self.raise_window(other)
                self.play(["elsewhere "])
                self.assertEqual(other.wait_for_document("elsewhere ", 3), "elsewhere ")
                time.sleep(max(0, 10 - (time.monotonic() - start)))
                os.kill(hung.pid, signal.SIGCONT)
                self.check(other, [EXPANSIONS], LEFT)

    def test_an_application_that_crashes_in_the_middle(self):
        owner = set_clipboard(self.session, b"kept")
        for program in (Mousepad, Xterm):
            for after in (0, 0.05, 0.15, 0.3):
                with program(self.session, self.typist) as editor:
                    self.play(["a:smile\n"])
                    time.sleep(after)
                    os.killpg(editor.pid, signal.SIGKILL)
                self.expands()
                wait_for(lambda: clipboard(self.session) == b"kept", 5, "the clipboard to come back")
        self.session.stop(owner)

    def test_the_accessibility_bus_dies_and_comes_back(self):
        launcher = next(child for child in self.session._children if "at-spi-bus-launcher" in child.args[0])
        self.session.stop(launcher, signal.SIGKILL)
        with Mousepad(self.session, self.typist) as editor:
            self.check(editor, [EXPANSIONS], LEFT)
        self.session.start("/usr/libexec/at-spi-bus-launcher", "--launch-immediately")
        time.sleep(1)
        direct = self.tessarin.log.count("Replaced via Accessibility API")
        for _ in range(10):
            self.expands()
            if self.tessarin.log.count("Replaced via Accessibility API") > direct:
                return
        self.fail("no direct insertion any more")

    def test_what_changes_on_the_desktop(self):
        run = self.session.run
        changes = {
            "another window manager": lambda: self.session.start("openbox", "--replace", "--sm-disable"),
            "a new keyboard map": lambda: run("setxkbmap", "us"),
            "a key that moved": lambda: run("xmodmap", "-e", "keycode 23 = Return"),
            "and back": lambda: run("setxkbmap", "us"),
            "a second monitor": lambda: run("xrandr", "--setmonitor", "Right", "640/200x800/200+640+0", "none"),
            "which goes": lambda: run("xrandr", "--delmonitor", "Right"),
            "another keyboard": lambda: run("xinput", "create-master", "Second"),
            "which goes, too": lambda: run("xinput", "remove-master", "Second pointer"),
        }
        for name, change in changes.items():
            with self.subTest(change=name):
                change()
                time.sleep(1)
                self.assertEqual(self.typist.display.screen().root.query_pointer().mask & 0xFF, 0)
                with Mousepad(self.session, self.typist) as editor:
                    self.check(editor, ["a:smile\nb :+1:d "], "a😄b 👍d ", seconds=20)

    def raise_window(self, editor):
        self.session.run("xdotool", "windowactivate", "--sync", str(editor._window))


if __name__ == "__main__":
    unittest.main(verbosity=2)
