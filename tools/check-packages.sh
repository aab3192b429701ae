#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the packages from a build (default: build/release) and checks them as their users would: they are installed into
# a clean root of this distribution, tried, and removed again. As root; where there can be no such root, only the
# packages themselves are checked, and a line says so.
#     tools/check-packages.sh [BUILD]
set -euo pipefail
cd "$(dirname "$0")/.."
. tools/install.sh
install_packages "${PACKAGE_PACKAGES[@]}"

build=$(realpath "${1:-build/release}")
packages=$build/packages
work=$(mktemp -d)
root=$work/root
umask 022

clean_up() {
    [ -z "${display_server:-}" ] || kill "$display_server"
    rm -rf "$work"
}
trap clean_up EXIT

fail() {
    echo "packages: $1" >&2
    exit 1
}

make_packages() {
    rm -rf "$packages"
    (cd "$build" && for kind in DEB TGZ; do cpack -G $kind; done) >"$work/log" 2>&1 || { cat "$work/log"; exit 1; }
}

# What is installed is in one of the packages, whoever added it.
check_completeness() {
    DESTDIR=$work/tree cmake --install "$build" >/dev/null
    (cd "$work/tree" && find . -type f) | sort >"$work/installed"
    for package in "$packages"/*.deb; do
        dpkg-deb --fsys-tarfile "$package" | tar -t
    done | grep -v -e '/$' -e '/doc/.*/copyright$' -e '/changelog.Debian.gz$' |
        sed 's/\(man[1-8]\/.*\)\.gz$/\1/' | sort >"$work/packed"
    diff "$work/installed" "$work/packed" || fail "what is installed (<) is not what is packed (>)"
}

check_forms() {
    lintian --fail-on error,warning --allow-root "$packages"/*.deb
    desktop-file-validate packaging/desktop/org.castelmar.ovisto.desktop
    appstreamcli validate --no-net "$build/org.castelmar.ovisto.metainfo.xml" >"$work/log" || { cat "$work/log"; exit 1; }
}

check_hardening() {
    local program
    for program in "$work"/tree/usr/bin/*; do
        readelf -hdlsW "$program" >"$work/log"
        for sign in 'DYN (Position-Independent' GNU_RELRO BIND_NOW __stack_chk_fail _chk@GLIBC; do
            grep -q "$sign" "$work/log" || fail "${program##*/} lacks $sign"
        done
    done
}

# The portable folder needs nothing beside itself.
check_portable() {
    mkdir "$work/portable"
    tar -xzf "$packages"/ovisto-*.tar.gz -C "$work/portable" --strip-components=1
    "$work/portable/ovisto-cli" show samples/little-endian.jpg | grep 'Camera Make: Castelmar' >/dev/null ||
        fail "the portable folder does not work"
}

# Runs a command in the root, with what programs expect to be mounted; the mounts end with it.
in_root() {
    local enter=(env -i HOME=/tmp/home LANG=C.UTF-8 PATH=/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive
        "DISPLAY=${DISPLAY:-}" chroot "$root")
    if [ -n "$mounts" ]; then
        # shellcheck disable=SC2016
        unshare --mount sh -c 'mount -t proc proc "$0/proc" && mount --rbind /dev "$0/dev" && exec "$@"' "$root" "${enter[@]}" "$@"
    else
        "${enter[@]}" "$@"
    fi
}

