#!/usr/bin/python3
"""Ten thousand expansions, a hundred thousand keys, in one process: nothing piles up."""

import os
import pathlib
import re
import time
import unittest

from Xlib.ext import res

from long_test import DesktopTest
from editors import Mousepad

EXPANSIONS = int(os.environ.get("TESSARIN_EXPANSIONS", "10000"))
AT_ONCE = 100
TYPED = "".join(f"to:smile{confirm}go " for confirm in "\n\t:\n") * (AT_ONCE // 4)
LEFT = "to😄go " * AT_ONCE
PAUSE = 0.005  # 200 keys a second
IDLE_SECONDS = 10


class Endurance(DesktopTest):
    def matches(self):
        """Rules of all connections to the session bus."""
        stats = self.session.run("gdbus", "call", "--session", "--dest", "org.freedesktop.DBus", "--object-path",
                                 "/org/freedesktop/DBus", "--method", "org.freedesktop.DBus.Debug.Stats.GetStats")
        return int(re.search(rb"'MatchRules': <uint32 (\d+)>", stats.stdout).group(1))

    def server_resources(self):
        """Windows, pixmaps and the like of the program's connections; properties come and go with windows."""
        clients = self.typist.display.res_query_clients().clients
        counts = {}
        for client in clients:
            ids = self.typist.display.res_query_client_ids([{"client": client.resource_base, "mask": res.LocalClientPIDMask}])
            if any(list(one.value) == [self.tessarin.pid] for one in ids.ids):
                for kind in self.typist.display.res_query_client_resources(client.resource_base).types:
                    name = self.typist.display.get_atom_name(kind.resource_type)
                    counts[name] = counts.get(name, 0) + kind.count
        return counts

    def descriptors(self):
        return len(os.listdir(f"/proc/{self.tessarin.pid}/fd"))

    def switches(self):
        tasks = pathlib.Path(f"/proc/{self.tessarin.pid}/task").iterdir()
        return sum(int(re.search(r"\nvoluntary_ctxt_switches:\s+(\d+)", (task / "status").read_text()).group(1)) for task in tasks)

    def take_stock(self):
        time.sleep(3)  # the last loan of the clipboard is over
        return {"descriptors": self.descriptors(), "match rules": self.matches(), "on the server": self.server_resources()}

    def expand(self, editor, count):
        for _ in range(count // AT_ONCE):
            self.typist.press("a", "Control_L")
            self.typist.press("Delete")
            self.typist.type(TYPED, PAUSE)
            found = editor.wait_for_document(LEFT, 120)
            self.assertEqual(found, LEFT)

    def test_nothing_piles_up(self):
        with Mousepad(self.session, self.typist) as editor:
            self.expand(editor, 1000)
            before, memory = self.take_stock(), self.tessarin.resident_kilobytes()
            self.expand(editor, EXPANSIONS - 1000)
            after, grown = self.take_stock(), self.tessarin.resident_kilobytes() - memory
            print(f"after 1,000: {memory} kB, {before}; grown by {grown} kB after {EXPANSIONS}, {after}")
            self.assertEqual(after, before)
            self.assertLess(grown, 2048)
            switches = self.switches()
            time.sleep(IDLE_SECONDS)
            self.assertLessEqual(self.switches() - switches, IDLE_SECONDS)


if __name__ == "__main__":
    unittest.main(verbosity=2)
