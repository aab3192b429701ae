#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing, builds, and opens the window on a file or folder (default: the project's own samples).
# Without a display it shows the same photographs as text.
set -euo pipefail
cd "$(dirname "$0")"
. tools/install.sh
install_packages "${BUILD_PACKAGES[@]}"

cmake -G Ninja -D OVISTO_TESTS=OFF -D OVISTO_BENCH=OFF -B build/run >/dev/null
cmake --build build/run

target=${1:-samples}
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec build/run/bin/ovisto "$target"
fi
if [ -d "$target" ]; then
    find "$target" -type f \( -iname '*.jpg' -o -iname '*.jpeg' \) -print0 | sort -z |
        build/run/bin/ovisto-cli show --files-from - -0
else
    build/run/bin/ovisto-cli show "$target"
fi
