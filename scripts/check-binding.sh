#!/usr/bin/env bash
# Regenerates the interpreter wrapper units from src/binding/catalogue.tsv
# into a scratch directory and compares them with the committed units.
# Exits non-zero when they differ (or a unit is missing or left over).
set -euo pipefail
cd "$(dirname "$0")/.."
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
python3 src/binding/generate.py --output "$scratch"
status=0
for generated in "$scratch"/wrap_*.cpp; do
  committed=src/binding/$(basename "$generated")
  if ! diff -u "$committed" "$generated"; then
    status=1
  fi
done
for committed in src/binding/wrap_*.cpp; do
  if [[ ! -e $scratch/$(basename "$committed") ]]; then
    echo "$committed: not produced by generate.py (left over)" >&2
    status=1
  fi
done
if ((status)); then
  echo "wrapper units differ from the catalogue: run python3 src/binding/generate.py" >&2
else
  echo "wrapper units match the catalogue"
fi
exit $status
