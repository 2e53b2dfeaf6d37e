#!/usr/bin/env bash
# Installs BUILD into a prefix and moves it (nothing installed may depend on where it
# was made), then builds the consumer against it with find_package and with pkg-config
# and runs both, and the ovfmt the CMake package imports.
set -euo pipefail
build=$1 here=$(cd "$(dirname "$0")" && pwd) work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cmake --install "$build" --prefix "$work/staged" && mv "$work/staged" "$work/prefix"
cmake -S "$here" -B "$work/cmake" -G Ninja -DCMAKE_PREFIX_PATH="$work/prefix"
cmake --build "$work/cmake"
export PKG_CONFIG_PATH=$work/prefix/lib/pkgconfig
c++ -std=c++20 "$here/consumer.cpp" -o "$work/pkgconfig-consumer" \
  $(pkg-config --cflags --libs orvane) -Wl,-rpath,"$(pkg-config --variable=libdir orvane-host)"
{ "$work/cmake/consumer"; "$work/pkgconfig-consumer"; "$(<"$work/cmake/ovfmt-path")" PGO 01 14 0a 01 10; } |
  diff -u <(printf '%s\n' "10.1.16.0/20 10.1.16.0/20" "10.1.16.0/20 10.1.16.0/20" 10.1.16.0/20) -
