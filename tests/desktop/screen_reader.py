#!/usr/bin/python3
"""Prints what a screen reader is told of the program's windows, a line for each element: role, name, value, states, and
where it stands on the screen (x, y, width, height). To be run in the session that is looked at."""

import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

STATES = {Atspi.StateType.FOCUSED: "focused", Atspi.StateType.CHECKED: "checked", Atspi.StateType.SELECTED: "selected",
          Atspi.StateType.ENABLED: "enabled", Atspi.StateType.SHOWING: "showing"}


def describe(element, depth=0):
    states = element.get_state_set()
    words = [word for state, word in STATES.items() if states.contains(state)]
    text = element.get_text_iface()
    value = text.get_text(0, -1) if text else ""
    component = element.get_component_iface()
    place = component.get_extents(Atspi.CoordType.SCREEN) if component else Atspi.Rect()
    print("\t".join(["  " * depth + element.get_role_name(), element.get_name() or "",
                     value.replace("\n", "⏎").replace("\t", " "), " ".join(words),
                     f"{place.x} {place.y} {place.width} {place.height}"]))
    for index in range(min(element.get_child_count(), 200)):
        child = element.get_child_at_index(index)
        if child is not None:
            describe(child, depth + 1)


def main():
    Atspi.set_timeout(2000, 5000)
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        application = desktop.get_child_at_index(index)
        if application is not None and application.get_name() == sys.argv[1]:
            describe(application)


if __name__ == "__main__":
    main()
