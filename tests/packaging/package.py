"""The package under test, unpacked once into a folder of its own."""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
PACKAGE = pathlib.Path(os.environ["TESSARIN_PACKAGE"])
OPTION = re.compile(r"--[a-z]+")


def run(*command, **options):
    options = {"capture_output": True, "text": True, "timeout": 120} | options
    return subprocess.run([str(part) for part in command], **options)


def output(*command, **options):
    return run(*command, check=True, **options).stdout


class Unpacked:
    def __enter__(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="tessarin-package-"))
        output("dpkg-deb", "-x", PACKAGE, self.root)
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.root, ignore_errors=True)

    def __truediv__(self, path):
        return self.root / path

    @property
    def program(self):
        return self.root / "usr/bin/tessarin"

    def manual(self):
        """The manual page's source, with the hyphens as they are typed."""
        packed = self.root / "usr/share/man/man1/tessarin.1.gz"
        return output("gzip", "-dc", packed).replace("\\-", "-")


def project_version():
    return re.search(r"project\(Tessarin VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text()).group(1)


def field(name):
    return output("dpkg-deb", "-f", PACKAGE, name).strip()
