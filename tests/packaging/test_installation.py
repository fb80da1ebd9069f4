"""An installation into any prefix: programs that find each other, and pages and entries that tell the truth of them."""

import configparser
import gzip
import os
import re
import subprocess
import tempfile
import unittest
from pathlib import Path
from unittest import mock
from xml.etree import ElementTree

SOURCE = Path(__file__).resolve().parents[2]
OPTION = re.compile(r"(?<![\w-])--?[A-Za-z][\w-]*")


class InstallationTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(scratch.cleanup)
        cls.prefix = Path(scratch.name, "any where")
        subprocess.run([os.environ["CMAKE"], "--install", os.environ["BUILD"], "--prefix", cls.prefix], check=True,
                       stdout=subprocess.DEVNULL)
        cls.home = Path(scratch.name, "home")
        cls.home.mkdir(mode=0o700)
        cls.share = cls.prefix / "share"
        cls.tmutil = cls.prefix / "bin/tmutil"

    def run_program(self, program, *arguments):
        """What an installed program prints, in a home of its own and without a display."""
        folders = {f"XDG_{kind}_HOME": str(self.home / kind.lower()) for kind in ("CONFIG", "STATE", "CACHE", "DATA")}
        told = subprocess.run([program, *arguments], stdout=subprocess.PIPE, text=True, check=True,
                              env=folders | {"PATH": os.environ["PATH"], "LANG": "C.UTF-8", "QT_QPA_PLATFORM":
                                             "offscreen", "HOME": str(self.home),
                                             "XDG_RUNTIME_DIR": str(self.home)})
        return told.stdout

    def page(self, name):
        """A manual page without its fonts and escapes."""
        text = gzip.decompress((self.share / f"man/man1/{name}.1.gz").read_bytes()).decode()
        return re.sub(r"\\f.|\\c", "", text).replace("\\-", "-")

    def entries(self):
        entries = {}
        for path in sorted(self.share.glob("applications/*.desktop")):
            entries[path.name] = configparser.ConfigParser(interpolation=None)
            entries[path.name].optionxform = str
            entries[path.name].read(path, encoding="utf-8")
        return entries

    def test_programs_find_each_other_and_tmutil_its_worker_when_it_is_called_by_its_name_alone(self):
        disk, source = self.home / "disk", self.home / "source"
        for folder in (disk, source):
            folder.mkdir()
        (source / "file").write_text("content")
        with mock.patch.dict(os.environ, PATH=f"{self.tmutil.parent}:{os.environ['PATH']}"):
            for arguments in (("setdestination", disk), ("addsource", source), ("startbackup", "--block")):
                self.run_program("tmutil", *arguments)
            self.assertTrue(self.run_program("tmutil", "latestbackup").strip())
        self.assertRegex(self.run_program(self.prefix / "bin/quillonctl", "status"), r"^failed: +no\n")

    def test_every_program_has_a_page_with_exactly_its_options(self):
        pages = {program.name: self.page(program.name) for program in (self.prefix / "bin").iterdir()}
        self.assertEqual(pages.pop("tmutil"), self.page("quillon-tmutil"))  # has commands, and a test of its own
        for name, page in pages.items():
            with self.subTest(name):
                offered = set(OPTION.findall(self.run_program(self.prefix / "bin" / name, "--help")))
                described = page.split(".SH OPTIONS\n")[1].split(".SH")[0]
                self.assertEqual(offered, set(OPTION.findall(described)))

    def test_completion_of_quillonctl_offers_its_commands_and_knows_the_disks(self):
        usage = self.run_program(self.prefix / "bin/quillonctl", "--help").split("\n\n")[0]
        commands = set(re.findall(r"(?:quillonctl|\|) ([a-z-]{3,})", re.sub(r"\[.*?\]", "", usage)))
        script = self.share / "bash-completion/completions/quillonctl"
        offered = subprocess.run(
            ["bash", "-c", f"source '{script}'; quillonctl() {{ echo 'A1  My Disk  (last used)'; }};"
             "COMP_WORDS=(quillonctl ''); COMP_CWORD=1; _quillonctl; printf '%s\n' \"${COMPREPLY[@]}\";"
             "COMP_WORDS=(quillonctl backup --disk M); COMP_CWORD=3; _quillonctl; printf '%s\n' \"${COMPREPLY[@]}\""],
            stdout=subprocess.PIPE, text=True, check=True).stdout.splitlines()
        self.assertEqual(commands | {"My\\ Disk"}, set(offered))
        (zsh,) = self.share.glob("zsh/*/_quillonctl")
        self.assertEqual(commands, set(re.findall(r"^    '([a-z-]+):", zsh.read_text(), re.MULTILINE)))

    def test_the_page_of_tmutil_has_its_commands_options_and_exit_statuses(self):
        page = self.page("tmutil")
        usage = self.run_program(self.tmutil, "help")
        commands, statuses = page.split(".SH COMMANDS\n")[1].split(".SH EXIT STATUS\n")
        statuses = statuses.split(".SH")[0]
        for line in usage.splitlines()[1:]:
            _, command, *rest = line.split()
            with self.subTest(command):
                described = re.search(rf"\.TP\n(\.\w+ \"?{command}\b.*\n)", commands)
                self.assertTrue(described)
                if command != "help":
                    self.assertEqual(OPTION.findall(" ".join(rest)), OPTION.findall(described[1]))
        self.assertEqual(len(usage.splitlines()) - 1, commands.count(".TP\n"))
        documented = re.findall(r"\.TP\n\.B (\d+)\n", statuses)
        used = re.findall(r"= (\d+),", (SOURCE / "src/tmutil/command/Failure.h").read_text(encoding="utf-8"))
        self.assertEqual(documented, used)

    def test_desktop_entries_start_installed_programs(self):
        entries = self.entries()
        self.assertIn("com.Orvane.Quillon.desktop", entries)
        for name, entry in entries.items():
            with self.subTest(name):
                for section in entry.sections():
                    self.assertTrue(os.access(self.prefix / "bin" / entry[section]["Exec"].split()[0], os.X_OK))
                self.assertTrue((self.share / f"icons/hicolor/scalable/apps/{entry['Desktop Entry']['Icon']}.svg")
                                .exists())

    def test_entries_speak_every_language_of_the_program(self):
        tables = (SOURCE / "resources/strings").glob("quillon_*.ts")
        languages = {table.stem.removeprefix("quillon_") for table in tables} - {"en"}
        for name, entry in self.entries().items():
            for section in entry.sections():
                translated = "Comment" if section == "Desktop Entry" else "Name"
                self.assertEqual(languages, {key[len(translated) + 1:-1] for key in entry[section]
                                             if key.startswith(translated + "[")}, name)

    def test_the_metadata_is_of_this_version(self):
        version = self.run_program(self.prefix / "bin/quillon", "--version").split()[1]
        (path,) = self.share.glob("metainfo/*.xml")
        self.assertEqual(ElementTree.parse(path).find("releases/release").get("version"), version)

    def test_symbols_can_be_tinted(self):
        symbols = list((self.share / "icons/hicolor/symbolic/apps").iterdir())
        self.assertEqual(len(symbols), 4)
        for symbol in symbols:
            self.assertNotIn("stroke", symbol.read_text(), "GTK fills it instead, when a panel tints it")


if __name__ == "__main__":
    unittest.main()
