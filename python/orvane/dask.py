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

Dask comes from Debian (python3-dask, and python3-distributed for a cluster); without it
this module does not import, and orvane.trace still works.
"""

try:
    import dask.bag as _bag
except ImportError as error:  # orvane itself works without Dask
    raise ImportError("orvane.dask needs Dask: install the Debian packages python3-dask "
                      "(and python3-distributed for a cluster)") from error

import os

from orvane import trace as _trace

__all__ = ["events", "event_dicts"]


def event_dicts(path, begin=None, end=None):
    """The events of the trace at path as the dicts events() gives, in a list."""
    name = os.fspath(path)
    return [{"trace": name, "event": event.name, "timestamp_ns": event.timestamp_ns,
             "fields": event.fields}
            for event in _trace.events(path, begin=begin, end=end)]


def events(paths, *, begin=None, end=None):
    """A dask.bag.Bag of the events of every trace in paths (an iterable of trace
    directories), one partition per trace, each event a dict with "trace" (the path as
    given), "event", "timestamp_ns" and "fields". begin and end (nanoseconds from the
    clock's origin, or None) keep the events between them, as orvane.trace.events does.
    Nothing is read until the bag is computed."""
    paths = [os.fspath(path) for path in paths]
    if not paths:
        raise ValueError("no trace to read: paths is empty")
    return _bag.from_sequence(paths, npartitions=len(paths)).map_partitions(
        _read_partition, begin=begin, end=end)


def _read_partition(paths, begin, end):
    return [event for path in paths for event in event_dicts(path, begin, end)]
