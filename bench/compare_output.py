#!/usr/bin/env python3
"""Checks that two builds of ovfmt print the same bytes for the same values.

A faster formatter must print exactly what the one it replaces printed. This runs two
ovfmt commands (say, one built from main and one from a branch) over the same input,
with --counts so that lengths and consumed counts are compared too, and compares their
standard output, standard error and exit status byte for byte. The input is random
values for every id the new build registers (half of them with small leading bytes,
so tags, kinds and counts hit their valid ranges), one line in ten of them mangled the
ways a trace or a hand goes wrong (records of two values, bad or odd hex digits, other
separators, unknown ids, comments, carriage returns), plus any trace files given.
--options replaces --counts with other option sets, each compared in turn (write it
with '=', as its value starts with '-'; --options= compares plain text):

    bench/compare_output.py --old "env LD_LIBRARY_PATH=/tmp/old/lib /tmp/old/bin/ovfmt" \\
        --new build/release/bin/ovfmt --values 3000 --trace examples/demo.txt \\
        --options=--counts --options="--jobs 2" --options="--sep , --jobs 3"

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


def mangle(rng, line, ids):
    """`line` ("ID HEX") spoiled one of the ways a trace or a hand may spoil it."""
    value_id, _, hex_bytes = line.partition(" ")
    at = rng.randint(0, len(hex_bytes))
    separated = hex_bytes.replace(" ", rng.choice([":", "", "  ", "\t"]))
    return rng.choice([
        f"{value_id},{rng.choice(ids)} {hex_bytes} {random_value(rng)}",
        f"{value_id} {hex_bytes[:at]}{rng.choice('zG-')}{hex_bytes[at:]}",
        f"{value_id} {hex_bytes} 0",
        f"\t{value_id}\t{separated}",
        f"{value_id}X {hex_bytes}",
        f"# {line}",
        f"{line}\r",
        "",
    ])


def registered_ids(command):
    listed = subprocess.run(command + ["--list"], check=True, text=True, capture_output=True)
    return listed.stdout.split()


def write_random_batch(path, ids, per_id, seed):
    rng = random.Random(seed)
    with open(path, "w") as out:
        for value_id in ids:
            for _ in range(per_id):
                line = f"{value_id} {random_value(rng)}"
                out.write((mangle(rng, line, ids) if rng.random() < 0.1 else line) + "\n")


def run_batch(command, options, path):
    done = subprocess.run(command + options + ["--batch", path], capture_output=True)
    return done.returncode, done.stdout, done.stderr


def first_difference(old, new):
    """The 1-based line where two outputs part, or 0 when they are equal."""
    for number, (a, b) in enumerate(zip(old.split(b"\n"), new.split(b"\n")), start=1):
        if a != b:
            return number
    return 0 if old == new else min(old.count(b"\n"), new.count(b"\n")) + 1


def compare(old_cmd, new_cmd, options, path):
    """Returns (lines compared, description of the first difference or None)."""
    old, new = run_batch(old_cmd, options, path), run_batch(new_cmd, options, path)
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
    parser.add_argument("--options", action="append", help="ovfmt options to compare with "
                        "(repeatable; default --counts)")
    args = parser.parse_args()
    old_cmd, new_cmd = shlex.split(args.old), shlex.split(args.new)
    option_sets = [shlex.split(options) for options in args.options or ["--counts"]]

    ids = registered_ids(new_cmd)
    if ids != registered_ids(old_cmd):
        sys.exit("compare_output: the two builds register different ids")
    with tempfile.NamedTemporaryFile("w", suffix=".txt") as batch:
        write_random_batch(batch.name, ids, args.values, args.seed)
        total = 0
        for options in option_sets:
            for path in [batch.name] + args.trace:
                lines, difference = compare(old_cmd, new_cmd, options, path)
                total += lines
                if difference:
                    shown = shlex.join(options) or "no options"
                    print(f"compare_output: {path} ({shown}): {difference}")
                    sys.exit(1)
    print(f"compare_output: {len(ids)} ids, {total:,} output lines, identical "
          f"({args.values} random values per id, seed {args.seed}, "
          f"{len(args.trace)} trace file(s), {len(option_sets)} option set(s))")


if __name__ == "__main__":
    main()
