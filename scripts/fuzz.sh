#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Throws made-up input at what reads, writes and completes text, and says one line a target. Stops with an error at the first
# input for which a promise does not hold, or that the address and undefined-behaviour sanitizers object to.
# Usage: [SEED=N] scripts/fuzz.sh [SECONDS] [TARGET]
#   SEED     begins with the inputs that N gave before; without it with others at each run
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

# fuzz TARGET: the time given, or until a finding, in a process and a temporary folder of its own.
fuzz() {
    local target=$1 kind=${inputs[$1]} place=build/fuzz
    mkdir -p "$place/learnt/$target" "$place/findings" "$scratch/$target"
    ASAN_OPTIONS=allow_addr2line=1 UBSAN_OPTIONS=print_stacktrace=1 TMPDIR=$scratch/$target \
        "$place/tests/fuzz/fuzz_$target" -seed="${SEED-0}" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=2048 -use_value_profile=1 \
        -dict="tests/fuzz/$kind.dict" -artifact_prefix="$place/findings/$target-" -verbosity=0 -print_final_stats=1 \
        "$place/learnt/$target" "tests/fuzz/corpus/$kind"
}

# look TARGET: says how it went; a finding is remembered, for others run beside it.
look() {
    local target=$1 log=build/fuzz-$1.log
    if logged "$log" fuzz "$target"; then
        say "$target: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") runs in $seconds s, no finding"
    else
        say "$target: a finding, see above; build/fuzz/tests/fuzz/fuzz_$target FILE tries its input again"
        touch "$scratch/found"
    fi
}

scripts/packages.sh fuzz
logged build/fuzz-configure.log cmake --preset fuzz
logged build/fuzz-build.log cmake --build --preset fuzz
# The store writes its file for every input: in memory where there is a file system for that.
scratch=$(mktemp -d -p /dev/shm 2>/dev/null || mktemp -d)
trap 'rm -rf "$scratch"' EXIT
for target in "${targets[@]}"; do
    (($(jobs -rp | wc -l) < 2)) || wait -n
    look "$target" &
done
wait
[[ ! -e $scratch/found ]] || fail "a finding, see above"
