"""orvane.trace and orvane.dask: traces written byte by byte (invalid values, lost events,
damage made here from them), and a fleet of four traces of the example speaker recorded
through LTTng-UST, checked against babeltrace2's own Python reading and the formatters."""

import collections
import doctest
import os
import pickle
import shutil
import subprocess
import sys
import unittest
import warnings
from pathlib import Path
from unittest import mock

import bt2
import dask
import orvane
import orvane.dask
import orvane.trace
from orvane.trace import DiscardedEventsWarning, InvalidValue, TraceReadError

TESTS = Path(__file__).resolve().parents[1]
sys.path.insert(0, str(TESTS / "tracing"))
sys.path.insert(0, str(TESTS.parent / "examples"))
import ctf_writer  # noqa: E402
import fleet_report  # noqa: E402
import make_trace  # noqa: E402

WORK = Path(os.environ["WORK_DIR"])
ROUTERS = ["r1", "r2", "r3", "r4"]
WRITTEN = WORK / "written"
FIRST_NS = (ctf_writer.CLOCK_OFFSET_S + 1) * make_trace.SECOND  # the good trace's first event
SEQS = [1, 2, 3, 4, 5]


def setUpModule():
    subprocess.run(["rm", "-rf", str(WORK)], check=True)
    make_trace.main(WRITTEN)
    for trace in ("good", "discarded"):  # two traces under one directory
        shutil.copytree(WRITTEN / trace, WORK / "pair" / trace)
    # A trace whose data file is cut short: its source cannot be opened.
    shutil.copytree(WRITTEN / "discarded", WORK / "damaged" / "cut")
    stream = WORK / "damaged" / "cut" / "stream_0"
    stream.write_bytes(stream.read_bytes()[:-40])
    # Recorded without the sanitizer runtime this interpreter may have preloaded.
    env = {k: v for k, v in os.environ.items() if k != "LD_PRELOAD"}
    for seed, router in enumerate(ROUTERS, 1):
        subprocess.run([os.environ["TRACE_RECORD"], WORK / "fleet" / router, os.environ["SPEAKER"],
                        "--events", "60", "--seed", str(seed), "--router", router],
                       check=True, capture_output=True, env=env)


class RecordedTrace(unittest.TestCase):
    def test_every_typed_field_is_its_formatters_text(self):
        path = WORK / "fleet" / "r1"
        events = list(orvane.trace.events(path))
        expected = [(m.event.name, dict(m.event.payload_field))  # as babeltrace2's Python reads
                    for m in bt2.TraceCollectionMessageIterator(str(path))
                    if type(m) is bt2._EventMessageConst]
        self.assertEqual([e.name for e in events], [name for name, _ in expected])
        typed = 0
        for event, (_, payload) in zip(events, expected):
            for member, value in payload.items():
                shown, _, type_id = member.rpartition("__")
                if member.endswith("_length"):  # the length of a sequence is not shown
                    self.assertNotIn(member.strip("_"), event.fields)
                elif not shown:
                    self.assertEqual(event.fields[member], value, member)
                else:
                    typed += 1
                    self.assertEqual(event.raw[shown], bytes(value))
                    self.assertEqual(event.fields[shown], orvane.format(type_id, bytes(value)))
        self.assertGreater(typed, 100)

    def test_documented_examples(self):
        names = {"trace_dir": WORK / "fleet/r1"}
        with dask.config.set(scheduler="sync"):
            results = [doctest.testmod(module, extraglobs=names)
                       for module in (orvane.trace, orvane.dask)]
            results.append(doctest.testfile(str(TESTS.parent / "docs/traces.md"),
                                            module_relative=False, extraglobs=names))
        self.assertEqual([(r.failed, r.attempted > 0) for r in results], [(0, True)] * 3)


