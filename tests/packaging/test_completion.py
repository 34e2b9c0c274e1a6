#!/usr/bin/python3
"""The completions, pressed for in real shells."""

import os
import pathlib
import pty
import select
import tempfile
import time
import unittest

from package import Unpacked, output
from test_documents import COMPLETIONS

# What is typed before the Tab, and the arguments that the program then gets.
ROWS = [
    ("--set", "--settings"),
    ("--imp", "--import"),
    ("--import sn", "--import snippets.json"),
    ("--export sn", "--export snippets.json"),
    ("--search cat --j", "--search cat --json"),
]


class Shell:
    """An interactive shell at a terminal, with a program that prints its arguments."""

    def __init__(self, command, setup, folder):
        self._pid, self._terminal = pty.fork()
        if self._pid == 0:
            os.chdir(folder)
            os.execve(command[0], command, {"PATH": "/usr/bin:/bin", "TERM": "dumb", "HOME": str(folder), "LC_ALL": "C.UTF-8"})
        self.enter(setup + "; echo rea''dy", "ready")

    def enter(self, line, answer, seconds=20):
        """Types the line and returns what was written up to the answer."""
        os.write(self._terminal, line.encode() + b"\r")
        said, deadline = b"", time.monotonic() + seconds
        while answer.encode() not in said:
            ready, _, _ = select.select([self._terminal], [], [], max(0, deadline - time.monotonic()))
            if not ready:
                raise AssertionError(f"no {answer!r} after {line!r}: {said.decode(errors='replace')}")
            said += os.read(self._terminal, 4096)

    def close(self):
        os.close(self._terminal)
        os.waitpid(self._pid, 0)


class Completion(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.package = cls.enterClassContext(Unpacked())
        cls.folder = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory()))
        for name in ("snippets.json", "snippets.txt"):
            (cls.folder / name).touch()

    def press_tab(self, command, setup):
        shell = Shell(command, setup, self.folder)
        self.addCleanup(shell.close)
        for typed, arguments in ROWS:
            with self.subTest(typed):
                shell.enter(f"tessarin {typed}\t", f"got<{arguments}>")

    def test_bash(self):
        script = self.package / COMPLETIONS["bash"]
        self.press_tab(["/bin/bash", "--norc", "-i"], f'. {script}; tessarin() {{ echo "got<$*>"; }}')

    def test_zsh(self):
        folder = (self.package / COMPLETIONS["zsh"]).parent
        self.press_tab(["/usr/bin/zsh", "-f", "-i"],
                       f'fpath=({folder} $fpath); autoload -U compinit; compinit -u -D; tessarin() {{ echo "got<$*>"; }}')

    def test_fish(self):
        script = self.package / COMPLETIONS["fish"]
        for typed, arguments in ROWS:
            with self.subTest(typed):
                said = output("fish", "--no-config", "-c", f"source {script}; complete -C 'tessarin {typed}'", cwd=self.folder)
                self.assertEqual([line.split("\t")[0] for line in said.splitlines()], [arguments.split()[-1]])


if __name__ == "__main__":
    unittest.main()
