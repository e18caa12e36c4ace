// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkObjection.h"

#include "LinkJudgement.h"
#include "QuickLinkRecord.h"

QString LinkObjection::to(const QuickLinkRecord& link, const QStringList& others)
{
    if (others.contains(link.name))
        return QStringLiteral("There is a link \"%1\" already.").arg(link.name);
    if (!LinkJudgement::ofType(link.type).isEmpty())
        return LinkJudgement::ofType(link.type);
    const QList<LinkJudgement::Problem> problems = LinkJudgement::of(link);
    return problems.isEmpty() ? QString() : problems.constFirst().sentence;
}
