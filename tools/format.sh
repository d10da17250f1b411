#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Formats every C++ file that git tracks (--write), or says which are not formatted and fails (--check).
set -euo pipefail
cd "$(dirname "$0")/.."

case "${1:-}" in
    --write) flags=(-i) ;;
    --check) flags=(--dry-run --Werror) ;;
    *)
        echo "usage: tools/format.sh --write|--check" >&2
        exit 2
        ;;
esac
git ls-files -z -- '*.h' '*.cpp' | xargs -0 clang-format --style=file "${flags[@]}"

# The formatter leaves comments as they are.
if ! git ls-files -z -- '*.h' '*.cpp' |
    xargs -0 awk 'length($0) > 120 { print FILENAME ":" FNR ": longer than 120 columns"; bad = 1 } END { exit bad }'; then
    exit 1
fi
