// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "PlayedNetwork.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QProcess>

const QString PlayedNetwork::name = "org.freedesktop.NetworkManager";
const QString PlayedNetwork::objects = "/org/freedesktop";
const QString PlayedNetwork::manager = "/org/freedesktop/NetworkManager";
const QString PlayedNetwork::mobile = manager + "/ActiveConnection/1";
const QString PlayedNetwork::modem = manager + "/Devices/1";
const QString PlayedNetwork::bluetooth = manager + "/ActiveConnection/2";
const QString PlayedNetwork::telephone = manager + "/Devices/2";
const QString PlayedNetwork::stored = manager + "/Settings/2";
const QString PlayedNetwork::settings = manager + "/Settings";
const QString PlayedModems::modem = "/org/freedesktop/ModemManager1/Modem/0";
const QString PlayedModems::mobileNetwork = "org.freedesktop.ModemManager1.Modem.Modem3gpp";

namespace
{
const char properties[] = "org.freedesktop.DBus.Properties";
const char objectManager[] = "org.freedesktop.DBus.ObjectManager";

using Sections = QMap<QString, QVariantMap>;
using Objects = QMap<QDBusObjectPath, Sections>;
} // namespace

void useOwnSystemBus()
{
    qDBusRegisterMetaType<Sections>();
    qDBusRegisterMetaType<Objects>();
    static QProcess* bus = nullptr;
    if (bus)
        return;
    bus = new QProcess(QCoreApplication::instance());
    bus->start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address=1"});
    if (!bus->waitForReadyRead())
        qFatal("no bus: %s", qUtf8Printable(bus->errorString()));
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus->readLine().trimmed());
    QObject::connect(bus, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), bus, &QObject::deleteLater);
    qAddPostRoutine([] {
        bus->kill();
        bus->waitForFinished();
    });
}

PlayedService::PlayedService(const QString& name)
    : m_name(name)
    , m_bus(QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS"), name))
{
    if (!m_bus.registerVirtualObject("/", this, QDBusConnection::SubPath) || !m_bus.registerService(name))
        qFatal("%s cannot be played", qUtf8Printable(name));
}

PlayedService::~PlayedService()
{
    m_bus.unregisterObject("/", QDBusConnection::UnregisterTree);
    // Another one may want the name at once.
    m_bus.unregisterService(m_name);
    QDBusConnection::disconnectFromBus(m_name);
}

void PlayedService::set(const QString& path, const QString& name, const QVariant& value)
{
    if (!m_objects.contains(path))
        m_added.insert(path);
    m_objects[path].insert(name, value);
    m_set[path].insert(name, value);
}

void PlayedService::remove(const QString& path, const QString& name)
{
    m_objects[path].remove(name);
}

void PlayedService::removeObject(const QString& path)
{
    m_objects.remove(path);
    m_removed.insert(path);
}

void PlayedService::tellChanges()
{
    for (const QString& path : std::as_const(m_removed))
        tellAnything(PlayedNetwork::objects, objectManager, "InterfacesRemoved",
                     {QVariant::fromValue(QDBusObjectPath(path)), QStringList(interfaceOf(path))});
    for (auto object = m_set.cbegin(); object != m_set.cend(); ++object) {
        if (m_added.contains(object.key()))
            tellAnything(PlayedNetwork::objects, objectManager, "InterfacesAdded",
                         {QVariant::fromValue(QDBusObjectPath(object.key())),
                          QVariant::fromValue(Sections({{interfaceOf(object.key()), object.value()}}))});
        else
            tell(object.key(), interfaceOf(object.key()), object.value());
    }
    m_removed.clear();
    m_added.clear();
    m_set.clear();
}

void PlayedService::setSilent(const QString& path, bool isSilent)
{
    if (isSilent)
        m_silent.insert(path);
    else
        m_silent.remove(path);
    const QList<QDBusMessage> open = m_open;
    m_open.clear();
    for (const QDBusMessage& message : open)
        answer(message);
}

void PlayedService::setError(const QString& path, const QString& error)
{
    m_errors.insert(path, error);
}

void PlayedService::setAnswer(const QString& path, const QVariant& answer)
{
    m_answers.insert(path, answer);
}

int PlayedService::questions(const QString& path) const
{
    return m_questions.value(path);
}

void PlayedService::tell(const QString& path, const QString& interface, const QVariantMap& changes, int times)
{
    QDBusMessage signal = QDBusMessage::createSignal(path, properties, "PropertiesChanged");
    signal << interface << changes << QStringList();
    for (int i = 0; i < times; ++i)
        m_bus.send(signal);
}

void PlayedService::tellAnything(const QString& path, const QString& interface, const QString& signal,
                                 const QVariantList& arguments)
{
    QDBusMessage message = QDBusMessage::createSignal(path, interface, signal);
    message.setArguments(arguments);
    m_bus.send(message);
}

bool PlayedService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    ++m_questions[message.path()];
    message.setDelayedReply(true);
    Q_UNUSED(connection);
    answer(message);
    return true;
}

