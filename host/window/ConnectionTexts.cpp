// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ConnectionTexts.h"

#include <QDateTime>
#include <QLocale>

#include "ConnectionMonitor.h"

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
    const QString name = m_monitor.state().name;
    return name.isEmpty() ? state() : tr("%1: %2", "state and name of the connection").arg(state(), name);
}

QString ConnectionTexts::hint() const
{
    const ConnectionState now = m_monitor.state();
    if (now.isUp && now.reach == Reach::Portal)
        return tr("This network asks for a login first.");
    if (now.isUp && now.reach == Reach::Limited)
        return tr("The Internet is out of reach.");
    if (now.isUp || now.isComingUp)
        return QString();
    if (m_monitor.isManual())
        return tr("Press Connect when your connection is up.");
    return m_kind == ConnectionKind::Mobile ? tr("Waiting for mobile broadband.") : tr("Waiting for a connection.");
}

QString ConnectionTexts::since() const
{
    const QDateTime time = m_monitor.upSince();
    if (!time.isValid())
        return m_monitor.state().isUp ? tr("before this program started") : QString();
    const QLocale locale;
    return time.date() == QDate::currentDate() ? locale.toString(time.time(), QLocale::ShortFormat)
                                               : locale.toString(time, QLocale::ShortFormat);
}

QString ConnectionTexts::missingService() const
{
    if (m_kind == ConnectionKind::Manual || !m_monitor.isManual())
        return QString();
    return m_monitor.lacksService() ? tr("NetworkManager is not running") : tr("Built without NetworkManager");
}
