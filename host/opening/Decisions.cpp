// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Decisions.h"

#include <QLocale>

#include "ShownText.h"

static const int longestSentence = 300; // characters; what the toolkit says of a wrong address has the address in it

void Decisions::add(const Decision& decision)
{
    m_all.prepend({decision.time, ShownText::shortLine(decision.what),
                   ShownText::shortLine(decision.cause, longestSentence),
                   ShownText::shortLine(decision.outcome, longestSentence)});
    if (m_all.size() > longest)
        m_all.removeLast();
    Q_EMIT added();
}

QStringList Decisions::cells(const Decision& decision)
{
    return {QLocale().toString(decision.time, QLocale::ShortFormat), decision.what, decision.cause, decision.outcome};
}

QString Decisions::text(const QList<Decision>& decisions)
{
    QString text;
    for (const Decision& decision : decisions)
        text += cells(decision).join(QLatin1Char('\t')) + QLatin1Char('\n');
    return text;
}
