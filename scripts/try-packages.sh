#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Tries the packages of scripts/package.sh in a folder with nothing but Debian: installed in an older version, used, upgraded
# with the user's links untouched, used again, purged with nothing left but what is in the home folder; then autopkgtest runs
# the tests of debian/tests there. For root, since a system in a folder is entered by chroot.
# Usage: sudo scripts/try-packages.sh [--mirror ADDRESS]
#   --mirror ADDRESS  takes Debian from there; by default from where this system takes it
# Everything lies below build/try/, which is made anew.

source "$(dirname "$0")/common.sh"
source "scripts/debian-folders.sh"

place=$PWD/build/try
inside=$place/debian
older=0.0.9
packages=(vellumconnect vellumconnect-plugin-quicklink vellumconnect-libs libvellumconnect-dev)
user=someone
data=home/$user/.local/share/vellumconnect

# With what the packages stand on, and what the tests of debian/tests need; their runner knows of it, too.
prepare() {
    make_debian &&
        within apt-get -q -y install --no-install-recommends \
            autopkgtest dbus xauth xdotool xvfb build-essential cmake ninja-build &&
        install_needed_by "${packages[@]}" &&
        within useradd --create-home "$user" &&
        mkdir "$inside/sources" "$inside/packages" &&
        cp -r debian examples samples tests "$inside/sources/" &&
        cp build/packages/*.deb "build/packages-$older"/*.deb "$inside/packages/"
}

# install_version VERSION: by apt, as a user would.
install_version() {
    within sh -c "apt-get -q -y install --no-install-recommends /packages/*_$1_*.deb"
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

# By Debian's own runner, which installs the packages once more.
autopkgtest() {
    within sh -c "autopkgtest --no-built-binaries /packages/*_${version}_*.deb /sources -- null"
}

scripts/packages.sh try
version=$(dpkg-parsechangelog -S Version)

rm -rf "$place"
try "packages of $version" scripts/package.sh
try "packages of $older" scripts/package.sh --version "$older"
try "a folder with nothing but Debian" prepare
before=$(files)
try "installed" install_version "$older"
give_links
try "used by a new user" use
try "upgraded, links untouched" upgrade
try "used again" use
try "purged, nothing left" purge
try "autopkgtest" autopkgtest
