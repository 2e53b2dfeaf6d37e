"""The events of CTF traces, their typed fields decoded by the Orvane formatters.

A typed field is an array or sequence of unsigned 8-bit integers named NAME__ID, ID a
registered type id (/usr/share/doc/orvane/traces.md): it appears under NAME as the text
the id's formatter prints, exactly as ovfmt and the babeltrace2 sink print it. Integers appear as
int, strings as str. Reading and decoding run in C++ (libbabeltrace2 and the plug-in),
a batch of events at a time, so Python sees finished values only. The traces, the time
range and the events kept are read as the sink's parameters of the same names are.

    >>> import orvane.trace
    >>> stream = orvane.trace.events(trace_dir)  # the example speaker, seed 1
    >>> events = list(stream)
    >>> first = events[0]
    >>> first.name, first.fields["peer"], first.raw["peer"].hex()
    ('orvane_speaker:peer_up', '10.0.0.1%et1', '05010100000a03657431')
    >>> sum(event.timestamp_ns >= first.timestamp_ns for event in events) == len(events)
    True
    >>> stream.discarded_events, stream.discarded_packets  # the tracer lost nothing
    (0, 0)
    >>> ups = orvane.trace.events(trace_dir, events="*:peer_*", end=first.timestamp_ns)
    >>> [event.name for event in ups]
    ['orvane_speaker:peer_up']

A typed field whose bytes do not hold a value (fewer bytes than its length function
says, an invalid length, an unknown id, or a value the writer left empty) raises
nothing: its value is an InvalidValue, which says why and holds the bytes. Events the
tracer lost are counted by the iterator and warned of once (DiscardedEventsWarning); a
trace that cannot be read to its end raises TraceReadError after the events before the
damage.
"""

import os
import warnings

from orvane import _core

__all__ = ["DiscardedEventsWarning", "Event", "InvalidValue", "TraceEvents", "TraceReadError",
           "events"]


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
    payload), raw (the bytes of each typed field, by the same name) and trace (the name
    of its trace: the trace's hostname, then "/" and the path of its directory below
    the path given, when that is not the trace itself)."""

    __slots__ = ("name", "timestamp_ns", "fields", "raw", "trace")

    def __init__(self, name, timestamp_ns, fields, raw, trace=None):
        self.name, self.timestamp_ns, self.fields, self.raw = name, timestamp_ns, fields, raw
        self.trace = trace

    def __repr__(self):
        return f"Event({self.name!r}, {self.timestamp_ns}, {self.fields!r}, trace={self.trace!r})"


class DiscardedEventsWarning(UserWarning):
    """The tracer lost events or packets of a trace being read (its buffers were full):
    the events read have gaps. Warned once per iterator, at the first record of a loss;
    the iterator's discarded_events and discarded_packets count every one."""


class TraceReadError(ValueError):
    """A trace, or a part of one, could not be read to its end: raised once the events
    read before it have been given. problems holds what went wrong, one line each; the
    message is those lines joined by "; "."""

    def __init__(self, problems):
        self.problems = tuple(problems)
        super().__init__("; ".join(self.problems))

    def __reduce__(self):  # sent between Dask's worker processes
        return TraceReadError, (self.problems,)


class TraceEvents:
    """The iterator of Event objects events() returns. discarded_events and
    discarded_packets are the events and packets the tracer reported lost in the records
    passed so far (all of them once the iterator is exhausted), and discarded_by_trace
    the same pair by trace name."""

    __slots__ = ("_losses", "_next")

    def __init__(self, reader, warn=True):
        """Iterates reader, a _core.TraceReader; events() makes it. warn=False leaves the
        warning out (a reader whose caller reports the counts itself)."""
        # The generator holds the reader and the counts, not self: an iterator dropped
        # part-way frees its reader (and the trace's files) at once, with no cycle to
        # wait for.
        self._losses = _Losses(warn)
        self._next = _read(reader, self._losses).__next__

    def __iter__(self):
        return self

    def __next__(self):
        return self._next()

    @property
    def discarded_events(self):
        """The events the tracer reported lost, in the records passed so far."""
        return self._losses.events

    @property
    def discarded_packets(self):
        """The packets the tracer reported lost, in the records passed so far."""
        return self._losses.packets

    @property
    def discarded_by_trace(self):
        """(events, packets) lost by trace name, for the traces that lost any so far."""
        return dict(self._losses.by_trace)


class _Losses:
    """What the discarded records passed so far count, and whether to warn of the next."""

    __slots__ = ("events", "packets", "by_trace", "warn")

    def __init__(self, warn):
        self.events = self.packets = 0
        self.by_trace = {}
        self.warn = warn

    def count(self, trace, events, packets, message):
        """Takes in one discarded record: its trace's totals so far and what it says."""
        self.by_trace[trace] = (events, packets)
        self.events = sum(e for e, _ in self.by_trace.values())
        self.packets = sum(p for _, p in self.by_trace.values())
        if self.warn:
            self.warn = False
            # stacklevel: past this method, the generator and __next__, to the caller.
            warnings.warn(message, DiscardedEventsWarning, stacklevel=4)


def _read(reader, losses):
    """The events of reader's batches, each discarded record counted where it comes,
    then TraceReadError if anything could not be read."""
    for batch, discarded in reader:
        for item in batch:
            yield Event(*item)
        if discarded is not None:
            losses.count(*discarded)
    problems = reader.problems()
    if problems:
        raise TraceReadError(problems)


def events(paths, *, begin=None, end=None, types=(), events=None):
    """Iterates the events of the CTF traces at paths, merged in time order: one path
    (str or os.PathLike) or an iterable of them, each a trace directory, a directory of
    traces, or an LTTng live URL (net://HOST/host/NAME/SESSION). begin and end keep the
    events between them: an int of nanoseconds from the clock's origin, or a str as
    babeltrace2's --begin and --end take it. events keeps the events whose name matches
    a glob: "GLOB[,GLOB]" or an iterable of globs. types gives ids to fields whose names
    carry none, as "EVENT.FIELD=ID" strings.

    Returns a TraceEvents iterator, which counts the events the tracer lost and warns of
    them once (DiscardedEventsWarning). Raises ValueError at once for a value it cannot
    read, or paths that hold no trace; TraceReadError (a ValueError) after the last
    event read when a trace, or part of one, cannot be read: the events of the others,
    and those before the damage, are given first."""
    return _events(paths, begin=begin, end=end, types=types, events=events)


def _events(paths, *, begin=None, end=None, types=(), events=None, warn=True):
    """events(), with the warning of lost events left out when warn is false."""
    if not hasattr(_core, "TraceReader"):
        raise ImportError("orvane.trace needs the module built with libbabeltrace2 "
                          "(the Debian package libbabeltrace2-dev)")
    inputs = _inputs(paths)
    reader = _core.TraceReader(inputs, begin, end, _strings(events, "events"),
                               _strings(types, "types"), InvalidValue)
    return TraceEvents(reader, warn)


def _inputs(paths):
    """paths as a list of str: one path, or an iterable of them."""
    if isinstance(paths, (str, bytes, os.PathLike)):
        paths = [paths]
    inputs = [os.fspath(path) for path in paths]
    if not inputs:
        raise ValueError("no trace to read: paths is empty")
    return inputs


def _strings(value, name):
    """A str-or-iterable keyword as a list of str: None is none, a str is one."""
    if value is None:
        return []
    items = [value] if isinstance(value, str) else list(value)
    for item in items:
        if not isinstance(item, str):
            raise TypeError(f"{name} takes a str or an iterable of str, not "
                            f"{type(item).__name__} items")
    return items
