#!/usr/bin/env python3
"""What ./measure makes of recorded measurements. LYT_UPDATE=1 writes down the page that it makes of them."""
import json
import os
import pathlib
import sys
import unittest

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parents[1]
sys.path.insert(0, str(ROOT / "bench" / "measure"))

import figures
import page
import profiles
import works


def read(file):
    return file.read_text(encoding="utf-8")


def recorded():
    summary = figures.summarise([json.loads(line) for line in read(HERE / "lines.json").splitlines()])
    summary["library-size"] = {"1": {"series": {"ours": figures.spread([386.0])}, "ratios": {}}}
    return {"date": "2020-02-29", "machine": {"processor": "a quick one"}, "load": 0.25, "runs": 2, "works": summary,
            "profile": {"even": [[60.0, "ClytDialog::ReadDescription"]]}}


class Spread(unittest.TestCase):
    def test_gives_median_and_middle_half(self):
        self.assertEqual(figures.spread([9, 1, 3, 7, 5, 100, 2, 4]), {"median": 4.5, "low": 3, "high": 7, "count": 8})

    def test_of_one_value_is_that_value(self):
        self.assertEqual(figures.spread([3.0]), {"median": 3.0, "low": 3.0, "high": 3.0, "count": 1})

    def test_of_ratios_takes_times_of_one_round(self):
        line = {"work": "w", "size": 1, "series": {"ours": [10, 20, 40], "by hand": [5, 10, 20]}}
        self.assertEqual(figures.summarise([line])["w"]["1"]["ratios"]["by hand"],
                         {"median": 2.0, "low": 2.0, "high": 2.0, "count": 3})


class Growth(unittest.TestCase):
    def exponent(self, power, constant=0):
        summary = {str(size): {"series": {"ours": {"median": constant + 7 * size ** power}}} for size in (10, 100, 1000)}
        return figures.growth(summary)["ours"]

    def test_finds_the_exponent_of_a_power(self):
        for power in (0, 0.5, 1, 2):
            self.assertAlmostEqual(self.exponent(power)["exponent"], power)

    def test_shows_in_the_last_step_what_a_constant_hides(self):
        grown = self.exponent(2, constant=1e6)
        self.assertLess(grown["exponent"], 1)
        self.assertGreater(grown["last"], 0.8)

    def test_needs_three_sizes(self):
        two = {str(size): {"series": {"ours": {"median": size}}} for size in (10, 100)}
        self.assertEqual(figures.growth(two), {})


class Words(unittest.TestCase):
    def test_have_three_digits_and_a_fitting_unit(self):
        for time, words in ((0.5, "0.500 ns"), (12.34, "12.3 ns"), (999.6, "1.00 µs"), (1234567, "1.23 ms"),
                            (2.5e9, "2.50 s"), (0, "0 ns")):
            self.assertEqual(figures.time_text(time), words)


class Profile(unittest.TestCase):
    def test_keeps_our_functions_and_their_shares(self):
        listing = ("100 (100.0%)  ???:(anonymous namespace)::Journey<LiveForm>(CString const&) [/x/bench]\n"
                   "90 (90.00%)  ???:ClytDialog::ReadDescription() [/x/bench]\n"
                   "60 (60.00%)  ./malloc/malloc.c:malloc [/lib/libc.so.6]\n"
                   "42 (42.00%)  ???:std::vector<int>::push_back(int) [/x/bench]\n"
                   " 1 ( 1.00%)  ???:ClytDialog::CloseFile() [/x/bench]\n")
        self.assertEqual(profiles.rows_of(listing), [(90.0, "ClytDialog::ReadDescription"), (60.0, "malloc")])


class Page(unittest.TestCase):
    maxDiff = None

    def test_tells_recorded_measurements(self):
        words = page.make(works.load(HERE / "works.toml"), recorded())
        expected = HERE / "expected"
        if os.environ.get("LYT_UPDATE"):
            expected.joinpath("benchmarks.md").write_text(words, encoding="utf-8")
        self.assertEqual(words, read(expected / "benchmarks.md"))

    def test_in_docs_is_that_of_its_figures(self):
        docs = ROOT / "docs"
        words = page.make(works.load(), json.loads(read(docs / "benchmarks" / "figures.json")))
        self.assertEqual(words, read(docs / "benchmarks.md"), "./measure --page writes it again")


class SideBySide(unittest.TestCase):
    def test_compares_runs_of_two_revisions_one_by_one(self):
        # The machine was twice as slow in the second run; only the ratios hold.
        here = [{"work": "slow", "size": 10, "series": {"ours": [3e6 * run] * 3, "by hand": [1e6 * run] * 3}} for run in (1, 2)]
        there = [{"work": "slow", "size": 10, "series": {"ours": [2e6 * run] * 3, "by hand": [1e6 * run] * 3}} for run in (1, 2)]
        words = page.side_by_side(works.load(HERE / "works.toml"), here, there, "HEAD~1")
        self.assertEqual(words.splitlines()[1].split(), "slow 10 4.50 ms 3.00 ms 1.50 (1.50–1.50) by hand 3.00 / 2.00".split())


unittest.main()
