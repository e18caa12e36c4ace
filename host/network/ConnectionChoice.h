// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QMap>
#include <QString>
#include <QVariantMap>

#include "ConnectionKind.h"

/** The user's choice of the connections that count. A value; made by default it is what holds before any choice. */
struct ConnectionChoice {
    /** Mobile plans: their names, as the user knows them, by NetworkManager's UUIDs. */
    using Plans = QMap<QString, QString>;

    /** Of this kind, with any plan, roaming or not. */
    ConnectionChoice(ConnectionKind chosenKind = ConnectionKind::Mobile);

    ConnectionKind kind;
    Plans plans;                    ///< those that count with Mobile; empty for any plan
    bool isNotWhileRoaming = false; ///< with Mobile: a plan does not count in another operator's network

    /** Whether a mobile plan with this UUID is among those that count. */
    bool countsPlan(const QString& uuid) const;

    /** Whether roaming keeps a connection from counting. */
    bool forbidsRoaming() const;

    /** As it is kept in a file of settings: texts, lists of texts and flags by name. */
    QVariantMap values() const;

    /** Of such values. One that is missing is as by default; so is one that is broken, of which the log tells. */
    static ConnectionChoice of(const QVariantMap& values);

    /** The kinds by the names that the user writes, and that values() has. */
    static QHash<QString, ConnectionKind> kinds();

    /** Whether the same connections count, under the same names. */
    bool operator==(const ConnectionChoice& other) const;
};
