# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# What the scripts share that try something in a system in a folder. Sourced after common.sh; takes the script's arguments. The
# script says which folder is the system ("inside"), and where logs lie ("place"):
# shellcheck disable=SC2154

usage="usage: scripts/$(basename "$0") [--mirror ADDRESS]"
codename=$(. /etc/os-release && printf '%s' "${VERSION_CODENAME-}")
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

# try TEXT COMMAND...: a line of what was tried; the end where it failed.
try() {
    local text=$1
    shift
    logged "$place/$(basename "$1").log" "$@" || fail "$text: FAILED, see above"
    say "$text: ok"
}

# make_debian: by default from where this system's main packages come.
make_debian() {
    # shellcheck disable=SC2016 # apt's own variable
    [[ -n $mirror ]] ||
        mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' "Codename: $codename" 'Component: main' |
            sort -u | head -n 1)
    [[ -n $mirror ]] || fail "this system says of no place where its packages come from; $usage"
    debootstrap --variant=minbase "$codename" "$inside" "$mirror" || return
    # Where displays of users are found; else only root could make it.
    mkdir -m 1777 "$inside/tmp/.X11-unix" &&
        within apt-get -q -y update
}

# within COMMAND...: runs it in the folder, where it sees its own processes only; they end with it.
within() {
    unshare --mount --pid --fork --kill-child --mount-proc="$inside/proc" \
        chroot "$inside" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
}

# install_needed_by PACKAGE...: of those in build/packages, what they stand on.
install_needed_by() {
    local package wanted
    for package; do
        wanted=$(dpkg-deb -f "build/packages/$package"_*.deb Depends | tr ',' '\n' | grep -v vellumconnect | paste -sd ,)
        within apt-get -q -y satisfy --no-install-recommends "$wanted" || return
    done
}

# files: what there is outside of home folders and of what the system notes of packages.
files() {
    (cd "$inside" && find . -mindepth 1 \( -path ./home -o -path ./proc -o -path ./sys -o -path ./dev -o -path ./tmp -o -path ./run \
        -o -path ./var/cache -o -path ./var/log -o -path ./var/lib/dpkg -o -path ./var/lib/apt \) -prune -o -print | sort)
}
