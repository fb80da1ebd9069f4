"""The table of figures: a broken bar is named and fails the command."""

import contextlib
import io
import runpy
import sys
import unittest
from pathlib import Path
from unittest import mock

BENCH = Path(__file__).resolve().parents[2] / "tools" / "bench"
sys.path.insert(0, str(BENCH))
bench = runpy.run_path(str(BENCH / "__main__.py"), run_name="bench")
ROWS = bench["ROWS"]


def figures_at_the_bars():
    return {row: bar[1] if bar else 1 for row, (_, *bar) in ROWS.items()}


class BenchTest(unittest.TestCase):
    def test_a_figure_at_its_bar_holds_it_and_one_beyond_breaks_it(self):
        self.assertEqual(bench["table"](figures_at_the_bars())[1], [])
        for row, (_, *bar) in ROWS.items():
            if bar:
                beyond = bar[1] * (1.01 if bar[0] == "at most" else 0.99)
                lines, broken = bench["table"](figures_at_the_bars() | {row: beyond})
                self.assertEqual(broken, [row])
                self.assertEqual([line.startswith(row) for line in lines if "BROKEN" in line], [True])

    def test_the_command_prints_the_table_and_fails_with_the_row_named(self):
        row = "one tmutil status"
        figures = figures_at_the_bars() | {row: 11}
        printed = io.StringIO()
        with (mock.patch.dict(bench["main"].__globals__, benchmarks=lambda programs: {}, core_figures=lambda runs: {}),
              mock.patch.object(bench["program"], "measure", return_value=figures),
              mock.patch.object(bench["unchanged"], "measure", return_value={}),
              mock.patch.object(bench["kills"], "measure", return_value={}),
              mock.patch.object(sys, "argv", ["bench", "programs"]),
              contextlib.redirect_stdout(printed), self.assertRaises(SystemExit) as end):
            bench["main"]()
        self.assertIn(row, str(end.exception.code))
        self.assertEqual(printed.getvalue().count("\n"), len(ROWS))


if __name__ == "__main__":
    unittest.main()
