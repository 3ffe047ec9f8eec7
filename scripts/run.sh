#!/usr/bin/env bash
# Builds the library and runs the demonstration: a tour of the routines.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh
cmake --preset release >/dev/null
cmake --build --preset release -j"$(nproc)" >/dev/null
if [[ -x build/release/tools/kiv ]]; then
  exec build/release/tools/kiv demo
else
  exec build/release/examples/example_runtime
fi
