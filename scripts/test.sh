#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Builds and tests everything: Qt 5, Qt 6, Qt 4.8, sanitizers, fuzzing, mutants, speed, format and lint. Says one line a step.
# Usage: [QT4_TOOLKITS=FOLDER] scripts/test.sh [--quick]
#   --quick       build and test with Qt 5 only
#   QT4_TOOLKITS  a folder with qt-4.8.7-x86_64.tar.xz and qt-4.8.7-i386.tar.xz; without it Qt 4.8 is left out
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

# ctest_in PRESET LOG [OPTION...]: runs tests of a preset, the longest first, and shows ctest's closing line. Half of them
# wait for something, so there are more at once than processors; JOBS is another number.
ctest_in() {
    local preset=$1 log=$2
    shift 2
    logged "$log" ctest --preset "$preset" -j"${JOBS-6}" --no-tests=error "$@" || return
    grep 'tests passed' "$log"
}

# sanitized_tests LABEL LOG CALLERS SUPPRESSIONS...: what the project cannot mend is named, with the reason, in
# tests/sanitizers. Qt has no frame pointers, so only the slow unwinder sees who called it; with each of the CALLERS of an
# allocation that it notes it is slower, so there are as many as it takes to know what to leave out.
sanitized_tests() {
    local label=$1 log=$2 checks=strict_string_checks=1:check_initialization_order=1:malloc_context_size=$3
    shift 3
    (cd tests/sanitizers && cat "$@") >"build/$label.supp"
    ASAN_OPTIONS=detect_leaks=1:fast_unwind_on_malloc=0:$checks:suppressions=$PWD/tests/sanitizers/asan.supp \
        LSAN_OPTIONS=suppressions=$PWD/build/$label.supp:print_suppressions=0 \
        UBSAN_OPTIONS=print_stacktrace=1 \
        JOBS=3 ctest_in asan "$log" -L "$label"
}

# beside COMMAND COMMAND: both at once, where one of them waits or has work for one processor only.
beside() {
    local process result=0
    "$1" &
    process=$!
    "$2" || result=1
    wait "$process" || result=1
    return "$result"
}

# What is tried with the network's real services, which mostly waits for them.
services() {
    beside services_with_qt5 services_with_qt6
}

services_with_qt5() {
    ctest_in default build/test-services-qt5.log -L services
}

services_with_qt6() {
    ctest_in qt6 build/test-services-qt6.log -L services
}

build_asan() {
    build_for asan asan
}

unit_tests_again() {
    ctest_in default build/test-qt5-again.log -L unit --schedule-random
}

# What is measured and debugged is Qt 5's.
build_qt6() {
    build_for qt6 qt6 "-DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O1 -DNDEBUG"
}

sanitized_desktop() {
    sanitized_tests sanitized build/test-asan-desktop.log 16 lsan.supp desktop.supp
}

instructions_and_heap() {
    logged build/test-benchmarks.log benchmarks/run --check
}

# The two toolkits, unpacked once into build/qt-4.8/<architecture>.
unpack_qt4() {
    local architecture
    scripts/packages.sh qt4 || return
    for architecture in x86_64 i386; do
        mkdir -p "build/qt-4.8/$architecture"
        [[ -x build/qt-4.8/$architecture/bin/qmake ]] ||
            tar -xf "$QT4_TOOLKITS/qt-4.8.7-$architecture.tar.xz" -C "build/qt-4.8/$architecture" --strip-components=1
    done
}

# build_qt4 FOLDER ARCHITECTURE TARGET [OPTION...]
build_qt4() {
    local folder=build/$1 toolkit=$PWD/build/qt-4.8/$2 target=$3
    shift 3
    logged "$folder-configure.log" cmake --preset qt4 -B "$folder" "-DQT_QMAKE_EXECUTABLE=$toolkit/bin/qmake" "$@" &&
        logged "$folder-build.log" cmake --build "$folder" --target "$target"
}

# A 32-bit program on a 64-bit system; the X libraries that it needs lie beside the toolkit.
build_qt4_32() {
    local link="-Wl,-rpath-link,$PWD/build/qt-4.8/i386/lib/sysroot"
    build_qt4 qt4-32 i386 module_tests -DCMAKE_CXX_FLAGS=-m32 "-DCMAKE_EXE_LINKER_FLAGS=$link" \
        "-DCMAKE_SHARED_LINKER_FLAGS=$link" "-DCMAKE_MODULE_LINKER_FLAGS=$link"
}

# Each Qt's loader takes its own file and refuses those that were built for the others.
loaders() {
    local installed=installed/lib/vellumconnect/plugins/QuickLinkUIPlugin/libQuickLinkUIPlugin.so
    local build other others
    for build in "$@"; do
        others=
        for other in "$@"; do
            [[ $other == "$build" ]] || others+=:$PWD/build/$other/$installed
        done
        OTHER_QUICK_LINKS=${others#:} logged "build/test-loader-$build.log" \
            ctest --test-dir "build/$build" --no-tests=error -R 'plugin\.(install|PluginLoaderTest)' || return
    done
}

step "packages" scripts/packages.sh test
# Several files compiled as one take half the time. That each compiles by itself as well, the copy for the mutants shows.
together=(-DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=8)
[[ $quick == no ]] || together=()
step "Qt 5: build" build_for default default "${together[@]}"
step "Qt 5: every test" ctest_in default build/test-qt5.log -LE services
if [[ $quick == no ]]; then
    step "Qt 5: unit tests again, in any order; Qt 6: build" beside unit_tests_again build_qt6
    # Faults of the disk are the same with every Qt.
    step "Qt 6: every test" ctest_in qt6 build/test-qt6.log -LE 'faults|services'
    if [[ -n ${QT4_TOOLKITS-} ]]; then
        step "Qt 4.8: packages and toolkits" unpack_qt4
        step "Qt 4.8, 64-bit: build" build_qt4 qt4 x86_64 all
        step "Qt 4.8, 64-bit: unit tests, developer kit" ctest_in qt4 build/test-qt4.log -L 'unit|kit'
        step "Qt 4.8, 32-bit: build" build_qt4_32
        step "every Qt: its own plug-in loaded, the others' refused" loaders qt4-32 qt4 qt6 default
    else
        say "Qt 4.8: left out, no toolkit given"
        step "every Qt: its own plug-in loaded, the others' refused" loaders qt6 default
    fi
    step "Qt 5, Qt 6: real services; sanitizers: build" beside services build_asan
    step "sanitizers: unit tests" sanitized_tests unit build/test-asan.log 10 lsan.supp
    step "sanitizers: desktop; Debian packages" beside sanitized_desktop scripts/package.sh
    # The same inputs at each run: what is new is looked for by hand, for longer.
    step "fuzzing" env SEED=1 scripts/fuzz.sh 10
    step "mutants: a handful" scripts/mutants.sh --handful
    step "instructions and heap; format and lint" beside instructions_and_heap scripts/lint.sh
fi

say ""
say "Summary"
printf '%s\n' "${results[@]}"
((status == 0)) || fail "something failed, see above"
say "Everything passed."
