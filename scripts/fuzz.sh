#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Throws made-up input at what reads, writes and completes text, and says one line a target. Stops with an error at the first
# input for which a promise does not hold, or that the address and undefined-behaviour sanitizers object to.
# Usage: scripts/fuzz.sh [SECONDS] [TARGET]
#   SECONDS  for each target; 30 by default
#   TARGET   only this one: reader, roundtrip, fields, guard or address; tests/README.md says what each looks at
# Inputs to begin with lie in tests/fuzz/corpus/, what a run learns in build/fuzz/learnt/, a finding in build/fuzz/findings/.

source "$(dirname "$0")/common.sh"

usage="usage: scripts/fuzz.sh [SECONDS] [TARGET]"
seconds=${1-30}
[[ $seconds =~ ^[1-9][0-9]*$ ]] || fail "$usage"

# What each target takes: a folder of inputs and, of the same name, the words that they are made of.
declare -A inputs=([reader]=documents [roundtrip]=documents [fields]=fields [guard]=documents [address]=addresses)
targets=(reader roundtrip fields guard address)
if [[ -n ${2-} ]]; then
    [[ -n ${inputs[$2]-} ]] || fail "there is no target \"$2\"; $usage"
    targets=("$2")
fi

# fuzz TARGET: the time given, or until a finding. One process, so that two targets never share a file.
fuzz() {
    local target=$1 kind=${inputs[$1]} place=build/fuzz
    mkdir -p "$place/learnt/$target" "$place/findings"
    ASAN_OPTIONS=allow_addr2line=1 UBSAN_OPTIONS=print_stacktrace=1 TMPDIR=$scratch \
        "$place/tests/fuzz/fuzz_$target" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=2048 -use_value_profile=1 \
        -dict="tests/fuzz/$kind.dict" -artifact_prefix="$place/findings/$target-" -verbosity=0 -print_final_stats=1 \
        "$place/learnt/$target" "tests/fuzz/corpus/$kind"
}

scripts/packages.sh fuzz
logged build/fuzz-configure.log cmake --preset fuzz
logged build/fuzz-build.log cmake --build --preset fuzz
# The store writes its file for every input: in memory where there is a file system for that.
scratch=$(mktemp -d -p /dev/shm 2>/dev/null || mktemp -d)
trap 'rm -rf "$scratch"' EXIT
for target in "${targets[@]}"; do
    log=build/fuzz-$target.log
    logged "$log" fuzz "$target" ||
        fail "$target: a finding, see above; build/fuzz/tests/fuzz/fuzz_$target FILE tries its input again"
    say "$target: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") runs in $seconds s, no finding"
done
