// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QDate>
#include <QString>

#include "ConnectionKind.h"

class ConnectionMonitor;

/** What the program says of the connection, wherever it says it: in the current language, and as it is now. */
class ConnectionTexts
{
    Q_DECLARE_TR_FUNCTIONS(ConnectionTexts)

public:
    /** Speaks of what monitor knows, which must outlive the texts; kind is what it was asked to look for. */
    ConnectionTexts(const ConnectionMonitor& monitor, ConnectionKind kind);

    /** Takes the place of the kind that monitor was asked to look for. */
    void setKind(ConnectionKind kind);

    /** The state in a word or two. */
    QString state() const;

    /** The state with the connection's name in one line, such as for a tool tip. */
    QString summary() const;

    /** What keeps the user from the Internet, or what is waited for; empty where there is nothing to say. */
    QString hint() const;

    /** Since when the connection is up, as said on this day; empty while it is not, or nobody knows. */
    QString since(const QDate& today = QDate::currentDate()) const;

    /** Why the user has to press a button although a service was asked for; empty while it is there. */
    QString missingService() const;

private:
    QString inItsPlace() const;

    const ConnectionMonitor& m_monitor;
    ConnectionKind m_kind;
};
