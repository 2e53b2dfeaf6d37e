#!/usr/bin/env python3
"""Turns the results JSON of run.py into the tables of docs/performance.md.

Each table goes between the lines "<!-- begin NAME -->" and "<!-- end NAME -->" of the
document, replacing what was there; the prose around them is left alone. With --print
the tables are printed instead.
"""

import argparse
import json
import re
import statistics
import sys
from collections import Counter
from pathlib import Path

import gen_trace

FULL_ID_COUNT = 108
FURTHEST = 3


def short_name(function):
    """A C++ function name without template arguments and parameter lists."""
    name = function.replace("(anonymous namespace)", "{anon}")
    name = name.replace("(below main)", "{below main}")
    previous = None
    while previous != name:
        previous, name = name, re.sub(r"<[^<>]*>", "", name)
    name = re.sub(r"\([^()]*\)", "", name)
    name = re.sub(r"\s*\[clone [^\]]*\]", "", name)
    return name.replace("{anon}", "(anon)").replace("{below main}", "(below main)")[:90]


NUMERIC = re.compile(r"^[\d.,]+ ?[xM%]?$")


def cell_text(cell):
    if isinstance(cell, float):
        return f"{cell:,.1f}"
    return f"{cell:,}" if isinstance(cell, int) else str(cell)


def table(header, rows):
    """A Markdown table; columns of numbers right-aligned."""
    align = ["---:" if all(NUMERIC.match(cell_text(row[i])) for row in rows) else "---"
             for i in range(len(header))]
    lines = ["| " + " | ".join(header) + " |", "| " + " | ".join(align) + " |"]
    lines += ["| " + " | ".join(cell_text(cell) for cell in row) + " |" for row in rows]
    return "\n".join(lines)


def median_ns(measured):
    """The median over the passes of a benchmark's CPU ns per iteration."""
    return statistics.median(measured["cpu_ns"])


def median_ratio(measured, floor):
    """The median over the passes of the benchmark's time over its floor's, each pass
    comparing runs made side by side."""
    return statistics.median(a / b for a, b in zip(measured["cpu_ns"], floor["cpu_ns"]))


def per_id(results):
    """(id, category, ns per value, floor ns, ratio) for every id measured."""
    rows = []
    for type_id in results["ids"]:
        measured = results["format"].get(f"format/{type_id}")
        floor = results["format"].get(f"floor/{type_id}")
        if measured and floor:
            rows.append((type_id, gen_trace.category_of(type_id)[0], median_ns(measured),
                         median_ns(floor), median_ratio(measured, floor)))
    return rows


def conditions_block(results):
    c = results["conditions"]
    ids = len(results["ids"])
    coverage = (f"**{ids} ids registered, of the {FULL_ID_COUNT} the plug-in is to supply: "
                f"these figures cover only those {ids}.**" if ids < FULL_ID_COUNT
                else f"All {ids} ids registered.")
    return "\n".join([
        f"- Measured {c['date']} on commit `{c['commit']}`. {coverage}",
        f"- {c['cores']} cores ({c['cpu']}), {c['compiler']}, the `bench` preset (Release).",
        f"- Load average {c['load']:.1f} when the run started and {c['load_after']:.1f} when it "
        "ended (a load above the core count means other builds shared the machine). Times "
        f"are CPU times, medians of {len(next(iter(results['format'].values()))['cpu_ns'])} "
        "passes over the whole suite.",
    ])


def per_id_block(results):
    rows = [(i, cat, ns, floor, f"{ratio:.1f}x") for i, cat, ns, floor, ratio in per_id(results)]
    missing = sorted(set(results["ids"]) - {row[0] for row in rows})
    text = table(["Id", "Category", "ns per value", "Floor ns", "Ratio to floor"], rows)
    if missing:
        text += f"\n\nNot measured (no value in examples/demo.txt): {', '.join(missing)}."
    return text


def furthest_block(results):
    rows = sorted(per_id(results), key=lambda row: row[4], reverse=True)[:FURTHEST]
    return "\n".join(f"{rank}. `{i}` ({cat}): {ns:.0f} ns, {ratio:.1f} times its floor of "
                     f"{floor:.0f} ns." for rank, (i, cat, ns, floor, ratio) in enumerate(rows, 1))


def corpus_share(results):
    """Share of each category among the ids' weighted draws."""
    weights = Counter()
    for type_id in results["ids"]:
        name, weight = gen_trace.category_of(type_id)
        weights[name] += weight
    total = sum(weights.values())
    return [(name, f"{100 * weight / total:.0f}%") for name, weight in weights.most_common()]


def mixed_block(results):
    f = results["format"]
    if "mixed/format" not in f:
        return "(no mixed-corpus run)"
    floor = f["mixed/floor"]
    values = int(floor["values"])
    rows = []
    for name, what in [("mixed/format", "length + format, pair found once per id"),
                       ("mixed/format_lookup", "the same, pair looked up by id per value"),
                       ("mixed/floor", "floor: one write of the finished text")]:
        ns = median_ns(f[name]) / values
        rows.append((what, ns, f"{1e3 / ns:.2f} M", f"{median_ratio(f[name], floor):.1f}x"))
    shares = ", ".join(f"{name} {share}" for name, share in corpus_share(results))
    return (f"Corpus: the first {values:,} values of the generated trace; share of values by "
            f"category: {shares}.\n\n" +
            table(["Run", "ns per value", "Values per second", "Ratio to floor"], rows))


