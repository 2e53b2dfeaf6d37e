#!/usr/bin/env bash
# scripts/trace-record end to end with the example: under a session daemon the script
# starts and stops (nothing left running), then under one already running, which it
# uses and leaves running. Every typed field is checked against ovfmt, and the same seed
# gives the same values in both traces.
# usage: record_test.sh PYTHON SPEAKER OVFMT WORKDIR
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
python=$1 speaker=$2 ovfmt=$3 work=$4
rm -rf "$work" && mkdir -p "$work"
fail() { echo "FAIL: $*" >&2; exit 1; }
# Records the example as router NAME into WORKDIR/NAME, its messages in NAME.log, and
# lists its typed fields (checked) in NAME.typed.
record() {
  "$root/scripts/trace-record" "$work/$1" "$speaker" --events 60 --seed 3 --router "$1" \
    </dev/null 2>"$work/$1.log" || fail "trace-record: $(cat "$work/$1.log")"
  "$python" "$here/check_trace.py" typed "$ovfmt" "$work/$1" 12 >"$work/$1.typed"
  babeltrace2 "$work/$1" | grep -c "router = \"$1\"" >/dev/null || fail "no event of router $1"
}
# Each event of the simulation with its typed fields, by name.
expected_fields="evpn_mac attributes__EL2 mac__E route__BRY
label_program operation__LO prefix__PGO
packet_in packet__PKT peer__BPK
peer_up address6__I6 address__I mac__E peer__BPK
route_update as_path__US label__ML nexthop__BNH prefix__PGO rd__RD route__BRY
route_withdraw prefix6__PG route__BRK"
# The events and typed fields of a listing, one line per event, names sorted.
fields_of() {
  sed 's/^orvane_speaker:\([^ ]*\) \([^ ]*\) .*/\1 \2/' "$1" | sort -u |
    awk '$1 != event { if (line) print line; event = $1; line = $1 } { line = line " " $2 }
         END { print line }'
}
source "$root/scripts/lttng-daemon.bash"

if lttng_daemon_answers; then
  echo "a session daemon is running already: the case of none is left out"
else
  record own
  pid=$(sed -n 's/.*started a session daemon (pid \([0-9]*\)).*/\1/p' "$work/own.log")
  [ -n "$pid" ] || fail "no daemon started: $(cat "$work/own.log")"
  grep -q "stopped session daemon $pid" "$work/own.log" || fail "daemon $pid not stopped"
  ! pgrep -s "$pid" >/dev/null || fail "processes of daemon $pid left running"
fi

lttng_daemon_acquire
running=$(cat "$(lttng_daemon_rundir)/lttng-sessiond.pid")
record running
grep -q "using the running session daemon (pid $running)" "$work/running.log" ||
  fail "the running daemon not used: $(cat "$work/running.log")"
kill -0 "$running" || fail "the running daemon $running was stopped"
lttng_daemon_release

diff -u <(echo "$expected_fields") <(fields_of "$work/running.typed") || fail "other typed fields"
[ ! -e "$work/own.typed" ] || diff -u "$work/own.typed" "$work/running.typed" ||
  fail "the same seed gave other values"
