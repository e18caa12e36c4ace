#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Builds Vellum Connect and starts it with the sample's quick links.
# Usage: scripts/run.sh [--demo] [-- ARGUMENTS OF vellumconnect]
#   --demo  start it on a virtual display and walk through the menu; the default where there is no display
# Everything lies below build/run; the links are in build/run/data and stay there between starts.

source "$(dirname "$0")/common.sh"

demo=no
[[ -n ${DISPLAY-}${WAYLAND_DISPLAY-} ]] || demo=yes
while (($#)); do
    case "$1" in
    --demo) demo=yes ;;
    --)
        shift
        break
        ;;
    *) fail "unknown argument \"$1\"; usage: scripts/run.sh [--demo] [-- ARGUMENTS OF vellumconnect]" ;;
    esac
    shift
done

if [[ $demo == yes ]]; then
    scripts/packages.sh demo
else
    scripts/packages.sh run
fi

say "Building with Qt 5 in build/run"
build_for run default -DBUILD_TESTING=OFF || fail "the build failed, see above"

data=$PWD/build/run/data
links=plugins/QuickLinkUIPlugin/config.xml
if [[ ! -e $data/$links ]]; then
    install -D -m 644 samples/config.xml "$data/$links"
    say "Put the sample's links into $data/$links"
fi

program=$PWD/build/run/stage/bin/vellumconnect
[[ $demo == yes ]] && exec /usr/bin/python3 -B tests/desktop/demonstrate.py "$program" "$data" build/run "$@"
say "Starting $program"
exec "$program" --data-dir "$data" "$@"
