#!/usr/bin/env bash
# Installs a configured and built tree into a temporary prefix and builds a
# small consumer against it both ways: with find_package(kiv CONFIG) (shared
# and static library) and with pkg-config. Also runs the installed tool.
# Usage: scripts/install-test.sh [BUILD_DIR] [EXTRA_COMPILER_FLAGS]
#   BUILD_DIR defaults to build/release; the flags (e.g. sanitizer options)
#   are passed to the consumer builds.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "${1:-$root/build/release}" && pwd)
flags=${2:-}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
expected="1.1102230246251568e-16 NE_ALLOC_FAIL"

fail() { echo "install-test: $*" >&2; exit 1; }

cmake --install "$build" --prefix "$prefix" >"$work/install.log" || {
    cat "$work/install.log" >&2
    fail "cmake --install failed"
}

libdir=$(cd "$prefix" && dirname "$(find . -name 'libkiv.a' | head -1)")
libdir=${libdir#./}
[[ -n $libdir ]] || fail "libkiv.a not installed"
for file in include/kiv.h "$libdir/libkiv.a" "$libdir/libkiv.so" bin/kiv share/man/man1/kiv.1 \
    "$libdir/cmake/kiv/kivConfig.cmake" "$libdir/pkgconfig/kiv.pc"; do
    [[ -e $prefix/$file ]] || fail "$file not installed"
done
if [[ -e $build/src/binding/libkiv.dl ]] || find "$build" -name libkiv.dl | grep -q .; then
    [[ -e $prefix/$libdir/libkiv.dl ]] || fail "libkiv.dl built but not installed"
fi

# 1. CMake package.
cmake -S "$root/tests/install" -B "$work/cmake" -DCMAKE_PREFIX_PATH="$prefix" \
    -DCMAKE_C_FLAGS="$flags" -DCMAKE_CXX_FLAGS="$flags" \
    -DCMAKE_EXE_LINKER_FLAGS="$flags" >"$work/cmake.log" 2>&1 || {
    cat "$work/cmake.log" >&2
    fail "find_package(kiv CONFIG) failed"
}
cmake --build "$work/cmake" >>"$work/cmake.log" 2>&1 || {
    cat "$work/cmake.log" >&2
    fail "consumer build with CMake failed"
}
for program in consumer_shared consumer_static; do
    out=$("$work/cmake/$program")
    [[ $out == "$expected" ]] || fail "$program printed '$out'"
done

# 2. pkg-config.
export PKG_CONFIG_PATH=$prefix/$libdir/pkgconfig
pc_flags=$(pkg-config --cflags --libs kiv) || fail "pkg-config --cflags --libs kiv failed"
# shellcheck disable=SC2086
cc $flags "$root/tests/install/consumer.c" $pc_flags -o "$work/consumer_pc" ||
    fail "consumer build with pkg-config failed"
# With the run path from pkg-config's libdir: no LD_LIBRARY_PATH needed.
# shellcheck disable=SC2086
cc $flags "$root/tests/install/consumer.c" $pc_flags \
    -Wl,-rpath,"$(pkg-config --variable=libdir kiv)" -o "$work/consumer_pc" ||
    fail "consumer build with pkg-config failed"
out=$("$work/consumer_pc")
[[ $out == "$expected" ]] || fail "consumer_pc printed '$out'"
# Static, from pkg-config's private libraries.
# shellcheck disable=SC2086
cc $flags "$root/tests/install/consumer.c" $(pkg-config --cflags kiv) \
    "$(pkg-config --variable=libdir kiv)/libkiv.a" $(pkg-config --libs-only-l --libs-only-other --static kiv | sed 's/-lkiv//') \
    -o "$work/consumer_pc_static" || fail "static consumer build with pkg-config failed"
out=$("$work/consumer_pc_static")
[[ $out == "$expected" ]] || fail "consumer_pc_static printed '$out'"

# 3. Plain compiler flags, as the README shows them.
# shellcheck disable=SC2086
cc $flags "$root/tests/install/consumer.c" -I"$prefix/include" -L"$prefix/$libdir" \
    -Wl,-rpath,"$prefix/$libdir" -lkiv -lm -o "$work/consumer_plain" ||
    fail "consumer build with plain flags failed"
out=$("$work/consumer_plain")
[[ $out == "$expected" ]] || fail "consumer_plain printed '$out'"

# 4. The installed tool finds its library.
"$prefix/bin/kiv" list | tail -1 | grep -q "exports have their routine" ||
    fail "installed kiv does not run"

echo "install-test: passed (CMake package from a C project, static and shared; pkg-config, shared and static; plain flags; kiv tool)"
