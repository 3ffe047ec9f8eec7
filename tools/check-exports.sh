#!/usr/bin/env bash
# Checks the export tables of a Windows build with objdump -p:
#   libkiv.dll  exports every routine declared in include/kiv.h, and its
#               import library libkiv.dll.a is there;
#   libkiv.dl   (when built) exports every wrapper of the catalogue
#               (tools/kiv/catalogue.cpp) and __builtin_Ch_VaArg.
# Usage: tools/check-exports.sh [BUILD_DIR]   (default build/i686-w64-mingw32)
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$root/build/i686-w64-mingw32}
status=0

objdump_for() {
    local tool
    for tool in i686-w64-mingw32-objdump x86_64-w64-mingw32-objdump objdump; do
        command -v "$tool" >/dev/null && { echo "$tool"; return; }
    done
    echo "check-exports: no objdump found" >&2
    exit 1
}
objdump=$(objdump_for)

# Names in the export name table of a PE file.
exported() {
    "$objdump" -p "$1" | awk '/\[Ordinal\/Name Pointer\] Table/ {on = 1; next}
                              on && /^\t\[ *[0-9]+\]/ {print $NF; next}
                              on && NF == 0 {on = 0}' | sort -u
}

# compare FILE WHAT NAMES...: every name must be exported by FILE.
compare() {
    local file=$1 what=$2 missing
    shift 2
    missing=$(comm -23 <(printf '%s\n' "$@" | sort -u) <(exported "$file"))
    if [[ -n $missing ]]; then
        echo "check-exports: $(basename "$file") lacks $(wc -l <<<"$missing") $what:" >&2
        sed 's/^/  /' <<<"$missing" >&2
        status=1
    else
        echo "check-exports: $(basename "$file") exports all $# $what"
    fi
}

dll=$(find "$build" -name libkiv.dll -print -quit)
[[ -n $dll ]] || { echo "check-exports: no libkiv.dll under $build" >&2; exit 1; }
mapfile -t routines < <(grep -o '^KIV_API[^;(]*(' "$root/include/kiv.h" |
    sed -E 's/.*[ *]([A-Za-z0-9_]+) *\($/\1/')
compare "$dll" "routines declared in kiv.h" "${routines[@]}"
[[ -n $(find "$build" -name 'libkiv.dll.a' -print -quit) ]] || {
    echo "check-exports: import library libkiv.dll.a missing" >&2
    status=1
}

module=$(find "$build" -name libkiv.dl -print -quit)
if [[ -n $module ]]; then
    mapfile -t wrappers < <(grep -o '"[a-z0-9_]*_chdl"' "$root/tools/kiv/catalogue.cpp" | tr -d '"')
    compare "$module" "catalogue exports" "${wrappers[@]}" __builtin_Ch_VaArg
else
    echo "check-exports: libkiv.dl not built; its table is not checked"
fi
exit $status
