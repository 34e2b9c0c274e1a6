#!/usr/bin/python3
"""What is in the package, and that its documents agree with the program and with each other."""

import pathlib
import re
import unittest
import xml.etree.ElementTree as xml

from package import OPTION, PACKAGE, ROOT, Unpacked, field, output, project_version, run

COMPLETIONS = {
    "bash": "usr/share/bash-completion/completions/tessarin",
    "zsh": "usr/share/zsh/vendor-completions/_tessarin",
    "fish": "usr/share/fish/vendor_completions.d/tessarin.fish",
}


class PackageTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.package = cls.enterClassContext(Unpacked())


class Contents(PackageTest):
    def test_listed_files_with_their_owner_and_mode(self):
        rows = [line.split(maxsplit=5) for line in output("dpkg-deb", "-c", PACKAGE).splitlines()]
        packed = [f"{mode} {owner} {path}" for mode, owner, _, _, _, path in rows if not mode.startswith("d")]
        expected = (pathlib.Path(__file__).parent / "contents.txt").read_text().splitlines()
        self.assertEqual(sorted(packed), sorted(expected))
        self.assertEqual({(row[0], row[1]) for row in rows if row[0].startswith("d")}, {("drwxr-xr-x", "root/root")})

    def test_the_copyright_file_holds_the_notices(self):
        text = (self.package / "usr/share/doc/tessarin/copyright").read_text()
        for source in (ROOT / "NOTICE", ROOT / "LICENSE"):
            self.assertIn(source.read_text() if source.exists() else "", text)


class Control(unittest.TestCase):
    def test_every_linked_library_is_depended_upon(self):
        with Unpacked() as package:
            needed = re.findall(r"NEEDED\s+(\S+)", output("objdump", "-p", package.program))
        depends = {entry.split()[0] for entry in field("Depends").split(", ")}
        for name in needed:
            owners = {line.split(":")[0] for line in output("dpkg", "-S", f"*/{name}").splitlines()}
            self.assertTrue(owners & depends, f"{name}, of {owners}")


class Options(PackageTest):
    def setUp(self):
        self.understood = set(OPTION.findall(output(self.package.program, "--help")))
        self.explained = set(OPTION.findall(self.package.manual().split(".SH OPTIONS")[1].split(".SH WHAT")[0]))

    def test_the_manual_explains_every_option_of_the_program(self):
        self.assertEqual(self.explained, self.understood)

    def test_every_shell_completes_what_the_manual_explains(self):
        for shell, path in COMPLETIONS.items():
            text = (self.package / path).read_text()
            options = {"--" + name for name in re.findall(r"complete .*-l (\w+)", text)} if shell == "fish" else OPTION.findall(text)
            self.assertEqual(set(options), self.explained, shell)
            output(shell, "-n", self.package / path)


class Manual(PackageTest):
    def test_formats_without_a_warning(self):
        page = self.package / "usr/share/man/man1/tessarin.1.gz"
        formatted = run("man", "--warnings=w", "-E", "UTF-8", "-l", "-Tutf8", "-Z", page,
                        env={"MANWIDTH": "80", "PATH": "/usr/bin:/bin"})
        self.assertEqual((formatted.returncode, formatted.stderr), (0, ""))

    def test_version(self):
        self.assertEqual(field("Version"), project_version())
        self.assertIn(f"Tessarin {project_version()}", self.package.manual())
        self.assertEqual(output(self.package.program, "--version"), f"tessarin {project_version()}\n")
        metadata = xml.parse(self.package / "usr/share/metainfo/app.tessarin.Tessarin.metainfo.xml")
        self.assertEqual(metadata.find("releases/release").get("version"), project_version())
        changelog = output("gzip", "-dc", self.package / "usr/share/doc/tessarin/changelog.gz")
        self.assertEqual(re.match(r"tessarin \((.*?)\)", changelog).group(1), project_version())


class Validators(PackageTest):
    def passes(self, *command):
        result = run(*command)
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        return result.stdout

    def test_desktop_entry(self):
        self.assertEqual(self.passes("desktop-file-validate", self.package / "usr/share/applications/tessarin.desktop"), "")

    def test_metadata(self):
        self.passes("appstreamcli", "validate-tree", "--no-net", self.package.root)

    def test_package(self):
        self.passes("lintian", "--allow-root", "--fail-on", "error,warning", PACKAGE)


if __name__ == "__main__":
    unittest.main()
