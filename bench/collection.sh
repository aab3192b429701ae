#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compares the commands that work on many files with other programs, as ratios of times measured side by side:
#   bench/collection.sh [FOLDER]     (FOLDER: where to put some 2 GB of temporary files; default: TMPDIR)
# find: a word search over 20,000 small photographs made from the samples, against cat of the same bytes.
# set: a title for 2,000 photographs, against cp and sync, exiv2 and exiftool. Only ours waits for the disk by itself,
# so the others are also shown followed by a sync.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/install.sh
. bench/timing.sh
install_packages "${BUILD_PACKAGES[@]}" libbenchmark-dev libgtest-dev exiv2 libimage-exiftool-perl time
cmake --preset release >/dev/null
cmake --build --preset release --target ovisto-cli data >/dev/null

cli=$PWD/build/release/bin/ovisto-cli
samples=$PWD/samples
work=$(mktemp -d -p "${1:-${TMPDIR:-/tmp}}")
trap 'rm -rf "$work"' EXIT
cd "$work"

# The part of a photograph that a reader needs, without most of the image data.
kinds=(big-endian little-endian night portrait xmp)
for kind in "${kinds[@]}"; do
    head -c 8192 "$samples/$kind.jpg" >"$kind.head"
done
for folder in $(seq 20); do
    mkdir -p "many/$folder"
    for number in $(seq 200); do
        for kind in "${kinds[@]}"; do
            cp "$kind.head" "many/$folder/$kind$number.jpg"
        done
    done
done
cat_all() { find many -name '*.jpg' -print0 | xargs -0 cat; }
find_all() { "$cli" find --words 'Tolvik,lake' --all-words "$@" many; }
for _ in 1 2 3 4 5; do
    measure "cat" cat_all
    measure "find" find_all
    measure "find --jobs 1" find_all --jobs 1
done
echo "find, a word filter over 20,000 photographs, $(nproc) jobs:"
print_times "cat" "find" "find --jobs 1"
echo "  as long as cat of the same bytes: $(ratio "find" "cat")"
echo "  with one job: $(ratio "find --jobs 1" "cat")"
echo "  peak memory: $(/usr/bin/time -f %M "$cli" find --words Tolvik many 2>&1 >/dev/null | tail -n 1) KiB"

mkdir photographs
for number in $(seq 400); do
    for kind in "${kinds[@]}"; do
        cp "$samples/$kind.jpg" "photographs/$kind$number.jpg"
    done
done
# Each run has its own folder, and none is deleted before the end: for minutes after files were deleted or replaced,
# ext4 looks at each of them again for every file that is created near them. The attribute keeps the folders apart.
rounds=3
mkdir runs
chattr +T runs 2>/dev/null || true
for round in $(seq "$rounds"); do
    mkdir "runs/cp$round"
    for run in set set_one exiv2 exiv2_sync exiftool exiftool_sync; do
        cp -r photographs "runs/$run$round"
    done
done
sync
cp_sync() {
    cp photographs/*.jpg "$1"
    sync
}
set_all() {
    local folder=$1
    shift
    find "$folder" -name '*.jpg' -print0 |
        "$cli" set "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']" Title --files-from - -0 "$@"
}
exiv2_all() { exiv2 -M 'set Exif.Image.XPTitle Byte 84 0 105 0 116 0 108 0 101 0 0 0' "$1"/*.jpg || true; }
exiftool_all() { exiftool -q -q -m -overwrite_original -XPTitle=Title "$1" || true; }
with_sync() {
    "$@"
    sync
}
for round in $(seq "$rounds"); do
    measure "cp and sync" cp_sync "runs/cp$round"
    measure "set" set_all "runs/set$round"
    measure "set --jobs 1" set_all "runs/set_one$round" --jobs 1
    measure "exiv2" exiv2_all "runs/exiv2$round"
    measure "exiv2 and sync" with_sync exiv2_all "runs/exiv2_sync$round"
    measure "exiftool" exiftool_all "runs/exiftool$round"
    measure "exiftool and sync" with_sync exiftool_all "runs/exiftool_sync$round"
done
echo "set, a title for 2,000 photographs, $(nproc) jobs:"
print_times "cp and sync" "set" "set --jobs 1" "exiv2" "exiv2 and sync" "exiftool" "exiftool and sync"
echo "  as long as cp and sync: $(ratio "set" "cp and sync")"
echo "  with one job: $(ratio "set --jobs 1" "cp and sync")"
for other in "exiv2" "exiv2 and sync" "exiftool" "exiftool and sync"; do
    echo "  faster than $other: $(ratio "$other" "set")"
done
