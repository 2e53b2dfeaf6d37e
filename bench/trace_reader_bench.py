#!/usr/bin/env python3
"""CPU time of reading one trace through babeltrace2's sinks and ours, in the same run.

usage: bench/trace_reader_bench.py BUILD_DIR [TRACE_DIR] [--runs N]

TRACE_DIR (default BUILD_DIR/bench-trace) is recorded first when absent:
`scripts/trace-record TRACE_DIR BUILD_DIR/bin/bgp_speaker --bench` (10^6 bench_route
events, each with PGO, BPK and BNH typed fields and an integer). Each command's output
goes to /dev/null; the commands take turns, and the table shows the median CPU time
(user + system) of each and its ratio to pretty's and to dummy's."""

import argparse
import os
import resource
import statistics
import subprocess
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent


def commands(build, trace):
    plugin = "--plugin-path=%s" % (build / "lib/babeltrace2/plugins")
    return {
        "pretty": ["babeltrace2", trace],
        "dummy": ["babeltrace2", trace, "-c", "sink.utils.dummy"],
        "orvane text": ["babeltrace2", plugin, trace, "-c", "sink.orvane.text"],
        "orvane json": ["babeltrace2", plugin, trace, "-c", "sink.orvane.text", "-p", 'format="json"'],
        "ovfmt --trace": [str(build / "bin/ovfmt"), "--trace", trace],
    }


def cpu_seconds(command):
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    with open(os.devnull, "wb") as null:
        subprocess.run(command, stdout=null, check=True)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return (after.ru_utime - before.ru_utime) + (after.ru_stime - before.ru_stime)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build", type=Path)
    parser.add_argument("trace", type=Path, nargs="?")
    parser.add_argument("--runs", type=int, default=5)
    args = parser.parse_args()
    build = args.build.resolve()
    trace = (args.trace or build / "bench-trace").resolve()
    if not trace.exists():
        subprocess.run([ROOT / "scripts/trace-record", trace, build / "bin/bgp_speaker", "--bench"],
                       check=True)
    runs = commands(build, str(trace))
    times = {name: [] for name in runs}
    for _ in range(args.runs):
        for name, command in runs.items():
            times[name].append(cpu_seconds(command))
    median = {name: statistics.median(t) for name, t in times.items()}
    print("| Command | CPU s (median of %d) | vs pretty | vs dummy |" % args.runs)
    print("|---|---|---|---|")
    for name, seconds in median.items():
        print("| %s | %.2f | %.2fx | %.2fx |" % (name, seconds, seconds / median["pretty"],
                                                 seconds / median["dummy"]))


if __name__ == "__main__":
    main()
