// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ConnectionMonitor.h"

#include <algorithm>

Q_LOGGING_CATEGORY(connectionLog, "vellum.connection")

ConnectionMonitor::ConnectionMonitor()
    : m_manual(std::make_unique<ManualSource>())
    , m_deadline(this)
{
    m_clock.start();
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, [this] { follow(m_rules.timePassed(now())); });
}

void ConnectionMonitor::start(std::unique_ptr<ConnectionSource> service)
{
    // Another choice is no news of a connection. What was up, and is so now, is up since the same time.
    m_service = std::move(service);
    m_manual = std::make_unique<ManualSource>();
    m_isAsking = false;
    forget();
    arm();
    qCInfo(connectionLog, "listening to %s",
           !isManual()      ? "the service"
           : lacksService() ? "the user until the service is there"
                            : "the user");
    listenTo(*m_manual);
    if (m_service)
        listenTo(*m_service);
    // What a service says first, it may say a moment later.
    if (source().isKnown())
        look();
    else
        Q_EMIT changed();
}

void ConnectionMonitor::listenTo(const ConnectionSource& source)
{
    connect(&source, &ConnectionSource::changed, this, &ConnectionMonitor::look);
    connect(&source, &ConnectionSource::availabilityChanged, this, &ConnectionMonitor::switchSource);
    connect(&source, &ConnectionSource::answered, this, &ConnectionMonitor::hearAnswer);
}

ConnectionState ConnectionMonitor::state() const
{
    return source().state();
}

QDateTime ConnectionMonitor::upSince() const
{
    return state().isUp ? m_upSince : QDateTime();
}

bool ConnectionMonitor::wasUpBefore() const
{
    return state().isUp && m_wasUpBefore;
}

bool ConnectionMonitor::isManual() const
{
    return &source() == m_manual.get();
}

bool ConnectionMonitor::lacksService() const
{
    return m_service && m_service->isKnown() && !m_service->isAvailable();
}

void ConnectionMonitor::setManuallyUp(bool isUp)
{
    m_manual->setUp(isUp);
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

ConnectionSource& ConnectionMonitor::source() const
{
    if (m_service && !lacksService())
        return *m_service;
    return *m_manual;
}

void ConnectionMonitor::look()
{
    if (!source().isKnown())
        return;
    const ConnectionState seen = state();
    if (seen.id != m_upId) {
        m_upId = seen.id;
        m_upSince = seen.isUp && m_hasLooked ? QDateTime::currentDateTime() : QDateTime();
        m_wasUpBefore = !m_hasEverLooked;
    }
    m_hasLooked = true;
    m_hasEverLooked = true;
    follow(m_rules.observe(seen, now()));
    Q_EMIT changed();
}

void ConnectionMonitor::switchSource()
{
    m_manual->setUp(false);
    if (m_isAsking)
        withdraw();
    if (lacksService()) {
        m_isSilent = m_service->isSilent();
        follow(m_rules.serviceLost(now()));
    } else {
        qCInfo(connectionLog, "the service is there");
        // It may have been up before the program: the service was there all the time.
        if (m_isSilent)
            forget();
        else
            m_rules.serviceReturned(now());
    }
    look();
}

/** What is seen next is no news, however long it has been so. */
void ConnectionMonitor::forget()
{
    m_isSilent = false;
    m_hasLooked = false;
    m_rules = TransitionRules();
}

void ConnectionMonitor::follow(const TransitionRules::Decision& decision)
{
    if (!decision.reason.isEmpty())
        qCInfo(connectionLog, "%s", qUtf8Printable(decision.reason));
    arm();
    if (decision.announcement == TransitionRules::Announcement::Up)
        ask(decision.reason);
    else if (decision.announcement == TransitionRules::Announcement::Down)
        Q_EMIT announced(false, decision.reason);
    else if (!decision.reason.isEmpty())
        Q_EMIT keptBack(decision.reason);
}

void ConnectionMonitor::ask(const QString& reason)
{
    m_isAsking = true;
    m_askedId = state().id;
    m_reason = reason;
    source().askWhetherUp();
}

void ConnectionMonitor::hearAnswer(bool isUp)
{
    if (!m_isAsking)
        return;
    if (isUp && state().isUp) {
        m_isAsking = false;
        Q_EMIT announced(true, m_reason);
        return;
    }
    withdraw();
    // Another one may have come up since the question.
    if (state().id != m_askedId)
        look();
}

void ConnectionMonitor::withdraw()
{
    const QString reason = QStringLiteral("was down again when asked, not told");
    qCInfo(connectionLog, "%s", qUtf8Printable(reason));
    m_isAsking = false;
    m_rules.withdraw();
    arm();
    Q_EMIT keptBack(reason);
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
