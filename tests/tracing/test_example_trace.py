"""End to end: the example BGP speaker traced through LTTng-UST (scripts/trace-record),
read back through the orvane plug-in in text and JSON and through ovfmt --trace. Every
typed field must be ovfmt's text for the bytes babeltrace2's Python bindings read from
the same trace.

Run by the Python that python3-bt2 belongs to. Environment: TRACE_RECORD, SPEAKER,
BABELTRACE2, PLUGIN_DIR, OVFMT, WORK_DIR; BT_ENV_* entries are set for babeltrace2
alone."""

import json
import os
import shutil
import subprocess
import unittest
from pathlib import Path

import bt2

WORK = Path(os.environ["WORK_DIR"])
TRACE = WORK / "speaker"
BT_ENV = dict(os.environ, **{k[7:]: v for k, v in os.environ.items() if k.startswith("BT_ENV_")})


def run(command, env=None):
    return subprocess.run(command, capture_output=True, env=env or os.environ, timeout=300)


def babeltrace(*params):
    return run([os.environ["BABELTRACE2"], "--plugin-path=" + os.environ["PLUGIN_DIR"], str(TRACE),
                "-c", "sink.orvane.text", *params], BT_ENV)


def raw_typed_fields():
    """[(event name, shown name, id, bytes)] for every typed field, in trace order."""
    fields = []
    for message in bt2.TraceCollectionMessageIterator(str(TRACE)):
        if type(message) is not bt2._EventMessageConst:
            continue
        for name, field in message.event.payload_field.items():
            if "__" in name and isinstance(field, bt2._ArrayFieldConst):
                shown, type_id = name.rsplit("__", 1)
                fields.append((message.event.name, shown, type_id, bytes(int(b) for b in field)))
    return fields


def ovfmt_texts(fields):
    batch = "".join("%s %s\n" % (type_id, data.hex()) for _, _, type_id, data in fields)
    result = subprocess.run([os.environ["OVFMT"], "--batch", "-"], input=batch.encode(),
                            capture_output=True, timeout=300)
    assert result.returncode == 0, result.stderr
    return result.stdout.decode().splitlines()


class ExampleTraceTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        shutil.rmtree(TRACE, ignore_errors=True)
        recorded = run([os.environ["TRACE_RECORD"], str(TRACE), os.environ["SPEAKER"]])
        assert recorded.returncode == 0, recorded.stderr
        cls.fields = raw_typed_fields()
        cls.texts = ovfmt_texts(cls.fields)

    def test_the_example_traces_many_ids(self):
        self.assertGreaterEqual(len({type_id for _, _, type_id, _ in self.fields}), 10)

    def test_json_holds_ovfmts_text_for_every_typed_field(self):
        result = babeltrace("-p", 'format="json"')
        self.assertEqual(result.returncode, 0, result.stderr)
        lines = [json.loads(line) for line in result.stdout.decode().splitlines()]
        typed_names = {(event, name) for event, name, _, _ in self.fields}
        shown = [(event["name"], name, value) for event in lines if event["type"] == "event"
                 for name, value in event["payload"].items() if (event["name"], name) in typed_names]
        expected = [(event, name, text) for (event, name, _, _), text in zip(self.fields, self.texts)]
        self.assertEqual(shown, expected)
        for event in lines[1:]:
            self.assertFalse([n for n in event["payload"] if n.endswith("_length")], event)

    def test_text_lines_hold_the_same_texts_in_order(self):
        result = babeltrace()
        self.assertEqual(result.returncode, 0, result.stderr)
        out = result.stdout.decode()
        position = 0
        for (_, name, _, _), text in zip(self.fields, self.texts):
            position = out.index("%s = %s" % (name, text), position)

    def test_ovfmt_trace_prints_the_same_bytes(self):
        for ovfmt_args, params in (([], []), (["--json"], ["-p", 'format="json"'])):
            ours = run([os.environ["OVFMT"], "--trace", str(TRACE), *ovfmt_args])
            self.assertEqual(ours.returncode, 0, ours.stderr)
            self.assertEqual(ours.stdout, babeltrace(*params).stdout)


if __name__ == "__main__":
    unittest.main()
