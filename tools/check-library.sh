#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks the library as other programs get it: each installed header compiles on its own, and the example is built with
# find_package(ovisto), sets a title and reads it back.
#     tools/check-library.sh [BUILD]            installs that build (default: build/release) into a temporary folder
#     tools/check-library.sh --installed PREFIX checks what a package has installed there, its own prefix; beside this
#                                               script, that needs the folders examples and samples only
set -euo pipefail
cd "$(dirname "$0")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

if [ "${1:-}" = --installed ]; then
    prefix=$2
else
    prefix=$work/installed
    cmake --install "${1:-build/release}" --prefix "$prefix" >/dev/null
    # What is installed leads to nothing of this machine.
    grep -r -e "$PWD" -e "$prefix" "$prefix"/lib*/cmake "$prefix"/lib*/*/cmake 2>/dev/null && exit 1
    # The page shows the example as it is.
    shown=$(sed -n 's/^    //p; /^$/p' docs/library.md)
    [[ $shown == *"$(tail -n +3 examples/library/main.cpp)"* && $shown == *"$(tail -n +2 examples/library/CMakeLists.txt)"* ]] ||
        { echo "docs/library.md does not show examples/library"; exit 1; }
fi

# A header alone, with the warnings that a careful program asks for.
compile_header() {
    echo "#include \"$1\"" | c++ -std=c++20 -fsyntax-only -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -I . -x c++ - ||
        { echo "$1 does not compile on its own"; return 1; }
}
export -f compile_header
(cd "$prefix/include/ovisto" && find . -name '*.h' -printf '%P\n' | sort | xargs -P "$(nproc)" -I{} bash -c 'compile_header {}')

cmake -S examples/library -B "$work/build" -D CMAKE_PREFIX_PATH="$prefix" >"$work/log" || { cat "$work/log"; exit 1; }
cmake --build "$work/build" >"$work/log" || { cat "$work/log"; exit 1; }

cp samples/little-endian.jpg "$work/photo.jpg"
expect() {
    local said
    said=$("$work/build/title" "$work/photo.jpg" "$1" 2>&1) || true
    [ "$said" = "$2" ] || { printf 'The example says:\n%s\ninstead of:\n%s\n' "$said" "$2"; exit 1; }
}
expect "Zum Abendbrot 🍞" $'Mountain lake\n1 value changed, 78 unchanged, picture identical.'
expect "Mountain lake" $'Zum Abendbrot 🍞\n1 value changed, 78 unchanged, picture identical.'
echo "library: $(find "$prefix/include/ovisto" -name '*.h' | wc -l) headers compile alone, the example works"
