#!/bin/sh
# Makes the four sound files. Needs a C++ compiler.
set -eu
cd "$(dirname "$0")"

build=$(mktemp -d)
trap 'rm -rf "$build"' EXIT
for part in waves music; do
    "${CXX:-c++}" -std=c++20 -O2 -o "$build/$part" "make_$part.cpp"
    "$build/$part" .
done
