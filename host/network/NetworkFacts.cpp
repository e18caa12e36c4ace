// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "NetworkFacts.h"

#include <algorithm>

#include "BusValue.h"

using Reach = ConnectionState::Reach;

namespace
{
const int mostConnections = 100; // More would only keep the processor busy.
const int mostObjects = 10000;   // More would only fill the memory.

/** Of a connection; the numbers are NetworkManager's. */
enum State : uint { Activating = 1, Activated = 2 };

/** Of the network; the numbers are NetworkManager's. */
enum Connectivity : uint { None = 1, Portal = 2, Limited = 3, Full = 4 };

Reach reachOf(uint connectivity)
{
    switch (connectivity) {
    case Full:
        return Reach::Full;
    case Portal:
        return Reach::Portal;
    case Limited:
        return Reach::Limited;
    case None:
        return Reach::Checking;
    default:
        return Reach::Unknown;
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

bool NetworkFacts::isMobile(const QString& type, const QString& bluetoothType)
{
    // Bluetooth can be a local network as well.
    if (type == QLatin1String("bluetooth"))
        return bluetoothType == QLatin1String("dun");
    return type == QLatin1String("gsm") || type == QLatin1String("cdma");
}

QVariantMap NetworkFacts::of(const QString& path) const
{
    return m_values.value(path);
}

void NetworkFacts::set(const QString& path, const QVariantMap& values)
{
    if (m_values.size() < mostObjects || m_values.contains(path))
        m_values.insert(path, values);
}

bool NetworkFacts::change(const QString& path, const QVariantMap& changes, const QStringList& withdrawn)
{
    const auto object = m_values.find(path);
    if (object == m_values.end())
        return false;
    for (auto value = changes.begin(); value != changes.end(); ++value)
        object->insert(value.key(), value.value());
    for (const QString& name : withdrawn)
        object->remove(name);
    return true;
}

void NetworkFacts::remove(const QString& path)
{
    m_values.remove(path);
}

QStringList NetworkFacts::connections() const
{
    return BusValue::paths(of(manager()).value(QStringLiteral("ActiveConnections"))).mid(0, mostConnections);
}

bool NetworkFacts::isUp(const QString& path) const
{
    return stateOf(of(path)) == Activated;
}

NetworkFacts::Chosen NetworkFacts::chosen(const ConnectionChoice& choice, const QString& former) const
{
    const QString best = bestOf(choice, former);
    if (!best.isEmpty())
        return describe(best);
    Chosen none;
    if (choice.kind == ConnectionKind::Mobile)
        none.state.inItsPlace = inItsPlace();
    return none;
}

bool NetworkFacts::isTakeOverLikely(const ConnectionChoice& choice) const
{
    const QStringList all = connections();
    return choice.kind == ConnectionKind::Any && std::any_of(all.begin(), all.end(), [this](const QString& path) {
               return isUp(path) && leadsOut(of(path));
           });
}

/** The path of the one to show; empty for none. */
QString NetworkFacts::bestOf(const ConnectionChoice& choice, const QString& former) const
{
    QString best;
    Rank highest = Rank::None;
    const QStringList all = connections();
    for (const QString& path : all) {
        const Rank found = rank(path, choice);
        if (found > highest) {
            best = path;
            highest = found;
        }
    }
    // The service calls one the default that is only on the way, for as long as that takes. Until it is up, what
    // carried the traffic before goes on to.
    const bool isOnTheWay = choice.kind == ConnectionKind::Any && highest == Rank::ComingUp && isDefault(of(best));
    return isOnTheWay && isUp(former) ? former : best;
}

NetworkFacts::Rank NetworkFacts::rank(const QString& path, const ConnectionChoice& choice) const
{
    const QVariantMap connection = of(path);
    const auto isOfManager = [this, &path](const char* name) {
        return BusValue::path(of(manager()).value(QLatin1String(name))) == path;
    };
    const bool isAny = choice.kind == ConnectionKind::Any;
    const bool counts =
        isAny ? isDefault(connection) : isMobile(connection) && choice.countsPlan(textOf(connection, "Uuid"));
    if (isUp(path))
        return !counts ? Rank::None : isOfManager("PrimaryConnection") ? Rank::Primary : Rank::Up;
    // One that waits for an address has no route yet.
    const bool isExpected = counts || (isAny && isOfManager("ActivatingConnection") && leadsOut(connection));
    return stateOf(connection) == Activating && isExpected ? Rank::ComingUp : Rank::None;
}

/** By what the user is in the Internet while nothing that counts is. */
ConnectionState::InItsPlace NetworkFacts::inItsPlace() const
{
    using InItsPlace = ConnectionState::InItsPlace;
    const QString path = bestOf(ConnectionKind::Any, QString());
    if (path.isEmpty() || describe(path).state.reach != Reach::Full)
        return InItsPlace::Nothing;
    const QString type = textOf(of(path), "Type");
    if (type == QLatin1String("802-3-ethernet"))
        return InItsPlace::Ethernet;
    return type == QLatin1String("802-11-wireless") ? InItsPlace::Wireless : InItsPlace::Other;
}

bool NetworkFacts::isDefault(const QVariantMap& connection)
{
    return BusValue::flag(connection.value(QStringLiteral("Default"))) ||
           BusValue::flag(connection.value(QStringLiteral("Default6")));
}

/** Whether it is of a kind that leads out of the computer, unlike a bridge or a tunnel in it. */
bool NetworkFacts::leadsOut(const QVariantMap& connection)
{
    static const QStringList ways = {QStringLiteral("802-3-ethernet"),
                                     QStringLiteral("802-11-wireless"),
                                     QStringLiteral("gsm"),
                                     QStringLiteral("cdma"),
                                     QStringLiteral("bluetooth"),
                                     QStringLiteral("pppoe"),
                                     QStringLiteral("adsl")};
    return ways.contains(textOf(connection, "Type"));
}

bool NetworkFacts::isMobile(const QVariantMap& connection) const
{
    const QString stored = BusValue::path(connection.value(QStringLiteral("Connection")));
    return isMobile(textOf(connection, "Type"), textOf(of(stored), "type"));
}

NetworkFacts::Chosen NetworkFacts::describe(const QString& path) const
{
    const QVariantMap connection = of(path);
    const QVariantMap device = of(BusValue::paths(connection.value(QStringLiteral("Devices"))).value(0));
    const QString ipInterface = textOf(device, "IpInterface");
    Chosen chosen;
    chosen.state.isUp = isUp(path);
    chosen.state.isComingUp = !chosen.state.isUp;
    chosen.state.name = textOf(connection, "Id");
    chosen.state.device = ipInterface.isEmpty() ? textOf(device, "Interface") : ipInterface;
    if (!chosen.state.isUp)
        return chosen;
    const QString uuid = textOf(connection, "Uuid");
    chosen.state.id = uuid.isEmpty() ? path : uuid;
    chosen.state.reach = reach(device);
    chosen.path = path;
    chosen.modem = modemOf(device);
    return chosen;
}

QString NetworkFacts::modemOf(const QVariantMap& device)
{
    const uint modem = 8; // The number is NetworkManager's.
    return BusValue::number(device.value(QStringLiteral("DeviceType"))) == modem ? textOf(device, "Udi") : QString();
}

QString NetworkFacts::modem() const
{
    const QStringList devices = BusValue::paths(of(manager()).value(QStringLiteral("Devices")));
    for (const QString& path : devices) {
        QString modem = modemOf(of(path));
        if (!modem.isEmpty())
            return modem;
    }
    return QString();
}

Reach NetworkFacts::reach(const QVariantMap& device) const
{
    // The service looks at each device for itself; what it says of the whole is of the one that the traffic takes.
    const auto said = [](const QVariantMap& values, const char* name) {
        return reachOf(BusValue::number(values.value(QLatin1String(name))));
    };
    const Reach own = std::max(said(device, "Ip4Connectivity"), said(device, "Ip6Connectivity"));
    return own == Reach::Unknown ? said(of(manager()), "Connectivity") : own;
}
