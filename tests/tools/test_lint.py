"""What the layer check reports, and what it leaves alone."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import lint  # noqa: E402


class LintTest(unittest.TestCase):
    def findings(self, files):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in files.items():
                path = Path(folder, "src", name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            tree = lint.Tree(Path(folder))
            found = tree.findings()
            self.warnings = tree.warnings
            return found

    def assert_only(self, expected, files):
        found = self.findings(files)
        self.assertEqual([finding.split(": ")[0] for finding in found], expected, found)

    def test_includes_that_go_down_the_layers_are_found(self):
        headers = {"platform/core/Task.h": "", "platform/ui/Alert.h": "", "tmcontrol/TMUtil.h": "",
                   "schedule/DataManager.h": "", "menubar/Menu.h": ""}
        upward = {"menubar/Menu.cpp": '#include "Menu.h"\n#include "DataManager.h"\n#include "Alert.h"\n',
                  "tmcontrol/TMUtil.cpp": '#include "Task.h"\n#include "ui_made.h"\n#include <QProcess>\n',
                  "quillonctl/main.cpp": '#include "TMUtil.h"\n',
                  "timemachine/program/main.cpp": '#include "Task.h"\n'}
        self.assert_only([], headers | upward)
        for below, include in [("tmcontrol/TMUtil.cpp", '"DataManager.h"'), ("tmcontrol/TMUtil.cpp", '"Alert.h"'),
                               ("platform/core/Task.cpp", '"TMUtil.h"'), ("schedule/Rule.cpp", '"Menu.h"'),
                               ("schedule/Rule.cpp", "<QtWidgets/QLabel>"), ("quillonctl/main.cpp", '"Menu.h"'),
                               ("quillonctl/main.cpp", '"DataManager.h"'),
                               ("timemachine/Worker.cpp", '"TMUtil.h"')]:
            with self.subTest(below, include=include):
                self.assert_only([f"src/{below}:2"], headers | {below: f"\n  #  include {include}\n"})

    def test_two_programs_may_have_headers_of_one_name(self):
        self.assert_only([], {"timemachine/CommandLine.h": "", "quillonctl/CommandLine.h": "",
                              "timemachine/main.cpp": '#include "CommandLine.h"', "quillonctl/main.cpp":
                              '#include "CommandLine.h"'})

    def test_a_folder_that_no_layer_claims_is_found(self):
        self.assert_only(["src/extras/Thing.cpp"], {"extras/Thing.cpp": ""})

    def test_clocks_and_timers_are_found_where_the_run_loop_rules(self):
        for use in ("auto now = QDateTime::currentDateTimeUtc();", "QTimer timer;",
                    "std::chrono::system_clock::now();", "QElapsedTimer timer;"):
            with self.subTest(use):
                self.assert_only(["src/schedule/Rule.cpp:2"], {"schedule/Rule.cpp": f"\n{use}\n"})
                self.assert_only([], {"platform/core/QtRunLoop.cpp": use})
        self.assert_only([], {"menubar/Menu.cpp": "// a QTimer\n/* QTimer\n*/ f(\"QTimer\"); MyQTimerLike x;\n"})

    def test_systems_are_told_apart_only_in_files_named_after_one(self):
        for switch in ("#ifdef Q_OS_LINUX", "# if defined(__APPLE__)", "#elif !defined(__linux__)"):
            with self.subTest(switch):
                self.assert_only(["src/app/About.cpp:1"], {"app/About.cpp": switch})
                self.assert_only([], {"app/About_linux.cpp": switch})

    def test_a_very_long_file_is_a_warning_only(self):
        self.assert_only([], {"app/About.cpp": "\n" * 421})
        self.assertEqual(len(self.warnings), 1)


if __name__ == "__main__":
    unittest.main()
