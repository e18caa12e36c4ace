#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Brings the texts of the sources into every catalogue of host/i18n: new ones to be translated, unused ones out. Says how
# many texts of a language wait for a translation.
# Usage: scripts/catalogues.sh [NEW_LANGUAGE]
#   NEW_LANGUAGE  makes a catalogue for one more language, such as "it" or "zh_TW"

source "$(dirname "$0")/common.sh"

scripts/packages.sh run
update=(env QT_SELECT=qt5 lupdate -silent -no-obsolete -locations none -source-language en)
log=build/catalogues.log
catalogues=host/i18n/vellumconnect_

if (($#)); then
    [[ $1 =~ ^[a-z]{2,3}(_[A-Z]{2})?$ ]] || fail "\"$1\" is no language, such as \"it\" or \"zh_TW\""
    [[ ! -e $catalogues$1.ts ]] || fail "there is a $catalogues$1.ts"
    logged "$log" "${update[@]}" -target-language "$1" host -ts "$catalogues$1.ts"
fi
logged "$log" "${update[@]}" host -ts "$catalogues"*.ts
# What lupdate grumbles about are texts that it cannot put into a catalogue.
[[ ! -s $log ]] || fail "$(<"$log")"

for catalogue in "$catalogues"*.ts; do
    language=${catalogue#"$catalogues"}
    language=${language%.ts}
    # English translates keys and plural forms only; its other texts are those of the sources.
    [[ $language == en ]] || say "$language: $(grep -c 'type="unfinished"' "$catalogue" || true) to translate"
done
