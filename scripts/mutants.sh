#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Breaks a copy of the sources, one mutant of tests/mutants at a time, and says whether the tests notice.
# Usage: scripts/mutants.sh [--jobs N] [--output FILE] [--handful | PATTERN]
#   --jobs N       work in N copies at once
#   --output FILE  write the results there as well, tab separated: result, mutant, seconds, the test that failed
#   --handful      only the mutants that tests/mutants/handful names, and only the tests of their folders
#   PATTERN        only the mutants whose "<folder>/<name>" fits, such as 'store/*'
# A mutant's folder names the tests that run first, those that begin with "<folder>."; a line "Covered by: REGEX" above
# the patch those that run next; then come all others. Only a mutant that passes every test has survived, and then, or when
# a mutant does not apply or does not build, the script fails. The copies and their logs lie in build/mutants/.

# Some of its functions are called through logged():
# shellcheck disable=SC2317

source "$(dirname "$0")/common.sh"

usage="usage: scripts/mutants.sh [--jobs N] [--output FILE] [--handful | PATTERN]"
place=$PWD/build/mutants
jobs=1
output=/dev/null
pattern='*'
handful=no
while (($#)); do
    case "$1" in
    --jobs) jobs=${2-} && shift ;;
    --output) output=${2-} && shift ;;
    --handful) handful=yes ;;
    -*) fail "unknown argument \"$1\"; $usage" ;;
    *) pattern=$1 ;;
    esac
    shift
done
[[ $jobs =~ ^[1-9]$ && -n $output ]] || fail "$usage"
threads=$(nproc)
export CTEST_PARALLEL_LEVEL=$threads CMAKE_BUILD_PARALLEL_LEVEL=$threads
# With CCACHE_BASEDIR, the copies share what the compiler cache holds.
export CCACHE_NOHASHDIR=1

# mutants: the names of those asked for.
mutants() {
    local name
    if [[ $handful == yes ]]; then
        sed '/^#/d; /^$/d' tests/mutants/handful
        return
    fi
    for name in tests/mutants/*/*.patch; do
        name=${name#tests/mutants/}
        name=${name%.patch}
        # shellcheck disable=SC2053 # a pattern is what it is
        [[ $name == $pattern ]] && printf '%s\n' "$name"
    done
    return 0
}

# sources FOLDER: what a copy holds.
sources() {
    (cd "$1" && find . \( -path ./.git -o -path ./build -o -path ./tests/mutants -o -name __pycache__ \) -prune -o -type f -print)
}

# copy_sources COPY: makes the copy equal to the sources. Files that are equal keep their time and so are not built again.
copy_sources() {
    local copy=$1 file
    mkdir -p "$copy"
    comm -13 <(sources . | sort) <(sources "$copy" | sort) | while read -r file; do
        rm -f "$copy/build/green" "$copy/$file"
    done
    sources . | while read -r file; do
        cmp -s "$file" "$copy/$file" && continue
        rm -f "$copy/build/green"
        mkdir -p "$copy/$(dirname "$file")"
        cp "$file" "$copy/$file"
    done
}

configure() {
    local copy=$1 option linker options=(-DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0 -DWARNINGS_AS_ERRORS=OFF
        "-DVELLUM_SERVICES=$PWD/build/services")
    command -v ccache >/dev/null && options+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    for linker in mold lld; do
        command -v "$linker" >/dev/null || continue
        for option in EXE SHARED MODULE; do
            options+=("-DCMAKE_${option}_LINKER_FLAGS=-fuse-ld=$linker")
        done
        break
    done
    (cd "$copy" && cmake --preset default -B build "${options[@]}")
    # A test that hangs is noticed, too, and soon. Those of the desktop wait for windows and keep their time.
    find "$copy/build/tests" -name CTestTestfile.cmake -not -path '*/desktop/*' -not -path '*/services/*' \
        -exec sed -Ei 's/(TIMEOUT) "[0-9]+"/\1 "60"/g' {} +
}

# run_tests COPY OPTION...: until the first one fails.
run_tests() {
    local copy=$1
    shift
    ctest --test-dir "$copy/build" --stop-on-failure "$@" </dev/null
}

# first_tests MUTANT: the expression for the tests of its folder.
first_tests() {
    printf '^%s\\.' "${1%%/*}"
}

# build_tests COPY EXPRESSION: builds the programs that these tests run; everything, when one runs something else.
build_tests() {
    local copy=$1 targets
    targets=$(find "$copy/build" -name CTestTestfile.cmake \
        -exec sed -nE 's/^add_test\(\[?=*\[?([^] ]+)\S* "([^"]+)".*/\1 \2/p' {} + |
        TESTS=$2 PROGRAMS=$copy/build/ \
            awk '$1 ~ ENVIRON["TESTS"] { print index($2, ENVIRON["PROGRAMS"]) == 1 ? $2 : "all" }' |
        sed 's,.*/,,' | sort -u)
    # shellcheck disable=SC2086 # one word a target
    CCACHE_BASEDIR=$copy cmake --build "$copy/build" --target ${targets:-all}
}

