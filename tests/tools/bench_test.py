"""The benchmarks' inputs and coverage: the trace generator's lines decode cleanly
through ovfmt, every registered id is in every round, ids come as often as their
category's weight, and format_bench measures every registered id beside its floor.

Run by ctest with OVFMT (the binary), DEMO (examples/demo.txt), BENCH_DIR (bench/) and
FORMAT_BENCH (the benchmark binary) in the environment."""

import os
import subprocess
import sys
import tempfile
import unittest
from collections import Counter
from pathlib import Path

sys.path.insert(0, os.environ["BENCH_DIR"])
import gen_trace  # noqa: E402


def ids_of(path):
    return [line.split(maxsplit=1)[0] for line in Path(path).read_text().splitlines()]


class FormatBenchTest(unittest.TestCase):
    def test_every_registered_id_has_a_benchmark_and_a_floor(self):
        listed = subprocess.run([os.environ["FORMAT_BENCH"], "--benchmark_list_tests"],
                                check=True, text=True, capture_output=True).stdout.split()
        expected = [f"{kind}/{i}" for i in gen_trace.plugin_ids(os.environ["OVFMT"]) for kind in ("format", "floor")]
        self.assertEqual(listed, expected)


class GenTraceTest(unittest.TestCase):
    def setUp(self):
        self.dir = tempfile.TemporaryDirectory()
        self.trace = Path(self.dir.name) / "trace.txt"

    def tearDown(self):
        self.dir.cleanup()

    def test_demo_trace_decodes_and_a_round_covers_every_registered_id(self):
        registered = gen_trace.plugin_ids(os.environ["OVFMT"])
        round_length = sum(gen_trace.category_of(i)[1] for i in registered)
        gen_trace.write_trace(os.environ["DEMO"], self.trace, 2 * round_length)

        decoded = subprocess.run([os.environ["OVFMT"], "--batch", str(self.trace)], text=True,
                                 capture_output=True)
        self.assertEqual((decoded.returncode, decoded.stderr), (0, ""))
        self.assertEqual(len(decoded.stdout.splitlines()), 2 * round_length)
        self.assertEqual(set(ids_of(self.trace)[:round_length]), set(registered))

    def test_ids_come_by_weight_and_cycle_through_their_values(self):
        values = Path(self.dir.name) / "values.txt"
        values.write_text("# comment\nBNH 01\nI 01 00 00 0a\nZZ 01\nZZ 02\n")
        rounds = 2
        round_length = 30 + 20 + gen_trace.OTHER[1]
        gen_trace.write_trace(values, self.trace, rounds * round_length)

        lines = self.trace.read_text().splitlines()
        self.assertEqual(Counter(ids_of(self.trace)),
                         {"BNH": 30 * rounds, "I": 20 * rounds, "ZZ": gen_trace.OTHER[1] * rounds})
        self.assertEqual({line for line in lines if line.startswith("ZZ")}, {"ZZ 01", "ZZ 02"})

    def test_same_seed_same_trace(self):
        other = Path(self.dir.name) / "again.txt"
        gen_trace.write_trace(os.environ["DEMO"], self.trace, 500, seed=7)
        gen_trace.write_trace(os.environ["DEMO"], other, 500, seed=7)
        self.assertEqual(self.trace.read_text(), other.read_text())


if __name__ == "__main__":
    unittest.main()
