#!/usr/bin/env bash
# Bounded fuzz run over every registered id: RUNS inputs per id, starting from the
# seeds, each id on its own. Fails on the first finding.
# usage: smoke.sh FUZZER OVFMT SEED_DIR RUNS
set -euo pipefail
fuzzer=$1 ovfmt=$2 seeds=$3 runs=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

ids=$("$ovfmt" --list)
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
echo "fuzz smoke: $count ids, $runs runs each, no finding"
