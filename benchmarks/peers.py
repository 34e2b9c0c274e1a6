"""The fastest programs that do the like, in turn with Tessarin, each in a session of its own with the same editor."""

import json
import pathlib
import time

from editors import Mousepad
from keys import PAUSE_AT_200_WORDS_A_MINUTE, SHORTCODE, type_letter
from memory import proportional_megabytes
from session import Session, Tessarin, wait_for
from stopwatch import Stopwatch
from typist import Typist

QUICKLY = 0.03  # between the letters
LIST = (4, 4, 200, 20)  # a part of the list that shows what was typed


class Ours:
    name = "Tessarin"
    trigger = ":"
    confirming = ("Return", ":")
    has_list = True
    text = "😄"

    def __init__(self, session):
        self._tessarin = Tessarin(session, confirmsOnlyWhatIsMeant=True)

    def start(self):
        self._tessarin.start()

    @property
    def pid(self):
        return self._tessarin.pid


class Fcitx:
    """Quick phrases, opened by the same trigger."""

    name = "fcitx5"
    trigger = ":"
    confirming = ("space",)
    has_list = True
    text = "😃"  # its own word for it

    FILES = {
        "profile": "[Groups/0]\nName=Default\nDefault Layout=us\nDefaultIM=keyboard-us\n\n"
                   "[Groups/0/Items/0]\nName=keyboard-us\nLayout=\n\n[GroupOrder]\n0=Default\n",
        "conf/quickphrase.conf": "Choose Modifier=None\nEnableSpell=False\n\n[TriggerKey]\n0=colon\n",
    }

    def __init__(self, session):
        self._session = session
        for name, content in self.FILES.items():
            path = pathlib.Path(session.env["XDG_CONFIG_HOME"]) / "fcitx5" / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(content)
        session.env.update(GTK_IM_MODULE="fcitx", XMODIFIERS="@im=fcitx")

    def start(self):
        self._child = self._session.start("fcitx5", "-D")
        wait_for(lambda: owns_name(self._session, "org.fcitx.Fcitx5"), 20, "fcitx5")

    @property
    def pid(self):
        return self._child.pid


class AutoKey:
    """A phrase for the whole shortcode, pasted as soon as its last character is typed. It has no list."""

    name = "AutoKey"
    # It learns of Shift on a way of its own, and takes ":" for ";" where that is the slower one.
    trigger = ";"
    confirming = (";",)
    has_list = False
    text = "😄"

    PHRASE = {
        "type": "phrase", "usageCount": 0, "omitTrigger": False, "prompt": False, "description": "smile",
        "abbreviation": {"wordChars": "[^\\s]", "abbreviations": [f";{SHORTCODE};"], "immediate": True,
                         "ignoreCase": False, "backspace": True, "triggerInside": True},
        "hotkey": {"hotKey": None, "modifiers": []}, "modes": [1], "showInTrayMenu": False, "matchCase": False,
        "filter": {"regex": None, "isRecursive": False}, "sendMode": "<ctrl>+v",
    }

    def __init__(self, session):
        self._session = session
        self._folder = pathlib.Path(session.env["XDG_CONFIG_HOME"]) / "autokey/data/My Phrases"

    def start(self):
        """It makes its folders when it starts, and watches them."""
        self._child = self._session.start("autokey-gtk")
        wait_for(lambda: owns_name(self._session, "org.autokey.Service"), 30, "AutoKey")
        time.sleep(2)
        (self._folder / "smile.txt").write_text(self.text)
        (self._folder / ".smile.json").write_text(json.dumps(self.PHRASE))
        time.sleep(3)

    @property
    def pid(self):
        return self._child.pid


def owns_name(session, name):
    asked = session.run("gdbus", "call", "--session", "--dest", "org.freedesktop.DBus", "--object-path",
                        "/org/freedesktop/DBus", "--method", "org.freedesktop.DBus.NameHasOwner", name, check=False)
    return b"true" in asked.stdout


