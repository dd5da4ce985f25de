#!/usr/bin/env bash
# Builds the fuzz targets of fuzz/ (clang, address and undefined behaviour sanitizers) and runs each for
# a given time, then prints per target the executions, executions per second, coverage, corpus size and
# findings. Exits non-zero when a target found a crash, leak, timeout or out-of-memory input. Every
# input is held to the limits of fuzz/CMakeLists.txt (ZR_FUZZ_LIMITS: 2 seconds, 512 MB), the same
# that the CTest replays of the seeds and regressions use.
#
#   bash scripts/fuzz.sh [SECONDS] [TARGET...]     (defaults: 60 seconds, every target)
#
# The build goes to $ZR_BUILD_DIR (default build-asan, shared with scripts/sanitize.sh address). The
# corpus grows in <build>/fuzz-corpus/<target>/ across runs; findings are written to
# <build>/fuzz-findings/<target>/. A finding is replayed with `<build>/fuzz/<target> <file>`; once fixed,
# copy it to fuzz/regressions/<target>/ so that CTest replays it from then on.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-60}
shift || true
build_dir=${ZR_BUILD_DIR:-build-asan}
all_targets=(fuzz_productdescription fuzz_colorsxml fuzz_tstranslations fuzz_csvkeys fuzz_surroundingmask
    fuzz_pagelists)
targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    targets=("${all_targets[@]}")
fi

bash scripts/bootstrap.sh clang-14 libclang-rt-14-dev
export ZR_BUILD_DIR=$build_dir
export ZR_CMAKE_ARGS="${ZR_CMAKE_ARGS:-} -DCMAKE_CXX_COMPILER=clang++-14 -DZR_BUILD_FUZZERS=ON -DZR_BUILD_BENCHMARKS=OFF"
bash scripts/build.sh --target "${targets[@]}"

export QT_QPA_PLATFORM=offscreen
# The fuzzer's own leak check runs after every input; a report of undefined behaviour stops the run.
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
# A quarantine of freed memory smaller than the default 256 MB, so that the memory limit measures what the
# inputs take rather than what the sanitizer holds back.
export ASAN_OPTIONS=${ASAN_OPTIONS:-quarantine_size_mb=64}

found=0
summary=()
for target in "${targets[@]}"; do
    corpus=$build_dir/fuzz-corpus/$target
    findings=$build_dir/fuzz-findings/$target
    log=$build_dir/fuzz-findings/$target.log
    mkdir -p "$corpus" "$findings"
    # Options (with the time and memory limits) and seed directories, one per line, written by
    # fuzz/CMakeLists.txt.
    mapfile -t args <"$build_dir/fuzz/$target.args"
    echo "== $target: ${seconds}s"
    status=0
    "$build_dir/fuzz/$target" -max_total_time="$seconds" -print_final_stats=1 -artifact_prefix="$findings/" \
        "$corpus" "${args[@]}" >"$log" 2>&1 || status=$?

    execs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -n 1)
    speed=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log" | tail -n 1)
    coverage=$(grep -oE 'cov: [0-9]+ ft: [0-9]+' "$log" | tail -n 1 || true)
    corpus_files=$(find "$corpus" -type f | wc -l)
    corpus_bytes=$(du -sb "$corpus" | cut -f1)
    artifacts=$(find "$findings" -type f | wc -l)
    if [ "$status" -ne 0 ] || [ "$artifacts" -ne 0 ]; then
        found=1
        grep -E '^(==[0-9]+== ?ERROR|SUMMARY|.*runtime error|property violated|fatal:)' "$log" | head -n 5 || true
        echo "   log: $log"
    fi
    summary+=("$(printf '%-26s %10s execs %8s/s  %-22s corpus %5s files %9s bytes  findings %s' "$target" \
        "${execs:-?}" "${speed:-?}" "${coverage:-cov: ?}" "$corpus_files" "$corpus_bytes" "$artifacts")")
done

echo "== summary (${seconds}s per target)"
printf '%s\n' "${summary[@]}"
exit "$found"
