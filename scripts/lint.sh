#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Checks format, sources, lint, licence lines, scripts and paths; says one line a check and fails when any finds something.
# Usage: scripts/lint.sh

# Its checks are functions that are called by a name put together:
# shellcheck disable=SC2317

source "$(dirname "$0")/common.sh"

scripts/packages.sh test

cpp_files() {
    find "$@" -name '*.cpp' -o -name '*.h' | sort
}

# What the lint tools need: the compile commands, without the tests. Nothing is built, so no source includes a .moc file.
# Sources of a folder are put together, so that the tools read the toolkit's headers a few times and not 130 times.
prepare() {
    cmake --preset default -B build/lint -DBUILD_TESTING=OFF -DBUILD_BENCHMARKS=ON \
        -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=10
}

# What the tools are given: sources put together, and those that are a program of their own.
compiled_files() {
    grep -o '"file": "[^"]*"' build/lint/compile_commands.json | cut -d'"' -f4 | grep -v '_autogen/' | sort -u
}

check_format() {
    cpp_files include src host tools tests benchmarks examples | xargs clang-format-14 --dry-run --Werror
}

# Both tools know only sources of the compile commands, and read the headers through them.
check_tidy() {
    compiled_files | xargs -P2 -n1 clang-tidy-14 -p build/lint --quiet --checks=-bugprone-suspicious-include
}

# Levels 0 and 1 do not object to what the contract asks for: connections by SIGNAL and SLOT, QLatin1String texts.
# qstring-ref proposes QStringRef, which Qt 6 no longer has.
check_clazy() {
    compiled_files |
        xargs -P2 -n1 clazy-standalone -p build/lint -checks=level1,no-qstring-ref \
            --header-filter="^$PWD/(include|src|host|tools|benchmarks)/" --extra-arg=-Werror
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

# What plug-in and libraries keep to without a compiler asking for it. They build with Qt 4.8, 5 and 6, and a class is in
# another module from Qt to Qt. The plug-in takes the path of a link as it stands.
check_sources() {
    local plugin=(include src) libraries=(include src host/libcore host/libsdk)
    none "$(
        in_code '^#include <Qt[^>]*/' include src host tools tests benchmarks examples
        in_code '^#include "[^"]*\.cpp"' include src host tools tests benchmarks
        in_code '^#include <([^>]*[./]|[^Qa-z])' "${libraries[@]}"
        in_code '^#include "[^"]*/' "${libraries[@]}"
        foreign_includes "${libraries[@]}"
        in_code '\b(foreach|forever|Q_FOREACH|Q_FOREVER)\b' "${libraries[@]}"
        in_code '\b(fromUserInput|fromLocalFile)\b' "${plugin[@]}"
        # With Qt 4 a text in the source is read as Latin-1.
        LC_ALL=C in_code '"[^"]*[^ -~"][^"]*"' "${libraries[@]}"
        in_code '\bQT_VERSION\b' "${plugin[@]}" | grep -v '/QtVersionSwitches\.h:'
        # Connections by name only; a connection may take several lines.
        cpp_files "${libraries[@]}" | xargs grep -HPzo '\bconnect\s*\([^;]*(&\s*\w+::|\[[^]]*\]\s*[({])[^;]*;' | tr '\0' '\n'
    )"
}

# in_code PATTERN FOLDER...: the lines of C++ with the pattern, but for those of comments.
in_code() {
    local pattern=$1
    shift
    cpp_files "$@" | xargs grep -HnE "$pattern" | grep -vE '^[^:]*:[0-9]+: *(//|/?\*)'
}

# foreign_includes FOLDER...: the files with an include that is neither beside them nor in include/.
foreign_includes() {
    local file name
    cpp_files "$@" | xargs grep -Ho '^#include "[^"]*"' | tr -d '"' | while IFS=: read -r file name; do
        name=${name#'#include '}
        [[ -e ${file%/*}/$name || -e include/$name ]] || printf '%s: includes "%s"\n' "$file" "$name"
    done
}

# none TEXT: prints what was found; fails when there is any.
none() {
    printf '%s' "$1"
    [[ -z $1 ]]
}

check_scripts() {
    shellcheck -x -P scripts scripts/*.sh .ci/run debian/tests/operators-links debian/tests/build-examples \
        examples/fleet/roles/vellumconnect/files/layers-that-count
}

check_role() {
    (cd examples/fleet && yamllint --strict . && ansible-lint --offline --strict --nocolor -q playbook.yml roles)
}

# A path of one machine works on no other. "someone" is the made-up user of the tests. No name needs quoting in a shell.
check_paths() {
    local machine="(^|[^[:alnum:]._~/-])/(home|root|work|workspace|builds|Users)/[[:alnum:]._-]"
    none "$(
        listed_files | grep -E ' |[^[:print:]]'
        listed_files | xargs grep -InE "$machine" -- | grep -v '/home/someone\b'
        listed_files | xargs grep -InF "$PWD/" --
    )"
}

status=0
logged build/lint-prepare.log prepare || fail "configuring for the lint tools failed, see above"
for check in format sources tidy clazy licences scripts role paths; do
    if logged "build/lint-$check.log" "check_$check"; then
        say "lint: $check: ok"
    else
        say "lint: $check: FAILED, see above"
        status=1
    fi
done
exit "$status"