class Turn:
    """One peer's turn: a session, the peer, an editor; what it took is added to the figures."""

    def __init__(self, peer, figures):
        self._kind = peer
        self._figures = figures

    def _note(self, what, value):
        if value is not None:
            self._figures.setdefault((what, self._kind.name), []).append(value)

    def run(self, rounds, expansions):
        with Session() as session:
            self._typist = Typist(session)
            self._peer = self._kind(session)
            self._peer.start()
            self._stopwatch = Stopwatch(session, self._typist)
            with Mousepad(session, self._typist):
                time.sleep(1)
                self._note("memory after start", proportional_megabytes(self._peer.pid))
                for key in self._peer.confirming:
                    self._time(key, rounds)
                if self._peer.has_list:
                    self._race(rounds)
                if (self._peer.confirming[0], self._kind.name) in self._figures:
                    self._remember(expansions)
            self._typist.close()

    def _time(self, key, rounds):
        """The first time is something waking up; what does nothing then is not asked again."""
        wakes = self._expand(key, QUICKLY) is not None or self._expand(key, QUICKLY) is not None
        for _ in range(rounds if wakes else 0):
            self._note(key, self._expand(key, QUICKLY))
        if not wakes:
            print(f"  {self._kind.name} inserts nothing here", flush=True)

    def _expand(self, key, pause):
        """Seconds from the confirming key to the text."""
        self._typist.type(f"x-{self._peer.trigger}{SHORTCODE}", pause)
        time.sleep(PAUSE_AT_200_WORDS_A_MINUTE)
        self._stopwatch.clear()
        begin = self._stopwatch.press(key)
        found = self._stopwatch.text(self._peer.text)
        time.sleep(0.05)
        return found[0] - begin if found else None

    def _list_window(self, before):
        return next(iter(self._typist.unmanaged_windows() - before), None)

    def _race(self, rounds):
        """Seconds from the first letter to the list."""
        before = self._typist.unmanaged_windows()
        self._typist.type(":" + SHORTCODE[0], PAUSE_AT_200_WORDS_A_MINUTE)
        window = wait_for(lambda: self._list_window(before))
        time.sleep(0.5)
        self._stopwatch.watch("list", window, LIST)
        goal = {"list": self._stopwatch.look("list")}
        for _ in range(rounds):
            self._close_list(before)
            self._typist.type(":")
            seen_from = type_letter(self._stopwatch, SHORTCODE[0])
            seen = self._stopwatch.pictures(goal)
            self._note("list", seen["list"] - seen_from if seen else None)
        self._close_list(before)

    def _close_list(self, before):
        self._typist.press("Escape")
        wait_for(lambda: not self._list_window(before))
        self._typist.press("a", "Control_L")
        self._typist.press("BackSpace")
        time.sleep(0.05)

    def _remember(self, expansions):
        for _ in range(expansions):
            self._expand(self._peer.confirming[0], 0.0)
        time.sleep(1)
        self._note(f"memory after {expansions}", proportional_megabytes(self._peer.pid))


def against_peers(table, rounds, expansions):
    figures = {}
    for peer in (Ours, Fcitx, AutoKey):
        Turn(peer, figures).run(rounds, expansions)
    for ours, what, goal, others in (("list", "first letter → list", "≤ 1.0", (("list", "fcitx5"),)),
                                     ("Return", "Return → text", "≤ 1.0", (("space", "fcitx5"),)),
                                     (":", ": → text", "≤ 1.0", (("space", "fcitx5"), (";", "AutoKey")))):
        for key, name in others:
            table.compare(f"{what}, against {name}", goal, figures.get((ours, "Tessarin"), []), figures.get((key, name), []),
                          ("Tessarin", name))
    for what in ("memory after start", f"memory after {expansions}"):
        compare_memory(table, figures, what)


def compare_memory(table, figures, what):
    ours = figures.get((what, "Tessarin"), [])
    for name in ("fcitx5", "AutoKey"):
        others = figures.get((what, name))
        if not others or not ours:
            continue
        worst = max(a / b for a, b in zip(ours, others))
        table.add(f"PSS, {what.removeprefix('memory ')}{'' if 'start' in what else ' expansions'}, against {name}", "≤ 1.2",
                  f"{worst:.2f}", f"Tessarin {max(ours):.1f} MB; {name} {max(others):.1f} MB", worst)
