#!/usr/bin/env bash
# zrproducts check against xmllint's schema validation of the same files, in one run: the runs of
# the two alternate, and the median wall-clock time of each is printed with their ratio.
#   bash bench/lint-speed.sh DIR [RUNS]     DIR holds the product files (e.g. from zrbench_load --dir)
set -euo pipefail
cd "$(dirname "$0")/.."
dir=$1
runs=${2:-5}
tool=${ZR_BUILD_DIR:-build}/tools/zrproducts/zrproducts
seconds() {
    local start=$EPOCHREALTIME
    "$@" >/dev/null 2>&1 || true
    awk -v a="$start" -v b="$EPOCHREALTIME" 'BEGIN { print b - a }'
}
median() { sort -n | awk '{ v[NR] = $1 } END { print v[int((NR + 1) / 2)] }'; }
files=("$dir"/*.xml)
checks=() lints=()
for ((i = 0; i < runs; ++i)); do
    checks+=("$(seconds "$tool" check -q --products "$dir")")
    lints+=("$(seconds xmllint --noout --schema schema/ZRProductDescription.xsd "${files[@]}")")
done
check=$(printf '%s\n' "${checks[@]}" | median)
lint=$(printf '%s\n' "${lints[@]}" | median)
printf '%d files, median of %d runs, load average %s\n' "${#files[@]}" "$runs" "$(cut -d' ' -f1-3 /proc/loadavg)"
awk -v l="$lint" -v c="$check" 'BEGIN {
    printf "xmllint --noout --schema  %.2f s\nzrproducts check -q       %.2f s\nratio                     %.2f\n", l, c, c / l }'
