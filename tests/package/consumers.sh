#!/usr/bin/env bash
# Installs BUILD and moves the tree (nothing installed may depend on where it was made),
# builds the consumer with find_package and with pkg-config, runs both, Orvane::ovfmt and orvane;
# and a tracepoint provider on the installed tracing/TypedField.h, where lttng-ust is found.
set -euo pipefail
build=$1 here=$(cd "$(dirname "$0")" && pwd) work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT && cd "$work"
cmake --install "$build" --prefix staged && mv staged prefix
cmake -S "$here" -B cmake -G Ninja -DCMAKE_PREFIX_PATH="$work/prefix" && cmake --build cmake
export PKG_CONFIG_PATH=$work/prefix/lib/pkgconfig
c++ -std=c++20 "$here/consumer.cpp" -o pkgconfig-consumer $(pkg-config --cflags --libs orvane) \
  -Wl,-rpath,"$(pkg-config --variable=libdir orvane-host)"
{ cmake/consumer; ./pkgconfig-consumer; "$(<cmake/ovfmt-path)" PGO 01 14 0a 01 10; } |
  diff -u <(printf '%s\n' "10.1.16.0/20 10.1.16.0/20" "10.1.16.0/20 10.1.16.0/20" 10.1.16.0/20) -
[ ! -x cmake/traced_consumer ] || cmake/traced_consumer | grep -x 5
[ -z "${PYTHON:-}" ] || PYTHONPATH=prefix/$PYTHONDIR "$PYTHON" -c \
  'import orvane; print(orvane.format("PGO", bytes.fromhex("01140a0110")))' | grep -x 10.1.16.0/20
