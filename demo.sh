#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Builds the library and runs the examples on real outlines. Pictures and tables are left in out/.
set -euo pipefail
cd "$(dirname "$0")"

tools/ensure_packages.sh g++ cmake ninja-build
# PNG pictures beside the SVG ones are a convenience: go on without them.
command -v rsvg-convert >/dev/null || tools/ensure_packages.sh librsvg2-bin || true

cmake --preset release >/dev/null
cmake --build --preset release

mkdir -p out
for example in build/release/examples/[0-9]*; do
    [ -x "$example" ] && [ ! -d "$example" ] || continue
    echo
    echo "== $(basename "$example")"
    "$example" examples/data out
done

if command -v rsvg-convert >/dev/null; then
    for picture in out/*.svg; do
        rsvg-convert "$picture" -o "${picture%.svg}.png"
    done
fi
echo
echo "Pictures: $(find out -name '*.svg' | wc -l) in $PWD/out"
