// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "RunningProgram.h"

#include <QCryptographicHash>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QThread>

#include "UserFolder.h"

static const QString baseName = QStringLiteral("com.norvik.vellumconnect");
static const QString interface = QStringLiteral("org.freedesktop.Application");
static const QString tokenKey = QStringLiteral("activation-token");
static const QString startupKey = QStringLiteral("desktop-startup-id");

static QByteArray tokenOf(const QVariantMap& platformData)
{
    const QString token = platformData.value(tokenKey).toString();
    return (token.isEmpty() ? platformData.value(startupKey).toString() : token).toUtf8();
}

/** What the desktop gave to this process, for the program that takes its place. */
static QVariantMap ownPlatformData()
{
    QVariantMap data;
    const QString token = QString::fromUtf8(qgetenv("XDG_ACTIVATION_TOKEN"));
    const QString startup = QString::fromUtf8(qgetenv("DESKTOP_STARTUP_ID"));
    if (!token.isEmpty())
        data.insert(tokenKey, token);
    if (!startup.isEmpty())
        data.insert(startupKey, startup);
    return data;
}

/** Whether an error says that the program is not reached yet, as it is while it starts. */
static bool isStarting(const QDBusMessage& reply)
{
    return reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.ServiceUnknown") ||
           reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner");
}

RunningProgram::RunningProgram(const QString& userFolder)
    : m_name(nameOf(userFolder))
{
}

RunningProgram::~RunningProgram()
{
    if (!m_isAnnounced)
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.unregisterService(m_name);
    bus.unregisterObject(path());
}

QString RunningProgram::nameOf(const QString& userFolder)
{
    if (userFolder == UserFolder::defaultPath())
        return baseName;
    const QString folder = QDir(userFolder).canonicalPath();
    const QByteArray digest = QCryptographicHash::hash(QFile::encodeName(folder), QCryptographicHash::Sha256);
    return baseName + QStringLiteral(".folder") + QString::fromLatin1(digest.toHex().left(16));
}

QString RunningProgram::path()
{
    return QStringLiteral("/com/norvik/vellumconnect");
}

bool RunningProgram::announce()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    m_isAnnounced =
        bus.isConnected() &&
        bus.registerObject(path(), this, QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportAdaptors) &&
        bus.registerService(m_name);
    if (!m_isAnnounced)
        qWarning("No other program reaches this one on the session bus");
    return m_isAnnounced;
}

bool RunningProgram::handOver(const QString& userFolder)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    QDBusMessage call =
        QDBusMessage::createMethodCall(nameOf(userFolder), path(), interface, QStringLiteral("Activate"));
    call.setArguments({ownPlatformData()});
    // The one that runs is meant, not another that the bus would start.
    call.setAutoStartService(false);
    const QDeadlineTimer patience(5000);
    while (bus.isConnected() && !patience.hasExpired()) {
        const QDBusMessage reply = bus.call(call, QDBus::Block, int(patience.remainingTime()));
        if (reply.type() == QDBusMessage::ReplyMessage)
            return true;
        if (!isStarting(reply))
            return false;
        QThread::msleep(50);
    }
    return false;
}

void RunningProgram::Activate(const QVariantMap& platformData)
{
    Q_EMIT windowRequested(tokenOf(platformData));
}

void RunningProgram::Open(const QStringList& addresses, const QVariantMap& platformData)
{
    // Nothing is opened from outside: the desktop entry names no kind of file.
    Q_UNUSED(addresses);
    Q_EMIT windowRequested(tokenOf(platformData));
}

void RunningProgram::ActivateAction(const QString& action, const QVariantList& parameters,
                                    const QVariantMap& platformData)
{
    Q_UNUSED(parameters);
    if (action == QLatin1String("quit")) {
        Q_EMIT quitRequested();
    } else {
        Q_EMIT windowRequested(tokenOf(platformData));
        if (action == QLatin1String("settings"))
            Q_EMIT settingsRequested();
    }
}