void PlayedService::answer(const QDBusMessage& question)
{
    if (m_silent.contains(question.path()))
        m_open.append(question);
    else
        m_bus.send(answerTo(question));
}

QString PlayedService::introspect(const QString&) const
{
    return {};
}

QDBusMessage PlayedService::answerTo(const QDBusMessage& question) const
{
    const QString error = m_errors.value(question.path());
    if (!error.isEmpty())
        return question.createErrorReply(error, "played");
    const QVariant answer = m_answers.value(question.path());
    if (answer.isValid())
        return question.createReply(answer);
    if (question.member() == "GetManagedObjects") {
        Objects all;
        for (auto object = m_objects.cbegin(); object != m_objects.cend(); ++object)
            all.insert(QDBusObjectPath(object.key()), {{interfaceOf(object.key()), object.value()}});
        return question.createReply(QVariant::fromValue(all));
    }
    if (!m_objects.contains(question.path()))
        return question.createErrorReply(QDBusError::UnknownObject, "played");
    const QVariantMap values = m_objects.value(question.path());
    if (question.member() == "GetAll")
        return question.createReply(values);
    if (question.member() == "Get")
        return question.createReply(
            QVariant::fromValue(QDBusVariant(values.value(question.arguments().value(1).toString(), 0U))));
    if (question.member() == "ListConnections")
        return question.createReply(values.value("Connections"));
    Sections sections;
    for (auto value = values.begin(); value != values.end(); ++value) {
        const int dot = int(value.key().indexOf('.'));
        sections[dot < 0 ? "bluetooth" : value.key().left(dot)].insert(value.key().mid(dot + 1), value.value());
    }
    return question.createReply(QVariant::fromValue(sections));
}

PlayedNetwork::PlayedNetwork()
    : PlayedService(name)
{
    using Paths = QList<QDBusObjectPath>;
    const auto path = [](const QString& text) {
        return QVariant::fromValue(QDBusObjectPath(text));
    };
    const auto paths = [](const Paths& list) {
        return QVariant::fromValue(list);
    };
    set(manager, "ActiveConnections", paths({QDBusObjectPath(mobile), QDBusObjectPath(bluetooth)}));
    set(manager, "PrimaryConnection", path(mobile));
    set(manager, "Devices", paths({QDBusObjectPath(telephone), QDBusObjectPath(modem)}));
    set(manager, "Connectivity", 4U);
    set(mobile, "Type", "gsm");
    set(mobile, "Id", "Mobile plan");
    set(mobile, "Uuid", "one");
    set(mobile, "State", 2U);
    set(mobile, "Default", true);
    set(mobile, "Default6", false);
    set(mobile, "Devices", paths({QDBusObjectPath(modem)}));
    set(modem, "Interface", "cdc-wdm0");
    set(modem, "IpInterface", "wwan0");
    set(modem, "Udi", PlayedModems::modem);
    set(modem, "DeviceType", 8U);
    addTelephone(2);
    set(telephone, "Interface", "bnep0");
    set(telephone, "DeviceType", 5U);
    set(telephone, "Udi", "/org/bluez/hci0/dev_00");
    set(stored, "type", "dun");
    set(stored, "connection.type", "bluetooth");
    set(stored, "connection.id", "Telephone");
    set(stored, "connection.uuid", "two");
    set(settings, "Connections", paths({QDBusObjectPath(stored)}));
    tellChanges(); // to nobody
}

void PlayedNetwork::addTelephone(uint state)
{
    set(bluetooth, "Type", "bluetooth");
    set(bluetooth, "Id", "Telephone");
    set(bluetooth, "Uuid", "two");
    set(bluetooth, "State", state);
    set(bluetooth, "Default", false);
    set(bluetooth, "Default6", true);
    set(bluetooth, "Devices", QVariant::fromValue(QList<QDBusObjectPath>({QDBusObjectPath(telephone)})));
    set(bluetooth, "Connection", QVariant::fromValue(QDBusObjectPath(stored)));
}

QString PlayedNetwork::interfaceOf(const QString& path) const
{
    if (path == manager)
        return name;
    static const QHash<QString, QString> kinds = {{"ActiveConnection", "Connection.Active"}, {"Devices", "Device"}};
    return name + '.' + kinds.value(path.section('/', -2, -2), "Settings.Connection");
}

PlayedModems::PlayedModems()
    : PlayedService("org.freedesktop.ModemManager1")
{
    set(modem, "OperatorName", "Northern Mobile");
    set(modem, "RegistrationState", 1U);
}

QString PlayedModems::interfaceOf(const QString&) const
{
    return mobileNetwork;
}
