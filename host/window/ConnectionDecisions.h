// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

class ConnectionMonitor;
class Decisions;

/** Lets the list of decisions hear what the monitor decides about connections, each time once. */
class ConnectionDecisions : public QObject
{
    Q_OBJECT

public:
    /** Adds to decisions what monitor decides from now on; both must outlive the object. */
    ConnectionDecisions(const ConnectionMonitor& monitor, Decisions& decisions);

private:
    void rememberName();
    void add(const QString& reason, const QString& outcome);

    const ConnectionMonitor& m_monitor;
    Decisions& m_decisions;
    QString m_name; ///< of the connection that is up, or was last
};
