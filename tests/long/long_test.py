"""What the long tests share with each other and with the desktop tests."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "desktop"))

from desktop_test import DesktopTest  # noqa: F401

EXPANSIONS = "a:smile\nb :tada\tc :+1:d "
LEFT = "a😄b 🎉c 👍d "
