#!/usr/bin/env bash
# Sets everything up, builds, and runs the whole test suite.
# Usage: scripts/test.sh [asan]
#   asan: the AddressSanitizer/UndefinedBehaviorSanitizer build instead, where
#         every test runs with the leak check on (tests/lsan.supp names the
#         leaks that are not ours). It skips the fuzz run; CI runs the plain one.
set -euo pipefail
cd "$(dirname "$0")/.."
if [ "${1:-}" = asan ]; then
  scripts/setup.sh asan
  exec ctest --preset asan
fi
scripts/setup.sh default
# Every fuzz target for 20 seconds; scripts/fuzz.sh 600 is the longer run.
scripts/fuzz.sh 20
# The whole suite last, so that the run ends with its summary.
export QT_QPA_PLATFORM=offscreen
ctest --preset default
