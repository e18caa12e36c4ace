// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ConnectionDecisions.h"

#include <QCoreApplication>
#include <QLocale>

#include "ConnectionMonitor.h"
#include "Decisions.h"

ConnectionDecisions::ConnectionDecisions(const ConnectionMonitor& monitor, Decisions& decisions)
    : m_monitor(monitor)
    , m_decisions(decisions)
{
    connect(&monitor, &ConnectionMonitor::changed, this, &ConnectionDecisions::rememberName);
    connect(&monitor, &ConnectionMonitor::keptBack, this,
            [this](const QString& reason) { add(reason, tr("No links opened")); });
    connect(&monitor, &ConnectionMonitor::announced, this, [this](bool isUp, const QString& reason) {
        add(reason, isUp ? tr("Links marked for a connection open") : tr("No links opened"));
    });
}

/** A connection that is down has none any more. */
void ConnectionDecisions::rememberName()
{
    const ConnectionState now = m_monitor.state();
    if (now.isUp)
        m_name = now.name;
}

void ConnectionDecisions::add(const QString& reason, const QString& outcome)
{
    rememberName();
    const QString sentence = QCoreApplication::translate("TransitionRules", qUtf8Printable(reason));
    m_decisions.add({QDateTime::currentDateTime(), m_name.isEmpty() ? tr("Connection") : m_name,
                     QLocale().toUpper(sentence.at(0)) + sentence.mid(1), outcome});
}