make_root() {
    # The sources that this machine has.
    apt-get indextargets --format 'deb $(REPO_URI) $(CODENAME) $(COMPONENT)' 'Created-By: Packages' 'Origin: Debian' |
        sort -u >"$work/sources"
    # shellcheck source=/dev/null
    mmdebstrap --mode=root --variant=minbase --skip=check/canmount,cleanup/apt/lists "$(. /etc/os-release && echo "$VERSION_CODENAME")" \
        "$root" - <"$work/sources" >"$work/log" 2>&1 || return
    mkdir -p "$root/tmp/packages"
    cp "$packages"/*.deb "$root/tmp/packages"
    cp -r samples "$root/tmp/samples"
}

# Names all files but what the package manager keeps for itself.
list_files() {
    (cd "$root" && find . -path ./tmp -prune -o -path ./proc -prune -o -path ./dev -prune -o -path ./var/lib/dpkg -prune \
        -o -path ./var/lib/apt -prune -o -path ./var/cache -prune -o -path ./var/log -prune -o -print) | sort
}

in_root_quietly() {
    in_root "$@" >"$work/log" 2>&1 || { cat "$work/log"; fail "failed: $*"; }
}

# Installs the package $1 and the data files, runs $2, and removes both again. What $1 depends on comes first and stays:
# other packages are not this check's business.
try_package() {
    local files
    files=$(cd "$packages" && printf '/tmp/packages/%s ' "$1"_*.deb ovisto-data_*.deb)
    in_root_quietly apt-get satisfy -y --no-install-recommends \
        "$(dpkg-deb -f "$packages/$1"_*.deb Depends | sed 's/ovisto-data ([^)]*), //')"
    list_files >"$work/before"
    # shellcheck disable=SC2086
    in_root_quietly apt-get install -y --no-install-recommends $files
    [ -z "$mounts" ] || $2
    in_root_quietly apt-get purge -y "$1" ovisto-data
    list_files >"$work/after"
    diff "$work/before" "$work/after" || fail "$1: not all was removed"
    echo "packages: $1: installed, ${mounts:+works, }removed without a trace"
}

try_command_line() {
    local photo=/tmp/samples/portrait.jpg
    ! in_root dpkg-query -W -f '${Package}\n' | grep -i qt || fail "ovisto-cli brings Qt with it"
    in_root ovisto-cli set "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']" "Am Abend" $photo >"$work/log"
    in_root ovisto-cli show $photo | grep 'Am Abend' >/dev/null || fail "show does not print what set has written"
    in_root ovisto-cli report --style /usr/share/ovisto/reports/table.xsl $photo | grep 'Am Abend' >/dev/null ||
        fail "report does not print what set has written"
}

# The id of the window whose title contains $1, as soon as there is one.
window_titled() {
    local window
    for _ in $(seq 150); do
        window=$(xwininfo -root -tree | sed -n "s/^ *\(0x[0-9a-f]*\) \".*$1.*/\1/p" | tail -1)
        [ -z "$window" ] || { echo "$window"; return; }
        sleep 0.2
    done
    return 1
}

# Opens a photograph as a file manager does: with the program that says it opens such files.
try_window() {
    in_root gio mime image/jpeg | grep org.castelmar.ovisto.desktop >/dev/null || fail "no \"Open With\" for JPEG files"
    in_root_quietly gio launch /usr/share/applications/org.castelmar.ovisto.desktop /tmp/samples/night.jpg
    local window
    window=$(window_titled night.jpg) || { xwininfo -root -tree; fail "no window shows the photograph"; }
    xprop -id "$window" _NET_WM_ICON | grep 'Icon (16 x 16)' >/dev/null || fail "the window has no icon"
    local process
    process=$(xprop -id "$window" _NET_WM_PID | sed 's/.*= //')
    kill "$process"
    while kill -0 "$process" 2>/dev/null; do sleep 0.1; done
}

start_display() {
    mkfifo "$work/display"
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$work/display" >/dev/null 2>&1 &
    display_server=$!
    read -r number <"$work/display"
    export DISPLAY=:$number
}

try_library() {
    mkdir -p "$root/tmp/project/tools"
    cp -r samples examples "$root/tmp/project"
    cp tools/check-library.sh "$root/tmp/project/tools"
    in_root_quietly /tmp/project/tools/check-library.sh --installed /usr
}

make_packages
check_completeness
check_forms
check_hardening
check_portable
echo "packages: complete, lintian and validators content, hardened, portable folder works"

if [ "$(id -u)" -ne 0 ] || ! chroot / true 2>/dev/null; then
    echo "packages: not tried in a clean root: only root can make one"
    exit
fi
mounts=
if unshare --mount sh -c 'mount -t proc proc /proc && mount --rbind /dev /mnt' 2>/dev/null; then
    mounts=yes
else
    echo "packages: installed only, not run: this system allows no mounts, and programs need /proc"
fi
if ! make_root; then
    tail -5 "$work/log"
    echo "packages: not tried in a clean root: none can be made here"
    exit
fi
try_package ovisto-cli try_command_line
# What a desktop has before Ovisto comes.
in_root_quietly apt-get install -y --no-install-recommends desktop-file-utils libglib2.0-bin
start_display
try_package ovisto try_window
if [ -d examples/library ]; then
    in_root_quietly apt-get install -y --no-install-recommends g++ cmake make
    try_package libovisto-dev try_library
fi
