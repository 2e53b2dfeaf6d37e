#!/usr/bin/env bash
# Packs BUILD as a .deb with dependencies (dpkg-shlibdeps), unpacks it and decodes DEMO
# with the packaged ovfmt: the text must be the build's own.
set -euo pipefail
build=$1 demo=$2 work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cpack --config "$build/CPackConfig.cmake" -G DEB -B "$work"
dpkg-deb -f "$work"/orvane_*.deb Depends | grep libstdc++6
dpkg-deb -x "$work"/orvane_*.deb "$work/root"
"$work/root/usr/bin/ovfmt" --batch "$demo" | diff -u <("$build/bin/ovfmt" --batch "$demo") -
