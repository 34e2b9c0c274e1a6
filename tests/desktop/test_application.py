#!/usr/bin/python3
"""The whole application, as a person meets it: launch, welcome, expansion, statistics, quit."""

import json
import pathlib
import unittest

from desktop_test import snippets
from editors import Mousepad
from session import ROOT, Session, Tessarin, wait_for
from tray import Tray
from typist import Typist


class ApplicationTest(unittest.TestCase):
    preferences = {}
    window_manager = ("openbox", "--sm-disable")
    allowed = True

    def setUp(self):
        self.session = self.enterContext(Session(window_manager=self.window_manager))
        self.preferences_path = pathlib.Path(self.session.env["XDG_CONFIG_HOME"]) / "tessarin/preferences.json"
        self.preferences_path.parent.mkdir(parents=True)
        self.preferences_path.write_text(json.dumps(self.preferences))
        self.typist = Typist(self.session)
        self.addCleanup(self.typist.close)
        self.tessarin = self.enterContext(Tessarin(self.session, self.allowed))

    def stored(self, key):
        return json.loads(self.preferences_path.read_text()).get(key)

    def window(self, title):
        """The size of the window of this title, once it is there."""
        return wait_for(lambda: self.typist.titled(title), what=f"the window “{title}”").get_geometry()

    def import_snippet(self, trigger, replacement):
        path = self.session.folder / "mine.json"
        path.write_text(snippets({trigger: replacement}))
        self.tessarin.command("--import", path.name, cwd=path.parent)

    def heard(self):
        """What a screen reader is told, line by line."""
        return self.session.run(ROOT / "tests/desktop/screen_reader.py", "Tessarin").stdout.decode().splitlines()

    def wait_until_heard(self, *texts):
        return wait_for(lambda: all(any(text in line for line in self.heard()) for text in texts), 20,
                        f"a screen reader to hear {texts}")

    def shown(self, role, name):
        """States and place of what a screen reader calls so; of several the one told of last, which is in the newest
        window."""
        for line in reversed(self.heard()):
            heard_role, heard_name, _, states, place = line.strip().split("\t")
            if (heard_role, heard_name) == (role, name) and "showing" in states.split():
                return states.split(), [int(number) for number in place.split()]
        return [], None

    def place_at_rest(self, role, name):
        """Nothing while a window is still being put where it belongs."""
        place = self.shown(role, name)[1]
        return place if place == self.shown(role, name)[1] else None

    def click(self, role, name):
        x, y, width, height = wait_for(lambda: self.place_at_rest(role, name), 20, f"the {role} “{name}”")
        self.typist.click(x + width // 2, y + height // 2)

    def fill_in(self, field, text):
        self.click("text", field)
        wait_for(lambda: "focused" in self.shown("text", field)[0], 20, f"the keyboard to be in “{field}”")
        self.typist.type(text)
        self.wait_until_heard(f"\t{text}\t".replace("\n", "⏎"))


class FirstRun(ApplicationTest):
    def test_from_launch_to_quit(self):
        frame = self.window("Welcome to Tessarin")
        self.assertEqual((frame.width, frame.height), (520, 480))
        self.wait_until_heard("System-wide :shortcode: autocomplete for macOS")
        self.typist.press("Return")
        self.wait_until_heard("Tessarin needs two permissions to work:")
        self.typist.press("Return")
        self.wait_until_heard("Type :smile: in any text field")
        self.try_the_exercise()
        self.typist.press("Return")
        self.wait_until_heard("You're All Set!")
        self.assertIsNone(self.stored("hasCompletedOnboarding"))
        self.typist.press("Return")
        wait_for(lambda: self.stored("hasCompletedOnboarding"), what="the welcome to be over")
        wait_for(lambda: not self.typist.titled("Welcome to Tessarin"), what="its window to go")

        self.import_snippet("zqboard", "<{{clipboard}}>")
        with Mousepad(self.session, self.typist) as editor:
            self.typist.type("a :tada\nb :zqboard\n")
            self.assertEqual(editor.wait_for_document("a 🎉b <😄>"), "a 🎉b <😄>")
        self.look_at_the_statistics()
        self.assertEqual(self.tessarin.command("--quit").returncode, 0)
        wait_for(lambda: "Event tap stopped" in self.tessarin.log, what="an orderly end")

    def try_the_exercise(self):
        self.typist.type(":smile:")
        self.wait_until_heard("😄")
        self.typist.press("a", "Control_L")
        self.typist.press("c", "Control_L")

    def look_at_the_statistics(self):
        self.tessarin.command("--settings")
        frame = self.window("Tessarin Settings")
        self.assertEqual((frame.width, frame.height), (640, 480))
        wait_for(lambda: self.typist.titled("Tessarin Settings").id == self.typist.active_window(),
                 what="the settings to be in front")
        for _ in range(2):
            self.typist.press("Tab", "Control_L")
        self.wait_until_heard("Usage Statistics", ":tada:", ":smile:")


class FirstRunWithoutTrust(ApplicationTest):
    allowed = False

    def setUp(self):
        super().setUp()
        self.tray = self.enterContext(Tray(self.session))
        self.tray.wait_for_items(1)
        self.record = self.preferences_path.parent / "trust"

    def is_active(self, title):
        return getattr(self.typist.titled(title), "id", None) == self.typist.active_window()

    def wait_until_active(self, title):
        wait_for(lambda: self.is_active(title), what=f"“{title}” to be in front")

    def test_the_question_is_in_view_and_leaves_the_keyboard_to_the_welcome(self):
        self.wait_until_active("Welcome to Tessarin")
        question = wait_for(lambda: self.typist.titled("Tessarin"), what="the question")
        self.assertEqual(self.typist.stacked_windows()[-1], question.id)
        for _ in range(4):
            self.typist.press("Return")
        wait_for(lambda: self.stored("hasCompletedOnboarding"), what="the welcome to be over")
        self.assertFalse(self.record.exists())
        self.tray.choose("  Accessibility: ✗ (optional)")
        self.wait_until_active("Tessarin")
        self.typist.press("Return")
        wait_for(self.record.exists, what="an answer")
        self.assertEqual(self.record.read_text(), "no\n")
        self.tray.choose("  Accessibility: ✗ (optional)")
        self.wait_until_active("Tessarin")

    def test_the_keys_of_the_menu_work_in_every_window(self):
        self.wait_until_active("Welcome to Tessarin")
        self.typist.press("comma", "Control_L")
        self.wait_until_active("Tessarin Settings")
        self.typist.press("q", "Control_L")
        wait_for(lambda: not self.tray.items(), what="its end")


class UnderAStrictWindowManager(FirstRunWithoutTrust):
    window_manager = ("metacity",)


class FocusIsGuarded(ApplicationTest):
    """Under a window manager that lets no program take the focus from where the user types."""

    preferences = {"hasCompletedOnboarding": True}
    window_manager = ("metacity",)

    def test_a_second_start_brings_up_the_settings_all_the_same(self):
        with Mousepad(self.session, self.typist):
            editor = self.typist.active_window()
            for _ in range(2):
                self.typist.type("a")
                self.tessarin.command()
                wait_for(lambda: getattr(self.typist.titled("Tessarin Settings"), "id", None) == self.typist.active_window(),
                         what="the settings to be in front")
                self.session.run("xdotool", "windowactivate", str(editor))
                wait_for(lambda: self.typist.active_window() == editor, what="the editor to be back")


class SecondStart(ApplicationTest):
    preferences = {"hasCompletedOnboarding": True}

    def test_it_brings_up_the_settings_of_the_first_where_a_snippet_is_made_with_mouse_and_keys(self):
        self.assertEqual(self.tessarin.command().returncode, 0)
        self.window("Tessarin Settings")
        self.assertIsNone(self.typist.titled("Welcome to Tessarin"))
        self.click("check box", "Show menu bar icon")
        wait_for(lambda: self.stored("showMenuBarIcon") is False, what="the click to count")
        self.click("page tab", "Snippets")
        self.click("push button", "Add")
        self.wait_until_heard("New Snippet")
        for field, text in (("Name", "Zebra"), ("Trigger", "zqzebra"), ("Replacement", "stripes\nand more")):
            self.fill_in(field, text)
        self.click("push button", "Add")
        self.wait_until_heard(":zqzebra:")
        with Mousepad(self.session, self.typist) as editor:
            self.typist.type(":zqzebra\n")
            self.assertEqual(editor.wait_for_document("stripes\nand more"), "stripes\nand more")


if __name__ == "__main__":
    unittest.main(verbosity=2)
