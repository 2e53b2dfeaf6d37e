#!/usr/bin/env bash
# Records BoundProvider's events and checks the size of every field: a typed value is
# recorded whole up to 65535 bytes and empty above that, for an invalid length (also a
# wrapped one) and for a null pointer; and the length function runs once per event.
# usage: bound_test.sh PYTHON PROVIDER WORKDIR
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
python=$1 provider=$2 work=$3
rm -rf "$work"
calls=$("$here/../../scripts/trace-record" "$work" "$provider")
[ "$calls" = 5 ] || { echo "the length function ran $calls times for 5 events" >&2; exit 1; }
expected=""
for row in "4 2 5" "65535 0 0" "0 2 5" "0 2 5" "0 2 5"; do
  read -r stated operation prefix <<<"$row"
  expected+="orvane_test:value stated $stated
orvane_test:value operation__LO $operation
orvane_test:value prefix__PGO $prefix
"
done
diff -u <(printf %s "$expected") <("$python" "$here/check_trace.py" lengths "$work")
