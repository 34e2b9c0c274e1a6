"""Proportional memory (PSS), whole and by kind."""

import pathlib
import re

# The first that fits a mapping's name is its kind.
KINDS = (
    ("Qt", r"/libQt6|/qt6/"),
    ("ICU", r"/libicu"),
    ("fonts", r"\.(ttf|ttc|otf|pcf|pfb)|/fontconfig/|/cache/fontconfig"),
    ("heap and other memory of its own", r"^$|^\[heap\]|^\[anon"),
    ("stacks", r"^\[stack"),
    ("the program itself", r"/tessarin$"),
    ("X11 and keyboard libraries", r"/libxcb|/libX|/libxkb|/libSM|/libICE"),
    ("graphics libraries", r"/libGL|/libEGL|/libOpenGL|/libgomp|/libdrm|/libgbm"),
    ("network and Kerberos libraries", r"/libgssapi|/libkrb5|/libk5|/libproxy|/libssl|/libcrypto"),
    ("C and C++ libraries", r"/libc\.so|/libstdc|/libm\.so|/libgcc|/ld-linux"),
)


def mappings(pid):
    """Name and proportional kilobytes of each mapping of a process."""
    name = ""
    for line in pathlib.Path(f"/proc/{pid}/smaps").read_text().splitlines():
        fields = line.split(maxsplit=5)
        if re.match(r"[0-9a-f]+-[0-9a-f]+$", fields[0]):
            name = fields[5] if len(fields) == 6 else ""
        elif fields[0] == "Pss:":
            yield name, int(fields[1])


def processes(pid):
    """A program and what it started: the rest of its session, and children in sessions of their own."""
    for folder in pathlib.Path("/proc").iterdir():
        if folder.name.isdigit():
            try:
                parent, _, session = (folder / "stat").read_text().rpartition(")")[2].split()[1:4]
            except (FileNotFoundError, ProcessLookupError):
                continue
            if str(pid) in (folder.name, parent, session):
                yield int(folder.name)


def proportional_megabytes(pid):
    return sum(size for process in processes(pid) for _, size in mappings(process)) / 1024


def kind_of(name):
    return next((kind for kind, pattern in KINDS if re.search(pattern, name)), "other libraries and files")


def by_kind(pid):
    sizes = {}
    for process in processes(pid):
        for name, size in mappings(process):
            sizes[kind_of(name)] = sizes.get(kind_of(name), 0) + size / 1024
    return sorted(sizes.items(), key=lambda item: -item[1])


def tell_kinds(table, pid, when):
    whole = proportional_megabytes(pid)
    table.add(f"PSS by kind, {when}", "", f"{whole:.1f} MB",
              ", ".join(f"{kind} {size:.1f}" for kind, size in by_kind(pid)), whole)
