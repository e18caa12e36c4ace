#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Builds and tests everything: Qt 5, Qt 6, sanitizers, speed, format and lint. Says one line a step.
# Usage: scripts/test.sh [--quick]
#   --quick  build and test with Qt 5 only
# The log of a step that fails is printed; all logs lie in build/.

# Its steps are functions that are called through step():
# shellcheck disable=SC2317

source "$(dirname "$0")/common.sh"

quick=no
case "${1-}" in
"") ;;
--quick) quick=yes ;;
*) fail "unknown argument \"$1\"; usage: scripts/test.sh [--quick]" ;;
esac

results=()
status=0

# step NAME COMMAND...: runs a step and keeps its result for the summary.
step() {
    local name=$1 began=$SECONDS result=ok
    shift
    "$@" || result=FAILED
    [[ $result == ok ]] || status=1
    results+=("$(printf '%-6s %4d s  %s' "$result" $((SECONDS - began)) "$name")")
    say "${results[-1]}"
}

# ctest_in PRESET LOG [OPTION...]: runs tests of a preset in random order and shows ctest's closing line.
ctest_in() {
    local preset=$1 log=$2
    shift 2
    logged "$log" ctest --preset "$preset" -j2 --schedule-random --no-tests=error "$@" || return
    grep 'tests passed' "$log"
}

# Leaks of system libraries that the project cannot mend are named, with the reason, in lsan.supp. Qt has no frame
# pointers, so only the slow unwinder sees who called it.
sanitized_tests() {
    ASAN_OPTIONS=detect_leaks=1:fast_unwind_on_malloc=0:strict_string_checks=1:check_initialization_order=1 \
        LSAN_OPTIONS=suppressions=$PWD/tests/sanitizers/lsan.supp:print_suppressions=0 \
        UBSAN_OPTIONS=print_stacktrace=1 \
        ctest_in asan build/test-asan.log -L unit
}

instructions_and_heap() {
    logged build/test-benchmarks.log benchmarks/run --check
}

step "packages" scripts/packages.sh test
step "Qt 5: build" build_for default default
step "Qt 5: every test" ctest_in default build/test-qt5.log
if [[ $quick == no ]]; then
    step "Qt 5: unit tests twice, in another order" ctest_in default build/test-qt5-again.log -L unit --repeat until-fail:2
    step "Qt 6: build" build_for qt6 qt6
    step "Qt 6: every test" ctest_in qt6 build/test-qt6.log
    step "sanitizers: build" build_for asan asan
    step "sanitizers: unit tests" sanitized_tests
    step "instructions and heap" instructions_and_heap
    step "format and lint" scripts/lint.sh
fi

say ""
say "Summary"
printf '%s\n' "${results[@]}"
((status == 0)) || fail "something failed, see above"
say "Everything passed."
