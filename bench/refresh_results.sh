#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Runs the comparison and puts its tables into README.md.   bench/refresh_results.sh build/bench/bench/rivals/rivals
set -euo pipefail
program=$(realpath "${1:?"usage: bench/refresh_results.sh PROGRAM"}")
cd "$(dirname "$0")"

tables=$(mktemp)
trap 'rm -f "$tables"' EXIT
status=0
"$program" >"$tables" || status=$?
if ! grep -q '^### Indexes of boxes' "$tables"; then
    cat "$tables" >&2
    echo "The comparison did not come to its end; README.md stays as it is." >&2
    exit 1
fi
awk -v tables="$tables" '
    /^<!-- results end -->$/ { skips = 0 }
    !skips { print }
    /^<!-- results begin -->$/ { skips = 1; print ""; while ((getline line < tables) > 0) print line }
' README.md >README.md.new
mv README.md.new README.md
exit "$status"
