"""Programs of our own on the clipboard: an owner of anything, a watcher, and a window that pastes late."""

import contextlib
import random
import threading
import time

from Xlib import X, Xatom, display
from Xlib.ext import xfixes
from Xlib.protocol import event as xevent

CHUNK = 64 * 1024


class Client:
    """A connection of its own, served by a thread of its own."""

    def __init__(self, session):
        self.display = display.Display(session.env["DISPLAY"])
        self.root = self.display.screen().root
        self._over = False
        self._thread = threading.Thread(target=self._serve, daemon=True)

    def __enter__(self):
        self.display.sync()
        self._thread.start()
        return self

    def __exit__(self, *_):
        self._over = True
        self._thread.join()
        with contextlib.suppress(Exception):
            self.display.close()

    def atom(self, name):
        return self.display.intern_atom(name)

    def _serve(self):
        while not self._over:
            while self.display.pending_events():
                self.handle(self.display.next_event())
            self.tick()
            time.sleep(0.001)

    def handle(self, event):
        pass

    def tick(self):
        pass


class Owner(Client):
    """Owns a selection with any contents, a type each; large ones go in pieces. One that is silent answers nothing
    but the list of its types and what comes before `silent_from` in it."""

    def __init__(self, session, contents, selection="CLIPBOARD", silent_from=None):
        super().__init__(session)
        self.contents = contents
        self.silent = set() if silent_from is None else set(list(contents)[silent_from:])
        self.selection = self.atom(selection)
        self.window = self.root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        self._pieces = {}
        self.window.set_selection_owner(self.selection, X.CurrentTime)

    def handle(self, event):
        if event.type == X.SelectionRequest and event.selection == self.selection:
            self._answer(event)
        elif event.type == X.PropertyNotify and event.state == X.PropertyDelete:
            self._send_next_piece(event)

    def _answer(self, request):
        name = self.display.get_atom_name(request.target)
        if name in self.silent:
            return
        given = request.property
        if name == "TARGETS":
            atoms = [self.atom(one) for one in ("TARGETS", *self.contents)]
            request.requestor.change_property(given, Xatom.ATOM, 32, atoms)
        elif name in self.contents and len(self.contents[name]) <= CHUNK:
            request.requestor.change_property(given, request.target, 8, self.contents[name])
        elif name in self.contents:
            request.requestor.change_attributes(event_mask=X.PropertyChangeMask)
            data = self.contents[name]
            self._pieces[(request.requestor.id, given)] = request.target, [
                data[i:i + CHUNK] for i in range(0, len(data), CHUNK)] + [b""]
            request.requestor.change_property(given, self.atom("INCR"), 32, [len(data)])
        else:
            given = X.NONE
        request.requestor.send_event(xevent.SelectionNotify(
            time=request.time, requestor=request.requestor, selection=request.selection, target=request.target,
            property=given))
        self.display.flush()

    def _send_next_piece(self, event):
        target, pieces = self._pieces.get((event.window.id, event.atom), (None, []))
        if pieces:
            event.window.change_property(event.atom, target, 8, pieces.pop(0))
            self.display.flush()


class Reader(Client):
    """Reads selections into a property of a window of its own."""

    def __init__(self, session):
        super().__init__(session)
        self.window = self.root.create_window(0, 0, 400, 300, 0, X.CopyFromParent, event_mask=X.KeyPressMask)

    def watch(self):
        """From now on `handle` is told whenever the clipboard changes hands."""
        self.display.xfixes_query_version()
        self.display.xfixes_select_selection_input(self.root, self.atom("CLIPBOARD"),
                                                   xfixes.XFixesSetSelectionOwnerNotifyMask)

    def ask(self, selection="CLIPBOARD", target="UTF8_STRING"):
        self.window.convert_selection(self.atom(selection), self.atom(target), self.atom("ANSWER"), X.CurrentTime)
        self.display.flush()

    def answer(self, notify):
        if notify.property == X.NONE:
            return b""
        value = self.window.get_full_property(notify.property, X.AnyPropertyType)
        return bytes(value.value) if value and value.format == 8 else b""


class LateReader(Reader):
    """A field that takes letters and BackSpace at once, and reads the clipboard up to 1.5 s after Control-V. One
    that watches also reads whenever the clipboard changes hands, and forgets what it read."""

    def __init__(self, session, watches, seed=7):
        super().__init__(session)
        self.text = ""
        self._watches = watches
        self._chance = random.Random(seed)
        self._due = []
        self._asked = []
        self.window.set_wm_class("late", "Late")
        self.window.map()
        if watches:
            self.watch()

    def handle(self, event):
        if event.type == X.KeyPress:
            self._take(event)
        elif event.type == X.SelectionNotify:
            text = self.answer(event).decode()
            if self._asked.pop(0) == "paste":
                self.text += text
        elif self._watches and event.type == self.display.extension_event.SetSelectionOwnerNotify[0]:
            self._asked.append("watch")
            self.ask()

    def _take(self, event):
        keysym = self.display.keycode_to_keysym(event.detail, 1 if event.state & X.ShiftMask else 0)
        if event.state & X.ControlMask:
            if keysym == ord("v"):
                self._due.append(time.monotonic() + self._chance.uniform(0, 1.5))
        elif keysym == 0xff08:
            self.text = self.text[:-1]
        elif 32 <= keysym < 127:
            self.text += chr(keysym)

    def tick(self):
        if self._due and time.monotonic() >= self._due[0]:
            self._due.pop(0)
            self._asked.append("paste")
            self.ask()
