#!/usr/bin/env bash
# Builds the libFuzzer harnesses with clang, AddressSanitizer and
# UndefinedBehaviorSanitizer in build/fuzz, then runs each for a bounded time
# on its committed seed corpus (fuzz/corpus/<harness>; new inputs go to
# build/fuzz/corpus/<harness>, the repository stays untouched).
# Prints the executions of every harness; exits non-zero if any crashes,
# leaks, trips a sanitizer or breaks a contract that the harness checks
# (crash inputs are kept in build/fuzz/artifacts).
# Usage: scripts/fuzz.sh [seconds per harness (default 20)] [harness ...]
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-20}
shift || true

if ! ls /usr/lib/llvm-*/lib/clang/*/lib/linux/libclang_rt.fuzzer-x86_64.a >/dev/null 2>&1; then
  scripts/deps.sh clang libclang-rt-14-dev
fi

build=build/fuzz
sanitize="-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all"
flags="$sanitize -fno-omit-frame-pointer -g -O1"
cmake -S . -B "$build" -G "Unix Makefiles" \
  -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE= \
  -DCMAKE_C_FLAGS="$flags" -DCMAKE_CXX_FLAGS="$flags" \
  -DCMAKE_MODULE_LINKER_FLAGS="-fsanitize=address,undefined" \
  -DCMAKE_SHARED_LINKER_FLAGS="-fsanitize=address,undefined" \
  -DKIV_BUILD_FUZZ=ON -DKIV_BUILD_TESTS=OFF -DKIV_BUILD_BENCH=OFF -DKIV_BUILD_TOOLS=OFF \
  -DKIV_WERROR=OFF >/dev/null

harnesses=("$@")
if ((${#harnesses[@]} == 0)); then
  for source in fuzz/fuzz_*.cpp; do harnesses+=("$(basename "$source" .cpp)"); done
fi
targets=()
for h in "${harnesses[@]}"; do
  if [[ $h == fuzz_module && ! -f src/binding/CMakeLists.txt ]]; then
    echo "fuzz_module: skipped (no interpreter module in this tree)"
    continue
  fi
  targets+=("$h")
done
cmake --build "$build" -j2 --target "${targets[@]}" >/dev/null

export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:allocator_may_return_null=1}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-halt_on_error=1:print_stacktrace=1}
mkdir -p "$build/artifacts"
status=0
printf '%-16s %12s %8s  %s\n' harness executions exec/s result
for h in "${targets[@]}"; do
  program=$build/fuzz/$h
  [[ -x $program ]] || { echo "$h: not built"; status=1; continue; }
  work=$build/corpus/$h
  mkdir -p "$work" "fuzz/corpus/$h"
  log=$build/$h.log
  if "$program" "$work" "fuzz/corpus/$h" -max_total_time="$seconds" -timeout=10 \
       -rss_limit_mb=2048 -print_final_stats=1 \
       -artifact_prefix="$build/artifacts/$h-" >"$log" 2>&1; then
    result=ok
  else
    result="FAILED (see $log)"
    status=1
  fi
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -1)
  rate=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log" | tail -1)
  printf '%-16s %12s %8s  %s\n' "$h" "${runs:-?}" "${rate:-?}" "$result"
done
exit $status
