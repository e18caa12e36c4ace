// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

#include "ConnectionKind.h"

/** The settings that the operator of the computer has fixed for all of its users. Each may be none. */
struct FixedSettings {
    std::optional<QString> language;
    std::optional<ConnectionKind> connection; ///< the kind of the connections that count
    std::optional<bool> startsWithSession;

    /**
     * Reads them from file, which has "language", "startWithSession" and, in the section "connection", "kind". A value
     * that is no good, as a language that is not among languages, fixes nothing; a line on the warning channel says so.
     * A file that is missing fixes nothing, and languages are not asked for then.
     */
    static FixedSettings read(const QString& file, QStringList (*languages)());

    /** Where that file lies: vellumconnect.ini in the most important of Places::operatorFolders(). */
    static QString file();
};
