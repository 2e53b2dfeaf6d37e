#!/usr/bin/env python3
"""Checks that two builds of ovfmt print the same bytes for the same values.

A faster formatter must print exactly what the one it replaces printed. This runs two
ovfmt commands (say, one built from main and one from a branch) over the same input,
with --counts so that lengths and consumed counts are compared too, and compares their
standard output, standard error and exit status byte for byte. The input is random
values for every id the new build registers (half of them with small leading bytes,
so tags, kinds and counts hit their valid ranges), plus any trace files given.

    bench/compare_output.py --old "env LD_LIBRARY_PATH=/tmp/old/lib /tmp/old/bin/ovfmt" \\
        --new build/release/bin/ovfmt --values 3000 --trace examples/demo.txt

Not part of the test suite: it needs a second build. Prints one summary line, and exits
1 at the first difference, naming the input line.
"""

import argparse
import random
import shlex
import subprocess
import sys
import tempfile

MAX_VALUE_BYTES = 320


def random_value(rng):
    """Hex of one value: random bytes, the first 8 small in half of the values."""
    small = rng.random() < 0.5
    size = rng.randint(0, MAX_VALUE_BYTES)
    data = [rng.randint(0, 8) if small and i < 8 else rng.randint(0, 255) for i in range(size)]
    return " ".join(f"{b:02x}" for b in data)


def registered_ids(command):
    listed = subprocess.run(command + ["--list"], check=True, text=True, capture_output=True)
    return listed.stdout.split()


def write_random_batch(path, ids, per_id, seed):
    rng = random.Random(seed)
    with open(path, "w") as out:
        for value_id in ids:
            for _ in range(per_id):
                out.write(f"{value_id} {random_value(rng)}\n")


def run_batch(command, path):
    done = subprocess.run(command + ["--counts", "--batch", path], capture_output=True)
    return done.returncode, done.stdout, done.stderr


def first_difference(old, new):
    """The 1-based line where two outputs part, or 0 when they are equal."""
    for number, (a, b) in enumerate(zip(old.split(b"\n"), new.split(b"\n")), start=1):
        if a != b:
            return number
    return 0 if old == new else min(old.count(b"\n"), new.count(b"\n")) + 1


def compare(old_cmd, new_cmd, path):
    """Returns (lines compared, description of the first difference or None)."""
    old, new = run_batch(old_cmd, path), run_batch(new_cmd, path)
    lines = old[1].count(b"\n")
    for name, index in (("stdout", 1), ("stderr", 2)):
        if old[index] != new[index]:
            return lines, f"{name} differs at its line {first_difference(old[index], new[index])}"
    if old[0] != new[0]:
        return lines, f"exit status {old[0]} against {new[0]}"
    return lines, None


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--old", required=True, help="the reference ovfmt command")
    parser.add_argument("--new", required=True, help="the ovfmt command under test")
    parser.add_argument("--values", type=int, default=1000, help="random values per id")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--trace", action="append", default=[], help="a batch file to compare")
    args = parser.parse_args()
    old_cmd, new_cmd = shlex.split(args.old), shlex.split(args.new)

    ids = registered_ids(new_cmd)
    if ids != registered_ids(old_cmd):
        sys.exit("compare_output: the two builds register different ids")
    with tempfile.NamedTemporaryFile("w", suffix=".txt") as batch:
        write_random_batch(batch.name, ids, args.values, args.seed)
        total = 0
        for path in [batch.name] + args.trace:
            lines, difference = compare(old_cmd, new_cmd, path)
            total += lines
            if difference:
                print(f"compare_output: {path}: {difference}")
                sys.exit(1)
    print(f"compare_output: {len(ids)} ids, {total:,} output lines, identical "
          f"({args.values} random values per id, seed {args.seed}, "
          f"{len(args.trace)} trace file(s))")


if __name__ == "__main__":
    main()