class WrittenTrace(unittest.TestCase):
    def test_invalid_values_say_why_and_keep_their_bytes(self):
        events = list(orvane.trace.events(WRITTEN / "good"))
        self.assertEqual(events[1].fields["prefix"], "10.1.16.0/20")
        self.assertEqual(events[1].fields["raw"], [1, 2])  # a byte array without an id
        cases = [  # (event, field, reason starts with, bytes)
            (1, "blob", 'unknown id "NOPE"', b"\x03"),
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

    def test_events_and_bounds_keep_what_they_name(self):
        at = lambda seq: FIRST_NS + (seq - 1) * 1000  # noqa: E731 (events 1 µs apart)
        cases = [  # (keywords, the seqs kept)
            ({"events": "bgp:route"}, [2, 3, 4]),
            ({"events": ["app:*", "bgp:peer_?p"]}, [1, 5]),
            ({"begin": at(2), "end": at(4)}, [2, 3, 4]),
            ({"begin": "1700000001.000001", "end": str(at(4))}, [2, 3, 4]),
            ({"end": at(3), "events": ["bgp:*"]}, [1, 2, 3]),
        ]
        for keywords, seqs in cases:
            with self.subTest(**keywords):
                events = orvane.trace.events(WRITTEN / "good", **keywords)
                self.assertEqual([e.fields["seq"] for e in events], seqs)

    def test_a_value_it_cannot_read_is_refused_at_once_in_one_line(self):
        good = WRITTEN / "good"
        cases = [  # (paths, keywords, error, start of its message)
            (good, {"begin": "soon"}, ValueError, 'cannot read the time "soon": give'),
            (good, {"end": 2**63}, ValueError, 'the time "9223372036854775808" is out of range'),
            (good, {"begin": 5, "end": 4}, ValueError, "the range's begin is after its end"),
            (good, {"begin": 1.5}, TypeError, "begin takes an int of nanoseconds or a str"),
            (good, {"events": [b"bgp:*"]}, TypeError, "events takes a str or an iterable"),
            ([], {}, ValueError, "no trace to read: paths is empty"),
            (WORK / "nowhere", {}, ValueError, "no CTF trace (a directory with a metadata"),
        ]
        for paths, keywords, error, message in cases:
            with self.subTest(paths=paths, **keywords):
                with self.assertRaises(error) as caught:
                    orvane.trace.events(paths, **keywords)  # no event asked for yet
                self.assertTrue(str(caught.exception).startswith(message), caught.exception)
                self.assertNotIn("\n", str(caught.exception))

    def test_each_event_carries_its_trace_and_lost_events_are_warned_of_once(self):
        warning = ('7 events discarded between timestamp_ns 1700000002000001000 and '
                   '1700000003000002000 in stream 0 of trace "{}"')
        cases = [  # (paths, events per trace, discarded events and packets per trace)
            (WRITTEN / "good", {"router1": 5}, {}),
            (WORK / "pair", {"router1/good": 5, "router1/discarded": 5},
             {"router1/discarded": (7, 1)}),
            ([WRITTEN / "good", str(WRITTEN / "discarded")], {"router1": 10}, {"router1": (7, 1)}),
        ]
        for paths, per_trace, discarded in cases:
            with self.subTest(paths=paths), warnings.catch_warnings(record=True) as caught:
                warnings.simplefilter("always")
                events = orvane.trace.events(paths)
                read = [(e.trace, e.timestamp_ns) for e in events]
                self.assertEqual(collections.Counter(trace for trace, _ in read), per_trace)
                self.assertEqual(read, sorted(read, key=lambda e: e[1]))  # merged in time order
                self.assertEqual(events.discarded_by_trace, discarded)
                # Once, naming the trace (one at most loses events here), and pointing at the
                # loop that reads, not into orvane.
                self.assertEqual([(str(w.message), w.filename) for w in caught
                                  if w.category is DiscardedEventsWarning],
                                 [(warning.format(*discarded), __file__)] if discarded else [])

    def test_lost_events_are_counted_where_they_were_lost(self):
        events = orvane.trace.events(WRITTEN / "discarded")
        with warnings.catch_warnings():
            warnings.simplefilter("ignore", DiscardedEventsWarning)
            seen = [(events.discarded_events, events.discarded_packets) for _ in events]
        self.assertEqual(seen, [(0, 0)] * 2 + [(7, 1)] * 3)  # as each of the five events comes

    def test_damage_comes_after_the_events_read_before_it(self):
        corrupt, cut = WRITTEN / "corrupt", WORK / "damaged" / "cut"
        cases = [  # (paths, seqs read, the start of the one problem)
            (corrupt, SEQS, f"cannot read {corrupt / 'stream_0'} to its end"),
            ([WRITTEN / "good", WORK / "damaged"], SEQS, f"cannot read the trace {cut} to its end"),
            (cut, [], f"cannot read the trace {cut} to its end"),
        ]
        for paths, seqs, problem in cases:
            read = []
            with self.subTest(paths=paths):
                with self.assertRaises(TraceReadError) as caught:
                    for event in orvane.trace.events(paths):
                        read.append(event.fields["seq"])
                self.assertEqual(read, seqs)
                error = caught.exception  # one problem
                self.assertEqual([p[:len(problem)] for p in error.problems], [problem])
                self.assertEqual((str(error), isinstance(error, ValueError)),
                                 (error.problems[0], True))
                sent = pickle.loads(pickle.dumps(error))  # as Dask sends it between processes
                self.assertEqual((type(sent), sent.problems), (TraceReadError, error.problems))


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

    def test_one_partition_per_trace_and_discarded_from_the_same_reading(self):
        paths = [WRITTEN / "good", WRITTEN / "discarded"]
        keywords = {"events": "bgp:route", "types": ["bgp:route.raw=PGO"]}
        read, reading = [], orvane.dask._read_trace
        def counted(path, *arguments):  # a plain function: Dask takes a Mock for a collection
            read.append(path)
            return reading(path, *arguments)
        with mock.patch.object(orvane.dask, "_read_trace", counted), \
                dask.config.set(scheduler="sync"):
            bag = orvane.dask.events(paths, **keywords)
            self.assertEqual(bag.npartitions, 2)
            raws, lost = dask.compute(bag.pluck("fields").pluck("raw").frequencies(),
                                      orvane.dask.discarded(paths, **keywords))
        self.assertEqual(sorted(read), sorted(map(str, paths)))  # each read once for both
        self.assertEqual(dict(raws)["10.1.16.0/20"], 2)  # the keywords reached the reader
        self.assertEqual(lost, [{"trace": str(paths[0]), "events": 0, "packets": 0},
                                {"trace": str(paths[1]), "events": 7, "packets": 1}])
        first = bag.take(1)[0]
        self.assertEqual((first["trace"], sorted(first)),
                         (str(paths[0]), ["event", "fields", "timestamp_ns", "trace"]))

    def test_the_report_names_the_routers_that_lost_events(self):
        report = fleet_report.main([str(WORK / "pair"), "--field", "seq", "--scheduler", "sync"])
        self.assertIn("discarded\n  lost by the tracer: 7 events, 1 packet\n  app:message:", report)
        self.assertEqual(report.count("lost by the tracer"), 1)

    def test_without_dask_the_error_names_the_packages(self):
        code = "import sys; sys.modules['dask'] = None; import orvane.trace, orvane.dask"
        result = subprocess.run([sys.executable, "-c", code], capture_output=True, text=True)
        self.assertIn("ImportError: orvane.dask needs Dask: install the Debian packages "
                      "python3-dask", result.stderr)

if __name__ == "__main__":
    unittest.main()
