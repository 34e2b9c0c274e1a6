#!/usr/bin/python3
"""The program around its windows: the tray, the command line, and its ends."""

import json
import os
import pathlib
import re
import signal
import unicodedata
import unittest.mock

from Xlib import X, display
from Xlib.protocol import event

from desktop_test import snippets
from editors import Mousepad
from session import PROGRAM, Session, Tessarin, wait_for
from tray import Tray
from typist import Typist


TWO = snippets({"zqxa": "ZQXA", "zqxb": "ZQXB"})


def start_anew(program):
    """Waits for this start's own log line."""
    program.log_path.write_text("")
    program.start()


class TrayTest(unittest.TestCase):
    def setUp(self):
        self.session = self.enterContext(Session())

    def preferences(self, **values):
        path = pathlib.Path(self.session.env["XDG_CONFIG_HOME"]) / "tessarin/preferences.json"
        path.write_text(json.dumps({"hasCompletedOnboarding": True} | values))

    def test_a_tray_may_come_late_and_come_back(self):
        with Tessarin(self.session):
            for _ in range(2):
                with Tray(self.session) as tray:
                    tray.wait_for_items(1)
                    self.assertIn("Quit Tessarin", tray.open_menu())

    def test_a_left_click_opens_the_menu_and_its_keys_choose(self):
        with Tray(self.session) as tray, Tessarin(self.session) as program:
            tray.wait_for_items(1)
            self.assertEqual(tray.title(), "Tessarin")
            typist = Typist(self.session)
            self.addCleanup(typist.close)
            with Mousepad(self.session, typist) as editor:
                typist.type("a:smile")
                wait_for(typist.popup, what="the popup")
                before = typist.unmanaged_windows()
                tray.activate(300, 200)
                wait_for(lambda: not typist.popup(), what="the popup to go")
                wait_for(lambda: typist.unmanaged_windows() - before, what="the menu")
                typist.press("Escape")
                wait_for(lambda: typist.unmanaged_windows() <= before, what="the menu to go")
                typist.type("\nb")
                self.assertEqual(editor.wait_for_document("a:smile\nb"), "a:smile\nb")
                tray.activate(300, 200)
                wait_for(lambda: typist.unmanaged_windows() - before, what="the menu")
                typist.press("q")
                wait_for(lambda: "Event tap stopped" in program.log, what="an orderly end")

    def test_an_old_style_tray_may_come_late(self):
        with Tessarin(self.session):
            x = display.Display(self.session.env["DISPLAY"])
            tray = x.screen().root.create_window(0, 0, 10, 10, 0, X.CopyFromParent)
            selection = x.intern_atom("_NET_SYSTEM_TRAY_S0")
            tray.set_selection_owner(selection, X.CurrentTime)
            x.screen().root.send_event(
                event.ClientMessage(window=x.screen().root, client_type=x.intern_atom("MANAGER"),
                                    data=(32, [X.CurrentTime, selection, tray.id, 0, 0])),
                event_mask=X.StructureNotifyMask)
            x.flush()
            opcode = x.intern_atom("_NET_SYSTEM_TRAY_OPCODE")

            def is_docked():
                events = (x.next_event() for _ in range(x.pending_events()))
                return any(e.type == X.ClientMessage and e.client_type == opcode for e in events)
            wait_for(is_docked, what="an icon in the old-style tray")

    def test_the_item_follows_switch_and_preference(self):
        with Tray(self.session) as tray, Tessarin(self.session) as program:
            tray.wait_for_items(1)
            on = tray.icon()
            tray.choose("Disable Tessarin")
            wait_for(lambda: tray.icon() != on, what="the dimmed look")
            program.command("--toggle")
            wait_for(lambda: tray.icon() == on, what="the usual look")
            self.preferences(showMenuBarIcon=False)
            tray.wait_for_items(0)
            self.preferences(showMenuBarIcon=True)
            tray.wait_for_items(1)
            self.assertIn("Disable Tessarin", tray.open_menu())
            self.preferences(showMenuBarIcon=False)
            tray.wait_for_items(0)
            program.stop()
            start_anew(program)
            self.assertEqual(tray.items(), [])


