#!/usr/bin/env bash
# Checks that the code is formatted and that clang-tidy finds nothing. Builds first, because some headers are generated.
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/install.sh
install_packages "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${LINT_PACKAGES[@]}"

git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror
echo "clang-format: clean"

cmake --preset release >/dev/null
cmake --build --preset release
# fuzz/ is not in that build; clang-tidy takes the options of a similar file, and the target that FuzzMain.cpp expects.
git ls-files '*.cpp' |
    xargs -P "$(nproc)" -n 4 clang-tidy -p build/release --quiet --extra-arg=-Wno-unknown-warning-option \
        --extra-arg=-DOVISTO_FUZZ_TARGET=read
echo "clang-tidy: clean"
