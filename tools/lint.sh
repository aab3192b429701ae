#!/usr/bin/env bash
# Checks that the code is formatted and that clang-tidy finds nothing. Needs a configured release build.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/install.sh
install_packages "${LINT_PACKAGES[@]}"

mapfile -t sources < <(git ls-files 'src/*.cpp' 'tests/*.cpp' 'bench/*.cpp' 'fuzz/*.cpp')
mapfile -t headers < <(git ls-files 'src/*.h' 'tests/*.h')
clang-format --dry-run --Werror "${sources[@]}" "${headers[@]}"
echo "clang-format: clean"
git ls-files 'src/*.cpp' | xargs -P "$(nproc)" -n 4 clang-tidy -p build/release --quiet --extra-arg=-Wno-unknown-warning-option
echo "clang-tidy: clean"
