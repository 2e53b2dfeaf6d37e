#!/usr/bin/env bash
# Packs BUILD as a .deb with dependencies (dpkg-shlibdeps), unpacks it and decodes DEMO
# with the packaged ovfmt: the text must be the build's own. Its Python module loads too;
# it holds the docs with the examples they use and orvane-trace-record; its binaries name
# no path of the machine that built them. Then, as root, it installs the package, imports
# the module with /usr/bin/python3 (which writes byte code beside it) and purges it:
# nothing of the package may be left.
set -euo pipefail
build=$(cd "$1" && pwd) demo=$2 work=$(mktemp -d)
source_dir=$(cd "$(dirname "$0")/../.." && pwd)
installed=false
cleanup() {
  if $installed; then dpkg --purge orvane >/dev/null || true; fi
  rm -rf "$work"
}
trap cleanup EXIT
fail() { echo "deb.sh: $*" >&2; exit 1; }

cpack --config "$build/CPackConfig.cmake" -G DEB -B "$work"
deb=$(echo "$work"/orvane_*.deb)
dpkg-deb -f "$deb" Depends | grep libstdc++6
dpkg-deb -x "$deb" "$work/root"
"$work/root/usr/bin/ovfmt" --batch "$demo" | diff -u <("$build/bin/ovfmt" --batch "$demo") -
# The Python dependency names the minor version of the python3 the module was built for.
minor=$([ -z "${PYTHON:-}" ] || "$PYTHON" -c 'import sys; print("%d.%d" % sys.version_info[:2])')
[ -z "${PYTHON:-}" ] || { dpkg-deb -f "$deb" Depends | grep -F "python3 (>= $minor)"
  PYTHONPATH=$work/root/usr/$PYTHONDIR "$PYTHON" -c 'import orvane; print(orvane.ids()[0])' | grep -x A; }

# What the docs use, where the docs say it is once installed.
doc=$work/root/usr/share/doc/orvane
for page in README.md "$source_dir"/docs/*.md; do
  [ -f "$doc/${page##*/}" ] || fail "the package has no ${page##*/} in /usr/share/doc/orvane"
done
for example in fleet_report.py decode_records.py call_exported.cpp demo.txt records.txt \
               speaker/main.cpp speaker/SpeakerTracepoints.h; do
  [ -f "$doc/examples/$example" ] || fail "the package has no examples/$example"
done
[ -x "$doc/examples/fleet_report.py" ] || fail "examples/fleet_report.py is not executable"
# The recorder finds its helper from bin/: with no arguments it prints its usage.
status=0
"$work/root/usr/bin/orvane-trace-record" 2>"$work/usage" || status=$?
[ "$status" = 2 ] && grep -q '^usage: orvane-trace-record ' "$work/usage" ||
  fail "orvane-trace-record without arguments: status $status, $(cat "$work/usage")"

# No path of the build machine: not the source tree, not the build tree (__FILE__ in
# babeltrace2's error causes, debug paths).
for binary in $(find "$work/root" -type f \( -name '*.so*' -o -path '*/bin/ovfmt' \)); do
  if strings -a "$binary" | grep -F -e "$source_dir" -e "$build"; then
    fail "${binary#"$work/root"} holds a path of the build machine"
  fi
done

# The babeltrace2 plug-in sits in babeltrace2's own plug-in directory under /usr and, from
# there, prints a trace as the build's does, its formatters found beside the host library.
plugin=usr/lib/x86_64-linux-gnu/babeltrace2/plugins
if [ -f "$build/lib/babeltrace2/plugins/babeltrace-plugin-orvane.so" ]; then
  [ -f "$work/root/$plugin/babeltrace-plugin-orvane.so" ] || fail "no babeltrace2 plug-in"
  python3 "$source_dir/tests/tracing/make_trace.py" "$work/traces"
  babeltrace2 --plugin-path="$work/root/$plugin" "$work/traces/good" -c sink.orvane.text |
    diff -u <(babeltrace2 --plugin-path="$build/lib/babeltrace2/plugins" "$work/traces/good" \
              -c sink.orvane.text) -
  grep -q 'nexthop = <ip:10.0.0.1' <(babeltrace2 --plugin-path="$work/root/$plugin" \
    "$work/traces/good" -c sink.orvane.text)
fi

# Installed and purged. Builds of other trees at once take turns (one dpkg database); an
# orvane installed by someone else is not ours to replace.
[ "$(id -u)" = 0 ] || fail "installing the package needs root"
exec {lock}>/tmp/orvane-package-deb.lock
flock -x "$lock"
! dpkg -s orvane >/dev/null 2>&1 || fail "a package orvane is installed already: purge it first"
installed=true
dpkg -i "$deb" >/dev/null
dpkg -L orvane >"$work/files"
if [ -n "${PYTHON:-}" ]; then
  module=/usr/$PYTHONDIR/orvane
  (cd "$work" && env -u PYTHONDONTWRITEBYTECODE -u PYTHONPATH /usr/bin/python3 -c \
    'import orvane; print(orvane.format("PGO", bytes.fromhex("01140a0110")))') |
    grep -x 10.1.16.0/20
  [ -d "$module/__pycache__" ] || fail "importing orvane wrote no byte code in $module"
fi
# The example program builds from its installed source as docs/traces.md shows, and runs.
if pkg-config --exists lttng-ust; then
  (cd /usr/share/doc/orvane/examples && c++ -std=c++20 -I. speaker/*.cpp -o "$work/bgp_speaker" \
     $(pkg-config --cflags --libs orvane lttng-ust))
  "$work/bgp_speaker" --events 3 >/dev/null
fi
dpkg --purge orvane >/dev/null
installed=false
while read -r path; do
  case $path in *[Oo]rvane*) [ ! -e "$path" ] || fail "purging the package left $path" ;; esac
done <"$work/files"
if [ -n "${PYTHON:-}" ]; then
  [ ! -e "$module" ] || fail "purging the package left $module"
  ! (cd "$work" && env -u PYTHONPATH /usr/bin/python3 -c 'import orvane' 2>/dev/null) ||
    fail "import orvane still works after the purge"
fi
echo "deb.sh: packed, unpacked, installed and purged"
