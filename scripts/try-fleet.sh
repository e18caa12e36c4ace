#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Tries examples/fleet/ on three systems in folders, with nothing but Debian to begin with, by the commands of its README: the
# role installs packages, links and settings, changes nothing when it runs again, reports what a started program shows,
# and refuses links that are no good before it changes anything; the configuration package gives its links and settings,
# and leaves nothing when it is purged. For root, since a system in a folder is entered by chroot.
# Usage: sudo scripts/try-fleet.sh [--mirror ADDRESS]
#   --mirror ADDRESS  takes Debian from there; by default from where this system takes it
# Everything lies below build/fleet/, which is made anew.

source "$(dirname "$0")/common.sh"
source "scripts/debian-folders.sh"

place=$PWD/build/fleet
fleet=$place/operator # as examples/fleet/
tools=$PWD/build/packages/unpacked/usr/bin
computers=(desk lab bench)
user=someone

# shellcheck disable=SC2016 # the signs of a block of code
mapfile -t commands < <(sed -n '/^```sh$/,/^```$/{/^```/!p}' examples/fleet/README.md)
((${#commands[@]} == 4)) || fail "there are other commands in examples/fleet/README.md than those that are tried"
own_trial=${commands[0]} role=${commands[1]} look_ahead=${commands[2]} build_package=${commands[3]}

# enter COMPUTER: "within" is there from now on.
enter() {
    inside=$place/$1
}

# One system with what the packages stand on, and two copies of it.
make_computers() {
    local copy
    enter "${computers[0]}"
    make_debian &&
        within apt-get -q -y install --no-install-recommends python3-apt dbus xauth xvfb &&
        install_needed_by vellumconnect vellumconnect-plugin-quicklink vellumconnect-libs &&
        within useradd --create-home "$user" &&
        echo 'APT::Install-Recommends "false";' >"$inside/etc/apt/apt.conf.d/no-recommends" || return
    for copy in "${computers[@]:1}"; do
        cp -a "$inside" "$place/$copy" || return
    done
}

# The example with these computers, and the packages but for those of developers.
make_operator() {
    local computer
    cp -r examples/fleet "$fleet"
    mkdir "$fleet/packages"
    cp build/packages/vellumconnect*.deb "$fleet/packages/"
    {
        for computer in "${computers[@]}"; do
            echo "$computer ansible_host=$place/$computer"
        done
        printf '%s\n' '[all:vars]' ansible_connection=community.general.chroot ansible_become=false \
            ansible_python_interpreter=/usr/bin/python3
    } >"$fleet/computers.ini"
}

# A package of the lab gives links, too: a layer that the operator's takes the place of, and one in which a link is another and
# two are the operator's with other marks.
give_package_layers() {
    local layers=$place/lab/usr/share/vellumconnect/links.d office=$fleet/office/links.d/10-office.xml
    mkdir -p "$layers"
    sed 's/name="Portal"/name="Never shown"/' "$office" >"$layers/10-office.xml"
    sed -e 's/name="Help desk"/name="Lab desk"/' -e 's/connect="1"/connect="0"/' "$office" >"$layers/30-lab.xml"
}

# noted FOLDER COMMAND: starts the program by the command, on a display of its own, until the folder has the links.
noted() {
    # shellcheck disable=SC2016 # for the inner shell
    timeout 60 xvfb-run -a dbus-run-session -- bash -c "$2 & "'until [[ -e $1/seeded.xml ]]; do sleep 0.1; done; kill "$!"' - "$1"
}

try_own() {
    (cd "$fleet" && PATH=$tools:$PATH noted data "$own_trial") &&
        [[ $("$tools/vellumconnect-links" list "$fleet/data/plugins/QuickLinkUIPlugin/config.xml" | wc -l) == 4 ]]
}

# ansible COMMAND: runs it with the processes of the computers in view. What it says lies in the file "said", too.
ansible() {
    local computer mounts=
    for computer in "${computers[@]}"; do
        mounts+="mount -t proc proc '$place/$computer/proc' && "
    done
    ANSIBLE_HOME=$place/ansible ANSIBLE_NOCOLOR=1 PATH=$tools:$PATH unshare --mount --pid --fork --kill-child --mount-proc \
        bash -c "$mounts cd '$fleet' && $1" 2>&1 | tee "$place/said"
}

# changes COUNT: whether the role ends well, and so many tasks (a pattern) changed something on each computer.
changes() {
    ansible "$role" && [[ $(grep -Ec " changed=$1 .*unreachable=0 .*failed=0 " "$place/said") == "${#computers[@]}" ]]
}

# What the role could change.
state() {
    local computer
    for computer in "${computers[@]}"; do
        (cd "$place/$computer" && find etc/vellumconnect var/lib/dpkg/status -type f -exec sha256sum {} +)
    done
}

# keeps COMMAND...: whether it succeeds and the state is as before, where the operator has a new layer and another setting.
keeps() {
    local before status=0
    before=$(state)
    cp -r "$fleet/office" "$place/office"
    cp "$fleet/office/links.d/20-lab.xml" "$fleet/office/links.d/40-new.xml"
    echo 'language=fr' >"$fleet/office/vellumconnect.ini"
    "$@" || status=$?
    rm -r "$fleet/office"
    mv "$place/office" "$fleet/office"
    ((status == 0)) && [[ $(state) == "$before" ]]
}

looks_ahead() {
    ansible "$look_ahead" && grep -q '^+.*40-new.xml' "$place/said" && grep -q '^+language=fr' "$place/said"
}

refuses_broken() {
    echo '<tovadoc>' >"$fleet/office/links.d/30-broken.xml"
    ! ansible "$role" && grep -q 'not-well-formed' "$place/said"
}

# start: starts the program for a new user; prints the links then as the tool does.
start() {
    rm -rf "$inside/home/$user/.local"
    within runuser -u "$user" -- env HOME="/home/$user" \
        bash -c "$(declare -f noted); noted ~/.local/share/vellumconnect vellumconnect" >&2
    within runuser -u "$user" -- env HOME="/home/$user" vellumconnect-links list --format json
}

# Every field but the ids, which are another for each user.
report_is_right() {
    local computer
    for computer in "${computers[@]}"; do
        enter "$computer"
        start >"$place/started.json" && python3 -c '
import json, sys
started, reported = ([dict(link, id="") for link in json.load(open(name))["links"]] for name in sys.argv[1:3])
print(started, reported, sep="\n")
sys.exit(started != reported or len(started) != int(sys.argv[3]))' \
            "$place/started.json" "$fleet/reports/$computer.json" "$([[ $computer == lab ]] && echo 5 || echo 4)" || return
    done
}

# A layer, and what was fixed.
take_away() {
    local computer
    rm "$fleet/office/links.d/20-lab.xml" "$fleet/office/vellumconnect.ini"
    changes '[1-9][0-9]*' || return
    for computer in "${computers[@]}"; do
        [[ $(cd "$place/$computer/etc/vellumconnect" && find . -type f) == ./links.d/10-office.xml ]] || return
    done
}

# "-d": the program is not installed here, but unpacked.
make_package() {
    mkdir "$place/package" &&
        cp -r examples/fleet "$place/package/sources" &&
        (cd "$place/package/sources" && PATH=$tools:$PATH bash -c "$build_package -d") &&
        lintian --allow-root --fail-on error,warning,info "$place/package"/*.changes
}

# In which language the program speaks, of the two that are tried.
language() {
    case $(within vellumconnect --help) in
    *"Diese Hilfe"*) echo de ;;
    *"Affiche cette aide"*) echo fr ;;
    esac
}

# The computer has a setting of its own, and no links.
install_package() {
    rm -r "$inside/etc/vellumconnect/links.d"
    echo 'language=fr' >"$inside/etc/vellumconnect/vellumconnect.ini"
    [[ $(language) == fr ]] || return
    files >"$place/before"
    cp "$place/package"/*.deb "$inside/tmp/"
    within sh -c 'apt-get -q -y install /tmp/*.deb'
}

package_works() {
    [[ $(start) == *'"Portal"'*'"Help desk"'*'"Write to us"'*'"Bookings"'* && $(language) == de ]]
}

purge_package() {
    within apt-get -q -y purge office-vellumconnect-config
    diff "$place/before" <(files) && [[ $(language) == fr ]]
}

scripts/packages.sh fleet

rm -rf "$place"
try "packages of the program" scripts/package.sh
try "three computers with nothing but Debian" make_computers
make_operator
give_package_layers
try "the links tried on one's own computer" try_own
try "role: all is installed" changes '[1-9][0-9]*'
try "role: the second run changes nothing" changes 0
try "role: a started program shows what the report says" report_is_right
try "role: a look ahead says what would change, and changes nothing" keeps looks_ahead
try "role: a broken layer is refused, and nothing is changed" keeps refuses_broken
try "role: what the operator takes away goes" take_away
enter "${computers[2]}"
try "configuration package: built" make_package
try "configuration package: installed" install_package
try "configuration package: its links and settings hold" package_works
try "configuration package: purged, nothing left" purge_package
