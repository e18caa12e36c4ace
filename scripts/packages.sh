#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Installs the Debian 12 packages that a purpose needs and that are missing; says nothing when none is.
# Usage: scripts/packages.sh run|demo|benchmark|fuzz|package|try|fleet|test|qt4
#   run        build with Qt 5 and start the program
#   demo       and show it on a virtual display
#   benchmark  and measure it
#   fuzz       build with clang for scripts/fuzz.sh
#   package    make the Debian packages and look at them with scripts/package.sh
#   try        and try them with scripts/try-packages.sh
#   fleet      and try the example of a fleet with scripts/try-fleet.sh
#   test       and build with Qt 6, run every test, and check format, lint and licences
#   qt4        what a given toolkit of Qt 4.8 needs, 64-bit and 32-bit
# Where each package is for: docs/dependencies.md

source "$(dirname "$0")/common.sh"

run=(cmake ninja-build g++ qtbase5-dev qttools5-dev qttranslations5-l10n qtwayland5 libglib2.0-dev libxml2-dev xdg-utils
    fonts-dejavu-core xterm x11-apps)
demo=(python3 xvfb openbox xdotool imagemagick)
benchmark=(libkf5bookmarks-dev libpugixml-dev valgrind strace)
fuzz=(clang-14 libclang-rt-14-dev)
package=(debhelper dpkg-dev lintian devscripts blhc desktop-file-utils appstream reuse dbus xvfb xauth xdotool)
test=(qt6-base-dev qt6-tools-dev qt6-l10n-tools qt6-translations-l10n fonts-noto-cjk fonts-lohit-deva
    python3-gi libglib2.0-bin gir1.2-atspi-2.0 at-spi2-core dbus python3-dbusmock trayer weston qt6-wayland procps
    iproute2 libcurl3-gnutls libgudev-1.0-0 libjansson4 libmbim-glib4 libmm-glib0 libndp0 libnm0 libpolkit-gobject-1-0 libpsl5
    libqmi-glib5 libqrtr-glib0 libreadline8
    libxml2-utils groff-base
    clang-format-14 clang-tidy-14 clazy reuse shellcheck ansible-lint yamllint abigail-tools)
qt4=(xvfb xauth libx11-dev libxext-dev libxrender-dev libfontconfig1-dev libfreetype6-dev libsm-dev libice-dev libxrandr-dev
    libxi-dev libxcursor-dev libdbus-1-dev zlib1g-dev g++-multilib xz-utils)

# Installed they would run from then on, and take this computer's network for theirs: their tests find them in build/services.
services=(network-manager modemmanager)

case "${1-}" in
run) wanted=("${run[@]}") ;;
demo) wanted=("${run[@]}" "${demo[@]}") ;;
benchmark) wanted=("${run[@]}" "${demo[@]}" "${benchmark[@]}") ;;
fuzz) wanted=("${run[@]}" "${fuzz[@]}") ;;
package) wanted=("${run[@]}" "${package[@]}") ;;
try) wanted=("${run[@]}" "${package[@]}" debootstrap) ;;
fleet) wanted=("${run[@]}" "${package[@]}" debootstrap ansible config-package-dev) ;;
test) wanted=("${run[@]}" "${demo[@]}" "${benchmark[@]}" "${fuzz[@]}" "${package[@]}" "${test[@]}") ;;
qt4) wanted=("${qt4[@]}") ;;
*) fail "usage: scripts/packages.sh run|demo|benchmark|fuzz|package|try|fleet|test|qt4" ;;
esac

is_installed() {
    [[ $(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
}

by_hand() {
    fail "$1; install these Debian 12 packages and start again: ${missing[*]}"
}

missing=("${wanted[@]}")
command -v dpkg-query >/dev/null || by_hand "this is not a Debian system"
missing=()
for package in "${wanted[@]}"; do
    is_installed "$package" || missing+=("$package")
done

install_missing() {
    local as_root=(env)
    if ((EUID != 0)); then
        command -v sudo >/dev/null || by_hand "packages are missing and there is no sudo"
        as_root=(sudo env)
        if [[ ! -t 0 ]]; then
            # Nobody could answer a question for the password.
            sudo -n true 2>/dev/null || by_hand "packages are missing and sudo asks for a password"
        fi
    fi
    local apt=("${as_root[@]}" DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300)

    say "Installing: ${missing[*]}"
    logged build/packages.log "${apt[@]}" update || by_hand "apt-get update failed"
    logged build/packages.log "${apt[@]}" install --no-install-recommends "${missing[@]}" || by_hand "apt-get install failed"
}

unpack_services() {
    local folder=$PWD/build/services file
    say "Unpacking in build/services: ${services[*]}"
    mkdir -p "$folder/packages"
    (cd "$folder/packages" && logged "$folder/download.log" apt-get -q download "${services[@]}") ||
        fail "apt-get download failed, see above; after \"apt-get update\" it may find ${services[*]}"
    for file in "$folder"/packages/*.deb; do
        dpkg-deb -x "$file" "$folder"
    done
}

((${#missing[@]} == 0)) || install_missing
[[ $1 != test || -x build/services/usr/sbin/ModemManager ]] || unpack_services
