// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdio>
#include <cstdlib>

#include <QString>

/** Ends the program, for which the fuzzer keeps the input as a finding, unless what the sentence says is so. */
inline void require(bool isSo, const char* sentence, const QString& found = QString())
{
    if (isSo)
        return;
    std::fprintf(stderr, "not so: %s %s\n", sentence, found.toUtf8().constData());
    std::abort();
}
