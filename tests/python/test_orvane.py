"""The orvane module beside ovfmt (OVFMT): the same texts, and the same words for errors."""

import doctest
import os
import subprocess
import sys
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import orvane

EXAMPLES = Path(__file__).resolve().parents[2] / "examples"
PGO = bytes.fromhex("01140a0110")
PEER, HOP = "05 01 01 00 00 0a 03 65 74 31 ", "01 02 00 00 00 03 01 00 00 0a 00 1c 73 aa bb cc"


def ovfmt(*args):  # without the sanitizer runtime preloaded for Python: ovfmt has its own
    return subprocess.run([os.environ["OVFMT"], *args], capture_output=True, text=True,
                          env=dict(os.environ, LD_PRELOAD=""))


def demo_items():
    lines = (EXAMPLES / "demo.txt").read_text().splitlines()
    return [(line.split()[0], bytes.fromhex(line.split(maxsplit=1)[1]))
            for line in lines if line.strip() and not line.startswith("#")]


class SameAsOvfmt(unittest.TestCase):
    def test_every_demo_value_and_every_id(self):
        expected, items = ovfmt("--batch", EXAMPLES / "demo.txt").stdout.splitlines(), demo_items()
        self.assertEqual(orvane.format_many(items), expected)
        self.assertEqual([orvane.format(*item) for item in items], expected)
        self.assertEqual(orvane.ids(), sorted(ovfmt("--list").stdout.split()))

    def test_threads_at_once(self):
        items = demo_items() * 20
        expected = orvane.format_many(items)
        with ThreadPoolExecutor(4) as pool:
            self.assertEqual(list(pool.map(orvane.format_many, [items] * 8)), [expected] * 8)

    def test_records_and_the_example_script(self):
        layout, data = "peer {} nexthop {}", bytes.fromhex(PEER + HOP)
        self.assertEqual(orvane.format_record(["BPK", "BNH"], data, layout) + "\n",
                         ovfmt("--template", layout, "BPK,BNH", PEER + HOP).stdout)
        self.assertEqual(orvane.format_record("I,I", bytes(8)), ["0.0.0.0", "0.0.0.0"])
        script = subprocess.run([sys.executable, EXAMPLES / "decode_records.py"], check=True,
                                capture_output=True, text=True).stdout
        self.assertEqual(script, ovfmt("--template", "route {} from peer {} via {}", "--batch",
                                       EXAMPLES / "records.txt").stdout)

    def test_errors_in_the_words_of_ovfmt(self):
        cases = [  # (template, ids, hex, what the module raises)
            (None, "PGO", "01 14 0a", orvane.FormatError),
            (None, "PGO", "03 00", orvane.FormatError),
            (None, "PGO", "01 14 0a 01 10 ff", orvane.FormatError),
            (None, "BPK,I,BNH", PEER + "01 00 00", orvane.FormatError),
            (None, "I,NOPE", "01 00 00 0a 00", KeyError),
            (None, "I,I", "01 00 00 0a 02 00 00 0a 07", orvane.FormatError),
            ("{}", "I,I", "01 00 00 0a 02 00 00 0a", ValueError),
        ]
        for layout, ids, hex_bytes, error in cases:
            data, options = bytes.fromhex(hex_bytes), ["--template", layout] if layout else []
            with self.subTest(ids=ids, hex=hex_bytes), self.assertRaises(error) as caught:
                (orvane.format_record(ids, data, layout) if layout or "," in ids
                 else orvane.format(ids, data))
            words, stderr = caught.exception.args[0], ovfmt(*options, ids, hex_bytes).stderr
            self.assertTrue(stderr.startswith((f"ovfmt: {ids}: {words}", f"ovfmt: {words}\n")),
                            stderr)

    def test_format_many_names_the_failing_item(self):
        with self.assertRaisesRegex(orvane.FormatError, r"^item 0: .* PGO needs 5"):
            orvane.format_many([("PGO", PGO[:3])])
        with self.assertRaisesRegex(orvane.FormatError, r"^item 1: value too short: 3 bytes"):
            orvane.format_many([("PGO", PGO), ("PGO", PGO[:3]), ("NOPE", b"")])
        with self.assertRaisesRegex(KeyError, 'item 2: unknown id "NOPE"'):
            orvane.format_many(iter([("PGO", PGO), ("I", bytes(4)), ("NOPE", b"")]))
        with self.assertRaisesRegex(TypeError, "^item 0: expected an .id, data. pair"):
            orvane.format_many([PGO])

        class BrokenPair:  # a pair whose data cannot be read: its error, not a crash
            __len__ = lambda self: 2
            __getitem__ = lambda self, i: "PGO" if i == 0 else 1 / 0
        self.assertRaises(ZeroDivisionError, orvane.format_many, [BrokenPair()])

    def test_format_many_returns_errors_in_place(self):
        items = [("PGO", PGO), ("PGO", PGO[:1]), ("NOPE", b""), ("I", "0100000a"), ("I", bytes(4))]
        results = orvane.format_many(items, errors="return")
        self.assertEqual(results[0::4], ["10.1.16.0/20", "0.0.0.0"])
        for result, (error, words) in zip(results[1:4], [
                (orvane.FormatError, "item 1: value too short"), (KeyError, "item 2: unknown id"),
                (TypeError, "item 3: the data must be bytes-like, not str")]):
            self.assertIsInstance(result, error)
            self.assertTrue(result.args[0].startswith(words), result.args[0])
        self.assertEqual(len(orvane.format_many([("PGO", PGO[:1])] * 1025, errors="return")), 1025)
        self.assertRaisesRegex(ValueError, 'errors must be "raise" or "return"',
                               orvane.format_many, [], errors="ignore")

    def test_str_data_says_to_pass_bytes(self):
        for call in (lambda: orvane.format("PGO", "01140a0110"),
                     lambda: orvane.length("PGO", "01140a0110"),
                     lambda: orvane.format_record("PGO", "01140a0110")):
            self.assertRaisesRegex(TypeError, r"not str: pass bytes.*bytes\.fromhex", call)

    def test_bytes_like_data_and_lengths(self):
        for data in (PGO, bytearray(PGO), memoryview(PGO), memoryview(b"\0" + PGO)[1:]):
            self.assertEqual(orvane.format("PGO", data), "10.1.16.0/20")
        self.assertEqual(orvane.length("PGO", PGO + b"\xff"), 5)
        self.assertRaisesRegex(orvane.FormatError, "^value too short: 2 bytes given, PGO needs 5",
                               orvane.length, "PGO", PGO[:2])
        self.assertRaises(BufferError, orvane.format, "PGO", memoryview(PGO + PGO)[::2])

    def test_documented_examples_keywords_and_batch_sizes(self):
        examples = doctest.testmod(orvane)
        self.assertEqual((examples.failed, examples.attempted > 0), (0, True))
        self.assertEqual(orvane.length(id="PGO", data=PGO), 5)
        self.assertEqual(orvane.format_record(ids="I,I", data=bytes(8), template="{}-{}"),
                         "0.0.0.0-0.0.0.0")
        for count in (0, 1, 1025):  # batches of 1,024: none, a part of one, one and one more
            self.assertEqual(orvane.format_many(items=[("PGO", PGO)] * count),
                             ["10.1.16.0/20"] * count)

    def test_load_errors(self):
        with self.assertRaisesRegex(OSError, "^cannot load plug-in /nowhere.so: "):
            orvane.load("/nowhere.so")
        orvane.load()  # the default plug-in again: already loaded, no error
