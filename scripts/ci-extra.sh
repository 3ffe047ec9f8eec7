#!/usr/bin/env bash
# Further CI checks beyond the suites: generated wrappers up to date, the
# export tables of the Windows build, the threaded tests under
# ThreadSanitizer, a short fuzzing run of every harness, and the Windows
# build's tests under Wine where the machine can run it.
set -euo pipefail
cd "$(dirname "$0")/.."
echo "--- wrappers match the catalogue"
scripts/check-binding.sh
echo "--- export tables of the i686 DLL and module"
tools/check-exports.sh build/i686-w64-mingw32
echo "--- threaded tests under ThreadSanitizer"
cmake --preset tsan >/dev/null
cmake --build --preset tsan -j"$(nproc)" --target kiv_test_reliability kiv_test_g05 kiv_test_binding kiv_test_runtime kivch
ctest --preset tsan -R "Thread|Locks" --timeout 600
echo "--- fuzzing, 20 s per harness"
scripts/fuzz.sh 20
echo "--- Windows x86_64 build under Wine"
scripts/wine-test.sh
