#!/usr/bin/python3
"""The packed program: started from where it was unpacked, and really installed where that is allowed."""

import os
import pathlib
import sys
import unittest

from package import PACKAGE, ROOT, Unpacked, output, project_version, run

sys.path.insert(0, str(ROOT / "tools/desktop"))

from session import Session, Tessarin, wait_for  # noqa: E402


class Unpacking(unittest.TestCase):
    def test_finds_its_data_and_ends_when_told(self):
        with Unpacked() as package, Session() as session, Tessarin(session, program=package.program) as tessarin:
            tessarin.wait_for_log("App launched and ready")
            self.assertNotIn("not found", tessarin.log)
            self.assertRegex(tessarin.log, r"Loaded [1-9]\d{2,} built-in emojis")
            self.assertRegex(tessarin.log, r"Loaded [1-9]\d+ built-in kaomoji")
            tessarin.command("--quit")
            self.assertEqual(wait_for(lambda: exit_status(tessarin.pid), what="its end"), "exited 0", tessarin.log)


def exit_status(child):
    """How the child ended, in words; nothing while it runs. The child is left to its owner to be waited for."""
    ended = os.waitid(os.P_PID, child, os.WEXITED | os.WNOHANG | os.WNOWAIT)
    if ended is None:
        return None
    return f"{'exited' if ended.si_code == os.CLD_EXITED else 'killed by'} {ended.si_status}"


def is_installed():
    return run("dpkg-query", "-W", "tessarin").returncode == 0


def apt(*command):
    """Unlike dpkg it waits while another program installs something."""
    result = run("apt-get", "-y", "-q", "--no-install-recommends", "-o", "DPkg::Lock::Timeout=300", *command,
                 env=os.environ | {"DEBIAN_FRONTEND": "noninteractive"}, timeout=600)
    if result.returncode != 0:
        raise AssertionError(result.stdout + result.stderr)


@unittest.skipIf(os.getuid() != 0, "installing needs root")
@unittest.skipIf(is_installed(), "tessarin is installed here, and stays so")
class Installing(unittest.TestCase):
    def setUp(self):
        self.addCleanup(lambda: is_installed() and apt("purge", "tessarin"))
        apt("install", PACKAGE)

    def test_works_and_leaves_nothing_behind(self):
        listed = [pathlib.Path(line) for line in output("dpkg", "-L", "tessarin").splitlines()]
        self.assertEqual(output("/usr/bin/tessarin", "--version"), f"tessarin {project_version()}\n")
        self.assertIn("smile", output("/usr/bin/tessarin", "--search", "smile"))
        self.assertIn("tessarin", output("man", "-w", "tessarin"))
        apt("remove", "tessarin")
        self.assertFalse(is_installed(), "something is left to purge")
        left = [path for path in listed if path.exists() and not path.is_dir()]
        left += [path for path in listed if path.is_dir() and path.name == "tessarin"]
        self.assertEqual(left, [])


if __name__ == "__main__":
    unittest.main()
