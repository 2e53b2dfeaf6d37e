"""orvane.trace and orvane.dask: traces written byte by byte (every kind of invalid value),
and a fleet of four traces of the example speaker recorded through LTTng-UST, checked
against babeltrace2's own Python reading and the formatters' texts."""

import doctest
import os
import subprocess
import sys
import unittest
from pathlib import Path

import bt2
import orvane
import orvane.dask
import orvane.trace
from orvane.trace import InvalidValue

TESTS = Path(__file__).resolve().parents[1]
sys.path.insert(0, str(TESTS / "tracing"))
sys.path.insert(0, str(TESTS.parent / "examples"))
import fleet_report  # noqa: E402
import make_trace  # noqa: E402

WORK = Path(os.environ["WORK_DIR"])
ROUTERS = ["r1", "r2", "r3", "r4"]


def setUpModule():
    subprocess.run(["rm", "-rf", str(WORK)], check=True)
    make_trace.main(WORK / "written")
    # Recorded without the sanitizer runtime this interpreter may have preloaded.
    env = {k: v for k, v in os.environ.items() if k != "LD_PRELOAD"}
    for seed, router in enumerate(ROUTERS, 1):
        subprocess.run([os.environ["TRACE_RECORD"], WORK / "fleet" / router, os.environ["SPEAKER"],
                        "--events", "60", "--seed", str(seed), "--router", router],
                       check=True, capture_output=True, env=env)


def bt2_payloads(path):
    """(event name, {member name: value}) of every event, as babeltrace2's Python reads it."""
    out = []
    for message in bt2.TraceCollectionMessageIterator(str(path)):
        if type(message) is bt2._EventMessageConst:
            payload = message.event.payload_field
            out.append((message.event.name, {name: payload[name] for name in payload}))
    return out


class RecordedTrace(unittest.TestCase):
    def test_every_typed_field_is_its_formatters_text(self):
        path = WORK / "fleet" / "r1"
        events, expected = list(orvane.trace.events(path)), bt2_payloads(path)
        self.assertEqual([e.name for e in events], [name for name, _ in expected])
        typed = 0
        for event, (_, payload) in zip(events, expected):
            for member, value in payload.items():
                shown, _, type_id = member.rpartition("__")
                if member.endswith("_length"):  # the length of a sequence is not shown
                    self.assertNotIn(member.strip("_"), event.fields)
                    continue
                if not shown:
                    self.assertEqual(event.fields[member], value, member)
                    continue
                data = bytes(value)
                self.assertEqual(event.raw[shown], data)
                self.assertEqual(event.fields[shown], orvane.format(type_id, data))
                typed += 1
        self.assertGreater(typed, 100)
        stamps = [e.timestamp_ns for e in events]
        self.assertEqual(stamps, sorted(stamps))

    def test_begin_and_end_keep_the_events_between(self):
        path = WORK / "fleet" / "r2"
        stamps = [e.timestamp_ns for e in orvane.trace.events(path)]
        begin, end = stamps[10], stamps[30]
        for bounds in ({"begin": begin, "end": end}, {"begin": begin}, {"end": end}):
            kept = [e.timestamp_ns for e in orvane.trace.events(path, **bounds)]
            self.assertEqual(kept, [t for t in stamps
                                    if bounds.get("begin", t) <= t <= bounds.get("end", t)])


    def test_documented_examples(self):
        import dask
        with dask.config.set(scheduler="sync"):
            for module in (orvane.trace, orvane.dask):
                with self.subTest(module=module.__name__):
                    result = doctest.testmod(module, extraglobs={"trace_dir": WORK / "fleet/r1"})
                    self.assertEqual((result.failed, result.attempted > 0), (0, True))
            docs = doctest.testfile(str(TESTS.parent / "docs/traces.md"), module_relative=False,
                                    extraglobs={"trace_dir": WORK / "fleet/r1"})
            self.assertEqual((docs.failed, docs.attempted > 0), (0, True))


