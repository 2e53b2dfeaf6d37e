"""The events of CTF traces, their typed fields decoded by the Orvane formatters.

A typed field is an array or sequence of unsigned 8-bit integers named NAME__ID, ID a
registered type id (docs/traces.md): it appears under NAME as the text the id's
formatter prints, exactly as ovfmt and the babeltrace2 sink print it. Integers appear as
int, strings as str. Reading and decoding run in C++ (libbabeltrace2 and the plug-in),
a batch of events at a time, so Python sees finished values only.

    >>> import orvane.trace
    >>> events = list(orvane.trace.events(trace_dir))  # the example speaker, seed 1
    >>> first = events[0]
    >>> first.name, first.fields["peer"], first.raw["peer"].hex()
    ('orvane_speaker:peer_up', '10.0.0.1%et1', '05010100000a03657431')
    >>> sum(event.timestamp_ns >= first.timestamp_ns for event in events) == len(events)
    True

A typed field whose bytes do not hold a value (fewer bytes than its length function
says, an invalid length, an unknown id, or a value the writer left empty) raises
nothing: its value is an InvalidValue, which says why and holds the bytes.
"""

import os

from orvane import _core

__all__ = ["Event", "InvalidValue", "events"]


class InvalidValue:
    """A typed field that holds no value of its id: reason says why, data holds the
    field's bytes. Its str() is the marker the text sink prints, but for the escaping of
control characters, which is the display's business."""

    __slots__ = ("id", "reason", "data")

    def __init__(self, id, reason, data):
        self.id, self.reason, self.data = id, reason, bytes(data)

    def __eq__(self, other):
        return (isinstance(other, InvalidValue)
                and (self.id, self.reason, self.data) == (other.id, other.reason, other.data))

    def __hash__(self):
        return hash((self.id, self.reason, self.data))

    def __repr__(self):
        return f"InvalidValue({self.id!r}, {self.reason!r}, {self.data!r})"

    def __str__(self):
        return f"<invalid: {self.reason} [{self.data.hex(' ')}]>"

    def __reduce__(self):  # sent between Dask's worker processes
        return InvalidValue, (self.id, self.reason, self.data)


class Event:
    """One event: name ("provider:event"), timestamp_ns (nanoseconds from the clock's
    origin), fields (a dict by field name, the event's context fields first, then its
    payload) and raw (the bytes of each typed field, by the same name)."""

    __slots__ = ("name", "timestamp_ns", "fields", "raw")

    def __init__(self, name, timestamp_ns, fields, raw):
        self.name, self.timestamp_ns, self.fields, self.raw = name, timestamp_ns, fields, raw

    def __repr__(self):
        return f"Event({self.name!r}, {self.timestamp_ns}, {self.fields!r})"


def events(path, *, begin=None, end=None, types=()):
    """Iterates the events of the CTF trace at path (a trace directory, or a directory
    of traces, merged in time order). begin and end keep the events between them: each
    an int of nanoseconds from the clock's origin, or a str as babeltrace2's --begin
    and --end take it. types gives ids to fields whose names carry none, as
    "EVENT.FIELD=ID" strings. Raises ValueError for a path that holds no trace or a
    trace that cannot be read on (the events before it are given)."""
    if not hasattr(_core, "TraceReader"):
        raise ImportError("orvane.trace needs the module built with libbabeltrace2 "
                          "(the Debian package libbabeltrace2-dev)")
    reader = _core.TraceReader(os.fspath(path), _bound(begin), _bound(end), InvalidValue,
                               list(types))
    for batch in reader:
        for name, timestamp_ns, fields, raw in batch:
            yield Event(name, timestamp_ns, fields, raw)


def _bound(time):
    """A time bound as the trimmer takes it: nanoseconds become "SECONDS.NANOSECONDS"."""
    if time is None or isinstance(time, str):
        return time
    sign, ns = ("-" if time < 0 else ""), abs(int(time))
    return f"{sign}{ns // 1_000_000_000}.{ns % 1_000_000_000:09d}"
