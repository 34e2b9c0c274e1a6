"""Presses keys and learns when what they bring about can be seen, from a second program that does nothing else."""

import os
import select
import subprocess
import time

from session import ROOT
from typist import NAMED

HELD_BEFORE = 0.03
PROGRAM = ROOT / "build/release/benchmarks/stopwatch"


class Stopwatch:
    """`benchmarks/programs/stopwatch` on a session's display; see there for what it tells."""

    def __init__(self, session, typist):
        self._session = session
        self._typist = typist
        self._child = session.start(PROGRAM, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self._unread = b""
        self.wait("ready", seconds=20)

    def close(self):
        self._session.stop(self._child)

    def send(self, *words):
        self._child.stdin.write((" ".join(str(word) for word in words) + "\n").encode())
        self._child.stdin.flush()

    def lines(self, seconds):
        """The lines that come within this time, as lists of words."""
        deadline = time.monotonic() + seconds
        while True:
            line, newline, rest = self._unread.partition(b"\n")
            if newline:
                self._unread = rest
                yield line.decode(errors="replace").split(" ")
                continue
            if not select.select([self._child.stdout], [], [], max(0.0, deadline - time.monotonic()))[0]:
                return
            more = os.read(self._child.stdout.fileno(), 65536)
            if not more:
                raise RuntimeError("the stopwatch has ended")
            self._unread += more

    def wait(self, kind, wanted=lambda *_: True, seconds=3.0):
        """The rest of the first line of this kind that is wanted; nothing when none comes in time."""
        for found, *rest in self.lines(seconds):
            if found == kind and wanted(*rest):
                return rest
        return None

    def clear(self):
        """Forgets what has happened so far."""
        self.look("nothing")

    def look(self, name):
        """The number of the picture that is watched by this name; "0" where there is none."""
        self.send("look", name)
        return self.wait("looks", lambda seen, _: seen == name)[1]

    def watch(self, name, window, part):
        self.send("watch", name, window, *(int(number) for number in part))
        self.wait("looks")

    def forget(self, name):
        self.send("forget", name)

    def press(self, name):
        """Presses the key and says when. What has to be held with it is held before, as by a hand."""
        moves = [way + str(code) for way, code in self._typist.moves(NAMED.get(name, name))]
        held = (len(moves) - 2) // 2
        if held:
            self._move(moves[:held])
            time.sleep(HELD_BEFORE)
        return self._move(moves[held:])

    def _move(self, moves):
        self.send("press", *moves)
        return float(self.wait("began")[0])

    def replace(self, document, start, end, text, length):
        """Replaces text of a document over the accessibility bus and says when."""
        self.send("replace", *document, start, end, length, text)
        return float(self.wait("began")[0])

    def text(self, wanted, seconds=3.0):
        """When a text that has this in it was inserted: the time, the document, and the position in it."""
        found = self.wait("text", lambda *rest: wanted in rest[4:], seconds)
        return (float(found[0]), tuple(found[1:3]), int(found[3])) if found else None

    def pictures(self, wanted, seconds=2.0):
        """When each watched part first showed its wanted picture: times by name, of those that did."""
        times = {}
        for kind, *rest in self.lines(seconds):
            if kind == "picture" and wanted.get(rest[1]) == rest[2]:
                times.setdefault(rest[1], float(rest[0]))
                if len(times) == len(wanted):
                    break
        return times

    def place(self, document, position):
        """Where the document's window shows this character: x, y, width and height in pixels."""
        self.send("place", *document, position)
        return [int(number) for number in self.wait("place")]
