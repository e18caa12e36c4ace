#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Checks format, lint, licence lines, scripts and paths; says one line a check and fails when any finds something.
# Usage: scripts/lint.sh

# Its checks are functions that are called by a name put together:
# shellcheck disable=SC2317

source "$(dirname "$0")/common.sh"

scripts/packages.sh test

cpp_files() {
    find "$@" -name '*.cpp' -o -name '*.h' | sort
}

# What the lint tools need: the compile commands, without the tests. Nothing is built, so no source includes a .moc file.
prepare() {
    cmake --preset default -B build/lint -DBUILD_TESTING=OFF -DBUILD_BENCHMARKS=ON
}

check_format() {
    cpp_files include src host tests benchmarks | xargs clang-format-14 --dry-run --Werror
}

# Both tools know only sources of the compile commands, and read the headers through them.
check_tidy() {
    cpp_files src host benchmarks | grep '\.cpp$' | xargs -P2 -n4 clang-tidy-14 -p build/lint --quiet
}

# Levels 0 and 1 do not object to what the contract asks for: connections by SIGNAL and SLOT, QLatin1String texts.
# qstring-ref proposes QStringRef, which Qt 6 no longer has.
check_clazy() {
    cpp_files src host benchmarks | grep '\.cpp$' |
        xargs -P2 -n4 clazy-standalone -p build/lint -checks=level1,no-qstring-ref \
            --header-filter="^$PWD/(include|src|host|benchmarks)/" --extra-arg=-Werror
}

# On a copy of the sources: outside git the tool would take the build for sources, too.
check_licences() {
    local copy status=0
    copy=$(mktemp -d)
    listed_files | tar -cf - -T - | tar -xf - -C "$copy"
    reuse --root "$copy" lint || status=$?
    rm -rf "$copy"
    return "$status"
}

check_scripts() {
    shellcheck -x -P scripts scripts/*.sh .ci/run
}

# A path of one machine works on no other. "someone" is the made-up user of the tests. No name needs quoting in a shell.
check_paths() {
    local machine="(^|[^[:alnum:]._~/-])/(home|root|work|workspace|builds|Users)/[[:alnum:]._-]"
    local found
    found=$(
        listed_files | grep -E ' |[^[:print:]]'
        listed_files | xargs grep -InE "$machine" -- | grep -v '/home/someone\b'
        listed_files | xargs grep -InF "$PWD/" --
    ) || true
    printf '%s' "$found"
    [[ -z $found ]]
}

listed_files() {
    find . \( -path ./.git -o -path ./build -o -name __pycache__ \) -prune -o ! -type d -print | sed 's,^\./,,' | sort
}

status=0
logged build/lint-prepare.log prepare || fail "configuring for the lint tools failed, see above"
for check in format tidy clazy licences scripts paths; do
    if logged "build/lint-$check.log" "check_$check"; then
        say "lint: $check: ok"
    else
        say "lint: $check: FAILED, see above"
        status=1
    fi
done
exit "$status"
