#!/usr/bin/env bash
# Builds the catalogue inspector and runs it; without arguments it lists the bundled sample catalogue.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh --target zrproducts >/dev/null
if [ $# -eq 0 ]; then
    set -- list
fi
exec "${ZR_BUILD_DIR:-build}/tools/zrproducts/zrproducts" "$@"
