#!/usr/bin/env python3
"""Writes a routing trace's worth of values, one "ID HEX..." line each, as ovfmt --batch
reads them.

Values come from a batch file of realistic values (examples/demo.txt, which holds at
least one line for every registered id); each id is drawn with the weight of its
category, so next hops, route keys, addresses and prefixes are the most common, as in a
routing daemon's trace, and any id not listed here still appears at a low weight. Lines
come in rounds: every round holds each id exactly as often as its weight, shuffled, so
any slice of a round's length covers every id.
"""

import argparse
import os
import random
import subprocess
import sys
from collections import defaultdict

def plugin_ids(ovfmt):
    """The plug-in's ids: ovfmt --list prints them before a blank line and the host's
    base types."""
    listed = subprocess.run([str(ovfmt), "--list"], check=True, text=True,
                            capture_output=True).stdout
    return listed.split("\n\n")[0].split()


# Category name, weight of each of its ids per round, and the ids.
CATEGORIES = [
    ("next hop", 30, ["BNH"]),
    ("route key", 30, ["BRK", "BRY", "BMPRK"]),
    ("address", 20, ["I", "I6", "IG", "IGO", "A", "IP"]),
    ("prefix", 20, ["P", "P6", "AM4", "AM6", "PG", "PGO"]),
    ("label/FEC", 5, ["ML", "LO", "EL", "FM", "FMO", "LVK", "GFID"]),
    ("RIB/RD/RT", 5, ["RRRK", "RRRKO", "RVK", "RD", "RT", "AFS", "NLRI"]),
    ("MAC", 5, ["E", "EC"]),
]
OTHER = ("other", 1)


def category_of(type_id):
    """The (category name, weight) of a type id."""
    for name, weight, ids in CATEGORIES:
        if type_id in ids:
            return name, weight
    return OTHER


def read_values(path):
    """Every value line of a batch file, grouped by id, in file order."""
    values = defaultdict(list)
    with open(path, encoding="utf-8") as lines:
        for line in lines:
            words = line.split(maxsplit=1)
            if words and not words[0].startswith("#"):
                values[words[0]].append(line.strip())
    return values


def rounds(values, seed):
    """Endless lines: round after round of every id as often as its weight, shuffled;
    each id cycles through its own values."""
    rng = random.Random(seed)
    draws = [type_id for type_id in sorted(values) for _ in range(category_of(type_id)[1])]
    next_value = defaultdict(int)
    while True:
        rng.shuffle(draws)
        for type_id in draws:
            choices = values[type_id]
            yield choices[next_value[type_id] % len(choices)]
            next_value[type_id] += 1


def write_trace(values_path, output, line_count, seed=1):
    """Writes `line_count` lines drawn from the values in `values_path` to `output`, a
    path or an open file."""
    values = read_values(values_path)
    if not values:
        sys.exit(f"gen_trace.py: no values in {values_path}")
    lines = rounds(values, seed)
    out = open(output, "w", encoding="utf-8") if isinstance(output, (str, os.PathLike)) else output
    with out:
        out.writelines(next(lines) + "\n" for _ in range(line_count))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--values", required=True, help="batch file of realistic values")
    parser.add_argument("--lines", type=int, default=1_000_000, help="how many lines to write")
    parser.add_argument("--seed", type=int, default=1, help="the shuffle's seed")
    parser.add_argument("-o", "--output", help="file to write (standard output when absent)")
    args = parser.parse_args()
    write_trace(args.values, args.output or sys.stdout, args.lines, args.seed)


if __name__ == "__main__":
    main()
