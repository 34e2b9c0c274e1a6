#!/usr/bin/python3
"""One instance a data folder: later starts and commands hand over to it and lose nothing."""

import json
import os
import pathlib
import random
import shutil
import signal
import unittest

from desktop_test import snippets
from editors import Mousepad
from session import PROGRAM, Session, Tessarin, wait_for
from typist import Typist

ROUNDS = 20
STARTS = [[], [], ["--settings"]]
IMPORTS = 6
NOBODY = "tessarin: no instance is running\n"


class InstancesTest(unittest.TestCase):
    def setUp(self):
        self.session = self.enterContext(Session())
        self.own = pathlib.Path(self.session.env["XDG_DATA_HOME"]) / "Tessarin/user-snippets.json"

    def own_triggers(self):
        return [entry["trigger"] for entry in json.loads(self.own.read_text())]


class RaceTest(InstancesTest):
    """Many at the same moment, where the running instance has just been killed."""

    def setUp(self):
        super().setUp()
        Tessarin(self.session)  # allows it and skips the welcome

    def start(self, name, *options):
        with (self.session.folder / f"{name}.log").open("wb") as output:
            child = self.session.start(PROGRAM, *options, stdout=output, stderr=output)
        child.name = name
        return child

    def said(self, child):
        return (self.session.folder / f"{child.name}.log").read_text()

    def race(self, number):
        """Starts everything in a random order; gives the starts, the imports and the toggle."""
        starts = [("start", options) for options in STARTS]
        imports = []
        for i in range(IMPORTS):
            file = self.session.folder / f"{number}-{i}.json"
            file.write_text(snippets({f"zq{number}x{i}": "x"}))
            imports.append(("import", ["--import", file]))
        everything = [*starts, *imports, ("toggle", ["--toggle"])]
        random.shuffle(everything)
        running = [(kind, self.start(f"{kind}-{number}-{i}", *options)) for i, (kind, options) in enumerate(everything)]
        return [[child for found, child in running if found == kind] for kind in ("start", "import", "toggle")]

    def wait_for_end(self, children):
        for child in children:
            child.wait(60)

    def test_one_instance_stays_and_nothing_is_lost(self):
        seed = random.randrange(2 ** 32)
        random.seed(seed)
        for number in range(ROUNDS):
            with self.subTest(round=number, seed=seed):
                self.check_round(number)

    def check_round(self, number):
        starts, imports, toggles = self.race(number)
        self.wait_for_end([*imports, *toggles])
        wait_for(lambda: sum(child.poll() is None for child in starts) == 1, 60, "one instance to stay")
        running = next(child for child in starts if child.poll() is None)
        for child in [*imports, *starts]:
            if child is not running:
                self.assertEqual(child.returncode, 0, f"{child.name}: {self.said(child)}")
        toggle = toggles[0]
        self.assertIn((toggle.returncode, self.said(toggle)), [(0, "off\n"), (0, "on\n"), (1, NOBODY)])
        self.assertEqual(sorted(self.own_triggers()),
                         sorted(f"zq{r}x{i}" for r in range(number + 1) for i in range(IMPORTS)))
        self.assertEqual(self.session.run(PROGRAM, "--settings").stdout, b"settings\n")
        self.assertIsNone(running.poll(), self.said(running))
        self.session.stop(running, signal.SIGKILL)


class HandingOverTest(InstancesTest):
    """Later starts find the running instance whatever has become of the folder and of its surroundings."""

    def setUp(self):
        super().setUp()
        self.program = self.enterContext(Tessarin(self.session))

    def import_new(self, trigger):
        file = self.session.folder / f"{trigger}.json"
        file.write_text(snippets({trigger: "x"}))
        self.assertEqual(self.program.command("--import", file).stdout, b"Imported 1 snippet\n")

    def test_after_the_folder_was_removed(self):
        self.import_new("zqone")
        shutil.rmtree(self.own.parent)
        self.assertEqual(self.program.command().stdout, b"settings\n")
        self.import_new("zqtwo")
        self.assertEqual(self.own_triggers(), ["zqone", "zqtwo"])
        shutil.rmtree(self.own.parent)
        self.assertEqual(self.program.stop(), 0)
        self.assertEqual(self.own_triggers(), ["zqone", "zqtwo"])
        self.assertIn("Saved the user snippets again, which were missing from the disk", self.program.log)

    def test_without_a_runtime_folder_and_through_another_name(self):
        alias = self.session.folder / "alias"
        alias.symlink_to(self.own.parents[1])
        bare = {k: v for k, v in self.session.env.items() if k != "XDG_RUNTIME_DIR"}
        for env in (bare, self.session.env | {"XDG_DATA_HOME": str(alias)}):
            self.assertEqual(self.program.command("--toggle", env=env).returncode, 0)
        self.assertEqual(self.program.command("--toggle").stdout, b"off\n")

    def test_an_instance_whose_log_nobody_reads_goes_on(self):
        self.program.stop()
        reader, writer = os.pipe()
        running = self.session.start(PROGRAM, stdout=writer)
        os.close(writer)
        os.close(reader)
        wait_for(lambda: self.program.command("--toggle", check=False).returncode == 0, what="an answer")
        self.import_new("zqone")
        self.program.command("--quit")
        self.assertEqual(running.wait(10), 0)

    def test_goes_by_the_users_trust_as_it_is_now(self):
        record = pathlib.Path(self.session.env["XDG_CONFIG_HOME"]) / "tessarin/trust"
        typist = Typist(self.session)
        self.addCleanup(typist.close)
        expected = ""
        with Mousepad(self.session, typist) as editor:
            for number, take_back in enumerate((lambda: self.program.command("--disallow"), record.unlink), 1):
                typist.type("a:smile")
                wait_for(typist.popup, what="the list")
                take_back()
                self.program.wait_for_log("Event tap stopped", number)
                self.assertFalse(typist.popup())
                typist.type("\n:smile\n")
                self.program.command("--allow")
                typist.type(":smile\n\n")
                expected += "a:smile\n:smile\n😄\n"
                self.assertEqual(editor.wait_for_document(expected[:-1]), expected[:-1])


if __name__ == "__main__":
    unittest.main(verbosity=2)
