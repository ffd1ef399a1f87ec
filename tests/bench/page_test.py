#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The page of the benchmarks' results: the runs that are kept and continued, the sum of several runs, the page, its charts."""
import contextlib
import io
import json
import pathlib
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml

ROOT = pathlib.Path(__file__).resolve().parents[2]
DATA = ROOT / "tests/data/bench"
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "bench"))
import kept  # noqa: E402
import page  # noqa: E402
import run  # noqa: E402

SVG = "{http://www.w3.org/2000/svg}"
# Counts its calls in its work folder; fails where a file says so; its ratio is the number of the call.
BENCH = """import json, pathlib, sys
work = pathlib.Path(sys.argv[2])
calls = int((work / "calls").read_text()) + 1 if (work / "calls").exists() else 1
(work / "calls").write_text(str(calls))
if (work / "fail").exists(): sys.exit(3)
print(json.dumps([{"name": "calls", "value": calls, "unit": "calls", "peer": "none", "ratio": calls, "goal": 1.0, "met": True}]))
"""


class Folder(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)


class Page(Folder):
    def setUp(self):
        super().setUp()
        page.write(self.folder, {name: kept.read(DATA, name) for name in ("mail", "rows")})
        self.text = (self.folder / "performance.md").read_text(encoding="utf-8")

    def row(self, name):
        found = [line for line in self.text.splitlines() if line.startswith(f"| {name} |")]
        self.assertEqual(len(found), 1, self.text)
        return [cell.strip() for cell in found[0].strip("|").split("|")]

    def test_a_measure_is_that_of_its_median_run_with_all_runs_ratios(self):
        self.assertEqual(self.row("deliver"), ["deliver", "1,250 messages/s", "the peer of 1.25", "1.25", "0.90 to 1.50", "at least 1.00",
                                               "in 2 of 3", "3"])

    def test_a_goal_that_no_run_meets_is_not_met(self):
        self.assertEqual(self.row("read"), ["read", "12.3 ms", "a / b", "1.25", "1.20 to 1.30", "at most 1.10", "no", "3"])

    def test_one_run_has_no_spread(self):
        self.assertEqual(self.row("memory"), ["memory", "60.0 MB", "60 MB", "1.00", "1.00", "at least 1.00", "yes", "1"])

    def test_of_two_runs_the_worse_one_counts(self):
        runs = kept.read(DATA, "mail")["runs"][:2]
        self.assertEqual([one["ratio"] for one in kept.measures(runs)], [0.9, 1.3])

    def test_runs_load_and_sources_are_reported(self):
        self.assertIn("## mail\n\n3 runs of commit 1234abc, load 0.10 to 2.25.\n", self.text)
        self.assertIn("## rows\n\n1 run of commit 1234abc, load 0.50.\n", self.text)

    def test_the_machine_is_named_once(self):
        self.assertEqual(self.text.count("| Prova 3000 | 2 | 24 GB | Linux 6.1.0 | Debian 12.11 |"), 1)

    def points(self, name):
        root = xml.parse(self.folder / f"performance-{name}.svg").getroot()
        return root, [[tuple(map(float, pair.split(","))) for pair in line.get("points").split()] for line in root.iter(SVG + "polyline")]

    def test_a_chart_has_a_line_for_each_of_the_runs_medians(self):
        root, (ours, theirs) = self.points("line")
        self.assertIn("theirs < ours", [text.text for text in root.iter(SVG + "text")])
        self.assertEqual([len(ours), len(theirs)], [3, 3])
        x, y = zip(*ours)
        # the scale of x is even; that of y has as much room for each power of ten: 1000, 90, 10
        self.assertAlmostEqual((x[1] - x[0]) / (x[2] - x[0]), 0.1, delta=0.01)
        self.assertAlmostEqual((y[1] - y[0]) / (y[2] - y[0]), 0.523, delta=0.01)

    def test_a_chart_over_the_list_has_a_scale_of_powers(self):
        root, (tick,) = self.points("list")
        texts = [text.text for text in root.iter(SVG + "text")]
        for tick_label in ("1,000", "10,000", "100,000", "1,000,000", "0.01", "0.1"):
            self.assertIn(tick_label, texts)
        width = float(root.get("width"))
        self.assertTrue(all(0 < x < width for x, _ in tick))

    def test_what_was_not_measured_is_said(self):
        self.assertNotIn("Not measured", self.text)
        page.write(self.folder, {"rows": kept.read(DATA, "rows")}, ["dkim", "mail"])
        self.assertIn("No run is kept of: dkim, mail.\n", (self.folder / "performance.md").read_text(encoding="utf-8"))

    def test_a_chart_without_lines_is_left_out(self):
        alone = self.folder / "alone"
        alone.mkdir()
        page.write(alone, {"rows": kept.read(DATA, "rows")})
        self.assertEqual(sorted(file.name for file in alone.iterdir()), ["performance-list.svg", "performance.md"])
        self.assertNotIn("performance-line", (alone / "performance.md").read_text(encoding="utf-8"))


