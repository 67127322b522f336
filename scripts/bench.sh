#!/usr/bin/env bash
# Builds the release with its benchmarks, runs them on a display of their own,
# and prints one table: each figure, its reference measured in the same run, and
# the limit of their ratio. Fails where a limit is passed, or a benchmark fails.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh

require "${build_packages[@]}" "${bench_packages[@]}"
build release all -DORVANE_STAGED=ON -DORVANE_BENCH=ON

# Where the benchmarks make their directories; gone also if one of them fails.
TMPDIR=$(mktemp -d)
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT

tree=build/release/bench
status=0
rows=
for bench in "$tree"/*_bench; do
  echo "Measuring: $(basename "$bench")" >&2
  rows+=$(python3 scripts/headless.py "$bench" </dev/null)$'\n' || status=1
done

awk -F'\t' '
  BEGIN { printf layout = "%-56s %10s %-6s %10s %7s %7s  %s\n", "what", "figure", "", "reference", "ratio", "at most", "" }
  NF { printf layout, $1, $2, $3, $4, $5, $6, $7 }
' <<<"$rows"
exit $status
