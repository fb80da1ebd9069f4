"""The check of the macOS build: which sources it asks for, and what passes for an object."""

import json
import struct
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import check_macos  # noqa: E402


class CheckMacosTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)

    def write(self, name, content=b""):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)
        return path

    def test_shared_and_macos_sources_are_asked_for_and_those_for_linux_are_not(self):
        wanted = {self.write(f"src/{name}") for name in
                  ("core/Timer.cpp", "ui/Item_macos.mm", "core/Clock_macos.cpp", "core/linux.cpp")}
        for name in ("core/Clock_linux.cpp", "timemachine/program/main.cpp", "disks/Window.cpp", "core/Timer.h"):
            self.write(f"src/{name}")
        self.assertEqual(check_macos.macos_sources(self.root), wanted)

    def test_objects_are_found_by_their_sources(self):
        commands = [{"directory": "/b", "file": "/s/A b.cpp", "command": "c++ -o x/A\\ b.o -c '/s/A b.cpp'"}]
        self.write("compile_commands.json", json.dumps(commands).encode())
        self.assertEqual(check_macos.objects(self.root), {Path("/s/A b.cpp"): self.root / "x/A b.o"})

    def test_only_an_object_for_macos_on_arm64_passes(self):
        head = (0xFEEDFACF, 0x0100000C, 0, 1)
        self.assertTrue(check_macos.is_macos_object(self.write("a.o", struct.pack("<IIII", *head) + b"rest")))
        for name, content in [("elf", b"\x7fELF\x02\x01\x01" + bytes(57)), ("empty", b""),
                              ("torn", b"\xcf\xfa\xed\xfe"),
                              ("x86_64", struct.pack("<IIII", head[0], 0x01000007, 3, 1)),
                              ("program", struct.pack("<IIII", *head[:3], 2))]:
            with self.subTest(name):
                self.assertFalse(check_macos.is_macos_object(self.write(name, content)))
        self.assertFalse(check_macos.is_macos_object(self.root / "absent"))


if __name__ == "__main__":
    unittest.main()
