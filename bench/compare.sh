#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Prints how many times faster metadata documents of many photographs are made than other programs print metadata:
#   bench/compare.sh [FOLDER]     (default: OVISTO_SAMPLES, else the project's own samples)
# All programs get the same files, repeated until there are enough to measure, in one process each, in turn, for five rounds. Also
# prints the time of a whole command line for one file, and the peak memory.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/install.sh
. bench/timing.sh
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

all() { tr '\n' '\0' <"$list" | xargs -0 -s 2000000 "$@"; }
some() { head -n "$fewer" "$list" | tr '\n' '\0' | xargs -0 -s 2000000 "$@"; }
each() { for _ in $(seq 20); do "$@"; done; }

all true # fails if the list does not fit into one command line
fewer=$((count / 20))
photograph=$(head -n 1 "$list")
for _ in 1 2 3 4 5; do
    measure "xml --jobs 1" "$cli" xml --jobs 1 --files-from "$list"
    measure "xml" "$cli" xml --files-from "$list"
    measure "exiv2 -pa" all exiv2 -pa
    measure "exiftool -X, 1/20 of them" some exiftool -X
    measure "xml, one file, 20 times" each "$cli" xml "$photograph"
    measure "show, one file, 20 times" each "$cli" show "$photograph"
done
echo "$count photographs of $folder, $(nproc) jobs:"
print_times "xml --jobs 1" "xml" "exiv2 -pa" "exiftool -X, 1/20 of them" "xml, one file, 20 times" "show, one file, 20 times"
echo "faster than exiv2 -pa, one job:   $(ratio "exiv2 -pa" "xml --jobs 1")"
echo "faster than exiv2 -pa, $(nproc) jobs:  $(ratio "exiv2 -pa" "xml")"
echo "faster than exiftool -X, one job: $(ratio "exiftool -X, 1/20 of them" "xml --jobs 1" 20)"
echo "faster than exiftool -X, $(nproc) jobs: $(ratio "exiftool -X, 1/20 of them" "xml" 20)"
printf 'peak memory of all files in one process: %s KiB\n' \
    "$(/usr/bin/time -f %M "$cli" xml --files-from "$list" 2>&1 >/dev/null | tail -n 1)"