# prepare COPY EXPRESSION: a copy in which these tests are built. They have passed since the sources last changed.
prepare() {
    local copy=$1 tests=$2
    copy_sources "$copy"
    logged "$copy/build/configure.log" configure "$copy" || return
    logged "$copy/build/build.log" build_tests "$copy" "$tests" || return
    [[ $copy == "$place/1" ]] || return 0
    [[ -e $copy/build/green && $(<"$copy/build/green") == "$tests" ]] && return
    logged "$copy/build/test.log" run_tests "$copy" -R "$tests" --no-tests=error || return
    printf '%s\n' "$tests" >"$copy/build/green"
}

# judge COPY MUTANT: applies the mutant and sets result and witness.
judge() {
    local copy=$1 mutant=$2 log=$1/build/mutant.log own hint tests passed='^$'
    own=$(first_tests "$mutant")
    hint=$(sed -n '/^---/q; s/^Covered by: //p' "tests/mutants/$mutant.patch")
    result="does not apply"
    witness=
    patch -p1 -F1 -s -f --no-backup-if-mismatch -r - -d "$copy" <"tests/mutants/$mutant.patch" >"$log" 2>&1 || return 0
    # shellcheck disable=SC2086 # without a hint, no word
    for tests in "$own" $hint .; do
        result="does not build"
        build_tests "$copy" "$tests" >"$log" 2>&1 || return 0
        result=killed
        run_tests "$copy" -R "$tests" -E "$passed" >"$log" 2>&1 || break
        result=survived
        [[ $handful == no ]] || break
        passed+="|$tests"
    done
    [[ $result == killed ]] || return 0
    witness=$(sed -nE 's/.*Test +#[0-9]+: (\S+) .*\*\*\*.*/\1/p' "$log" | head -n 1)
    [[ -n $witness ]] || result="does not run"
}

# restore COPY MUTANT: takes the mutant out of the copy again.
restore() {
    local file
    sed -n 's,^+++ b/\([^[:blank:]]*\).*,\1,p' "tests/mutants/$2.patch" | while read -r file; do
        cp "$file" "$1/$file"
    done
}

try_mutant() {
    local copy=$1 mutant=$2 began=$SECONDS result witness
    judge "$copy" "$mutant"
    [[ $result != "does not"* ]] || cp "$copy/build/mutant.log" "$place/${mutant//\//-}.log"
    restore "$copy" "$mutant"
    printf '%-14s %4d s  %s%s\n' "$result" $((SECONDS - began)) "$mutant" "${witness:+  ($witness)}"
    printf '%s\t%s\t%d\t%s\n' "$result" "$mutant" $((SECONDS - began)) "$witness" >>"$results"
}

mapfile -t chosen < <(mutants)
((${#chosen[@]})) || fail "no mutant fits \"$pattern\""
for mutant in "${chosen[@]}"; do
    [[ -e tests/mutants/$mutant.patch ]] || fail "there is no mutant \"$mutant\""
done
began=$SECONDS
needed=.
[[ $handful == no ]] || needed=$(for mutant in "${chosen[@]}"; do first_tests "$mutant" && echo; done | sort -u | paste -sd '|')
for ((n = 1; n <= jobs; n++)); do
    prepare "$place/$n" "$needed" || fail "the sources as they are do not build, or do not pass their tests, see above"
    free+=("$place/$n")
done
say "built and tested without a mutant in $((SECONDS - began)) s"

threads=$(((threads + jobs - 1) / jobs))
CTEST_PARALLEL_LEVEL=$threads
CMAKE_BUILD_PARALLEL_LEVEL=$threads
results=$place/results
: >"$results"
: >"$output"
began=$SECONDS
declare -A busy
for mutant in "${chosen[@]}"; do
    if ! ((${#free[@]})); then
        wait -n -p ended || true
        free+=("${busy[$ended]}")
    fi
    try_mutant "${free[-1]}" "$mutant" &
    busy[$!]=${free[-1]}
    unset 'free[-1]'
done
wait
sort -t $'\t' -k 2 "$results" | tee "$output" >/dev/null

count() {
    cut -f 1 "$results" | grep -c "^$1" || true
}
say ""
say "$(count killed) killed, $(count survived) survived, $(count 'does not') not tried, in $((SECONDS - began)) s"
(($(count killed) == ${#chosen[@]})) && exit
grep -v '^killed' "$results" | cut -f 1,2 >&2
fail "not every mutant was killed"
