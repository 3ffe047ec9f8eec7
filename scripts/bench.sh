#!/usr/bin/env bash
# Builds the release preset and runs every benchmark program (peers in the
# same run). Usage: scripts/bench.sh [benchmark filter regex]
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh
cmake --preset release >/dev/null
cmake --build --preset release -j"$(nproc)" >/dev/null
filter=${1:-.}
for program in build/release/bench/bench_*; do
  [[ -x $program ]] || continue
  echo "=== $(basename "$program") ==="
  "$program" --benchmark_filter="$filter" --benchmark_repetitions=5 \
    --benchmark_report_aggregates_only=true --benchmark_min_time=0.2
done
