"""Reads a trace with plain babeltrace2 (its text output) and checks or lists the byte
sequences of its events.

  check_trace.py typed OVFMT TRACE [MIN_IDS]
      Every typed field (NAME__ID) must follow its length field with as many bytes as
      that says, and hold a value whose length, by `ovfmt --counts`, is exactly its
      byte count. Prints "EVENT FIELD HEX" per typed field, in trace order; fails on a
      fault, on no typed field, or on fewer than MIN_IDS distinct ids.
  check_trace.py lengths TRACE
      Prints "EVENT FIELD LENGTH" per sequence field, in trace order."""

import re
import subprocess
import sys

EVENT = re.compile(r" (\w+:\w+): \{")
SEQUENCE = re.compile(r"\b(\w+) = \[ ((?:\[\d+\] = \d+(?:, )?)*) ?\]")
LENGTH = re.compile(r"\b_(\w+)_length = (\d+)")


def sequences(trace):
    """(event, field, bytes, length field's value or None) per sequence field."""
    text = subprocess.run(["babeltrace2", trace], check=True, capture_output=True, text=True).stdout
    for line in text.splitlines():
        event = EVENT.search(line)
        if not event:
            continue
        lengths = {name: int(value) for name, value in LENGTH.findall(line)}
        for name, elements in SEQUENCE.findall(line):
            data = bytes(int(element) for element in re.findall(r"= (\d+)", elements))
            yield event.group(1), name, data, lengths.get(name)


def typed(ovfmt, trace, min_ids=1):
    fields = [(event, name, data, length) for event, name, data, length in sequences(trace)
              if "__" in name]
    faults = [f"{event} {name}: length field {length}, {len(data)} bytes"
              for event, name, data, length in fields if length != len(data)]
    faults += [f"{event} {name}: empty" for event, name, data, _ in fields if not data]
    lines = "".join(f"{name.rsplit('__', 1)[1]} {data.hex(' ')}\n" for _, name, data, _ in fields if data)
    counts = subprocess.run([ovfmt, "--counts", "--batch", "-"], input=lines, capture_output=True,
                            text=True).stdout.splitlines()
    valued = [field for field in fields if field[2]]
    for (event, name, data, _), count in zip(valued, counts):
        id_, length, consumed = count.split("\t")[:3]
        if (int(length), int(consumed)) != (len(data), len(data)):
            faults.append(f"{event} {name}: {len(data)} bytes, {id_} measures {length}, formats {consumed}")
    if len(counts) != len(valued):
        faults.append(f"ovfmt printed {len(counts)} lines for {len(valued)} values")
    ids = {name.rsplit("__", 1)[1] for _, name, _, _ in fields}
    if not fields or len(ids) < min_ids:
        faults.append(f"{len(fields)} typed fields, {len(ids)} ids: {sorted(ids)}")
    for event, name, data, _ in fields:
        print(event, name, data.hex())
    for fault in faults:
        print("fault:", fault, file=sys.stderr)
    return 1 if faults else 0


def lengths(trace):
    for event, name, data, _ in sequences(trace):
        print(event, name, len(data))
    return 0


if __name__ == "__main__":
    command, args = sys.argv[1], sys.argv[2:]
    if command == "typed":
        sys.exit(typed(args[0], args[1], int(args[2]) if len(args) > 2 else 1))
    sys.exit(lengths(*args))
