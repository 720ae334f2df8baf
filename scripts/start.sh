#!/usr/bin/env bash
# Sets everything up, builds, and starts Flickerscribe.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh default
exec build/default/src/flickerscribe "$@"
