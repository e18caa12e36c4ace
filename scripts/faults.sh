#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Breaks the program in every way that a computer can while it saves links or starts, and counts what is lost.
# Usage: scripts/faults.sh [--write] [OPTION...]
#   --write    put the table into docs/reliability.md
#   OPTION     of tests/faults/run_faults.py, such as --sizes 3 or --faults kill

source "$(dirname "$0")/common.sh"

scripts/packages.sh test
write=no
[[ ${1-} != --write ]] || { write=yes && shift; }

logged build/faults-configure.log cmake --preset default
logged build/faults-build.log cmake --build build/default --target fault_driver
status=0
table=$(/usr/bin/python3 -B tests/faults/run_faults.py build/default/tests/faults/fault_driver "$@") || status=$?
printf '%s\n' "$table"
[[ $write == no ]] || TABLE=$table perl -0pi -e \
    's/(<!-- faults: begin -->\n).*?(\n<!-- faults: end -->)/$1\n$ENV{TABLE}\n$2/s' docs/reliability.md
((status == 0)) || fail "links were lost, or nobody was told, see above"
