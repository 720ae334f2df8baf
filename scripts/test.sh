#!/usr/bin/env bash
# Sets everything up, builds, and runs the whole test suite.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh default
export QT_QPA_PLATFORM=offscreen
ctest --preset default
