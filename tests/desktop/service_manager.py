"""Control groups that can be frozen, and the manager of the user's services that puts processes into them."""

import os
import pathlib
import unittest

from gi.repository import GLib

from bus_service import BusService
from session import wait_for

NAME = "org.freedesktop.systemd1"

INTERFACE = f"""
<node><interface name="{NAME}.Manager"><method name="StartTransientUnit">
  <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="a(sv)" direction="in"/>
  <arg type="a(sa(sv))" direction="in"/><arg type="o" direction="out"/>
</method></interface></node>"""

ROOTS = [pathlib.Path("/sys/fs/cgroup"), pathlib.Path("/sys/fs/cgroup/unified")]


class Group:
    """A control group of the test's own, which is skipped where we may not have one that can be frozen."""

    def __init__(self, name):
        root = next((root for root in ROOTS if (root / "cgroup.subtree_control").exists()), None)
        if root is None or not os.access(root, os.W_OK):
            raise unittest.SkipTest("this machine lets us make no control group that can be frozen")
        self._folder = root / f"tessarin-{os.getpid()}-{name}"
        self._folder.mkdir()

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
        (self._folder / "cgroup.freeze").write_text("1")
        wait_for(lambda: "frozen 1" in (self._folder / "cgroup.events").read_text(), what="the freezer")

    def thaw(self):
        (self._folder / "cgroup.freeze").write_text("0")


class ServiceManager(BusService):
    """Puts the processes named to it into the group."""

    def __init__(self, session, group):
        self._group = group
        super().__init__(session, NAME, "/org/freedesktop/systemd1", INTERFACE)

    def _called(self, _bus, _sender, _path, _interface, _method, arguments, invocation):
        for pid in dict(arguments.unpack()[2])["PIDs"]:
            self._group.take(pid)
        invocation.return_value(GLib.Variant("(o)", ("/org/freedesktop/systemd1/job/1",)))
