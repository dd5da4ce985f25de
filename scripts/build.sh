#!/usr/bin/env bash
# Configures and builds the project in ./build (or $ZR_BUILD_DIR). Extra arguments go to the build step,
# for example `--target zrproducts`.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/bootstrap.sh
build_dir=${ZR_BUILD_DIR:-build}
launcher=()
if command -v ccache >/dev/null 2>&1; then
    launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
# Configured again whenever the arguments change; the old cache goes, so that an option left out
# takes its default again instead of the value it had.
configure=(-DCMAKE_BUILD_TYPE=RelWithDebInfo "${launcher[@]}" ${ZR_CMAKE_ARGS:-})
stamp="$build_dir/zr-cmake-args"
if [ ! -f "$build_dir/CMakeCache.txt" ] || [ "$(cat "$stamp" 2>/dev/null)" != "${configure[*]}" ]; then
    rm -f "$build_dir/CMakeCache.txt"
    cmake -S . -B "$build_dir" "${configure[@]}"
    printf '%s' "${configure[*]}" >"$stamp"
fi
cmake --build "$build_dir" -j2 "$@"
