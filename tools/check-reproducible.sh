#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks that the same source gives the same bytes, wherever and whenever it is built: compiles some of the files of a
# build (default: build/release) again in another folder, and makes its packages twice. With --all it builds everything
# again and compares the packages, which takes as long as a build.
#     tools/check-reproducible.sh [--all] [BUILD]
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/install.sh
install_packages "${BUILD_PACKAGES[@]}"

all=
[ "${1:-}" != --all ] || { all=1; shift; }
build=$(realpath "${1:-build/release}")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
umask 022 # what a package consists of does not depend on it, but the archive around it does

# Makes the packages of the build $1, and puts them into the folder $2.
make_packages() {
    mkdir "$2"
    (cd "$1" && for kind in DEB TGZ; do cpack -G $kind -D CPACK_PACKAGE_DIRECTORY="$2"; done) >"$work/log" 2>&1 ||
        { cat "$work/log"; exit 1; }
}

compare_packages() {
    (cd "$work/first" && for package in *.deb *.tar.gz; do cmp "$package" "../second/$package"; done)
}

# What git knows, as it stands here.
mkdir -p "$work/a/longer/name"
git ls-files -z | tar -c --null -T - | tar -x -C "$work/a/longer/name"
elsewhere=$work/a/longer/name
export CCACHE_DISABLE=1
options=(-D OVISTO_TESTS=OFF -D OVISTO_BENCH=OFF)
[ -n "$all" ] || options+=(-D OVISTO_UI=OFF)
(cd "$elsewhere" && cmake --preset release "${options[@]}") >"$work/log" || { cat "$work/log"; exit 1; }

make_packages "$build" "$work/first"
if [ -n "$all" ]; then
    cmake --build "$elsewhere/build/release"
    TZ=Pacific/Auckland LC_ALL=C make_packages "$elsewhere/build/release" "$work/second"
    compare_packages
    echo "reproducible: all packages are the same"
else
    TZ=Pacific/Auckland LC_ALL=C make_packages "$build" "$work/second"
    compare_packages
    mapfile -t objects < <(ninja -C "$elsewhere/build/release" -t targets all | sed -n 's/^\(.*\.cpp\.o\): .*/\1/p' | sort |
        awk 'NR % 10 == 1')
    ninja -C "$elsewhere/build/release" "${objects[@]}" >"$work/log" || { cat "$work/log"; exit 1; }
    for object in "${objects[@]}"; do
        cmp "$elsewhere/build/release/$object" "$build/$object"
    done
    echo "reproducible: packages made twice and ${#objects[@]} files compiled in another folder are the same"
fi
