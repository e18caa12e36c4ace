// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ConnectionTexts.h"

#include <QDateTime>
#include <QLocale>

#include "ConnectionMonitor.h"
#include "ShownText.h"

using Reach = ConnectionState::Reach;

ConnectionTexts::ConnectionTexts(const ConnectionMonitor& monitor, ConnectionKind kind)
    : m_monitor(monitor)
    , m_kind(kind)
{
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
    return m_kind == ConnectionKind::Mobile ? tr("Waiting for mobile broadband.") : tr("Waiting for a connection.");
}

QString ConnectionTexts::since(const QDate& today) const
{
    const QDateTime time = m_monitor.upSince();
    if (!time.isValid())
        return m_monitor.state().isUp ? tr("before this program started") : QString();
    const QLocale locale;
    return time.date() == today ? locale.toString(time.time(), QLocale::ShortFormat)
                                : locale.toString(time, QLocale::ShortFormat);
}

QString ConnectionTexts::missingService() const
{
    return m_monitor.lacksService() ? tr("NetworkManager is not running") : QString();
}
