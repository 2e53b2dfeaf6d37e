#!/usr/bin/env bash
# Bounded fuzz run over every registered id: RUNS inputs per id, starting from the
# seeds, each id on its own; then RUNS whole records (random id lists over random bytes).
# Fails on the first finding.
# With TRACE given as 1, also RUNS typed trace fields (random ids over random bytes).
# usage: smoke.sh FUZZER OVFMT SEED_DIR RUNS [TRACE]
set -euo pipefail
fuzzer=$1 ovfmt=$2 seeds=$3 runs=$4 trace=${5:-0}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The plug-in ids: --list prints them first, then a blank line and the host's base types.
ids=$("$ovfmt" --list | sed '/^$/q')
count=0
for id in $ids; do
  corpus="$work/$id"
  mkdir -p "$corpus"
  [ -d "$seeds/$id" ] && cp "$seeds/$id"/* "$corpus"/ 2>/dev/null || true
  if ! ORVANE_FUZZ_ID="$id" "$fuzzer" -runs="$runs" -seed=1 -max_len=600 \
       -artifact_prefix="$work/" "$corpus" > "$work/log" 2>&1; then
    echo "fuzz smoke: finding for id $id:"
    tail -40 "$work/log"
    exit 1
  fi
  count=$((count + 1))
done
mkdir -p "$work/records"
cp "$seeds/records"/* "$work/records"/ 2>/dev/null || true
if ! ORVANE_FUZZ_RECORDS=1 "$fuzzer" -runs="$runs" -seed=1 -max_len=600 \
     -artifact_prefix="$work/" "$work/records" > "$work/log" 2>&1; then
  echo "fuzz smoke: finding in a record:"
  tail -40 "$work/log"
  exit 1
fi
# Typed trace fields, when the fuzzer was built with the trace reader; each field's bytes
# in a block of their exact size.
if [ "$trace" = 1 ]; then
  mkdir -p "$work/trace"
  if ! ORVANE_FUZZ_TRACE=1 "$fuzzer" -runs="$runs" -seed=1 -max_len=600 \
       -artifact_prefix="$work/" "$work/trace" > "$work/log" 2>&1; then
    echo "fuzz smoke: finding in a trace field:"
    tail -40 "$work/log"
    exit 1
  fi
fi
echo "fuzz smoke: $count ids, records and trace fields, $runs runs each, no finding"
