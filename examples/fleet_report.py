#!/usr/bin/python3
"""A fleet's traces in one report: per router, the events its tracer lost, and per event,
how many events and the ten most frequent values of one typed field.

TRACES holds one trace directory per router (its name is the router's). The work runs on
Dask: a distributed.LocalCluster of worker processes on this machine by default, the
cluster whose scheduler is at --scheduler ADDRESS, or one process with --scheduler sync.

    examples/fleet_report.py TRACES --field nexthop --workers 2
    examples/fleet_report.py TRACES --field prefix --scheduler tcp://10.0.0.5:8786

Run it with the Python that python3-dask belongs to (/usr/bin/python3), with the orvane
package on PYTHONPATH (the build's lib/python3/dist-packages) or installed; the package
installs this script as /usr/share/doc/orvane/examples/fleet_report.py.
"""

import argparse
import collections
import sys
from pathlib import Path

import dask

import orvane.dask

TOP = 10


def trace_dirs(root):
    """The trace directories under root, one per router, sorted by name."""
    dirs = sorted(path for path in Path(root).iterdir() if path.is_dir())
    if not dirs:
        raise SystemExit(f"fleet_report: no trace directory in {root}")
    return dirs


def report(paths, field):
    """The report's text for the traces at paths, computed on the current scheduler."""
    bag = orvane.dask.events(paths)
    router = lambda event: Path(event["trace"]).name
    counts = bag.map(lambda e: (router(e), e["event"])).frequencies()
    values = (bag.filter(lambda e: field in e["fields"])
              .map(lambda e: (router(e), e["event"], str(e["fields"][field])))
              .frequencies())
    lost = orvane.dask.discarded(paths)  # read with the events: one compute below
    counts, values, lost = dask.compute(counts, values, lost)
    losses = {Path(trace["trace"]).name: trace for trace in lost}
    return render(dict(counts), values, field, losses)


def render(counts, values, field, losses):
    """The report's text: counts by (router, event), the frequencies of (router, event,
    value) and the discarded dict of each router, by router."""
    top = collections.defaultdict(list)
    for (router, event, value), count in values:
        top[router, event].append((-count, value))
    lines = []
    for router in sorted({router for router, _ in counts} | set(losses)):
        lines.append(router)
        if router in losses and (losses[router]["events"] or losses[router]["packets"]):
            lines.append("  lost by the tracer: " + lost_text(losses[router]))
        for event in sorted(event for r, event in counts if r == router):
            lines.append(f"  {event}: {counts[router, event]} events")
            for count, value in sorted(top[router, event])[:TOP]:
                lines.append(f"    {field} {value}: {-count}")
    return "\n".join(lines) + "\n"


def lost_text(loss):
    """What a router's tracer discarded, as "7 events, 1 packet"."""
    def plural(count, word):
        return f"{count} {word}" + ("" if count == 1 else "s")
    return f"{plural(loss['events'], 'event')}, {plural(loss['packets'], 'packet')}"


def main(argv):
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("traces", help="a directory of trace directories, one per router")
    parser.add_argument("--field", default="nexthop",
                        help="the typed field whose values to count (default: nexthop)")
    parser.add_argument("--scheduler", help="a scheduler's address, or sync for one process")
    parser.add_argument("--workers", type=int, default=2,
                        help="worker processes of the local cluster (default: 2)")
    args = parser.parse_args(argv)
    paths = trace_dirs(args.traces)
    if args.scheduler == "sync":
        with dask.config.set(scheduler="sync"):
            return report(paths, args.field)
    from distributed import Client, LocalCluster
    if args.scheduler:
        with Client(args.scheduler):
            return report(paths, args.field)
    with LocalCluster(n_workers=args.workers, threads_per_worker=1, processes=True,
                      dashboard_address=None) as cluster, Client(cluster):
        return report(paths, args.field)


if __name__ == "__main__":
    sys.stdout.write(main(sys.argv[1:]))
