#!/usr/bin/env bash
# Further CI checks beyond the suites: generated wrappers up to date.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/check-binding.sh
