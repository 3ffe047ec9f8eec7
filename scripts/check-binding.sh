#!/usr/bin/env bash
# Checks that everything derived from the routine records (src/routines.tsv)
# is up to date: the interpreter wrapper units, the kiv tool's routine table
# and export list, the routine list of docs/cli.md, and the declarations of
# include/kiv.h. Exits non-zero on any difference.
set -euo pipefail
cd "$(dirname "$0")/.."
python3 tools/generate/routines.py --check
