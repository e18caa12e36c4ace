// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "KnownLinks.h"

#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

#include "DialogLengthLimits.h"
#include "LinkExchange.h"
#include "QuickLinkRecord.h"

/** What of a name stands before a number. */
static QString cut(const QString& name)
{
    return name.left(DialogLengthLimits::longestName - 9);
}

/** Browsers write no address without a path. */
static QString addressOf(const QuickLinkRecord& link)
{
    QString address = LinkExchange::addressOf(link);
    QUrl url(address);
    if (!url.host().isEmpty() && url.path().isEmpty()) {
        url.setPath(QStringLiteral("/"));
        address = QString::fromLatin1(url.toEncoded());
    }
    return address;
}

void KnownLinks::add(const QuickLinkRecord& link)
{
    static const QRegularExpression number(QStringLiteral(" \\(\\d+\\)$"));
    const QString address = addressOf(link);
    m_names.insert(link.name);
    m_links.insert({link.name, address});
    m_links.insert({QString(link.name).remove(number), address});
}

bool KnownLinks::contains(const QuickLinkRecord& link) const
{
    const QString address = addressOf(link);
    return m_links.contains({link.name, address}) || m_links.contains({cut(link.name), address});
}

QString KnownLinks::freeName(const QString& name)
{
    if (!m_names.contains(name))
        return name;
    QString free;
    // A thousand links of one name are numbered in a row, not each from the beginning.
    int& number = m_numbers[cut(name)];
    for (number = std::max(number, 2); free.isEmpty() || m_names.contains(free); ++number)
        free = QStringLiteral("%1 (%2)").arg(cut(name)).arg(number);
    return free;
}
