#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Tries the packages of scripts/package.sh in a folder with nothing but Debian: installed in an older version, used, upgraded
# with the user's links untouched, used again, purged with nothing left but what is in the home folder; then the examples
# of the developer kit are built there. For root, since a system in a folder is entered by chroot.
# Usage: sudo scripts/try-packages.sh [--mirror ADDRESS]
#   --mirror ADDRESS  takes Debian from there; by default from where this system takes it
# Everything lies below build/try/, which is made anew.

source "$(dirname "$0")/common.sh"

usage="usage: scripts/try-packages.sh [--mirror ADDRESS]"
mirror=
case "${1-}" in
"") ;;
--mirror)
    mirror=${2-}
    [[ -n $mirror ]] || fail "$usage"
    ;;
*) fail "unknown argument \"$1\"; $usage" ;;
esac
((EUID == 0)) || fail "it needs root, for chroot"

place=$PWD/build/try
inside=$place/debian
older=0.0.9
packages=(vellumconnect vellumconnect-plugin-quicklink vellumconnect-libs libvellumconnect-dev)
user=someone
data=home/$user/.local/share/vellumconnect

# The address that this system's main packages come from.
system_mirror() {
    # shellcheck disable=SC2016 # apt's own variable
    apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' "Codename: $codename" 'Component: main' | sort -u | head -n 1
}

# within COMMAND...: runs it in the folder, where it sees its own processes only; they end with it.
within() {
    unshare --mount --pid --fork --kill-child --mount-proc="$inside/proc" \
        chroot "$inside" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
}

make_debian() {
    debootstrap --variant=minbase "$codename" "$inside" "$mirror" || return
    # Where displays of users are found; else only root could make it.
    mkdir -m 1777 "$inside/tmp/.X11-unix"
    within apt-get -q -y update
    # What the packages stand on, and what the tests of debian/tests need.
    within apt-get -q -y install --no-install-recommends dbus xauth xdotool xvfb build-essential cmake ninja-build
    local package wanted
    for package in "${packages[@]}"; do
        wanted=$(dpkg-deb -f "build/packages/$package"_*.deb Depends | tr ',' '\n' | grep -v vellumconnect | paste -sd ,)
        within apt-get -q -y satisfy --no-install-recommends "$wanted"
    done
    within useradd --create-home "$user"
    mkdir "$inside/sources" "$inside/packages"
    cp -r debian examples samples tests "$inside/sources/"
    cp build/packages/*.deb "build/packages-$older"/*.deb "$inside/packages/"
}

# install_version VERSION: by apt, as a user would.
install_version() {
    within sh -c "apt-get -q -y install --no-install-recommends /packages/*_$1_*.deb"
}

# What there is outside of home folders and of what the system notes of packages.
files() {
    (cd "$inside" && find . -mindepth 1 \( -path ./home -o -path ./proc -o -path ./sys -o -path ./dev -o -path ./tmp -o -path ./run \
        -o -path ./var/cache -o -path ./var/log -o -path ./var/lib/dpkg -o -path ./var/lib/apt \) -prune -o -print | sort)
}

# An operator gives every user links.
give_links() {
    install -D -m 644 samples/config.xml "$inside/usr/share/vellumconnect/defaults/plugins/QuickLinkUIPlugin/config.xml"
}

use() {
    within runuser -u "$user" -- env VELLUMCONNECT_HOME="/home/$user" /sources/debian/tests/operators-links
}

upgrade() {
    local before
    before=$(links)
    install_version "$version"
    [[ $(within dpkg -s vellumconnect) == *"Version: $version"* && $(links) == "$before" ]]
}

# The user's links, byte for byte.
links() {
    sha256sum <"$inside/$data/plugins/QuickLinkUIPlugin/config.xml"
}

purge() {
    rm -r "$inside/usr/share/vellumconnect/defaults"
    within apt-get -q -y purge "${packages[@]}"
    diff <(printf '%s\n' "$before") <(files) && [[ -e $inside/$data ]]
}

build_examples() {
    install_version "$version"
    within runuser -u "$user" -- /sources/debian/tests/build-examples
}

# try TEXT COMMAND...: a line of what was tried; the end where it failed.
try() {
    local text=$1
    shift
    logged "$place/$(basename "$1").log" "$@" || fail "$text: FAILED, see above"
    say "$text: ok"
}

codename=$(. /etc/os-release && printf '%s' "${VERSION_CODENAME-}")
scripts/packages.sh try
[[ -n $mirror ]] || mirror=$(system_mirror)
[[ -n $mirror ]] || fail "this system says of no place where its packages come from; $usage"
version=$(dpkg-parsechangelog -S Version)

rm -rf "$place"
try "packages of $version" scripts/package.sh
try "packages of $older" scripts/package.sh --version "$older"
try "a folder with nothing but Debian" make_debian
before=$(files)
try "installed" install_version "$older"
give_links
try "used by a new user" use
try "upgraded, links untouched" upgrade
try "used again" use
try "purged, nothing left" purge
try "examples built" build_examples
