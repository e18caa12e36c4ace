// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkAddresses.h"

#include <QUrl>

#include <algorithm>

#include "InternetAddress.h"
#include "OpenedLink.h"
#include "Opening.h"

namespace
{
QString name(const LinkItems::Fields& link)
{
    return link.value(QStringLiteral("name"));
}

QString url(const LinkItems::Fields& link)
{
    return link.value(QStringLiteral("url"));
}

bool leadsTo(const LinkItems::Fields& link, const QString& address)
{
    const auto isThis = [&address](const QUrl& read) {
        return !address.isEmpty() && QString::fromLatin1(read.toEncoded()) == address;
    };
    return url(link) == address || isThis(QUrl(url(link))) || isThis(InternetAddress::completed(url(link)));
}
} // namespace

LinkAddresses::LinkAddresses(const QByteArray& content)
    : m_links(LinkItems::of(content))
{
}

QString LinkAddresses::addressOf(const QString& wanted, int place) const
{
    if (place >= 0 && place < m_links.size() && name(m_links.at(place)) == wanted)
        return url(m_links.at(place));
    const auto found = std::find_if(m_links.begin(), m_links.end(),
                                    [&wanted](const LinkItems::Fields& link) { return name(link) == wanted; });
    return found == m_links.end() ? QString() : url(*found);
}

QString LinkAddresses::nameOf(const QString& address) const
{
    const auto found = std::find_if(m_links.begin(), m_links.end(),
                                    [&address](const LinkItems::Fields& link) { return leadsTo(link, address); });
    return found == m_links.end() ? QString() : name(*found);
}

void LinkAddresses::tellPassedOver(const QString& mark) const
{
    QList<int> marked;
    for (int place = 0; place < m_links.size(); ++place) {
        const bool isMarked = m_links.at(place).value(mark) == QLatin1String("1");
        if (isMarked && m_links.at(place).value(QStringLiteral("type")) == QLatin1String("IDS_LINK_TYPE_INTERNET"))
            marked.append(place);
    }
    const QList<int> passedOver = marked.mid(0, marked.size() - 1);
    for (const int place : passedOver) {
        const OpenedLink link(name(m_links.at(place)), place);
        Opening(url(m_links.at(place))).refuse(tr("of several marked web addresses only the lowest opens"));
    }
}

bool LinkAddresses::haveParameters() const
{
    return std::any_of(m_links.begin(), m_links.end(),
                       [](const LinkItems::Fields& link) { return !link.value(QStringLiteral("para")).isEmpty(); });
}
