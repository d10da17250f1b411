#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Runs clang-tidy over the library's sources.   tools/tidy.sh BUILD_DIR [FILE...]
set -euo pipefail
cd "$(dirname "$0")/.."

build=${1:?"usage: tools/tidy.sh BUILD_DIR [FILE...]"}
shift
if [ $# -eq 0 ]; then
    mapfile -d '' files < <(git ls-files -z -- 'src/*.cpp')
else
    files=("$@")
fi
clang-tidy -p "$build" --quiet "${files[@]}"
