#!/usr/bin/env bash
# build.sh BUILD_DIR BUILD_TYPE [extra cmake options]: configures once, then builds.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
dir=$1
type=$2
shift 2
cmake -S "$root" -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE="$type" "$@" >/dev/null
cmake --build "$dir" -j "$(nproc)"
