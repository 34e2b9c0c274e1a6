"""What the makers of emoji data share: packages pinned by version and checksum, and words as one types them."""

import base64
import dataclasses
import hashlib
import json
import re
import subprocess
import sys
import tarfile
import tempfile
import unicodedata
from pathlib import Path

RESOURCES = Path(__file__).resolve().parent.parent / "resources"
LONGEST_QUERY = 64
INVISIBLE = "Cf"


@dataclasses.dataclass
class Package:
    name: str
    sha512: str

    def load(self, given, read):
        """What `read` makes of the package. It is fetched by npm itself, unless its archive is given."""
        with tempfile.TemporaryDirectory() as folder:
            archive = given or self._fetch(folder)
            digest = base64.b64encode(hashlib.sha512(archive.read_bytes()).digest()).decode()
            if digest != self.sha512:
                sys.exit(f"{archive.name}: the checksum is not that of {self.name}")
            with tarfile.open(archive) as opened:
                return read(opened)

    def _fetch(self, folder):
        subprocess.run(["npm", "pack", self.name, "--silent"], cwd=folder, check=True, stdout=subprocess.DEVNULL)
        return next(Path(folder).glob("*.tgz"))


def read_json(archive, path):
    return json.load(archive.extractfile(f"package/{path}"))


def is_typable(text):
    """Whether every character of the text can become part of a query."""
    return 0 < len(text) <= LONGEST_QUERY and all(
        c in "_-+" or unicodedata.category(c)[0] in "LMN" for c in text
    )


def typable(text):
    """The text as one would type it: one word, without apostrophes and what is not seen."""
    kept = "".join(c for c in text.lower() if c not in "'’." and unicodedata.category(c) != INVISIBLE)
    kept = "".join(c if is_typable(c) else "_" for c in kept)
    return re.sub("__+", "_", kept).strip("_")
