#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Shows what a new title does to everything else in photographs:
#   bench/losses.sh [FOLDER]     (default: the project's own samples)
# Copies of the JPEG files in FOLDER get a title by this program (keeping, and with --rebuild), exiftool and exiv2. Then
# exiftool, exiv2, jhead and djpeg, and a comparison of the bytes, say what is not as it was.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/install.sh
install_packages "${BUILD_PACKAGES[@]}" exiv2 jhead libimage-exiftool-perl libjpeg-turbo-progs python3-minimal
cmake --preset release -D OVISTO_UI=OFF -D OVISTO_TESTS=OFF -D OVISTO_BENCH=OFF -B build/losses >/dev/null
cmake --build build/losses --target ovisto-cli data >/dev/null
exec python3 bench/losses.py build/losses/bin/ovisto-cli "${1:-samples}"
