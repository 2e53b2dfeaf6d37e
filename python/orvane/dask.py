"""A fleet's traces as a Dask bag: one partition per trace, on any Dask scheduler.

Each trace is read where its partition runs, with orvane.trace, so the work spreads over
the workers of whatever scheduler computes the bag: threads, processes, or a
distributed cluster (a distributed.Client made before compute() is used by default).
Every element is a plain dict, cheap to send between processes::

    {"trace": "/traces/router-3", "event": "bgp:route_update",
     "timestamp_ns": 1700000000123456789, "fields": {"prefix": "10.1.16.0/20", ...}}

An invalid typed field's value is an orvane.trace.InvalidValue, which says why and holds
the bytes. Counting events, and the next hops of the first routes, on the scheduler that
computes the bag (here one thread; a Client's cluster once one is made):

    >>> import orvane.dask
    >>> bag = orvane.dask.events([trace_dir])
    >>> dict(bag.pluck("event").frequencies())["orvane_speaker:route_update"]
    11
    >>> routes = bag.filter(lambda event: event["event"].endswith("route_update"))
    >>> routes.pluck("fields").pluck("nexthop").take(1)
    ('<ip:10.0.0.1, routerMac:001c.7300.9968> (L3-vrfId:3)',)

discarded() says which traces the tracer lost events of. Computed together with the
events (one dask.compute call), each trace is read once for both:

    >>> import dask
    >>> updates = orvane.dask.events([trace_dir], events="*:route_update")
    >>> lost = orvane.dask.discarded([trace_dir], events="*:route_update")
    >>> count, (losses,) = dask.compute(updates.count(), lost)
    >>> count, losses["events"], losses["packets"], losses["trace"] == str(trace_dir)
    (11, 0, 0, True)

Dask comes from Debian (python3-dask, and python3-distributed for a cluster); without it
this module does not import, and orvane.trace still works.
"""

try:
    import dask.bag as _bag
    from dask import delayed as _delayed
except ImportError as error:  # orvane itself works without Dask
    raise ImportError("orvane.dask needs Dask: install the Debian packages python3-dask "
                      "(and python3-distributed for a cluster)") from error

import os

from orvane import trace as _trace

__all__ = ["discarded", "event_dicts", "events"]


def event_dicts(path, begin=None, end=None, types=(), events=None):
    """The events of the trace at path as the dicts events() gives, in a list."""
    return _read_trace(os.fspath(path), begin, end, types, events)[0]


def events(paths, *, begin=None, end=None, types=(), events=None):
    """A dask.bag.Bag of the events of every trace in paths (an iterable of trace
    directories, or one), one partition per trace, each event a dict with "trace" (the
    path as given), "event", "timestamp_ns" and "fields". begin, end, types and events
    keep and type the events as orvane.trace.events() does. Nothing is read until the
    bag is computed; a trace that cannot be read to its end raises its
    orvane.trace.TraceReadError there."""
    reads = _reads(paths, begin, end, types, events)
    return _bag.from_delayed([_delayed(_events_of, pure=True)(read) for read in reads])


def discarded(paths, *, begin=None, end=None, types=(), events=None):
    """A dask.bag.Bag of one dict per trace in paths, in their order: "trace" (the path
    as given), "events" and "packets" (how many the tracer reported lost within the
    range begin and end keep). Given the same arguments as events(), it shares its
    reading: computed together (one dask.compute call), each trace is read once."""
    reads = _reads(paths, begin, end, types, events)
    return _bag.from_delayed([_delayed(_discarded_of, pure=True)(read) for read in reads])


def _reads(paths, begin, end, types, events):
    """A task per trace reading it, named by its arguments alone (pure), so that the
    bags of events() and discarded() made from the same arguments share them."""
    types = tuple(_trace._strings(types, "types"))
    events = tuple(_trace._strings(events, "events"))
    return [_delayed(_read_trace, pure=True)(path, begin, end, types, events)
            for path in _trace._inputs(paths)]


def _read_trace(path, begin, end, types, events):
    """(the event dicts of the trace at path, its discarded dict)."""
    stream = _trace._events(path, begin=begin, end=end, types=types, events=events, warn=False)
    dicts = [{"trace": path, "event": event.name, "timestamp_ns": event.timestamp_ns,
              "fields": event.fields} for event in stream]
    return dicts, {"trace": path, "events": stream.discarded_events,
                   "packets": stream.discarded_packets}


def _events_of(read):
    return read[0]


def _discarded_of(read):
    return [read[1]]
