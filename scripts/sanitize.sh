#!/usr/bin/env bash
# Builds the tests with sanitizers (clang) and runs them through CTest.
#
#   bash scripts/sanitize.sh address   AddressSanitizer, LeakSanitizer and UndefinedBehaviorSanitizer over the
#                                      whole test suite and the fuzz targets' seed replays (build-asan)
#   bash scripts/sanitize.sh thread    ThreadSanitizer over the concurrency tests, and the positive controls
#                                      that must make it report a data race and a lock-order inversion
#                                      (build-tsan)
#
# Any sanitizer report fails the run. Set ZR_BUILD_DIR to build elsewhere; further arguments go to ctest.
set -euo pipefail
cd "$(dirname "$0")/.."

mode=${1:-address}
shift || true
# libc6-dbg names glibc's internal functions in the reports; scripts/sanitizers/tsan.supp matches one.
bash scripts/bootstrap.sh clang-14 libclang-rt-14-dev libc6-dbg
export ZR_CMAKE_ARGS="${ZR_CMAKE_ARGS:-} -DCMAKE_CXX_COMPILER=clang++-14 -DZR_BUILD_BENCHMARKS=OFF"
export QT_QPA_PLATFORM=offscreen

case "$mode" in
address)
    export ZR_BUILD_DIR=${ZR_BUILD_DIR:-build-asan}
    # The fuzz targets share this build (scripts/fuzz.sh), so CTest also replays their seeds.
    export ZR_CMAKE_ARGS="$ZR_CMAKE_ARGS -DZR_BUILD_FUZZERS=ON"
    bash scripts/build.sh
    # No leak suppressions: the singletons, never destroyed by design, stay reachable through their
    # function-local pointers, so LeakSanitizer does not count them; anything it reports is a real leak.
    export ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1:check_initialization_order=1:strict_init_order=1:abort_on_error=1
    export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
    # The installed-package test builds a consumer without sanitizers; it checks packaging, not memory.
    ctest --test-dir "$ZR_BUILD_DIR" --output-on-failure -j2 -E '^install_consumer$' "$@"
    ;;
thread)
    export ZR_BUILD_DIR=${ZR_BUILD_DIR:-build-tsan}
    export ZR_CMAKE_ARGS="$ZR_CMAKE_ARGS -DZR_SANITIZE=thread"
    bash scripts/build.sh --target tst_concurrency tsancontrol zrproducts
    # QMutex annotates itself and ZRReadWriteLock annotates QReadWriteLock; the suppressions only cover
    # races inside Qt's own code.
    export TSAN_OPTIONS="halt_on_error=1:second_deadlock_stack=1:suppressions=$(pwd)/scripts/sanitizers/tsan.supp"
    ctest --test-dir "$ZR_BUILD_DIR" --output-on-failure -L concurrency "$@"
    ;;
*)
    echo "usage: $0 address|thread [ctest arguments]" >&2
    exit 2
    ;;
esac
