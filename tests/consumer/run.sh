#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Builds the library as its users get it, and a small program against it in the three ways they may take:
# find_package, pkg-config and as a subdirectory of their own project.
set -euo pipefail
cd "$(dirname "$0")/../.."

source=$PWD
work=$source/build/consumer
prefix=$work/prefix
rm -rf "$work"
mkdir -p "$work"

expect() {
    local found
    found=$("$2")
    if [ "$found" != "area 7" ]; then
        echo "$1: expected 'area 7', found '$found'" >&2
        exit 1
    fi
    echo "$1: ok"
}

cmake -S . -B "$work/library" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix" \
    -DQUARN_BUILD_TESTS=OFF -DQUARN_BUILD_EXAMPLES=OFF >/dev/null
cmake --build "$work/library" --target install >/dev/null

cmake -S tests/consumer/find_package -B "$work/find_package" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/find_package" >/dev/null
expect find_package "$work/find_package/consumer"

pkgconfig=$(dirname "$(find "$prefix" -name quarngeo.pc)")
# shellcheck disable=SC2046
PKG_CONFIG_PATH=$pkgconfig g++ -std=c++17 tests/consumer/consumer.cpp -o "$work/pkgconfig" \
    $(PKG_CONFIG_PATH=$pkgconfig pkg-config --cflags --libs quarngeo) -Wl,-rpath,"$(dirname "$pkgconfig")"
expect pkg-config "$work/pkgconfig"

cmake -S tests/consumer/subdirectory -B "$work/subdirectory" -G Ninja -DQUARN_SOURCE_DIR="$source" >/dev/null
cmake --build "$work/subdirectory" >/dev/null
expect subdirectory "$work/subdirectory/consumer"
