#!/usr/bin/env bash
# Checks of the tree that no compiler makes: see check.py.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/packages.sh
require "${build_packages[@]}"
mkdir -p build
exec python3 scripts/check.py build
