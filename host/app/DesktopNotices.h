// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

#include "FailureList.h"

class QDBusMessage;

/**
 * Tells failures by the desktop's notifications, for when nobody sees the program's window:
 * org.freedesktop.Notifications on the session bus, by the Desktop Notifications Specification 1.2. There is one
 * notification at a time, to which is added what fails while it stands. Nothing waits for the bus. Where the desktop
 * does not take a notification, the failures get their window (Notice) after all.
 */
class DesktopNotices : public QObject
{
    Q_OBJECT

public:
    /** Does nothing with the bus before the first failure. */
    DesktopNotices();

    /** Tells of a failure, see showNotice(), together with all others of the same event. */
    void add(const QString& title, const QString& text, const QString& subject, const QString& link);

Q_SIGNALS:
    /** The user wants the program's window. token is what the desktop lets it come to the front by; empty for none. */
    void windowRequested(const QByteArray& token);

    /** The user wants the link of this name in the settings. */
    void editRequested(const QString& link);

private Q_SLOTS:
    // What the service tells all programs.
    void onActionInvoked(uint id, const QString& action, const QDBusMessage& message);
    void onActivationToken(uint id, const QString& token, const QDBusMessage& message);
    void onClosed(uint id, uint reason, const QDBusMessage& message);

private:
    struct Failure {
        QString title, text, subject, link;
    };

    void listen();
    void ask();
    void send(const QStringList& capabilities);
    void showWindow();
    bool isOurs(uint id, const QDBusMessage& message) const;
    void forget();

    QTimer m_eventEnd;
    QList<Failure> m_failures; ///< what the notification tells
    FailureList m_words;       ///< the same in words
    QString m_service;         ///< the unique name of who shows the notification
    QByteArray m_token;
    uint m_id = 0; ///< of the notification; 0 while there is none
    bool m_isListening = false;
    bool m_isAsking = false;
};
