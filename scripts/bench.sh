#!/usr/bin/env bash
# Builds and runs the benchmarks; each prints its table.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh

require "${build_packages[@]}" "${bench_packages[@]}"
build release all -DORVANE_STAGED=ON -DORVANE_BENCH=ON

tree=build/release
status=0
for bench in "$tree"/bench/*_bench; do
  python3 scripts/headless.py "$bench" "$tree/stage/bin/orvane" "$tree/bench/bare_window" || status=1
done
exit $status
