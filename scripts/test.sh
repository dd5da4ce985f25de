#!/usr/bin/env bash
# Builds everything and runs the whole test suite through CTest.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh
ctest --test-dir "${ZR_BUILD_DIR:-build}" --output-on-failure -j2 "$@"
