// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "NetworkFacts.h"

#include "BusValue.h"

namespace
{
const int mostConnections = 100; // More would only keep the bus busy.

/** Of a connection; the numbers are NetworkManager's. */
enum State : uint { Activating = 1, Activated = 2 };

/** Of the network; the numbers are NetworkManager's. */
enum Connectivity : uint { None = 1, Portal = 2, Limited = 3, Full = 4 };

ConnectionState::Reach reachOf(uint connectivity)
{
    switch (connectivity) {
    case Full:
        return ConnectionState::Reach::Full;
    case Portal:
        return ConnectionState::Reach::Portal;
    case Limited:
    case None:
        return ConnectionState::Reach::Limited;
    default:
        return ConnectionState::Reach::Unknown;
    }
}

uint stateOf(const QVariantMap& connection)
{
    return BusValue::number(connection.value(QStringLiteral("State")));
}

QString textOf(const QVariantMap& values, const char* name)
{
    return BusValue::text(values.value(QLatin1String(name)));
}
} // namespace

QString NetworkFacts::manager()
{
    return QStringLiteral("/org/freedesktop/NetworkManager");
}

QVariantMap NetworkFacts::of(const QString& path) const
{
    return m_values.value(path);
}

void NetworkFacts::set(const QString& path, const QVariantMap& values)
{
    m_values.insert(path, values);
}

QStringList NetworkFacts::connections() const
{
    return BusValue::paths(of(manager()).value(QStringLiteral("ActiveConnections"))).mid(0, mostConnections);
}

NetworkFacts::Chosen NetworkFacts::chosen(const ConnectionChoice& choice) const
{
    const QString best = bestOf(choice);
    if (!best.isEmpty())
        return describe(best);
    Chosen none;
    if (choice.kind == ConnectionKind::Mobile)
        none.state.inItsPlace = inItsPlace();
    return none;
}

/** The path of the one to show; empty for none. */
QString NetworkFacts::bestOf(const ConnectionChoice& choice) const
{
    const QString primary = BusValue::path(of(manager()).value(QStringLiteral("PrimaryConnection")));
    QString best;
    const QStringList all = connections();
    for (const QString& path : all) {
        const QVariantMap connection = of(path);
        const bool isUp = stateOf(connection) == Activated;
        if ((!isUp && stateOf(connection) != Activating) || !counts(connection, choice))
            continue;
        if (isUp && path == primary)
            return path;
        if (best.isEmpty() || (isUp && stateOf(of(best)) != Activated))
            best = path;
    }
    return best;
}

/** By what the user is in the Internet while nothing that counts is. */
ConnectionState::InItsPlace NetworkFacts::inItsPlace() const
{
    using InItsPlace = ConnectionState::InItsPlace;
    const QString path = bestOf(ConnectionKind::Any);
    if (path.isEmpty() || describe(path).state.reach != ConnectionState::Reach::Full)
        return InItsPlace::Nothing;
    const QString type = textOf(of(path), "Type");
    if (type == QLatin1String("802-3-ethernet"))
        return InItsPlace::Ethernet;
    return type == QLatin1String("802-11-wireless") ? InItsPlace::Wireless : InItsPlace::Other;
}

bool NetworkFacts::counts(const QVariantMap& connection, const ConnectionChoice& choice) const
{
    if (choice.kind == ConnectionKind::Any)
        return BusValue::flag(connection.value(QStringLiteral("Default"))) ||
               BusValue::flag(connection.value(QStringLiteral("Default6")));
    if (!choice.countsPlan(textOf(connection, "Uuid")))
        return false;
    const QString type = textOf(connection, "Type");
    // Bluetooth can be a local network as well.
    if (type == QLatin1String("bluetooth"))
        return textOf(of(BusValue::path(connection.value(QStringLiteral("Connection")))), "type") ==
               QLatin1String("dun");
    return type == QLatin1String("gsm") || type == QLatin1String("cdma");
}

NetworkFacts::Chosen NetworkFacts::describe(const QString& path) const
{
    const QVariantMap connection = of(path);
    const QVariantMap device = of(BusValue::paths(connection.value(QStringLiteral("Devices"))).value(0));
    const QString ipInterface = textOf(device, "IpInterface");
    Chosen chosen;
    chosen.state.isUp = stateOf(connection) == Activated;
    chosen.state.isComingUp = !chosen.state.isUp;
    chosen.state.name = textOf(connection, "Id");
    chosen.state.device = ipInterface.isEmpty() ? textOf(device, "Interface") : ipInterface;
    if (!chosen.state.isUp)
        return chosen;
    const QString uuid = textOf(connection, "Uuid");
    chosen.state.id = uuid.isEmpty() ? path : uuid;
    chosen.state.reach = reachOf(BusValue::number(of(manager()).value(QStringLiteral("Connectivity"))));
    chosen.path = path;
    chosen.modem = textOf(device, "Udi");
    return chosen;
}
