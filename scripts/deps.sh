#!/usr/bin/env bash
# Installs the Debian packages that building and testing need, when they are
# missing (as root, with apt-get). Usage: scripts/deps.sh [extra packages...]
set -euo pipefail
packages=(cmake make g++ pkg-config libgtest-dev libgmock-dev libbenchmark-dev
          libmpfr-dev libgmp-dev libboost-dev libgsl-dev r-mathlib clang-format
          python3 "$@")
missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if ((${#missing[@]})); then
  if [[ $(id -u) -ne 0 ]]; then
    echo "missing Debian packages: ${missing[*]} (run as root to install them)" >&2
    exit 1
  fi
  echo "installing: ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  apt-get update -qq || true
  apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi
