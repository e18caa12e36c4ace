// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "RunningLinks.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QFileInfo>

#include "RunningProgram.h"
#include "UserFolder.h"

static const int patience = 5000; // ms

/** Its name goes by the folder as it was told, which may lead there by symbolic links. */
static QString nameOnBus(const QString& userFolder)
{
    const QString usual = UserFolder::defaultPath();
    return RunningProgram::nameOf(QFileInfo(usual).canonicalFilePath() == userFolder ? usual : userFolder);
}

static bool ask(const QString& userFolder, const QString& method, const QVariantList& arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(nameOnBus(userFolder), RunningProgram::path(),
                                                       QStringLiteral("com.norvik.vellumconnect.Links"), method);
    call.setArguments(arguments);
    call.setAutoStartService(false);
    const QDBusReply<bool> reply = QDBusConnection::sessionBus().call(call, QDBus::Block, patience);
    return reply.isValid() && reply.value();
}

bool RunningLinks::isThere(const QString& userFolder)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    return bus.isConnected() && bus.interface()->isServiceRegistered(nameOnBus(userFolder));
}

bool RunningLinks::open(const QString& userFolder, const QString& name)
{
    return ask(userFolder, QStringLiteral("Open"), {name});
}

bool RunningLinks::replace(const QString& userFolder, const QByteArray& from, const QByteArray& to)
{
    return ask(userFolder, QStringLiteral("Replace"), {from, to});
}
