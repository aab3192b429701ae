#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing, builds, and runs every test twice: under address and undefined-behaviour checks, and in the
# release build. OVISTO_SAMPLES names the folder of camera files.
set -euo pipefail
cd "$(dirname "$0")"
. tools/install.sh
install_packages "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}"

run_preset() {
    echo "== $1: configure and build"
    cmake --preset "$1" >/dev/null
    cmake --build --preset "$1"
    echo "== $1: test"
    ctest --preset "$1" -j "$(nproc)"
}

run_preset asan+ubsan
run_preset release
