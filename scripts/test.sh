#!/usr/bin/env bash
# Sets everything up, builds, and runs the whole test suite.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh default
# Every fuzz target for 20 seconds; scripts/fuzz.sh 600 is the longer run.
scripts/fuzz.sh 20
# The whole suite last, so that the run ends with its summary.
export QT_QPA_PLATFORM=offscreen
ctest --preset default
