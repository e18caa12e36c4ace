// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QSet>

#include <functional>

#include "NetworkFacts.h"

class QDBusMessage;

/**
 * One look at everything that NetworkManager says, over the system bus. Nobody waits for it: it asks, and says when the
 * last answer came or is no longer awaited, three seconds later at most. It may be deleted at any time.
 */
class NetworkLook : public QObject
{
    Q_OBJECT

public:
    static constexpr int patience = 1000; ///< milliseconds for one answer

    /** Asks at once. What gives no answer has the values that are known of it. */
    explicit NetworkLook(const NetworkFacts& known);

    /** What was found; whole when finished() came. */
    const NetworkFacts& facts() const;

    /** Whether everything asked has answered. That something does not exist is an answer, but of the service itself. */
    bool isComplete() const;

Q_SIGNALS:
    /** The last thing that it says. */
    void finished();

private:
    void askManager();
    void askConnection(const QString& path);
    void askStored(const QString& path);
    bool isNew(const QString& path);
    void askValues(const QString& path, const QString& interface, const std::function<void()>& next);
    void ask(QDBusMessage question, const std::function<void(const QDBusMessage& answer)>& read);
    void take(const QString& path, const QDBusMessage& answer, const QVariantMap& values);

    const NetworkFacts m_known;
    NetworkFacts m_facts;
    QSet<QString> m_asked; ///< the paths
    int m_open = 0;        ///< questions without an answer
    bool m_isComplete = true;
};
