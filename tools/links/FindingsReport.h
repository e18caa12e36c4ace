// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QStringList>

#include "Finding.h"

/** Findings as people and programs read them. */
namespace FindingsReport
{

/** What --format may be. */
QStringList formats();

/**
 * The findings in one of these formats, ending in a line feed where there is anything: text has a line each, as
 * compilers do; json is an object with an array "findings"; sarif is SARIF 2.1.0 (OASIS, "Static Analysis Results
 * Interchange Format"), which code hosts show beside the lines. The last two are UTF-8, the first is in the encoding of
 * the user's locale.
 */
QByteArray of(const Findings& findings, const QString& format);

} // namespace FindingsReport
