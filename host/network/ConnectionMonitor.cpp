// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ConnectionMonitor.h"

#include <algorithm>

Q_LOGGING_CATEGORY(connectionLog, "vellum.connection")

ConnectionMonitor::ConnectionMonitor()
    : m_deadline(this)
{
    m_clock.start();
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, [this] { follow(m_rules.timePassed(now())); });
}

void ConnectionMonitor::start(std::unique_ptr<ConnectionSource> service)
{
    m_service = std::move(service);
    qCInfo(connectionLog, "listening to %s",
           !isManual()      ? "the service"
           : lacksService() ? "the user until the service is there"
                            : "the user");
    connect(&m_manual, &ConnectionSource::changed, this, &ConnectionMonitor::look);
    if (m_service) {
        connect(m_service.get(), &ConnectionSource::changed, this, &ConnectionMonitor::look);
        connect(m_service.get(), &ConnectionSource::availabilityChanged, this, &ConnectionMonitor::switchSource);
    }
    m_upId = state().id;
    look();
}

ConnectionState ConnectionMonitor::state() const
{
    return source().state();
}

QDateTime ConnectionMonitor::upSince() const
{
    return m_upSince;
}

bool ConnectionMonitor::isManual() const
{
    return &source() == &m_manual;
}

bool ConnectionMonitor::lacksService() const
{
    return m_service && !m_service->isAvailable();
}

void ConnectionMonitor::setManuallyUp(bool isUp)
{
    m_manual.setUp(isUp);
}

void ConnectionMonitor::fallAsleep()
{
    qCInfo(connectionLog, "falling asleep");
    m_rules.fallAsleep();
    arm();
}

void ConnectionMonitor::wakeUp()
{
    qCInfo(connectionLog, "woke up");
    m_rules.wakeUp(now());
    arm();
}

const ConnectionSource& ConnectionMonitor::source() const
{
    if (m_service && m_service->isAvailable())
        return *m_service;
    return m_manual;
}

void ConnectionMonitor::look()
{
    const ConnectionState seen = state();
    if (seen.id != m_upId) {
        m_upId = seen.id;
        m_upSince = seen.isUp ? QDateTime::currentDateTime() : QDateTime();
    }
    follow(m_rules.observe(seen, now()));
    Q_EMIT changed();
}

void ConnectionMonitor::switchSource()
{
    m_manual.setUp(false);
    if (lacksService()) {
        follow(m_rules.serviceLost(now()));
    } else {
        qCInfo(connectionLog, "the service is there");
        m_rules.serviceReturned();
    }
    look();
}

void ConnectionMonitor::follow(const TransitionRules::Decision& decision)
{
    if (!decision.reason.isEmpty())
        qCInfo(connectionLog, "%s", qUtf8Printable(decision.reason));
    arm();
    const bool isUp = decision.announcement == TransitionRules::Announcement::Up;
    if (isUp && !source().isStillUp()) {
        qCInfo(connectionLog, "was down again when asked, not told");
        m_rules.withdraw();
    } else if (decision.announcement != TransitionRules::Announcement::None) {
        Q_EMIT announced(isUp, decision.reason);
    }
}

void ConnectionMonitor::arm()
{
    m_deadline.stop();
    if (m_rules.deadline() >= 0)
        m_deadline.start(int(std::max<qint64>(0, m_rules.deadline() - now())));
}

qint64 ConnectionMonitor::now() const
{
    return m_clock.elapsed();
}
