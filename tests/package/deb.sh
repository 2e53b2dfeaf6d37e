#!/usr/bin/env bash
# Packs BUILD as a .deb with dependencies (dpkg-shlibdeps), unpacks it and decodes DEMO
# with the packaged ovfmt: the text must be the build's own. Its Python module loads too,
# and the README is among its documents.
set -euo pipefail
build=$1 demo=$2 work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cpack --config "$build/CPackConfig.cmake" -G DEB -B "$work"
dpkg-deb -f "$work"/orvane_*.deb Depends | grep libstdc++6
dpkg-deb -c "$work"/orvane_*.deb | grep '/usr/share/doc/orvane/README.md$' >/dev/null
dpkg-deb -x "$work"/orvane_*.deb "$work/root"
"$work/root/usr/bin/ovfmt" --batch "$demo" | diff -u <("$build/bin/ovfmt" --batch "$demo") -
# The Python dependency names the minor version of the python3 the module was built for.
minor=$([ -z "${PYTHON:-}" ] || "$PYTHON" -c 'import sys; print("%d.%d" % sys.version_info[:2])')
[ -z "${PYTHON:-}" ] || { dpkg-deb -f "$work"/orvane_*.deb Depends | grep -F "python3 (>= $minor)"
  PYTHONPATH=$work/root/usr/$PYTHONDIR "$PYTHON" -c 'import orvane; print(orvane.ids()[0])' | grep -x A; }
# The babeltrace2 plug-in sits in babeltrace2's own plug-in directory under /usr and, from
# there, prints a trace as the build's does, its formatters found beside the host library.
plugin=usr/lib/x86_64-linux-gnu/babeltrace2/plugins
if [ -f "$build/lib/babeltrace2/plugins/babeltrace-plugin-orvane.so" ]; then
  python3 tracing/make_trace.py "$work/traces"
  babeltrace2 --plugin-path="$work/root/$plugin" "$work/traces/good" -c sink.orvane.text |
    diff -u <(babeltrace2 --plugin-path="$build/lib/babeltrace2/plugins" "$work/traces/good" \
              -c sink.orvane.text) -
  grep -q 'nexthop = <ip:10.0.0.1' <(babeltrace2 --plugin-path="$work/root/$plugin" \
    "$work/traces/good" -c sink.orvane.text)
fi
