# SPDX-License-Identifier: MIT
# Sourced by the scripts that build and test: the Debian 12 packages that the project needs, and how to install them.

BUILD_PACKAGES=(g++ cmake ninja-build pkg-config libxml2-dev libxslt1-dev libpcre2-dev libunistring-dev libjpeg62-turbo-dev
    libcli11-dev libutfcpp-dev libmimalloc-dev qt6-base-dev qt6-tools-dev qt6-l10n-tools)
TEST_PACKAGES=(libgtest-dev libbenchmark-dev libxml2-utils libimage-exiftool-perl strace python3)
TEST_PACKAGES+=(zsh fish man-db parallel) # completions, manual pages, the recipe for large archives
LINT_PACKAGES=(clang-format clang-tidy)
PACKAGE_PACKAGES=(lintian desktop-file-utils appstream mmdebstrap debian-archive-keyring xvfb x11-utils)
FUZZ_PACKAGES=(clang libclang-rt-dev)

# Where ccache is installed, CMake uses it, and a checkout in another folder finds what an earlier one compiled.
export CCACHE_BASEDIR=${CCACHE_BASEDIR:-$PWD} CCACHE_NOHASHDIR=1

# Installs the packages that are missing, as root or with sudo, and says which.
install_packages() {
    local missing=()
    local package
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    echo "Installing: ${missing[*]}"
    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    "${as_root[@]}" apt-get update -qq
    DEBIAN_FRONTEND=noninteractive "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
