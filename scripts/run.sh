#!/usr/bin/env bash
# Builds Orvane and starts it with the arguments given, in the current directory.
# Installs first what is missing. Where there is no display, Orvane runs on a
# virtual one, and a screenshot shows what it made of the directory.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
start_directory=$PWD
cd "$root"
source scripts/packages.sh

has_display() { [ -n "${DISPLAY:-}" ]; }

packages=("${build_packages[@]}")
has_display || packages+=("${headless_packages[@]}")
require "${packages[@]}"
build release stage -DORVANE_STAGED=ON
program=$root/build/release/stage/bin/orvane
cd "$start_directory"
if has_display; then
  exec "$program" "$@"
fi
exec python3 "$root/scripts/headless.py" --screenshot "$root/build/screenshot.png" "$program" "$@"
