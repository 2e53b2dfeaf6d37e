#!/usr/bin/env bash
# Packs BUILD as a .deb and unpacks it: ovfmt decodes DEMO as the build's does, no binary
# names a path of the build machine, the docs' files and the recorder are there. Then, as
# root, installs it, uses it and purges it: nothing of it may be left, byte code included.
set -euo pipefail
build=$(cd "$1" && pwd) demo=$2 work=$(mktemp -d)
source_dir=$(cd "$(dirname "$0")/../.." && pwd)
installed=false
trap 'if $installed; then dpkg --purge orvane >/dev/null || true; fi; rm -rf "$work"' EXIT
fail() { echo "deb.sh: $*" >&2; exit 1; }

cpack --config "$build/CPackConfig.cmake" -G DEB -B "$work"
deb=$(echo "$work"/orvane_*.deb) root=$work/root
dpkg-deb -f "$deb" Depends | grep libstdc++6
dpkg-deb -x "$deb" "$root"
"$root/usr/bin/ovfmt" --batch "$demo" | diff -u <("$build/bin/ovfmt" --batch "$demo") -
# Not the source tree, not the build tree (__FILE__ in babeltrace2's error causes, debug paths).
for binary in $(find "$root" -type f \( -name '*.so*' -o -path '*/bin/ovfmt' \)); do
  ! strings -a "$binary" | grep -F -e "$source_dir" -e "$build" ||
    fail "${binary#"$root"} holds a path of the build machine"
done
# What the docs use, where the docs say it is once installed.
doc=$root/usr/share/doc/orvane docs=("$source_dir"/docs/*.md)
for file in README.md "${docs[@]##*/}" examples/{fleet_report.py,decode_records.py,demo.txt} \
    examples/{records.txt,call_exported.cpp,speaker/main.cpp,speaker/SpeakerTracepoints.h}; do
  [ -f "$doc/$file" ] || fail "the package has no $file in /usr/share/doc/orvane"
done
[ -x "$doc/examples/fleet_report.py" ] || fail "examples/fleet_report.py is not executable"
# The recorder finds its helper from bin/: with no arguments it prints its usage.
usage=$("$root/usr/bin/orvane-trace-record" 2>&1) && status=0 || status=$?
[ "$status" = 2 ] && grep -q '^usage: orvane-trace-record ' <<<"$usage" ||
  fail "orvane-trace-record without arguments: status $status, $usage"

# Installed. Builds of other trees at once take turns (one dpkg database); an orvane
# installed by someone else is not ours to replace.
[ "$(id -u)" = 0 ] || fail "installing the package needs root"
exec {lock}>/tmp/orvane-package-deb.lock && flock -x "$lock"
! dpkg -s orvane >/dev/null 2>&1 || fail "a package orvane is installed already: purge it first"
installed=true
dpkg -i "$deb" >/dev/null
dpkg -L orvane >"$work/files"
# The example program builds from its installed source as docs/traces.md shows, and runs.
if pkg-config --exists lttng-ust; then
  (cd /usr/share/doc/orvane/examples && c++ -std=c++20 -I. speaker/*.cpp -o "$work/bgp_speaker" \
     $(pkg-config --cflags --libs orvane lttng-ust))
  "$work/bgp_speaker" --events 3 >/dev/null
fi
# The babeltrace2 plug-in, in babeltrace2's own plug-in directory, prints a trace as the
# build's does, its formatters found beside the host library.
if [ -f "$build/lib/babeltrace2/plugins/babeltrace-plugin-orvane.so" ]; then
  python3 "$source_dir/tests/tracing/make_trace.py" "$work/traces"
  babeltrace2 "$work/traces/good" -c sink.orvane.text >"$work/installed.txt" ||
    fail "babeltrace2 cannot run the installed plug-in from its own plug-in directory"
  grep -q 'nexthop = <ip:10.0.0.1' "$work/installed.txt" || fail "the plug-in formats no value"
  babeltrace2 --plugin-path="$build/lib/babeltrace2/plugins" "$work/traces/good" \
    -c sink.orvane.text | diff -u - "$work/installed.txt"
fi
# The Python dependency names the minor version of the python3 the module was built for.
if [ -n "${PYTHON:-}" ]; then
  dpkg-deb -f "$deb" Depends | grep -F "python3 (>= $("$PYTHON" -c \
    'import sys; print("%d.%d" % sys.version_info[:2])'))"
  (cd "$work" && env -u PYTHONDONTWRITEBYTECODE -u PYTHONPATH /usr/bin/python3 -c \
    'import orvane; print(orvane.format("PGO", bytes.fromhex("01140a0110")))') |
    grep -x 10.1.16.0/20
  [ -d "/usr/$PYTHONDIR/orvane/__pycache__" ] || fail "importing orvane wrote no byte code"
fi

# Purged: every path it installed is gone, the module's directory and byte code with it.
dpkg --purge orvane >/dev/null
installed=false
while read -r path; do
  case $path in *[Oo]rvane*) [ ! -e "$path" ] || fail "purging the package left $path" ;; esac
done <"$work/files"
echo "deb.sh: packed, unpacked, installed and purged"
