#!/usr/bin/env bash
# Following a live session through a relay daemon of this test's own: the example traced
# while babeltrace2 with the plug-in behind source.ctf.lttng-live reads it, then again
# while ovfmt --trace reads it; every event arrives, typed fields as their text, and both
# print the same lines. Uses scripts/lttng-daemon.bash for the session daemon.
# usage: live_test.sh BABELTRACE2 PLUGIN_DIR SPEAKER OVFMT (BT_PRELOAD: preloaded into babeltrace2)
set -euo pipefail
babeltrace2=$1 plugin_dir=$2 speaker=$3 ovfmt=$4
source "$(dirname "$0")/../../scripts/lttng-daemon.bash"
work=$(mktemp -d)
relayd=""
cleanup() {
  [ -z "$relayd" ] || { kill "$relayd" 2>/dev/null; wait "$relayd" 2>/dev/null || true; }
  lttng_daemon_release
  rm -rf "$work"
}
lttng_daemon_acquire
trap cleanup EXIT

port=$((20000 + RANDOM % 20000))
lttng-relayd -o "$work/relay" -C tcp://127.0.0.1:$port -D tcp://127.0.0.1:$((port + 1)) \
  -L tcp://127.0.0.1:$((port + 2)) > "$work/relayd.log" 2>&1 &
relayd=$!
sleep 1

# live NAME COMMAND...: traces the example in a new live session while COMMAND URL reads
# it into $work/NAME.txt; keeps this run's lines (other programs may trace the same
# events meanwhile: this run's carry a router name of its own).
live() {
  local name=$1 session="orvane-live-$(hostname -s)-$$-$(date +%s%N)"
  shift
  lttng create "$session" --live=200000 --set-url=net://127.0.0.1:$port:$((port + 1)) >/dev/null
  lttng enable-event -u -s "$session" 'orvane_speaker:*' >/dev/null
  lttng start "$session" >/dev/null
  ASAN_OPTIONS=detect_leaks=0 "$@" "net://127.0.0.1:$((port + 2))/host/$(hostname)/$session" \
    > "$work/all.txt" 2> "$work/$name.log" &
  local reader=$! router="live-$$"
  sleep 1
  events=$("$speaker" --events 20 --router "$router" | grep -o 'traced [0-9]*' | cut -d' ' -f2)
  sleep 1
  lttng destroy "$session" >/dev/null
  wait "$reader" || { cat "$work/$name.log"; exit 1; }
  # Without the time and the CPU, which differ from one run to the next, in one order.
  grep "router = \"$router\"" "$work/all.txt" |
    sed 's/^\[[^]]*\] ([^)]*) //; s/{ cpu_id = [0-9]* }, //' | sort > "$work/$name.txt" || true
  local lines
  lines=$(wc -l < "$work/$name.txt")
  [ "$lines" -eq "$events" ] || { echo "live: $name: $lines lines for $events events"; exit 1; }
}

# babeltrace2 is not instrumented: a sanitized plug-in needs the runtime preloaded into it.
live babeltrace2 env LD_PRELOAD="${BT_PRELOAD:-}" "$babeltrace2" --plugin-path="$plugin_dir" \
  -c sink.orvane.text -i lttng-live
live ovfmt "$ovfmt" --trace
grep -q "router = \"live-$$\", peer = 10.0.0.1%et1," "$work/ovfmt.txt" || { echo "live: no typed peer key"; exit 1; }
diff "$work/babeltrace2.txt" "$work/ovfmt.txt" || { echo "live: ovfmt printed other lines"; exit 1; }
echo "live: $(wc -l < "$work/ovfmt.txt") events read by each"
