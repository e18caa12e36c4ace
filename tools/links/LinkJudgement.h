// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include "Finding.h"

class QuickLinkRecord;

/**
 * What is wrong with one link by itself, judged by the code that judges it in the program: the plug-in's test of an
 * address, the limits of its dialog, and the host's rules for what an address leads to.
 */
namespace LinkJudgement
{

struct Problem {
    FindingCode code;
    const char* attribute; ///< which of LinkAttributes it is about
    QString sentence;
};

/** What is wrong with the type of a link, in words; empty where it is one of the three. */
QString ofType(const QString& type);

/** The other problems of a link that is shown. Whether programs and files are there is a question of this computer. */
QList<Problem> of(const QuickLinkRecord& link);

} // namespace LinkJudgement
