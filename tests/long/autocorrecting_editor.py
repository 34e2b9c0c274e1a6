#!/usr/bin/python3
"""A text editor with a mind of its own: it changes what was typed, in the way that is named first. Its document is
written into the file named second at every change."""

import sys

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import GLib, Gtk  # noqa: E402

# What has been typed before the caret, what becomes of it, and what is put behind the caret.
CORRECTIONS = {
    "whole": (":smile", "☺", ""),
    "beginning": (":sm", "☺", ""),
    "ending": (":smile", ":smile ", ""),
    "bracket": (":", ":", ")"),
    "longer": (":smile", "<a smiling face>", ""),
}


def main():
    typed, corrected, behind = CORRECTIONS[sys.argv[1]]
    view = Gtk.TextView()
    buffer = view.get_buffer()

    def correct():
        end = buffer.get_iter_at_mark(buffer.get_insert())
        start = end.copy()
        if not start.backward_chars(len(typed)) or buffer.get_text(start, end, False) != typed:
            return
        if typed != corrected:
            buffer.delete(start, end)
            buffer.insert(start, corrected)
        if behind:
            caret = buffer.get_iter_at_mark(buffer.get_insert())
            buffer.insert(caret, behind)
            caret.backward_chars(len(behind))
            buffer.place_cursor(caret)

    def changed(_):
        with open(sys.argv[2], "w") as file:
            file.write(buffer.get_text(*buffer.get_bounds(), False))

    def inserted(_, __, text, ___):
        if text == typed[-1]:
            GLib.idle_add(correct, priority=GLib.PRIORITY_HIGH)  # before the next key

    buffer.connect("changed", changed)
    buffer.connect_after("insert-text", inserted)
    window = Gtk.Window(title="Autocorrection")
    window.set_default_size(500, 300)
    window.add(view)
    window.connect("destroy", Gtk.main_quit)
    window.show_all()
    Gtk.main()


main()
