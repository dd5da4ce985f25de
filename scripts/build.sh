#!/usr/bin/env bash
# Configures and builds the project in ./build (or $ZR_BUILD_DIR). Extra arguments go to the build step,
# for example `--target zrproducts`.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/bootstrap.sh
build_dir=${ZR_BUILD_DIR:-build}
if [ ! -f "$build_dir/CMakeCache.txt" ]; then
    launcher=()
    if command -v ccache >/dev/null 2>&1; then
        launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    fi
    cmake -S . -B "$build_dir" -DCMAKE_BUILD_TYPE=RelWithDebInfo "${launcher[@]}" ${ZR_CMAKE_ARGS:-}
fi
cmake --build "$build_dir" -j2 "$@"