class WrittenTrace(unittest.TestCase):
    def test_invalid_values_say_why_and_keep_their_bytes(self):
        events = list(orvane.trace.events(WORK / "written" / "good"))
        self.assertEqual([e.fields["seq"] for e in events], [1, 2, 3, 4, 5])
        route = events[1]
        self.assertEqual(route.fields["prefix"], "10.1.16.0/20")
        self.assertEqual(route.fields["raw"], [1, 2])  # a byte array without an id
        cases = [  # (event, field, reason starts with, bytes)
            (1, "blob", 'unknown id "NOPE"', b"\x03"),
            (2, "prefix", "invalid encoding", b"\x07"),
            (2, "nexthop", "value too short: 10 bytes given, BNH needs 16", make_trace.BNH[:10]),
            (3, "nexthop", "empty value", b""),
        ]
        for index, field, reason, data in cases:
            value = events[index].fields[field]
            with self.subTest(field=field, seq=index + 1):
                self.assertIsInstance(value, InvalidValue)
                self.assertTrue(value.reason.startswith(reason), value.reason)
                self.assertEqual((value.data, events[index].raw[field]), (data, data))
                self.assertEqual(str(value), f"<invalid: {value.reason} [{data.hex(' ')}]>")
        self.assertEqual(events[3].fields["prefix"], "10.1.16.0/20")  # bytes after a value
        self.assertEqual(events[4].fields["text"], make_trace.VALUES[4][1]["text"].decode(
            "utf-8", "backslashreplace"))  # control characters as traced: escaping is display's

    def test_types_map_fields_without_an_id(self):
        events = orvane.trace.events(WORK / "written" / "good", types=["bgp:route.raw=PGO"])
        self.assertEqual([e.fields["raw"] for e in events if e.fields["seq"] == 4],
                         ["10.1.16.0/20"])

    def test_errors(self):
        for path, types, words in [(WORK / "nowhere", (), "no CTF trace"),
                                   (WORK / "written" / "good", ["route=PGO"], "EVENT.FIELD=ID")]:
            with self.subTest(path=path), self.assertRaisesRegex(ValueError, words):
                list(orvane.trace.events(path, types=types))
        read = []
        with self.assertRaises(ValueError):
            for event in orvane.trace.events(WORK / "written" / "corrupt"):
                read.append(event.fields["seq"])
        self.assertEqual(read[:5], [1, 2, 3, 4, 5])  # the events before the damage


class Fleet(unittest.TestCase):
    def test_two_workers_report_what_one_process_does(self):
        fleet = str(WORK / "fleet")
        together = fleet_report.main([fleet, "--field", "prefix", "--scheduler", "sync"])
        self.assertEqual(fleet_report.main([fleet, "--field", "prefix", "--workers", "2"]),
                         together)
        for router in ROUTERS:  # the counts are those of reading each trace alone
            names = [e.name for e in orvane.trace.events(WORK / "fleet" / router)]
            for name in set(names):
                self.assertIn(f"  {name}: {names.count(name)} events\n", together)
        self.assertIn("    prefix ", together)

    def test_one_partition_per_trace(self):
        paths = [WORK / "fleet" / router for router in ROUTERS]
        bag = orvane.dask.events(paths)
        self.assertEqual(bag.npartitions, 4)
        first = bag.take(1)[0]
        self.assertEqual((first["trace"], sorted(first)),
                         (str(paths[0]), ["event", "fields", "timestamp_ns", "trace"]))

    def test_without_dask_the_error_names_the_packages(self):
        code = "import sys; sys.modules['dask'] = None; import orvane.trace, orvane.dask"
        result = subprocess.run([sys.executable, "-c", code], capture_output=True, text=True)
        self.assertIn("ImportError: orvane.dask needs Dask: install the Debian packages "
                      "python3-dask", result.stderr)

if __name__ == "__main__":
    unittest.main()
