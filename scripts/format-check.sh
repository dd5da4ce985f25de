#!/usr/bin/env bash
# Fails when a tracked C++ file differs from what clang-format 14 makes of it with the committed
# .clang-format, and names each such file.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/bootstrap.sh clang-format-14
status=0
while IFS= read -r -d '' file; do
    if ! clang-format-14 --dry-run --Werror "$file" >/dev/null 2>&1; then
        echo "not formatted: $file"
        status=1
    fi
done < <(git ls-files -z '*.cpp' '*.h')
if [ "$status" -ne 0 ]; then
    echo "format them with: git ls-files '*.cpp' '*.h' | xargs clang-format-14 -i"
fi
exit "$status"
