// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QObject>
#include <QTimer>

#include <memory>

#include "ManualSource.h"
#include "TransitionRules.h"

Q_DECLARE_LOGGING_CATEGORY(connectionLog)

/**
 * Follows the connection and says when one really came up or went down. It listens to a service while that is there
 * and to the user otherwise. Every decision is one line in the log category "vellum.connection".
 */
class ConnectionMonitor : public QObject
{
    Q_OBJECT

public:
    /** Knows of no connection before start(). */
    ConnectionMonitor();

    /**
     * Listens to service from now on, which may be null: then only the user tells. A connection that is up by now is
     * not announced. What was listened to before is gone, with what the user told.
     */
    void start(std::unique_ptr<ConnectionSource> service);

    /** The state as last heard. */
    ConnectionState state() const;

    /** Since when it is up; invalid while it is not, and for a connection that was up before start(). */
    QDateTime upSince() const;

    /** Whether it is up, and has been since before the first start(). */
    bool wasUpBefore() const;

    /** Whether it listens to the user now, for want of a service. */
    bool isManual() const;

    /** Whether a service was wanted and is not there. */
    bool lacksService() const;

    /** The user says that the connection is up, or is no longer. Without effect while there is a service. */
    void setManuallyUp(bool isUp);

public Q_SLOTS:
    /** The computer is about to sleep: what goes down now is expected back. */
    void fallAsleep();

    /** The computer is awake again. */
    void wakeUp();

Q_SIGNALS:
    /** Something of what the monitor answers may have changed. */
    void changed();

    /** A connection came up or went down. When it came up, its source was asked once more just before. */
    void announced(bool isUp, const QString& reason);

    /** It was decided to announce nothing. */
    void keptBack(const QString& reason);

private:
    ConnectionSource& source() const;
    void listenTo(const ConnectionSource& source);
    void look();
    void switchSource();
    void forget();
    void follow(const TransitionRules::Decision& decision);
    void ask(const QString& reason);
    void hearAnswer(bool isUp);
    void withdraw();
    void arm();
    qint64 now() const;

    std::unique_ptr<ConnectionSource> m_service;
    std::unique_ptr<ManualSource> m_manual;
    TransitionRules m_rules;
    QElapsedTimer m_clock;
    QTimer m_deadline;
    bool m_hasLooked = false;     ///< since the last start()
    bool m_isSilent = false;      ///< the service is, since before the last start()
    bool m_hasEverLooked = false; ///< since the first
    bool m_wasUpBefore = false;   ///< what is up was so when it looked for the first time of all
    bool m_isAsking = false;      ///< whether a connection is up that is to be told
    QString m_askedId;            ///< of that connection
    QString m_reason;             ///< why it is to be told
    QString m_upId;
    QDateTime m_upSince;
};
