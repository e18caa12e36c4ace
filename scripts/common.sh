# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# What the scripts of this folder share. Sourced; leaves the shell in the project's root.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# say TEXT: one line of progress.
say() {
    printf '%s\n' "$*"
}

# fail TEXT: one line that says what is wrong, and the end of the script.
fail() {
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit 1
}

# logged FILE COMMAND...: runs the command with its output in FILE, which is printed when the command fails.
logged() {
    local log=$1
    shift
    mkdir -p "$(dirname "$log")"
    "$@" </dev/null >"$log" 2>&1 && return
    local status=$?
    cat "$log" >&2
    return "$status"
}

# build_for FOLDER PRESET [OPTION...]: configures and builds a preset in build/FOLDER; the log lies beside it.
build_for() {
    local folder=build/$1 preset=$2
    shift 2
    logged "$folder-configure.log" cmake --preset "$preset" -B "$folder" "$@" &&
        logged "$folder-build.log" cmake --build "$folder"
}

# listed_files: the files of the sources, those of git and of builds left out.
listed_files() {
    find . \( -path ./.git -o -path ./build -o -name __pycache__ \) -prune -o ! -type d -print | sed 's,^\./,,' | sort
}
