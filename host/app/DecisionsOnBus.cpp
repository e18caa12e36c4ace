// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "DecisionsOnBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>

#include "Decisions.h"
#include "RunningProgram.h"

DecisionsOnBus::DecisionsOnBus(const Decisions& decisions, RunningProgram& program)
    : QDBusAbstractAdaptor(&program)
    , m_decisions(decisions)
{
}

bool DecisionsOnBus::ask(const QString& userFolder, QString& text)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(RunningProgram::nameOf(userFolder), RunningProgram::path(),
                                       QStringLiteral("com.norvik.vellumconnect.Decisions"), QStringLiteral("List"));
    call.setAutoStartService(false);
    const QDBusReply<QString> reply = QDBusConnection::sessionBus().call(call, QDBus::Block, 5000);
    text = reply.value();
    return reply.isValid();
}

QString DecisionsOnBus::List()
{
    return Decisions::text(m_decisions.newestFirst());
}
