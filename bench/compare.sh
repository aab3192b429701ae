#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Prints how many times faster metadata documents of many photographs are made than other programs print metadata:
#   bench/compare.sh [FOLDER]     (default: OVISTO_SAMPLES, else the project's own samples)
# All programs get the same files, repeated until there are enough to measure, in one process each; the best of five
# runs counts. Also prints the time of a whole command line for one file, and the peak memory.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/install.sh
install_packages "${BUILD_PACKAGES[@]}" libbenchmark-dev libgtest-dev exiv2 libimage-exiftool-perl time
cmake --preset release >/dev/null
cmake --build --preset release >/dev/null

folder=${1:-${OVISTO_SAMPLES:-samples}}
cli=build/release/bin/ovisto-cli
list=$(mktemp)
trap 'rm -f "$list"' EXIT
photographs=$(find "$folder" -type f -iname '*.jpg' | sort)
count=0
while [ "$count" -lt 1500 ]; do
    printf '%s\n' "$photographs" >>"$list"
    count=$(wc -l <"$list")
done

# Prints the seconds of the best of five runs of a command.
best() {
    local fastest=""
    for _ in 1 2 3 4 5; do
        local start end
        start=$(date +%s%N)
        "$@" >/dev/null 2>&1 || true
        end=$(date +%s%N)
        local nanoseconds=$((end - start))
        if [ -z "$fastest" ] || [ "$nanoseconds" -lt "$fastest" ]; then
            fastest=$nanoseconds
        fi
    done
    awk -v n="$fastest" 'BEGIN { printf "%.4f", n / 1e9 }'
}
all() { tr '\n' '\0' <"$list" | xargs -0 -s 2000000 "$@"; }
some() { head -n "$fewer" "$list" | tr '\n' '\0' | xargs -0 -s 2000000 "$@"; }
ratio() { awk -v ours="$1" -v theirs="$2" -v scale="$3" 'BEGIN { printf "%.1f", theirs * scale / ours }'; }

all true # fails if the list does not fit into one command line
fewer=$((count / 20))
one=$(best "$cli" xml --jobs 1 --files-from "$list")
many=$(best "$cli" xml --files-from "$list")
exiv2=$(best all exiv2 -pa)
exiftool=$(best some exiftool -X)
printf '%d photographs of %s, seconds of the best of five runs:\n' "$count" "$folder"
printf '  %-28s %8s\n' "ovisto-cli xml --jobs 1" "$one" "ovisto-cli xml ($(nproc) jobs)" "$many" "exiv2 -pa" "$exiv2" \
    "exiftool -X (of 1/20)" "$exiftool"
printf 'faster than exiv2 -pa:   %s x with one job, %s x with %s\n' "$(ratio "$one" "$exiv2" 1)" \
    "$(ratio "$many" "$exiv2" 1)" "$(nproc)"
printf 'faster than exiftool -X: %s x with one job, %s x with %s\n' "$(ratio "$one" "$exiftool" 20)" \
    "$(ratio "$many" "$exiftool" 20)" "$(nproc)"

photograph=$(head -n 1 "$list")
single=$(best "$cli" xml "$photograph")
shown=$(best "$cli" show "$photograph")
printf 'a whole command line for one file: xml %s s, show %s s\n' "$single" "$shown"
printf 'peak memory of all files in one process: %s KiB\n' \
    "$(/usr/bin/time -f %M "$cli" xml --files-from "$list" 2>&1 >/dev/null | tail -n 1)"
