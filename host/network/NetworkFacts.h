// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QVariantMap>

#include "ConnectionChoice.h"
#include "ConnectionState.h"

/** What NetworkManager said of itself, of its connections and of their devices; and what follows for us. */
class NetworkFacts
{
public:
    /** The connection that counts. While there is none, all is empty but what is there in its place. */
    struct Chosen {
        ConnectionState state;
        QString path;  ///< of the connection on the bus, while it is up
        QString modem; ///< what its device calls its modem, while it is up; may be anything
    };

    /** The object path of NetworkManager itself. */
    static QString manager();

    /** The values that an object has, by name; empty while it has none. */
    QVariantMap of(const QString& path) const;

    /** Takes the place of what was known of this object. */
    void set(const QString& path, const QVariantMap& values);

    /** The object paths of the connections that are up or on the way, as many as are looked at. */
    QStringList connections() const;

    /** The one to show, where several count: one that is up, and of these the one that the traffic takes. */
    Chosen chosen(const ConnectionChoice& choice) const;

private:
    QString bestOf(const ConnectionChoice& choice) const;
    bool counts(const QVariantMap& connection, const ConnectionChoice& choice) const;
    ConnectionState::InItsPlace inItsPlace() const;
    Chosen describe(const QString& path) const;

    QHash<QString, QVariantMap> m_values;
};
