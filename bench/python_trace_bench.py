#!/usr/bin/python3
"""Reading traces from Python: orvane.trace against a plain bt2 loop, and a fleet on Dask
with two workers against one.

    /usr/bin/python3 bench/python_trace_bench.py --build build/bench [--events 1000000]

Records, with scripts/trace-record and the example speaker's --bench mode, one trace of
EVENTS events (each a PGO prefix, a BPK peer, a BNH next hop and an integer) and four of
EVENTS/4 (a fleet of four routers), under BUILD/results/traces. Then, each measurement
repeated and its median taken:
- events per CPU second of `for event in orvane.trace.events(trace)` against the plain
  bt2 loop that pulls one byte array (the next hop) out of each event;
- wall seconds of examples/fleet_report.py's report over the four traces on a
  distributed.LocalCluster of one worker process, then of two.
Prints a Markdown table, and writes the figures as JSON with --output. The Python is the
one python3-bt2 and Dask belong to (/usr/bin/python3).
"""

import argparse
import json
import logging
import os
import statistics
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
RUNS = 3


def record(build, outdir, events, router):
    if (outdir / "done").exists():
        return
    subprocess.run(["rm", "-rf", str(outdir)], check=True)
    subprocess.run([ROOT / "scripts/trace-record", outdir, build / "bin/bgp_speaker", "--bench",
                    "--events", str(events), "--router", router, "--seed", router[1:]],
                   check=True, stdout=subprocess.DEVNULL)
    (outdir / "done").touch()


def cpu_rate(loop, trace):
    """Events per CPU second of loop(trace), the median of RUNS runs."""
    rates = []
    for _ in range(RUNS):
        start = time.process_time()
        count = loop(trace)
        rates.append(count / (time.process_time() - start))
    return statistics.median(rates), count


def bt2_loop(trace):
    import bt2
    count = 0
    for message in bt2.TraceCollectionMessageIterator(str(trace)):
        if type(message) is bt2._EventMessageConst:
            bytes(message.event.payload_field["nexthop__BNH"])
            count += 1
    return count


def orvane_loop(trace):
    import orvane.trace
    count = 0
    for _ in orvane.trace.events(trace):
        count += 1
    return count


def fleet_seconds(paths, workers):
    """Wall seconds of the fleet report on a local cluster of `workers` processes, the
    cluster started beforehand; the median of RUNS runs. The workers restart before each
    run: a cluster that has the report's tasks at hand answers again in milliseconds."""
    import fleet_report
    from distributed import Client, LocalCluster
    with LocalCluster(n_workers=workers, threads_per_worker=1, processes=True,
                      dashboard_address=None, silence_logs=logging.ERROR) as cluster, \
            Client(cluster) as client:
        seconds = []
        for _ in range(RUNS):
            client.restart()
            start = time.perf_counter()
            fleet_report.report(paths, "nexthop")
            seconds.append(time.perf_counter() - start)
    return statistics.median(seconds)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", required=True, type=Path, help="a release build tree")
    parser.add_argument("--events", type=int, default=1_000_000)
    parser.add_argument("--output", type=Path, help="where to write the figures as JSON")
    args = parser.parse_args()
    build = args.build.resolve()
    sys.path[:0] = [str(build / "lib/python3/dist-packages"), str(ROOT / "examples")]
    traces = build / "results/traces"
    one = traces / f"one-{args.events}"
    fleet = [traces / f"fleet-{args.events}" / f"r{i}" for i in range(1, 5)]
    record(build, one, args.events, "r0")
    for path in fleet:
        record(build, path, args.events // 4, path.name)

    orvane_rate, count = cpu_rate(orvane_loop, one)
    bt2_rate, _ = cpu_rate(bt2_loop, one)
    one_worker, two_workers = fleet_seconds(fleet, 1), fleet_seconds(fleet, 2)
    figures = {"events": count, "orvane_trace_per_cpu_s": orvane_rate,
               "bt2_loop_per_cpu_s": bt2_rate, "fleet_events": args.events,
               "fleet_one_worker_s": one_worker, "fleet_two_workers_s": two_workers,
               "load_average": os.getloadavg()[0]}
    if args.output:
        args.output.write_text(json.dumps(figures, indent=1))
    print(f"| reading {count:,} events, three typed fields each | events per CPU second |")
    print("|---|---|")
    print(f"| orvane.trace.events | {orvane_rate:,.0f} |")
    print(f"| plain bt2 loop, one byte array per event | {bt2_rate:,.0f} |")
    print(f"| ratio | {orvane_rate / bt2_rate:.1f}x |")
    print()
    print(f"| fleet report, four traces of {args.events // 4:,} events | wall seconds |")
    print("|---|---|")
    print(f"| one worker process | {one_worker:.2f} |")
    print(f"| two worker processes | {two_workers:.2f} |")
    print(f"| speed-up | {one_worker / two_workers:.2f}x |")


if __name__ == "__main__":
    main()
