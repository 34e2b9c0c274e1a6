#!/usr/bin/python3
"""Beside a running input method: shortcodes expand with its keyboard layouts, and nothing happens while it composes."""

import contextlib
import pathlib
import unittest

from long_test import DesktopTest
from editors import Mousepad
from session import wait_for

FCITX_PROFILE = """[Groups/0]
Name=Default
Default Layout=us
DefaultIM=m17n_vi_telex
[Groups/0/Items/0]
Name=keyboard-us
[Groups/0/Items/1]
Name=m17n_vi_telex
[GroupOrder]
0=Default
"""


class IBus:
    """The daemon with two engines."""

    module = "ibus"
    keyboard, composing = "xkb:us::eng", "m17n:vi:telex"

    def __init__(self, session):
        self.session = session
        self._child = session.start("ibus-daemon", "--panel", "disable", "--config", "/usr/libexec/ibus-memconf", "--xim")
        wait_for(lambda: self.run("list-engine"), what="IBus")

    def run(self, *command):
        return self.session.run("ibus", *command, check=False).stdout

    def switch_to(self, engine):
        def switched():
            self.run("engine", engine)
            return self.run("engine").strip() == engine.encode()
        wait_for(switched, what=engine)

    def close(self):
        self.session.stop(self._child)


class Fcitx:
    module = "fcitx"
    keyboard, composing = "keyboard-us", "m17n_vi_telex"

    def __init__(self, session):
        self.session = session
        profile = pathlib.Path(session.env["XDG_CONFIG_HOME"]) / "fcitx5/profile"
        profile.parent.mkdir(exist_ok=True)
        profile.write_text(FCITX_PROFILE)
        self._child = session.start("fcitx5", "--disable", "wayland,waylandim")
        wait_for(lambda: b"true" in session.run(
            "gdbus", "call", "--session", "--dest", "org.freedesktop.DBus", "--object-path", "/org/freedesktop/DBus",
            "--method", "org.freedesktop.DBus.NameHasOwner", "org.fcitx.Fcitx5").stdout, what="Fcitx")

    def _current(self):
        return self.session.run("fcitx5-remote", "-n", check=False).stdout.decode().strip()

    def switch_to(self, engine):
        def switched():
            self.session.run("fcitx5-remote", "-s", engine, check=False)
            return self._current() == engine
        wait_for(switched, what=engine)

    def close(self):
        self.session.stop(self._child)


class BesideAnInputMethod(DesktopTest):
    def insertions(self):
        return self.tessarin.log.count("Replaced via") + self.tessarin.log.count("Falling back")

    def check_composing(self, editor):
        before = self.insertions()
        # At a slow person's speed: faster, and with a busy processor, the engines themselves lose letters.
        slowly = lambda text: lambda typist: typist.type(text, 0.15)
        self.check(editor, [slowly("a:smile\naa x:smile\tdd ")], "a:smile\nâ x:smile\tđ ")
        self.play([slowly("b:smile")])
        wait_for(lambda: editor.document().endswith("b:smile"), what="the letters")
        self.assertIsNone(self.typist.popup())
        self.typist.press("End", "Control_L")
        self.play([" "])
        self.assertEqual(self.insertions(), before)

    def test_keyboard_and_composing_engine_in_turn(self):
        for kind in (IBus, Fcitx):
            self.session.env["GTK_IM_MODULE"] = kind.module
            with self.subTest(kind.__name__), contextlib.closing(kind(self.session)) as method, \
                 Mousepad(self.session, self.typist) as editor:
                for _ in range(3):
                    method.switch_to(method.keyboard)
                    self.check(editor, ["a:smile\nb "], "a😄b ")
                    method.switch_to(method.composing)
                    self.check_composing(editor)


if __name__ == "__main__":
    unittest.main(verbosity=2)
