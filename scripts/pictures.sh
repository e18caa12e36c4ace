#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Takes the pictures of docs/pictures from the real program on a virtual display: at the default size, with large fonts and
# at 200 % scaling; and one sheet for every language.
# Usage: scripts/pictures.sh [BUILD_FOLDER]; the default is build/default, as made by "cmake --preset default"

source "$(dirname "$0")/common.sh"

build=${1-build/default}
program=$build/stage/bin/vellumconnect
[[ -x $program ]] || fail "there is no $program; build it first"

scripts/packages.sh test
mkdir -p docs/pictures

# take SCRIPT: runs a script that takes pictures.
take() {
    logged "$build/$1.log" env VELLUM_PROGRAM="$(realpath "$program")" VELLUM_SAMPLE="$PWD/samples/config.xml" \
        VELLUM_DOCUMENTATION="$PWD/docs/pictures" VELLUM_CATALOGUES="$PWD/host/i18n" \
        VELLUM_PICTURES="$build/pictures-failed" /usr/bin/python3 -B "tests/desktop/$1.py" ||
        fail "some pictures could not be taken, see above"
}

take take_pictures
take take_language_pictures
say "Took $(find docs/pictures -name '*.png' | wc -l) pictures; see docs/pictures"
