"""Control groups that can be frozen, and the manager of the user's services that puts processes into them."""

import contextlib
import os
import pathlib

from gi.repository import GLib

from bus_service import BusService
from session import wait_for

NAME = "org.freedesktop.systemd1"

INTERFACE = f"""
<node><interface name="{NAME}.Manager"><method name="StartTransientUnit">
  <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="a(sv)" direction="in"/>
  <arg type="a(sa(sv))" direction="in"/><arg type="o" direction="out"/>
</method></interface></node>"""

# Where groups hang; the file that freezes one and what is written there; the file that tells, and what once it is frozen.
FREEZERS = [
    ("/sys/fs/cgroup", "cgroup.freeze", "1", "0", "cgroup.events", "frozen 1"),
    ("/sys/fs/cgroup/unified", "cgroup.freeze", "1", "0", "cgroup.events", "frozen 1"),
    ("/sys/fs/cgroup/freezer", "freezer.state", "FROZEN", "THAWED", "freezer.state", "FROZEN"),
]


class Group:
    """A control group of the test's own. OSError where we may not have one that can be frozen."""

    def __init__(self, name, freezer):
        root, self._switch, self._on, self._off, self._state, self._frozen = freezer
        self._folder = pathlib.Path(root, f"tessarin-{os.getpid()}-{name}")
        self._folder.mkdir()
        if not (self._folder / self._switch).exists():
            self._folder.rmdir()
            raise FileNotFoundError(self._switch)

    def close(self):
        """The processes in it have to have ended."""
        wait_for(lambda: not self.pids(), what="an empty control group")
        self._folder.rmdir()

    def pids(self):
        return [int(pid) for pid in (self._folder / "cgroup.procs").read_text().split()]

    def take(self, pid):
        (self._folder / "cgroup.procs").write_text(str(pid))

    def launcher(self, path, program):
        """A program that is the other one, in this group."""
        path.write_text(f'#!/bin/sh\necho $$ >"{self._folder}/cgroup.procs"\nexec "{program}" "$@"\n')
        path.chmod(0o755)
        return path

    def freeze(self):
        (self._folder / self._switch).write_text(self._on)
        wait_for(lambda: self._frozen in (self._folder / self._state).read_text(), what="the freezer")

    def thaw(self):
        (self._folder / self._switch).write_text(self._off)


def usable_freezer():
    """What kind of groups this machine lets us freeze; nothing when none."""
    for freezer in FREEZERS:
        with contextlib.suppress(OSError):
            Group("probe", freezer).close()
            return freezer
    return None


class ServiceManager(BusService):
    """Puts the processes named to it into the group."""

    def __init__(self, session, group):
        self._group = group
        super().__init__(session, NAME, "/org/freedesktop/systemd1", INTERFACE)

    def _called(self, _bus, _sender, _path, _interface, _method, arguments, invocation):
        for pid in dict(arguments.unpack()[2])["PIDs"]:
            self._group.take(pid)
        invocation.return_value(GLib.Variant("(o)", ("/org/freedesktop/systemd1/job/1",)))
