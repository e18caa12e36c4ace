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
        QString modem; ///< what its device calls its modem, while it is up; may be anything, and is empty without one
    };

    /** The object path of NetworkManager itself. */
    static QString manager();

    /** Whether connections of this type are mobile broadband; bluetoothType is what kind one by Bluetooth is. */
    static bool isMobile(const QString& type, const QString& bluetoothType);

    /** The values that an object has, by name; empty while it has none. */
    QVariantMap of(const QString& path) const;

    /** Takes the place of what was known of this object. Of more objects than any computer has, some stay unknown. */
    void set(const QString& path, const QVariantMap& values);

    /** Takes new values of an object, and forgets withdrawn ones; false, and nothing, when the object is unknown. */
    bool change(const QString& path, const QVariantMap& changes, const QStringList& withdrawn);

    /** Forgets an object. */
    void remove(const QString& path);

    /** The object paths of the connections that are up or on the way, as many as are looked at. */
    QStringList connections() const;

    /** Whether the connection with this path is up. */
    bool isUp(const QString& path) const;

    /**
     * The one to show, where several count: one that is up, and of these the one that the traffic takes. former is the
     * path of the one that was shown before; empty for none.
     */
    Chosen chosen(const ConnectionChoice& choice, const QString& former) const;

    /** What the first device that is a modem calls it, likewise. */
    QString modem() const;

    /** Whether another is up that the traffic may take, while the service has not said that it does. */
    bool isTakeOverLikely(const ConnectionChoice& choice) const;

private:
    /** How much a connection is the one to show. */
    enum class Rank { None, ComingUp, Up, Primary };

    QString bestOf(const ConnectionChoice& choice, const QString& former) const;
    Rank rank(const QString& path, const ConnectionChoice& choice) const;
    ConnectionState::InItsPlace inItsPlace() const;
    static bool isDefault(const QVariantMap& connection);
    static bool leadsOut(const QVariantMap& connection);
    bool isMobile(const QVariantMap& connection) const;
    Chosen describe(const QString& path) const;
    static QString modemOf(const QVariantMap& device);
    ConnectionState::Reach reach(const QVariantMap& device) const;

    QHash<QString, QVariantMap> m_values;
};
