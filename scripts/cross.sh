#!/usr/bin/env bash
# Cross-compiles the library and the interpreter module for 32-bit Windows
# with MinGW-w64 (installed when missing).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/deps.sh g++-mingw-w64-i686
cmake --preset i686-w64-mingw32 >/dev/null
cmake --build --preset i686-w64-mingw32 -j"$(nproc)"
