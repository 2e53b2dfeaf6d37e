#!/usr/bin/env python3
"""Writes a seed corpus for the formatter fuzzer from the project's test vectors.

Vectors are the "ID HEX..." lines of examples/demo.txt and of the tests' vector files
(tests/vectors/*.txt), the {"ID", "hex", ...} cases of the C++ tests and the
"$ ovfmt ID HEX..." examples of docs/route-keys.md. Writes OUT/<ID>/<n> (the value
alone, for ORVANE_FUZZ_ID runs), OUT/all/<ID>-<n> (the id's index among the sorted demo
ids, then the value) and OUT/records/<n> (two consecutive demo values as one record, for
ORVANE_FUZZ_RECORDS runs: the count byte 1, both ids' indexes, then both values).
"""
import pathlib
import re
import sys

CASE = re.compile(r'\{"([A-Za-z0-9]+)",\s*"([0-9a-fA-F :]*)"')
VECTOR = re.compile(r"^([A-Za-z0-9]+)((?: [0-9a-f]{2})*) => ", re.M)
DOC_EXAMPLE = re.compile(r"^\$ ovfmt ([A-Za-z0-9]+) ([0-9a-f ]+)$", re.M)


def demo_vectors(demo):
    for line in demo.read_text().splitlines():
        words = line.split()
        if words and not line.startswith("#"):
            yield words[0], "".join(words[1:])


def vectors(demo, tests_dir):
    yield from demo_vectors(demo)
    sources = [(CASE, path) for path in sorted(tests_dir.rglob("*.cpp"))]
    sources += [(VECTOR, path) for path in sorted(tests_dir.rglob("vectors/*.txt"))]
    sources.append((DOC_EXAMPLE, tests_dir.parent / "docs" / "route-keys.md"))
    for pattern, source in sources:
        for match in pattern.finditer(source.read_text()):
            yield match.group(1), match.group(2)


def main():
    out, demo, tests_dir = (pathlib.Path(a) for a in sys.argv[1:4])
    ids = sorted({line.split()[0] for line in demo.read_text().splitlines()
                  if line.strip() and not line.startswith("#")})
    index = {name: i for i, name in enumerate(ids)}
    (out / "all").mkdir(parents=True, exist_ok=True)
    counts = {}
    for name, hex_text in vectors(demo, tests_dir):
        digits = hex_text.replace(":", "").replace(" ", "")
        if name not in index or len(digits) % 2:
            continue
        value = bytes.fromhex(digits)
        n = counts[name] = counts.get(name, 0) + 1
        (out / name).mkdir(exist_ok=True)
        (out / name / str(n)).write_bytes(value)
        (out / "all" / f"{name}-{n}").write_bytes(bytes([index[name]]) + value)
    write_records(out / "records", list(demo_vectors(demo)), index)


def write_records(folder, values, index):
    folder.mkdir(exist_ok=True)
    for n, ((first, hex1), (second, hex2)) in enumerate(zip(values, values[1:])):
        record = bytes([1, index[first], index[second]]) + bytes.fromhex(hex1 + hex2)
        (folder / str(n)).write_bytes(record)


if __name__ == "__main__":
    main()