class Runs(Folder):
    def setUp(self):
        super().setUp()
        self.benches, self.output, self.docs = (self.folder / name for name in ("bench", "output", "docs"))
        self.docs.mkdir()
        for name in ("one", "two"):
            (self.benches / name).mkdir(parents=True)
            (self.benches / name / "run.py").write_text(BENCH, encoding="utf-8")

    def bench(self, *more):
        before = sys.argv
        sys.argv = ["run.py", "build", str(self.output), "--docs", str(self.docs), *more]
        try:
            with contextlib.redirect_stdout(io.StringIO()), contextlib.redirect_stderr(io.StringIO()):
                return run.main(self.benches)
        finally:
            sys.argv = before

    def ratios(self, name):
        return [record["ratio"] for one in kept.read(self.output, name)["runs"] for record in one["records"]]

    def test_five_runs_of_each_and_no_more(self):
        self.assertEqual(self.bench(), 0)
        self.assertEqual(self.bench(), 0)
        self.assertEqual([self.ratios("one"), self.ratios("two")], [[1, 2, 3, 4, 5]] * 2)
        results = json.loads((self.output / "results.json").read_text(encoding="utf-8"))
        self.assertEqual([(one["name"], one["ratio"], one["runs"]) for one in results], [("calls", 3, 5)] * 2)

    def test_more_runs_are_added_to_those_that_are_kept(self):
        self.bench("--runs", "1", "two")
        self.bench("--runs", "3", "two")
        self.assertEqual([self.ratios("one"), self.ratios("two")], [[], [1, 2, 3]])

    def test_a_benchmark_that_fails_keeps_its_runs_and_lets_others_run(self):
        self.bench("--runs", "1")
        (self.output / "one" / "fail").touch()
        self.assertEqual(self.bench("--runs", "2"), 1)
        self.assertEqual([self.ratios("one"), self.ratios("two")], [[1], [1, 2]])

    def test_runs_of_other_sources_do_not_count(self):
        self.bench("--runs", "2", "one")
        runs = kept.read(self.output, "one")
        kept.write(self.output, "one", {**runs, "conditions": {**runs["conditions"], "sources": "other"}})
        self.bench("--runs", "0")
        self.assertEqual(self.ratios("one"), [1, 2])
        self.assertIn("2 runs of commit other", (self.docs / "performance.md").read_text(encoding="utf-8"))
        self.bench("--runs", "1", "one")
        self.assertEqual(self.ratios("one"), [3])

    def test_an_unknown_name_is_refused(self):
        with self.assertRaisesRegex(SystemExit, "three"):
            self.bench("one", "three")


class Benches(unittest.TestCase):
    def test_each_has_a_section_that_says_what_it_does(self):
        described = (ROOT / "docs/benchmarks.md").read_text(encoding="utf-8")
        for bench in (ROOT / "bench").glob("*/run.py"):
            self.assertTrue(f"\n## {bench.parent.name}\n" in described, bench.parent.name)


if __name__ == "__main__":
    unittest.main()
