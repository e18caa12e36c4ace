// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "NetworkManagerSource.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>

#include <NetworkManagerQt/BluetoothSetting>
#include <NetworkManagerQt/ConnectionSettings>
#include <NetworkManagerQt/Manager>

using NetworkManager::ActiveConnection;
using NetworkManager::ConnectionSettings;

namespace
{
const int patience = 1000; // milliseconds for one answer

ConnectionState::Reach reachOf(NetworkManager::Connectivity connectivity)
{
    switch (connectivity) {
    case NetworkManager::Full:
        return ConnectionState::Reach::Full;
    case NetworkManager::Portal:
        return ConnectionState::Reach::Portal;
    case NetworkManager::Limited:
    case NetworkManager::NoConnectivity:
        return ConnectionState::Reach::Limited;
    case NetworkManager::UnknownConnectivity:
        break;
    }
    return ConnectionState::Reach::Unknown;
}

/** Dial-up networking, and not the local network that Bluetooth can be as well. */
bool isDialUp(const ActiveConnection& connection)
{
    const NetworkManager::Connection::Ptr stored = connection.connection();
    if (!stored)
        return false;
    const NetworkManager::Setting::Ptr setting = stored->settings()->setting(NetworkManager::Setting::Bluetooth);
    const auto bluetooth = setting.dynamicCast<NetworkManager::BluetoothSetting>();
    return bluetooth && bluetooth->profileType() == NetworkManager::BluetoothSetting::Dun;
}

NetworkManager::Device::Ptr deviceOf(const ActiveConnection& connection)
{
    const QStringList paths = connection.devices();
    return paths.isEmpty() ? NetworkManager::Device::Ptr() : NetworkManager::findNetworkInterface(paths.constFirst());
}
} // namespace

NetworkManagerSource::NetworkManagerSource(ConnectionKind kind)
    : m_kind(kind)
{
    const QDBusConnection bus = QDBusConnection::systemBus();
    if (!bus.isConnected())
        return;
    const NetworkManager::Notifier* const notifier = NetworkManager::notifier();
    connect(notifier, &NetworkManager::Notifier::serviceAppeared, this, [this] { setAvailable(true); });
    connect(notifier, &NetworkManager::Notifier::serviceDisappeared, this, [this] { setAvailable(false); });
    connect(notifier, &NetworkManager::Notifier::activeConnectionsChanged, this, &NetworkManagerSource::listen);
    connect(notifier, &NetworkManager::Notifier::primaryConnectionChanged, this, &NetworkManagerSource::look);
    connect(notifier, &NetworkManager::Notifier::connectivityChanged, this, &NetworkManagerSource::look);
    connect(&m_operator, &ModemOperator::changed, this, &ConnectionSource::changed);
    m_isAvailable = bus.interface()->isServiceRegistered(QStringLiteral("org.freedesktop.NetworkManager"));
    listen();
}

bool NetworkManagerSource::isAvailable() const
{
    return m_isAvailable;
}

ConnectionState NetworkManagerSource::state() const
{
    ConnectionState state = m_state;
    if (state.isUp)
        state.operatorName = m_operator.name();
    return state;
}

bool NetworkManagerSource::isStillUp() const
{
    if (!m_state.isUp)
        return false;
    QDBusMessage question =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.NetworkManager"), m_path,
                                       QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << QStringLiteral("org.freedesktop.NetworkManager.Connection.Active") << QStringLiteral("State");
    const QDBusMessage answer = QDBusConnection::systemBus().call(question, QDBus::Block, patience);
    // There is no answer when the connection is gone, and with it its object.
    return answer.type() == QDBusMessage::ReplyMessage &&
           answer.arguments().value(0).value<QDBusVariant>().variant().toUInt() == ActiveConnection::Activated;
}

void NetworkManagerSource::setAvailable(bool isAvailable)
{
    if (m_isAvailable == isAvailable)
        return;
    m_isAvailable = isAvailable;
    listen();
    Q_EMIT availabilityChanged();
}

void NetworkManagerSource::listen()
{
    for (const ActiveConnection::Ptr& connection : qAsConst(m_connections))
        connection->disconnect(this);
    m_connections = m_isAvailable ? NetworkManager::activeConnections() : ActiveConnection::List();
    for (const ActiveConnection::Ptr& connection : qAsConst(m_connections)) {
        connect(connection.data(), &ActiveConnection::stateChanged, this, &NetworkManagerSource::look);
        connect(connection.data(), &ActiveConnection::default4Changed, this, &NetworkManagerSource::look);
        connect(connection.data(), &ActiveConnection::default6Changed, this, &NetworkManagerSource::look);
        connect(connection.data(), &ActiveConnection::devicesChanged, this, &NetworkManagerSource::look);
    }
    look();
}

void NetworkManagerSource::look()
{
    m_state = ConnectionState();
    m_path.clear();
    QString modem;
    if (const ActiveConnection::Ptr connection = chosen()) {
        m_state.isUp = connection->state() == ActiveConnection::Activated;
        m_state.isComingUp = !m_state.isUp;
        m_state.name = connection->id();
        const NetworkManager::Device::Ptr device = deviceOf(*connection);
        if (device) {
            m_state.device = device->ipInterfaceName().isEmpty() ? device->interfaceName() : device->ipInterfaceName();
            modem = device->udi();
        }
        if (m_state.isUp) {
            m_state.id = connection->uuid();
            m_state.reach = reachOf(NetworkManager::connectivity());
            m_path = connection->path();
        }
    }
    m_operator.setModem(m_state.isUp ? modem : QString());
    if (m_isAvailable)
        Q_EMIT changed();
}

bool NetworkManagerSource::counts(const ActiveConnection& connection) const
{
    if (m_kind == ConnectionKind::Any)
        return connection.default4() || connection.default6();
    switch (connection.type()) {
    case ConnectionSettings::Gsm:
    case ConnectionSettings::Cdma:
        return true;
    case ConnectionSettings::Bluetooth:
        return isDialUp(connection);
    default:
        return false;
    }
}

ActiveConnection::Ptr NetworkManagerSource::chosen() const
{
    // The one that the traffic takes is the one to show, where several are up.
    const ActiveConnection::Ptr primary = m_isAvailable ? NetworkManager::primaryConnection() : ActiveConnection::Ptr();
    ActiveConnection::Ptr best;
    for (const ActiveConnection::Ptr& connection : m_connections) {
        const bool isUp = connection->state() == ActiveConnection::Activated;
        if ((!isUp && connection->state() != ActiveConnection::Activating) || !counts(*connection))
            continue;
        if (isUp && primary && connection->path() == primary->path())
            return connection;
        if (!best || (isUp && best->state() != ActiveConnection::Activated))
            best = connection;
    }
    return best;
}
