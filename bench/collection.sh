#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compares the commands that work on many files with other programs, as ratios of times measured side by side:
#   bench/collection.sh [FOLDER]     (FOLDER: where to put some 2 GB of temporary files; default: TMPDIR)
# find: a word search over 20,000 small photographs made from the samples, against cat of the same bytes.
# set: a title for 2,000 photographs, against cp and sync, exiv2 and exiftool. Only ours waits for the disk by itself,
# so the others are also shown followed by a sync. The best round counts.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/install.sh
install_packages "${BUILD_PACKAGES[@]}" libbenchmark-dev libgtest-dev exiv2 libimage-exiftool-perl time
cmake --preset release >/dev/null
cmake --build --preset release --target ovisto-cli data >/dev/null

cli=$PWD/build/release/bin/ovisto-cli
samples=$PWD/samples
work=$(mktemp -d -p "${1:-${TMPDIR:-/tmp}}")
trap 'rm -rf "$work"' EXIT
cd "$work"

# Runs a command and keeps its shortest time, in milliseconds, in the variable of the given name.
shortest() {
    local variable=$1 start end
    shift
    start=$(date +%s%N)
    "$@" >/dev/null 2>&1
    end=$(date +%s%N)
    local milliseconds=$(((end - start) / 1000000 + 1))
    [ -n "${!variable:-}" ] && [ "${!variable}" -le "$milliseconds" ] || printf -v "$variable" %s "$milliseconds"
}
ratio() { awk -v ours="$1" -v theirs="$2" 'BEGIN { printf "%.2f", ours / theirs }'; }

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
    shortest cat_time cat_all
    shortest find_time find_all
    shortest find_one_time find_all --jobs 1
done
echo "find, a word filter over 20,000 photographs (times as long as cat of the same bytes):"
printf '  %-28s %6d ms\n' "cat" "$cat_time"
printf '  %-28s %6d ms  %s x\n' "find ($(nproc) jobs)" "$find_time" "$(ratio "$find_time" "$cat_time")" \
    "find --jobs 1" "$find_one_time" "$(ratio "$find_one_time" "$cat_time")"
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
    shortest cp_time cp_sync "runs/cp$round"
    shortest set_time set_all "runs/set$round"
    shortest set_one_time set_all "runs/set_one$round" --jobs 1
    shortest exiv2_time exiv2_all "runs/exiv2$round"
    shortest exiv2_sync_time with_sync exiv2_all "runs/exiv2_sync$round"
    shortest exiftool_time exiftool_all "runs/exiftool$round"
    shortest exiftool_sync_time with_sync exiftool_all "runs/exiftool_sync$round"
done
echo "set, a title for 2,000 photographs:"
row() { printf '  %-28s %6d ms\n' "$@"; }
row "cp and sync" "$cp_time" "set ($(nproc) jobs)" "$set_time" "set --jobs 1" "$set_one_time" "exiv2" "$exiv2_time" \
    "exiv2 and sync" "$exiv2_sync_time" "exiftool" "$exiftool_time" "exiftool and sync" "$exiftool_sync_time"
echo "  as long as cp and sync: $(ratio "$set_time" "$cp_time") x ($(nproc) jobs), $(ratio "$set_one_time" "$cp_time") x (one)"
echo "  faster than exiv2: $(ratio "$exiv2_time" "$set_time") x, with sync $(ratio "$exiv2_sync_time" "$set_time") x"
echo "  faster than exiftool: $(ratio "$exiftool_time" "$set_time") x, with sync $(ratio "$exiftool_sync_time" "$set_time") x"
