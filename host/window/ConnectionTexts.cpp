// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ConnectionTexts.h"

#include <QDateTime>
#include <QLocale>

#include "ConnectionMonitor.h"
#include "ShownText.h"

using Reach = ConnectionState::Reach;
using InItsPlace = ConnectionState::InItsPlace;

ConnectionTexts::ConnectionTexts(const ConnectionMonitor& monitor, ConnectionKind kind)
    : m_monitor(monitor)
    , m_kind(kind)
{
}

void ConnectionTexts::setKind(ConnectionKind kind)
{
    m_kind = kind;
}

QString ConnectionTexts::state() const
{
    const ConnectionState now = m_monitor.state();
    if (now.isUp)
        return tr("Connected");
    return now.isComingUp ? tr("Connecting…") : tr("Not connected");
}

QString ConnectionTexts::summary() const
{
    const QString name = ShownText::shortLine(m_monitor.state().name);
    return name.isEmpty()
               ? state()
               : tr("%1: %2", "state and name of the connection").arg(state(), ShownText::isolatedName(name));
}

QString ConnectionTexts::hint() const
{
    const ConnectionState now = m_monitor.state();
    if (now.isUp && now.reach == Reach::Portal)
        return tr("This network asks for a login first.");
    if (now.isUp && now.reach == Reach::Checking)
        return tr("Checking…");
    if (now.isUp && now.reach == Reach::Limited)
        return tr("The Internet is out of reach.");
    if (now.isUp || now.isComingUp)
        return QString();
    if (m_monitor.isManual())
        return tr("Press Connect when your connection is up.");
    return m_kind == ConnectionKind::Mobile ? inItsPlace() : tr("Waiting for a connection.");
}

/** What there is while mobile broadband is waited for. */
QString ConnectionTexts::inItsPlace() const
{
    switch (m_monitor.state().inItsPlace) {
    case InItsPlace::Ethernet:
        return tr("Online by Ethernet; waiting for mobile broadband.");
    case InItsPlace::Wireless:
        return tr("Online by Wi-Fi; waiting for mobile broadband.");
    case InItsPlace::Other:
        return tr("Online by another connection; waiting for mobile broadband.");
    case InItsPlace::Roaming:
        return tr("Roaming; waiting for your own network.");
    case InItsPlace::Nothing:
        break;
    }
    return tr("Waiting for mobile broadband.");
}

QString ConnectionTexts::since(const QDate& today) const
{
    const QDateTime time = m_monitor.upSince();
    if (!time.isValid())
        return m_monitor.wasUpBefore() ? tr("before this program started") : QString();
    const QLocale locale;
    return time.date() == today ? locale.toString(time.time(), QLocale::ShortFormat)
                                : locale.toString(time, QLocale::ShortFormat);
}

QString ConnectionTexts::missingService() const
{
    return m_monitor.lacksService() ? tr("NetworkManager is not running") : QString();
}
