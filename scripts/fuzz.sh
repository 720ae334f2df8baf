#!/usr/bin/env bash
# Builds the fuzz targets with clang (libFuzzer, AddressSanitizer,
# UndefinedBehaviorSanitizer) and runs each of them for SECONDS, two at a time.
# Usage: scripts/fuzz.sh [SECONDS]    (default 20; e.g. scripts/fuzz.sh 600)
# New inputs collect in build/fuzz/corpus/<target>/, crashes in build/fuzz/crashes/.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds="${1:-20}"
build="${FS_FUZZ_BUILD:-build/fuzz}"

cmake -S fuzz -B "$build" -G Ninja -DCMAKE_CXX_COMPILER=clang++-14 \
      -DCMAKE_BUILD_TYPE=Fuzz -DFUZZ_SECONDS="$seconds" >/dev/null
cmake --build "$build" -j2
ctest --test-dir "$build" -j2 --output-on-failure