def profile_rows(rows, limit):
    """Inclusive rows below the whole program, leaving out the wrappers (a row whose
    share is within a hair of the row above it adds nothing) and unnamed code."""
    kept = []
    for _, percent, name in rows:
        whole = percent >= 95.0 or name.startswith(("(below main)", "0x"))
        if not whole and (not kept or kept[-1][1] - percent > 0.3):
            kept.append((short_name(name), percent))
    return [(name, f"{percent:.1f}%") for name, percent in kept[:limit]]


def ovfmt_block(results):
    o = results["ovfmt"]
    cpu = statistics.median(run["cpu"] for run in o["runs"])
    wall = statistics.median(run["wall"] for run in o["runs"])
    profile = o["profile"]
    lines = [
        f"`ovfmt --batch` over {o['lines']:,} generated lines, output to /dev/null, median of "
        f"{len(o['runs'])} runs: **{o['lines'] / cpu / 1e6:.2f} M lines per CPU second** "
        f"({cpu:.2f} s CPU, {wall:.2f} s wall).",
    ]
    if o.get("jobs"):
        lines += ["", jobs_sentence(o["jobs"], o["lines"])]
    lines += [
        "",
        f"Callgrind over the first {o['profile_lines']:,} lines: "
        f"{profile['total_ir'] / o['profile_lines']:,.0f} instructions per line. Inclusive "
        "share of the instructions:",
        "",
        table(["Function", "Inclusive"], profile_rows(profile["inclusive"], 16)),
    ]
    if o.get("perf"):
        lines += ["", "Where the time goes (perf, CPU-clock samples over the whole run, self "
                  "time by function):", "",
                  table(["Library", "Function", "Self"],
                        [(dso, short_name(name), f"{percent:.1f}%")
                         for percent, dso, name in o["perf"][:14]])]
    else:
        lines += ["", "(perf could not sample on this machine, so there is no time profile: "
                  "install linux-perf, or allow sampling with kernel.perf_event_paranoid.)"]
    return "\n".join(lines)


def jobs_sentence(jobs, trace_lines):
    """--jobs 2 against --jobs 1 in lines per wall second, from runs made in turn."""
    wall = {n: statistics.median(run["wall"] for run in runs) for n, runs in jobs["runs"].items()}
    cpu = {n: statistics.median(run["cpu"] for run in runs) for n, runs in jobs["runs"].items()}
    return (f"`--jobs 2` against `--jobs 1` over the same lines, {len(jobs['runs']['2'])} runs "
            f"of each in turn: **{wall['1'] / wall['2']:.2f}x the lines per wall second** "
            f"({trace_lines / wall['2'] / 1e6:.2f} M against {trace_lines / wall['1'] / 1e6:.2f} "
            f"M, medians; {cpu['2']:.2f} s CPU against {cpu['1']:.2f} s). Load average "
            f"{jobs['load'][0]:.1f} before these runs, {jobs['load'][1]:.1f} after.")


def python_block(results):
    python, o = results.get("python"), results["ovfmt"]
    if not python:
        return "(the Python module was not built for the interpreter that ran the benchmarks)"
    measured = [("`ovfmt --batch`: hex lines in, text lines out", o["runs"], o["lines"]),
                ("`orvane.format_many`: bytes in, a list of str out", python["runs"],
                 python["values"])]
    rows = []
    for what, runs, values in measured:
        cpu = statistics.median(run["cpu"] for run in runs)
        wall = statistics.median(run["wall"] for run in runs)
        rows.append((what, f"{values / cpu / 1e6:.2f} M", f"{cpu:.2f}", f"{wall:.2f}"))
    return (f"The same {python['values']:,} values of the generated trace, one thread, median "
            f"of {len(python['runs'])} runs each:\n\n" +
            table(["Run", "Values per CPU second", "CPU s", "Wall s"], rows))


def load_block(results):
    load = results["load"]
    runs = sorted(load["runs_ns"])
    profile = load["profile"]
    return "\n".join([
        f"Loading the plug-in through `host::loadPluginPath` (the dynamic loader, the "
        f"plug-in's tables and formatMap, {load['registration_calls']} registration calls "
        f"for {load['ids']} ids), one load per process, {len(runs)} processes: median "
        f"**{statistics.median(runs) / 1e3:.0f} µs** (fastest {runs[0] / 1e3:.0f} µs, slowest "
        f"{runs[-1] / 1e3:.0f} µs).",
        "",
        f"Callgrind of one load: {profile['total_ir']:,} instructions. Inclusive share:",
        "",
        table(["Function", "Inclusive"], profile_rows(profile["inclusive"], 14)),
    ])


BLOCKS = {"conditions": conditions_block, "per-id": per_id_block, "furthest": furthest_block,
          "mixed": mixed_block, "ovfmt": ovfmt_block, "python": python_block, "load": load_block}


def fill(document, results):
    """The document with every marked block replaced by its table."""
    for name, render in BLOCKS.items():
        pattern = re.compile(rf"(<!-- begin {name} -->\n).*?(<!-- end {name} -->)", re.S)
        if not pattern.search(document):
            sys.exit(f"report.py: the document has no block {name}")
        document = pattern.sub(lambda m: m.group(1) + render(results) + "\n" + m.group(2), document)
    return document


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("results", type=Path, help="results JSON written by run.py")
    parser.add_argument("--doc", type=Path, help="document to fill in")
    parser.add_argument("--print", action="store_true", help="print the tables instead")
    args = parser.parse_args()
    results = json.loads(args.results.read_text())
    if args.print or not args.doc:
        for name, render in BLOCKS.items():
            print(f"<!-- begin {name} -->\n{render(results)}\n<!-- end {name} -->\n")
    else:
        args.doc.write_text(fill(args.doc.read_text(), results))


if __name__ == "__main__":
    main()
