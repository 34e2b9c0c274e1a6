"""Types through XTest as a person would, only faster."""

import time

import Xlib.XK
from Xlib import X, display
from Xlib.ext import xtest

NAMED = {
    "\n": "Return", "\t": "Tab", "\b": "BackSpace", " ": "space", "\x1b": "Escape", ":": "colon", ";": "semicolon",
    "/": "slash", "_": "underscore", "-": "minus", "+": "plus", ".": "period", ",": "comma", "!": "exclam",
    "?": "question", "{": "braceleft", "}": "braceright",
}


for keysyms in ("cyrillic", "xkb"):
    Xlib.XK.load_keysym_group(keysyms)


def keysym_of(character):
    return ord(character) if ord(character) < 0x100 else 0x1000000 | ord(character)


class Typist:
    """Knows the layout of the time when it is made, and types in the group given (from 0)."""

    def __init__(self, session, group=0):
        self.display = display.Display(session.env["DISPLAY"])
        self._group = group
        self._codes = {}
        self._borrowed = []

    def close(self):
        self.display.close()

    def _code(self, name):
        """Key code, and the modifiers that pick the character."""
        if name not in self._codes:
            keysym = Xlib.XK.string_to_keysym(name) or keysym_of(name)
            columns = self._columns()
            matches = [match for match in self.display.keysym_to_keycodes(keysym) if match[1] in columns]
            if not matches:
                raise ValueError(f"no key for {name}")
            code, column = min(matches, key=lambda match: list(columns).index(match[1]))
            self._codes[name] = (code, columns[column])
        return self._codes[name]

    def _columns(self):
        """Columns of the server's table of keysyms, plainest first, and the modifiers of each."""
        if self._group == 1:
            return {2: [], 3: ["Shift_L"], 0: [], 1: ["Shift_L"]}
        return {0: [], 1: ["Shift_L"], 4: ["ISO_Level3_Shift"], 5: ["Shift_L", "ISO_Level3_Shift"]}

    def borrow_keys(self, text):
        """Gives each character that the layout lacks a key, with or without Shift, until the next call."""
        info = self.display.display.info
        free = [code for code in range(info.min_keycode, info.max_keycode + 1)
                if code in self._borrowed or not any(self.display.get_keyboard_mapping(code, 1)[0])]
        lacking = [each for each in dict.fromkeys(text) if each.isprintable() and not self._has_key(each)]
        pairs = [lacking[at:at + 2] for at in range(0, len(lacking), 2)]
        if len(pairs) > len(free):
            raise ValueError(f"{len(free)} keys for {len(lacking)} characters")
        self._borrowed = free
        for code, pair in zip(free, pairs):
            self.display.change_keyboard_mapping(code, [[keysym_of(each) for each in pair]])
            self._codes |= {each: (code, ["Shift_L"] * column) for column, each in enumerate(pair)}
        self.display.sync()

    def _has_key(self, character):
        try:
            return self._code(NAMED.get(character, character))[0] not in self._borrowed
        except ValueError:
            return False

    def down(self, name):
        xtest.fake_input(self.display, X.KeyPress, self._code(name)[0])

    def up(self, name):
        xtest.fake_input(self.display, X.KeyRelease, self._code(name)[0])

    def moves(self, name, *modifiers):
        """Presses ("+") and releases ("-") of one key, with modifiers by name around it: each with its key code."""
        code, picking = self._code(name)
        held = [self._code(key)[0] for key in [*modifiers, *(key for key in picking if key not in modifiers)]]
        return [*(("+", key) for key in held), ("+", code), ("-", code), *(("-", key) for key in reversed(held))]

    def key(self, name, *modifiers):
        for way, code in self.moves(name, *modifiers):
            xtest.fake_input(self.display, X.KeyPress if way == "+" else X.KeyRelease, code)

    def type(self, text, pause=0.0):
        """All of the text, with no pause at all unless one is asked for."""
        for character in text:
            self.key(NAMED.get(character, character))
            if pause:
                self.display.sync()
                time.sleep(pause)
        self.display.sync()

    def press(self, name, *modifiers):
        self.key(name, *modifiers)
        self.display.sync()

    def hold(self, name, seconds):
        """Keeps a key down; the X server repeats it."""
        self.down(name)
        self.display.sync()
        time.sleep(seconds)
        self.up(name)
        self.display.sync()

    def click(self, x, y, button=1):
        xtest.fake_input(self.display, X.MotionNotify, x=int(x), y=int(y))
        xtest.fake_input(self.display, X.ButtonPress, button)
        xtest.fake_input(self.display, X.ButtonRelease, button)
        self.display.sync()

    def move_pointer(self, x, y):
        xtest.fake_input(self.display, X.MotionNotify, x=int(x), y=int(y))
        self.display.sync()

    def _root_property(self, name):
        value = self.display.screen().root.get_full_property(self.display.intern_atom(name), X.AnyPropertyType)
        return list(value.value) if value is not None else []

    def active_window(self):
        return (self._root_property("_NET_ACTIVE_WINDOW") or [0])[0]

    def active_frame(self):
        """Frame of the active window on screen (x, y, width, height)."""
        window = self.display.create_resource_object("window", self.active_window())
        geometry = window.get_geometry()
        origin = self.display.screen().root.translate_coords(window, 0, 0)
        return origin.x, origin.y, geometry.width, geometry.height

    def client_windows(self):
        return set(self._root_property("_NET_CLIENT_LIST"))

    def stacked_windows(self):
        """The managed windows, the topmost last."""
        return self._root_property("_NET_CLIENT_LIST_STACKING")

    def titled(self, title):
        """The managed window of this title, or nothing."""
        name = self.display.intern_atom("_NET_WM_NAME")
        for number in self.client_windows():
            try:
                window = self.display.create_resource_object("window", number)
                shown = window.get_full_property(name, X.AnyPropertyType)
            except Exception:  # it went between the two questions
                continue
            if shown and shown.value.decode() == title:
                return window
        return None

    def unmanaged_windows(self):
        """What is on screen without the window manager: menus, and the popup."""
        shown = set()
        for child in self.display.screen().root.query_tree().children:
            try:
                attributes = child.get_attributes()
            except Exception:  # a window that went between the two questions
                continue
            if attributes.override_redirect and attributes.map_state == X.IsViewable:
                shown.add(child.id)
        return shown

    def popup(self):
        """Frame of the popup on screen (x, y, width, height), or nothing."""
        shown = self._shown_popup()
        return shown and (shown[1].x, shown[1].y, shown[1].width, shown[1].height)

    def popup_window(self):
        """The popup's window while it is on screen."""
        shown = self._shown_popup()
        return shown and shown[0].id

    def _shown_popup(self):
        for child in self.display.screen().root.query_tree().children:
            try:
                attributes = child.get_attributes()
                if not attributes.override_redirect or attributes.map_state != X.IsViewable:
                    continue
                name = child.get_wm_class()
                geometry = child.get_geometry()
            except Exception:  # a window that went between the two questions
                continue
            if name and "tessarin" in name[1].lower() and geometry.width >= 300:
                return child, geometry
        return None
