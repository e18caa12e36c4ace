// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

#include "ConnectionChoice.h"

class QDBusMessage;
class QDBusPendingCallWatcher;

/**
 * Finds the mobile plans that the computer has: NetworkManager's stored connections by GSM, CDMA or a telephone's
 * dial-up, over the system bus. Nobody waits for it. It may be deleted at any time.
 */
class MobilePlans : public QObject
{
    Q_OBJECT

public:
    static constexpr int patience = 1000; ///< milliseconds for one answer

    /** Asks nothing yet. parent may be null. */
    explicit MobilePlans(QObject* parent = nullptr);
    ~MobilePlans() override;

    /** Asks anew; what was asked before is forgotten. */
    void ask();

Q_SIGNALS:
    /** The answer to ask(). Without a service, or one that answers, isAnswered is false and there are no plans. */
    void found(const ConnectionChoice::Plans& plans, bool isAnswered);

private:
    void send(const QString& path, const char* interface, const char* method,
              const std::function<void(const QDBusMessage& answer)>& read);
    void askNext();

    QStringList m_paths; ///< of the stored connections that are still to be asked
    ConnectionChoice::Plans m_plans;
    std::unique_ptr<QDBusPendingCallWatcher> m_answer; ///< that is waited for
};
