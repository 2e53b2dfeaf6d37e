#!/usr/bin/env python3
"""Runs every benchmark against a built tree and records the results as JSON.

scripts/bench builds the tree and calls this, then report.py. Each measurement is
repeated so that report.py can take medians; CPU times are kept beside wall times
because the machine may be shared.
"""

import argparse
import json
import os
import platform
import re
import subprocess
import sys
import tempfile
import time
from datetime import datetime, timezone
from pathlib import Path

import gen_trace

TRACE_LINES = 1_000_000
CORPUS_VALUES = 20_000
PROFILE_LINES = 20_000
OVFMT_RUNS = 3
JOBS_RUNS = 7
LOAD_RUNS = 25
PASSES = 5
MIN_TIME = 0.05
# callgrind_annotate rows: "  1,234 (12.34%)  file:function [object]"
ANNOTATE_ROW = re.compile(r"^\s*([\d,]+)\s+\(\s*([\d.]+)%\)\s+(.*)$")


def run(command, **kwargs):
    """Runs a command, failing loudly; returns its standard output."""
    return subprocess.run(command, check=True, text=True, stdout=subprocess.PIPE, **kwargs).stdout


def timed(command):
    """Wall and CPU seconds (user + system) of one run of a command that must succeed,
    its output discarded. Its errors go to a file, which never fills up as a pipe would."""
    with tempfile.TemporaryFile() as errors:
        start = time.perf_counter()
        child = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=errors)
        _, status, usage = os.wait4(child.pid, 0)
        wall = time.perf_counter() - start
        if os.waitstatus_to_exitcode(status) != 0:
            errors.seek(0)
            sys.exit(f"run.py: {command[0]} failed: {errors.read().decode(errors='replace')}")
    return {"wall": wall, "cpu": usage.ru_utime + usage.ru_stime}


def conditions():
    """What the figures were measured on."""
    cpu = next((line.split(":", 1)[1].strip() for line in open("/proc/cpuinfo")
                if line.startswith("model name")), platform.processor())
    return {
        "date": datetime.now(timezone.utc).strftime("%Y-%m-%d %H:%M UTC"),
        "commit": run(["git", "describe", "--always", "--dirty"]).strip(),
        "cpu": cpu,
        "cores": os.cpu_count(),
        "load": os.getloadavg()[0],
        "compiler": run(["g++", "--version"]).splitlines()[0],
    }


def format_benchmarks(build, corpus, out):
    """CPU ns of every per-id and mixed-corpus benchmark, one figure per pass, by name.

    The whole suite runs PASSES times rather than each benchmark repeating in place, so
    a burst of load from another process lands on one pass of many ids, not on every
    repetition of one; each id still runs right beside its floor."""
    times = {}
    for number in range(PASSES):
        json_file = out / f"format-{number}.json"
        run([str(build / "bin/format_bench"), f"--corpus={corpus}",
             f"--corpus-values={CORPUS_VALUES}", f"--benchmark_min_time={MIN_TIME}",
             f"--benchmark_out={json_file}", "--benchmark_out_format=json"],
            stderr=subprocess.DEVNULL)
        for entry in json.loads(json_file.read_text())["benchmarks"]:
            name = entry["run_name"].split("/min_time:")[0]
            measured = times.setdefault(name, {"cpu_ns": [], "values": entry.get("values", 1)})
            measured["cpu_ns"].append(entry["cpu_time"])
    return times


def annotate(profile, rows):
    """The top inclusive rows of callgrind_annotate: (instructions, percent, function)."""
    text = run(["callgrind_annotate", "--inclusive=yes", str(profile)], stderr=subprocess.DEVNULL)
    table = text.split("file:function", 1)[1]
    found = []
    for line in table.splitlines():
        match = ANNOTATE_ROW.match(line)
        if match:
            function = re.sub(r"\s+\[[^\]]*\]$", "", match.group(3)).split(":", 1)[-1]
            found.append((int(match.group(1).replace(",", "")), float(match.group(2)), function))
    return found[:rows]


def callgrind(command, profile, extra=()):
    """Instruction counts of one run under callgrind: the total, and the functions they
    were spent in (inclusive)."""
    subprocess.run(["valgrind", "--tool=callgrind", f"--callgrind-out-file={profile}", *extra,
                    *command], check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    totals = run(["callgrind_annotate", str(profile)], stderr=subprocess.DEVNULL)
    total = re.search(r"([\d,]+) \(100.0%\)\s+PROGRAM TOTALS", totals).group(1)
    return {"total_ir": int(total.replace(",", "")), "inclusive": annotate(profile, 40)}


def perf_profile(command, out):
    """Self time by function from CPU-clock samples, as (percent, library, function);
    None where perf is missing or not allowed to sample."""
    samples = out / "ovfmt.perf"
    try:
        subprocess.run(["perf", "record", "-e", "cpu-clock", "-F", "2000", "-o", str(samples),
                        "--", *command], check=True, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)
        text = run(["perf", "report", "-i", str(samples), "--stdio", "--no-children",
                    "--sort", "dso,symbol", "--percent-limit", "0.5"], stderr=subprocess.DEVNULL)
    except (OSError, subprocess.CalledProcessError):
        return None
    # "  7.34%  libstdc++.so.6  [.] __dynamic_cast   -   -": the dashes are empty columns.
    rows = re.findall(r"^\s+([\d.]+)%\s+(\S+)\s+\[[.k]\]\s+(.*?)(?:\s+-\s+-)?\s*$", text, re.M)
    return [(float(percent), library, function) for percent, library, function in rows]


def jobs_runs(ovfmt, trace):
    """Wall and CPU time of --jobs 1 and --jobs 2 over the whole trace, run in turn so that
    load from other processes falls on both alike, and the load average around them."""
    runs = {"1": [], "2": []}
    load_before = os.getloadavg()[0]
    for _ in range(JOBS_RUNS):
        for jobs, measured in runs.items():
            measured.append(timed([ovfmt, "--jobs", jobs, "--batch", str(trace)]))
    return {"runs": runs, "load": [load_before, os.getloadavg()[0]]}


def ovfmt_throughput(build, trace, out):
    """Wall and CPU time of ovfmt --batch over the whole trace, where that time goes, and
    an instruction profile of a slice; then --jobs 2 against --jobs 1."""
    ovfmt = str(build / "bin/ovfmt")
    runs = [timed([ovfmt, "--batch", str(trace)]) for _ in range(OVFMT_RUNS)]
    jobs = jobs_runs(ovfmt, trace)
    perf = perf_profile([ovfmt, "--batch", str(trace)], out)
    profile_input = out / "profile-slice.txt"
    with open(trace) as lines, open(profile_input, "w") as slice_file:
        slice_file.writelines(line for _, line in zip(range(PROFILE_LINES), lines))
    profile = callgrind([ovfmt, "--batch", str(profile_input)], out / "ovfmt.callgrind")
    return {"lines": TRACE_LINES, "runs": runs, "perf": perf, "profile_lines": PROFILE_LINES,
            "profile": profile, "jobs": jobs}


def format_many_throughput(build, trace):
    """CPU and wall time of the Python module's format_many over every value of the trace,
    given as bytes (the hex is parsed beforehand, untimed); None where the module was not
    built for this interpreter."""
    sys.path.insert(0, str(build / "lib/python3/dist-packages"))
    try:
        import orvane
    except ImportError:
        return None
    with open(trace) as lines:
        items = [(type_id, bytes.fromhex(hex_bytes))
                 for type_id, hex_bytes in (line.split(maxsplit=1) for line in lines)]
    runs = []
    for _ in range(OVFMT_RUNS):
        wall, cpu = time.perf_counter(), time.process_time()
        orvane.format_many(items)
        runs.append({"wall": time.perf_counter() - wall, "cpu": time.process_time() - cpu})
    return {"values": len(items), "runs": runs}


def load_cost(build, out):
    """Load time of the plug-in over repeated processes, and a profile of one load."""
    command = [str(build / "bin/load_bench"), str(build / "lib/orvane/libKaMessageFormatter.so")]
    loads = [json.loads(run(command)) for _ in range(LOAD_RUNS)]
    profile = callgrind(command, out / "load.callgrind",
                        ["--toggle-collect=Orvane::host::loadPluginPath*"])
    return {"runs_ns": [load["load_ns"] for load in loads], "ids": loads[0]["ids"],
            "registration_calls": loads[0]["registration_calls"], "profile": profile}


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", required=True, type=Path, help="the bench preset's build tree")
    parser.add_argument("--values", required=True, help="batch file of realistic values")
    parser.add_argument("--output", required=True, type=Path, help="results JSON to write")
    args = parser.parse_args()

    out = args.output.parent
    out.mkdir(parents=True, exist_ok=True)
    trace = out / "trace.txt"
    results = {"conditions": conditions(),
               "ids": gen_trace.plugin_ids(args.build / "bin/ovfmt")}
    print(f"run.py: {len(results['ids'])} ids; writing {TRACE_LINES} lines to {trace}")
    gen_trace.write_trace(args.values, trace, TRACE_LINES)
    print("run.py: format_bench (per id and mixed corpus)")
    results["format"] = format_benchmarks(args.build, trace, out)
    print("run.py: ovfmt --batch throughput and profile")
    results["ovfmt"] = ovfmt_throughput(args.build, trace, out)
    print("run.py: orvane.format_many throughput")
    results["python"] = format_many_throughput(args.build, trace)
    print("run.py: plug-in load cost")
    results["load"] = load_cost(args.build, out)
    results["conditions"]["load_after"] = os.getloadavg()[0]
    args.output.write_text(json.dumps(results, indent=1))


if __name__ == "__main__":
    main()
