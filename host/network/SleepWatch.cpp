// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "SleepWatch.h"

#include <QDBusConnection>

SleepWatch::SleepWatch()
{
    QDBusConnection::systemBus().connect(QStringLiteral("org.freedesktop.login1"),
                                         QStringLiteral("/org/freedesktop/login1"),
                                         QStringLiteral("org.freedesktop.login1.Manager"),
                                         QStringLiteral("PrepareForSleep"), this, SLOT(prepareForSleep(bool)));
}

void SleepWatch::prepareForSleep(bool isStarting)
{
    if (isStarting)
        Q_EMIT fallingAsleep();
    else
        Q_EMIT wokeUp();
}
