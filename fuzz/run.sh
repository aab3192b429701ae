#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Fuzzes the program for so many seconds a target, two targets at a time:
#   fuzz/run.sh SECONDS [TARGET...]     (default: all of read rebuild keep readText, see fuzz/Targets.h)
# What it tries begins with seeds that the tests' builder makes and with tests/fuzz, and is kept in build/fuzz/corpus.
# An input that finds something ends its target and is written to build/fuzz/found. Status 1 if there is one.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/install.sh
install_packages "${BUILD_PACKAGES[@]}" "${FUZZ_PACKAGES[@]}"
seconds=${1:?seconds for each target}
shift
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(read rebuild keep readText)

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
build/fuzz/bin/fuzz-seeds build/fuzz/seeds
mkdir -p build/fuzz/found build/fuzz/log

fuzz() {
    local found_before=()
    [ ! -d "tests/fuzz/$1" ] || found_before=("tests/fuzz/$1")
    mkdir -p "build/fuzz/corpus/$1"
    build/fuzz/bin/"fuzz-$1" -max_total_time="$seconds" -max_len=16384 -timeout=20 -rss_limit_mb=2048 \
        -print_final_stats=1 -artifact_prefix="build/fuzz/found/$1-" "build/fuzz/corpus/$1" "build/fuzz/seeds/$1" \
        "${found_before[@]}" >"build/fuzz/log/$1" 2>&1
}

status=0
export seconds
export -f fuzz
printf '%s\n' "${targets[@]}" | xargs -P 2 -I TARGET bash -c 'fuzz TARGET' || status=1

for target in "${targets[@]}"; do
    echo "$target: $(sed -n 's/^stat::number_of_executed_units: *//p' "build/fuzz/log/$target") runs"
    grep -E '^(SUMMARY|==.*ERROR)' "build/fuzz/log/$target" || true
done
ls build/fuzz/found
exit $status
