#!/usr/bin/env bash
# Builds the library with warnings as errors and runs the whole test suite.
# Usage: scripts/test.sh [preset]   (default: release)
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:-release}
scripts/deps.sh
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" -j"$(nproc)"
ctest --preset "$preset" -j"$(nproc)" --timeout 600
