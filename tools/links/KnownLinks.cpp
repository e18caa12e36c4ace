// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "KnownLinks.h"

#include <QRegularExpression>

#include "DialogLengthLimits.h"
#include "LinkExchange.h"
#include "QuickLinkRecord.h"

/** What of a name stands before a number. */
static QString cut(const QString& name)
{
    return name.left(DialogLengthLimits::longestName - 9);
}

void KnownLinks::add(const QuickLinkRecord& link)
{
    static const QRegularExpression number(QStringLiteral(" \\(\\d+\\)$"));
    const QString address = LinkExchange::addressOf(link);
    m_names.insert(link.name);
    m_links.insert({link.name, address});
    m_links.insert({QString(link.name).remove(number), address});
}

bool KnownLinks::contains(const QuickLinkRecord& link) const
{
    const QString address = LinkExchange::addressOf(link);
    return m_links.contains({link.name, address}) || m_links.contains({cut(link.name), address});
}

QString KnownLinks::freeName(const QString& name) const
{
    QString free = name;
    for (int i = 2; m_names.contains(free); ++i)
        free = QStringLiteral("%1 (%2)").arg(cut(name)).arg(i);
    return free;
}