class CommandLineTest(unittest.TestCase):
    def setUp(self):
        self.session = self.enterContext(Session())
        self.own = pathlib.Path(self.session.env["XDG_DATA_HOME"]) / "Tessarin/user-snippets.json"
        self.without_display = {k: v for k, v in self.session.env.items() if k != "DISPLAY"}

    def tessarin(self, *arguments, **options):
        done = self.session.run(PROGRAM, *arguments, check=False, env=self.without_display, **options)
        return done.returncode, done.stdout.decode(), done.stderr.decode()

    def check_files(self):
        folder = self.session.folder / "odd\nname %41"
        folder.mkdir(exist_ok=True)
        (folder / "in.json").write_text(TWO)
        self.assertEqual(self.tessarin("--import", "in.json", cwd=folder), (0, "Imported 2 snippets\n", ""))
        self.assertEqual(self.tessarin("--import=in.json", cwd=folder), (0, "Imported 0 snippets\n", ""))
        self.assertEqual(self.tessarin("--export", "out.json", cwd=folder), (0, "Exported 2 snippets\n", ""))
        self.assertEqual([s["trigger"] for s in json.loads((folder / "out.json").read_text())], ["zqxa", "zqxb"])
        status, out, problem = self.tessarin("--import", "missing.json", cwd=folder)
        self.assertEqual((status, out), (1, ""))
        self.assertIn("Import failed: ", problem)
        self.assertIn("missing.json", problem)
        self.assertEqual(self.tessarin("--search", "zqx"), (0, "zqxa\tZQXA\tzqxa\nzqxb\tZQXB\tzqxb\n", ""))

    def test_works_without_a_display_and_without_an_instance(self):
        self.check_files()
        self.assertEqual(self.tessarin("--search", "zqxnone"), (0, "", ""))
        status, out, _ = self.tessarin("--search=smile", "--json", "--limit", "3")
        self.assertEqual((status, len(json.loads(out))), (0, 3))
        self.assertEqual(self.tessarin("--help")[0], 0)
        self.assertEqual(self.tessarin("--version")[0], 0)
        for wrong in (["--nonsense"], ["--import"], ["--quit", "now"], ["--json"]):
            status, out, problem = self.tessarin(*wrong)
            self.assertEqual((status, out), (2, ""))
            self.assertIn("usage: tessarin", problem)
        self.assertEqual(self.tessarin("--toggle"), (1, "", "tessarin: no instance is running\n"))
        for session in ({}, {"XDG_SESSION_TYPE": "wayland"}, {"QT_QPA_PLATFORM": "xcb"}, {"QT_QPA_PLATFORM": "wayland"}):
            with self.subTest(session), unittest.mock.patch.dict(self.without_display, session):
                status, _, problem = self.tessarin()
                self.assertEqual(status, 1)
                self.assertIn("no display to open a window on", problem)

    def test_answers_in_the_language_of_the_user(self):
        self.without_display["LC_ALL"] = "de_DE.UTF-8"
        for languages, usage in (("en:fr", "usage:"), ("sv:pt_PT:fr", "Uso:"), ("zh_TW:ja", "使い方:"), ("", "Aufruf:")):
            self.without_display["LANGUAGE"] = languages
            text = self.tessarin("--help")[1]
            self.assertEqual(text.split()[0], usage)
            names = re.findall("^  --.*?  +(?! )", text, re.MULTILINE)
            widths = {sum(2 if unicodedata.east_asian_width(c) in "WF" else 1 for c in name) for name in names}
            self.assertEqual(len(widths), 1, text)
        self.assertEqual(self.tessarin("--quit"), (1, "", "tessarin: Tessarin läuft nicht\n"))
        (self.session.folder / "in.json").write_text(TWO)
        self.assertEqual(self.tessarin("--import", self.session.folder / "in.json"), (0, "2 Bausteine importiert\n", ""))
        self.assertEqual(self.tessarin("--search", "zqxb"), (0, "zqxb\tZQXB\tzqxb\n", ""))

    def test_the_running_instance_does_it(self):
        with Tessarin(self.session) as program:
            self.check_files()
            self.assertEqual(len(json.loads(self.own.read_text())), 2)
            self.assertEqual(self.tessarin("--toggle"), (0, "off\n", ""))
            self.assertEqual(self.tessarin("--toggle"), (0, "on\n", ""))
            # The list in memory has them too: it is written again with one more.
            (self.session.folder / "one.json").write_text(snippets({"zqxc": "ZQXC"}))
            self.assertEqual(self.tessarin("--import", self.session.folder / "one.json")[0], 0)
            self.assertEqual(len(json.loads(self.own.read_text())), 3)
            self.assertEqual(self.tessarin("--quit"), (0, "quitting\n", ""))
            wait_for(lambda: not pathlib.Path(f"/proc/{program.pid}/exe").exists(), what="its end")

    def test_what_a_killed_instance_left_is_cleared_away(self):
        with Tessarin(self.session) as program:
            left = self.own.parent / ".tessarin-aB3dEf"
            for next_one in (lambda: start_anew(program), lambda: self.tessarin("--toggle")):
                left.write_text("half a fi")
                os.utime(left, (2 ** 33, 2 ** 33))  # written before the clock was set back
                program.stop(signal.SIGKILL)
                self.assertTrue(left.exists())
                next_one()
                self.assertFalse(left.exists())


class EndTest(unittest.TestCase):
    def test_every_end_is_an_orderly_one(self):
        with Session() as session, Tessarin(session) as program:
            for how in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
                self.assertEqual(program.stop(how), 0, how)
                self.assertIn("Event tap stopped", program.log)
                self.assertEqual(list(pathlib.Path(session.env["XDG_RUNTIME_DIR"]).glob("tessarin-*")), [])
                start_anew(program)


if __name__ == "__main__":
    unittest.main()
