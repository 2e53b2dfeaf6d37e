#!/usr/bin/env bash
# The plug-in behind source.ctf.lttng-live: the example traced in a live session through a
# relay daemon of this test's own, read while it runs; every event arrives, typed fields
# as their text. Uses scripts/lttng-daemon.bash for the session daemon.
# usage: live_test.sh BABELTRACE2 PLUGIN_DIR SPEAKER   (BT_PRELOAD: preloaded into babeltrace2)
set -euo pipefail
babeltrace2=$1 plugin_dir=$2 speaker=$3
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
session="orvane-live-$(hostname -s)-$$-$(date +%s%N)"
lttng create "$session" --live=200000 --set-url=net://127.0.0.1:$port:$((port + 1)) >/dev/null
lttng enable-event -u -s "$session" 'orvane_speaker:*' >/dev/null
lttng start "$session" >/dev/null
LD_PRELOAD=${BT_PRELOAD:-} ASAN_OPTIONS=detect_leaks=0 "$babeltrace2" --plugin-path="$plugin_dir" \
  -i lttng-live "net://127.0.0.1:$((port + 2))/host/$(hostname)/$session" -c sink.orvane.text \
  > "$work/live.txt" 2> "$work/babeltrace2.log" &
reader=$!
sleep 1
# Other programs may trace the same events meanwhile: this run's carry a router name of its own.
router="live-$$"
events=$("$speaker" --events 20 --router "$router" | grep -o 'traced [0-9]*' | cut -d' ' -f2)
sleep 1
lttng destroy "$session" >/dev/null
wait "$reader" || { cat "$work/babeltrace2.log"; exit 1; }
lines=$(grep -c "router = \"$router\"" "$work/live.txt" || true)
[ "$lines" -eq "$events" ] || { echo "live: $lines lines for $events events"; exit 1; }
grep -q "router = \"$router\", peer = 10.0.0.1%et1," "$work/live.txt" || { echo "live: no typed peer key"; exit 1; }
echo "live: $lines events read"
