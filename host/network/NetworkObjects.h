// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QSet>
#include <QTimer>

#include <memory>

#include "NetworkFacts.h"

/**
 * What NetworkManager says of its objects, over the system bus. It is asked once for all of them, and its signals say
 * what changes from then on (D-Bus specification, "org.freedesktop.DBus.ObjectManager"). Nobody waits for it: it may
 * start late, stop and come back, say nonsense or nothing.
 */
class NetworkObjects : public QObject
{
    Q_OBJECT

public:
    static constexpr int patience = 1000;     ///< milliseconds after which a service that has not answered is silent
    static constexpr int longestWait = 10000; ///< milliseconds until a silent one is asked again

    enum class Presence {
        Unknown, ///< nothing has answered yet
        Away,    ///< nobody has the service's name, or the one who has it is silent
        There,
    };

    /** Begins to listen. */
    NetworkObjects();

    /** A question to an object of NetworkManager, which is not started for it. */
    static QDBusMessage question(const QString& path, const char* interface, const char* method);

    Presence presence() const;

    /** Whether the service is away for having said nothing since before we listened. */
    bool isSilent() const;

    /** What was heard; nothing unless the service is there. */
    const NetworkFacts& facts() const;

Q_SIGNALS:
    void presenceChanged();

    /** facts() changed; presence() did not. */
    void changed();

private Q_SLOTS:
    void hearObject(const QDBusMessage& signal);
    void hearChanged(const QDBusMessage& signal);

private:
    void listen();
    void setOwner(const QString& owner);
    void setPresence(Presence presence);
    void ask();
    void takeAnswer();
    void take(const QString& path, const QMap<QString, QVariantMap>& values);
    void forget(const QString& path);
    void tellChange();
    void askForTelephones();

    Presence m_presence = Presence::Unknown;
    QTimer m_retry;
    int m_wait = 0;                                    ///< milliseconds until the next retry
    std::unique_ptr<QDBusPendingCallWatcher> m_answer; ///< with all objects
    bool m_isAnswered = false;
    bool m_isSilent = false;
    bool m_isFirst = true;                       ///< whoever has the service's name had it before we listened
    QSet<QString> m_telephones;                  ///< the connections whose stored settings were asked for
    std::unique_ptr<QObject> m_telephoneAnswers; ///< the questions for them
    int m_openQuestions = 0;                     ///< of these
    NetworkFacts m_facts;
};
