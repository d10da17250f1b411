#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Builds and runs all tests: with GCC, with Clang and under the sanitizers, then what a consumer of the installed library
# sees.
#   ./test.sh            everything
#   ./test.sh --quick    GCC only, for the inner loop
set -euo pipefail
cd "$(dirname "$0")"

quick=false
case "${1:-}" in
    "") ;;
    --quick) quick=true ;;
    *)
        echo "usage: ./test.sh [--quick]" >&2
        exit 2
        ;;
esac

tools/ensure_packages.sh g++ cmake ninja-build libgtest-dev
$quick || tools/ensure_packages.sh clang gdb pkg-config

run_preset() {
    echo
    echo "== $1"
    cmake --preset "$1" >/dev/null
    cmake --build --preset "$1"
    ctest --preset "$1" -j "$(nproc)"
}

run_preset dev
if ! $quick; then
    run_preset dev-clang
    run_preset asan
    echo
    echo "== consumers"
    tests/consumer/run.sh
fi
