#!/usr/bin/python3
"""The keyboard stays free whatever stops the program, and nothing that others do to it leaves it hanging."""

import os
import pathlib
import signal
import unittest

from desktop_test import DesktopTest
from editors import Mousepad
from service_manager import Group, ServiceManager
from session import PROGRAM, Session, Tessarin, wait_for

# What is typed before it stops, the signal, and what is typed while it stands still.
STOPS = [
    ("idle", "", signal.SIGSTOP, ":abc"),
    ("collecting", "x:smi", signal.SIGSTOP, "labc" * 20),
    ("from the terminal", "x:smi", signal.SIGTSTP, ":abc"),
]


def watcher(tessarin):
    """The process that watches over the keyboard; nothing when there is none."""
    children = [child for thread in pathlib.Path(f"/proc/{tessarin.pid}/task").iterdir()
                for child in (thread / "children").read_text().split()]
    return int(children[0]) if children else None


def state(pid):
    return pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()[0]


class StopTest(DesktopTest):
    def wait_for_expansion(self, editor):
        """Types until it works: when it does again after a stop is not for the test to say."""
        def works():
            self.typist.type("\x1b a:smile\nb ")
            return editor.document().endswith(" a😄b ")
        wait_for(works, 20, "expansion")

    def check_while_stopped(self, before, stop, meanwhile, go):
        """Typed meanwhile arrives, and expansion works when the program goes on."""
        with Mousepad(self.session, self.typist) as editor:
            start = editor.document()
            self.typist.type(before)
            if before:
                self.wait_for_popup()
            stop()
            try:
                self.typist.type(meanwhile)
                expected = start + before + meanwhile
                self.assertEqual(editor.wait_for_document(expected), expected)
            finally:
                go()
            self.wait_for_expansion(editor)


class Stopped(StopTest):
    def stop(self, how):
        os.kill(self.tessarin.pid, how)
        wait_for(lambda: state(self.tessarin.pid) == "T", what="the stop")

    def test_others_get_the_keys_and_expansion_works_afterwards(self):
        for name, before, how, meanwhile in STOPS:
            with self.subTest(name):
                self.check_while_stopped(before, lambda: self.stop(how), meanwhile,
                                         lambda: os.kill(self.tessarin.pid, signal.SIGCONT))
        self.assertEqual(self.tessarin.log.count("stood still"), 2, self.tessarin.log)

    def test_a_watcher_that_dies_is_replaced_once_and_not_needed(self):
        for said in ("starting another", "died again"):
            os.kill(wait_for(lambda: watcher(self.tessarin), what="the watcher"), signal.SIGKILL)
            self.tessarin.wait_for_log(said)
        self.assertIsNone(watcher(self.tessarin))
        with Mousepad(self.session, self.typist) as editor:
            self.wait_for_expansion(editor)
        self.tessarin.stop()
        self.tessarin.start()


class Frozen(StopTest):
    """As desktops start programs: in a control group of their own. The manager of services moves the watcher out."""

    @classmethod
    def setUpClass(cls):
        cls.program_group, cls.watcher_group = Group("program"), Group("watcher")
        cls.addClassCleanup(cls.watcher_group.close)
        cls.addClassCleanup(cls.program_group.close)
        super().setUpClass()
        cls.tessarin.stop()
        cls.enterClassContext(ServiceManager(cls.session, cls.watcher_group))
        cls.tessarin.program = cls.program_group.launcher(cls.session.folder / "tessarin", PROGRAM)
        cls.tessarin.start()

    def test_others_get_the_keys_and_expansion_works_afterwards(self):
        wait_for(lambda: watcher(self.tessarin) in self.watcher_group.pids(), what="the watcher's own group")
        self.assertIn(self.tessarin.pid, self.program_group.pids())
        for before in ("", "x:smi", "x:smi"):
            with self.subTest(before):
                self.check_while_stopped(before, self.program_group.freeze, ":abc", self.program_group.thaw)


class LostServer(unittest.TestCase):
    def test_the_program_ends_and_saves(self):
        with Session() as session, Tessarin(session) as tessarin:
            program = tessarin._child
            watching = wait_for(lambda: watcher(tessarin), what="the watcher")
            said = tessarin.log
            session.stop(session._children[0], signal.SIGKILL)
            self.assertEqual(program.wait(10), 1)
            lines = tessarin.log.removeprefix(said).splitlines()
            self.assertEqual([line for line in lines if "X11" in line], lines[:1], lines)
            wait_for(lambda: not pathlib.Path(f"/proc/{watching}").exists(), what="the watcher's end")


if __name__ == "__main__":
    unittest.main(verbosity=2)
