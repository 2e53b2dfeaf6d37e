"""The reader as users run it: babeltrace2 with the orvane plug-in, and ovfmt --trace, on
traces written byte by byte (make_trace.py). Every typed field is checked against
ovfmt's text for the same bytes.

Environment: BABELTRACE2, PLUGIN_DIR (holding babeltrace-plugin-orvane.so), OVFMT,
WORK_DIR (where the traces go); BT_ENV_* entries are set for babeltrace2 alone (the
sanitizer runtime an instrumented plug-in needs)."""

import json
import os
import re
import shutil
import signal
import subprocess
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent))
import make_trace  # noqa: E402

WORK = Path(os.environ["WORK_DIR"])
BT_ENV = dict(os.environ, TZ="UTC", **{k[7:]: v for k, v in os.environ.items() if k.startswith("BT_ENV_")})
TOOL_ENV = dict(os.environ, TZ="UTC")


def babeltrace(trace, *args, params=None):
    """babeltrace2 TRACE ARGS... -c sink.orvane.text [-p PARAMS]."""
    command = [os.environ["BABELTRACE2"], "--plugin-path=" + os.environ["PLUGIN_DIR"], str(trace),
               *args, "-c", "sink.orvane.text", *(["-p", params] if params else [])]
    return subprocess.run(command, capture_output=True, env=BT_ENV, timeout=120)


def ovfmt(*args):
    return subprocess.run([os.environ["OVFMT"], *args], capture_output=True, env=TOOL_ENV,
                          timeout=120)


def ovfmt_text(type_id, data):
    result = ovfmt(type_id, data.hex())
    assert result.returncode == 0, result.stderr
    return result.stdout.decode().rstrip("\n")


def json_lines(stdout):
    lines = [json.loads(line) for line in stdout.decode().splitlines()]
    assert lines[0] == {"type": "schema", "name": "orvane-trace", "version": 1}, lines[0]
    return lines[1:]


def typed_fields(fields):
    """(shown name, id, bytes) of each typed field among `fields` (name -> value)."""
    for name, value in fields.items():
        if "__" in name and isinstance(value, bytes):
            shown, type_id = name.rsplit("__", 1)
            yield shown, type_id, value


class TraceReaderTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        make_trace.main(WORK)

    def test_json_typed_fields_are_ovfmts_text_or_invalid_with_their_bytes(self):
        result = babeltrace(WORK / "good", params='format="json"')
        self.assertEqual(result.returncode, 0, result.stderr)
        events = [e for e in json_lines(result.stdout) if e["type"] == "event"]
        self.assertEqual([e["name"] for e in events], [name for name, _ in make_trace.VALUES])
        checked = 0
        for event, (_, fields) in zip(events, make_trace.VALUES):
            payload = event["payload"]
            self.assertEqual(payload["seq"], fields["seq"])
            for shown, type_id, data in typed_fields(fields):
                self.assertNotIn("_%s__%s_length" % (shown, type_id), payload)
                self.assertNotIn("%s__%s_length" % (shown, type_id), payload)
                expected = ovfmt(type_id, data.hex())
                # Bytes after the value fail ovfmt's record but not the field's text.
                decoded = expected.returncode == 0 or b"after the value not consumed" in expected.stderr
                if decoded and data:
                    self.assertEqual(payload[shown], expected.stdout.decode().rstrip("\n"))
                else:
                    self.assertEqual(payload[shown]["id"], type_id)
                    self.assertEqual(payload[shown]["hex"], data.hex())
                    self.assertTrue(payload[shown]["invalid"])
                checked += 1
        self.assertEqual(checked, 13)
        self.assertEqual(events[1]["payload"]["blob"]["invalid"], 'unknown id "NOPE"')
        self.assertEqual(events[1]["payload"]["raw"], [1, 2])  # no id: an ordinary array
        self.assertEqual(events[4]["payload"]["text"], make_trace.VALUES[4][1]["text"].decode("latin-1")
                         .replace("\xc2\x9b", "\x9b"))

    def test_text_shows_each_typed_field_as_its_text_and_escapes_control_characters(self):
        result = babeltrace(WORK / "good")
        self.assertEqual(result.returncode, 0, result.stderr)
        # Bytes that are not UTF-8 pass the text rule as they are (0xff below).
        lines = result.stdout.decode("utf-8", "surrogateescape").splitlines()
        self.assertEqual(len(lines), len(make_trace.VALUES))
        self.assertFalse([c for c in result.stdout if (c < 0x20 and c != ord("\n")) or c == 0x7f])
        self.assertIsNone(re.search(rb"\xc2[\x80-\x9f]", result.stdout))  # no C1 control
        peer_up, route = lines[0], lines[1]
        self.assertTrue(peer_up.startswith("[22:13:21.000000000] (+?.?????????) router1 bgp:peer_up: "
                                           "{ cpu_id = 0, vtid = 100 }, { seq = 1, peer = \"pe1\", addr = "))
        for shown, type_id, data in typed_fields(make_trace.VALUES[1][1]):
            if type_id != "NOPE":
                self.assertIn("%s = %s," % (shown, ovfmt_text(type_id, data)), route)
        self.assertIn('blob = <invalid: unknown id "NOPE" [03]>', route)
        self.assertIn("nexthop = <invalid: value too short: 10 bytes given, BNH needs 16 "
                      "[01 02 00 00 00 03 01 00 00 0a]>", lines[2])
        self.assertIn("prefix = <invalid: invalid encoding: the length function of PGO returned "
                      "0xFFFFFFFF [07]>", lines[2])
        self.assertIn("nexthop = <invalid: empty value: the writer recorded no bytes []>", lines[3])
        self.assertIn(rb'text = "tab\x09here\x0aline\x1b[31mred\xc2\x9b' + b'\xff' + rb'\"q\\"',
                      result.stdout.splitlines()[4])

    def test_ovfmt_prints_the_same_bytes_as_babeltrace2(self):
        # The same request, given as ovfmt's options and as the sink's parameters: one
        # trace, a lossy one, damaged ones, and the directory that holds them all.
        cases = [("good", [], None), ("good", ["--json"], 'format="json"'),
                 ("good", ["--begin", "22:13:21.000001", "--end", "1700000001000003000",
                           "--events", "bgp:*"],
                  'begin="22:13:21.000001",end=1700000001000003000,events="bgp:*"'),
                 ("discarded", ["--json"], 'format="json"'), ("corrupt", [], None),
                 ("overrun", [], None)]
        for trace, ovfmt_args, params in cases:
            with self.subTest(trace=trace, args=ovfmt_args):
                ours = ovfmt("--trace", str(WORK / trace), *ovfmt_args)
                theirs = babeltrace(WORK / trace, params=params)
                self.assertEqual(ours.stdout, theirs.stdout)
                self.assertTrue(ours.stdout)
                # The traces hold invalid values on purpose: a failed record, 1.
                self.assertEqual(ours.returncode, 1, ours.stderr)
        # All of them at once: babeltrace2's graph dies when the stream stopped part-way
        # is read beside others (the lines it printed are written); ovfmt reads every
        # stream as far as it reads each alone.
        traces = ["good", "discarded", "corrupt", "overrun"]
        shutil.rmtree(WORK / "all", ignore_errors=True)
        for trace in traces:
            shutil.copytree(WORK / trace, WORK / "all" / trace)
        ours, theirs = ovfmt("--trace", str(WORK / "all")), babeltrace(WORK / "all")
        self.assertEqual((ours.returncode, theirs.returncode), (1, -signal.SIGABRT))
        self.assertTrue(ours.stdout.startswith(theirs.stdout))
        alone = [ovfmt("--trace", str(WORK / trace)).stdout.count(b"\n") for trace in traces]
        self.assertEqual(ours.stdout.count(b"\n"), sum(alone))

    def test_discarded_events_and_packets_are_reported(self):
        text = babeltrace(WORK / "discarded")
        self.assertEqual(text.returncode, 0, text.stderr)
        self.assertIn(b"orvane: warning: 7 events discarded between [22:13:22.000001000] and "
                      b"[22:13:23.000002000] in stream 0 of trace \"router1\"\n", text.stderr)
        self.assertIn(b"orvane: warning: 1 packet discarded", text.stderr)
        self.assertEqual(len(text.stdout.splitlines()), len(make_trace.VALUES))
        lines = json_lines(babeltrace(WORK / "discarded", params='format="json"').stdout)
        self.assertEqual([line["type"] for line in lines],
                         ["event"] * 2 + ["discarded_events", "discarded_packets"] + ["event"] * 3)
        self.assertEqual(lines[2]["count"], 7)
        self.assertEqual(lines[3]["count"], 1)

    def test_a_corrupt_data_file_fails_after_printing_the_events_before_it(self):
        result = babeltrace(WORK / "corrupt")
        self.assertEqual(result.returncode, 1)  # an error, not a signal
        self.assertEqual(len(result.stdout.splitlines()), len(make_trace.VALUES))
        self.assertIn(b"No event class with ID", result.stderr)

    def test_the_types_parameter_types_fields_whose_names_carry_no_id(self):
        result = babeltrace(WORK / "good", params='format="json",types=["bgp:route.raw=PGO","*.peer=BPK"]')
        self.assertEqual(result.returncode, 0, result.stderr)
        events = [e for e in json_lines(result.stdout) if e["type"] == "event"]
        self.assertEqual(events[3]["payload"]["raw"], "10.1.16.0/20")
        self.assertNotIn("raw_length", events[3]["payload"])
        self.assertEqual(events[1]["payload"]["raw"]["invalid"], "value too short: 2 bytes given, PGO needs 3")
        self.assertEqual(events[0]["payload"]["peer"], "pe1")  # a string, not a byte array

    def test_usage_errors(self):
        # ovfmt's own usage errors are pinned by the C++ tests; here, what needs a plug-in
        # load or babeltrace2's command line.
        result = ovfmt("--trace", str(WORK / "good"), "--plugin", str(WORK / "good"))
        self.assertEqual(result.returncode, 2)
        self.assertIn(b"cannot load plug-in", result.stderr)
        for params, message in [('format="xml"', b'format is "text" or "json", not "xml"'),
                                ('fromat="json"', b'unknown parameter "fromat"')]:
            bad = babeltrace(WORK / "good", params=params)
            self.assertNotEqual(bad.returncode, 0)
            self.assertIn(message, bad.stderr)


if __name__ == "__main__":
    unittest.main()
