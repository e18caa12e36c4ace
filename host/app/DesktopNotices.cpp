// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "DesktopNotices.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QRegularExpression>

#include <functional>
#include <utility>

#include "EditLinkButton.h"
#include "Notice.h"

namespace
{
constexpr char service[] = "org.freedesktop.Notifications";
constexpr char object[] = "/org/freedesktop/Notifications";
constexpr int answerTakesAtMost = 3000; // ms; the bus may have to start the service
constexpr int expiresAsTheDesktopLikes = -1;

QDBusMessage call(const char* method)
{
    return QDBusMessage::createMethodCall(QLatin1String(service), QLatin1String(object), QLatin1String(service),
                                          QLatin1String(method));
}

/** The text of a button without its key, which some languages have in brackets behind the text. */
QString withoutKey(QString text)
{
    static const QRegularExpression inBrackets(QStringLiteral("\\s*\\(&.\\)"));
    return text.remove(inBrackets).remove(QLatin1Char('&'));
}

/** Hands the answer to question to taken, unless listener goes first. */
void askBus(const QDBusMessage& question, QObject* listener, const std::function<void(const QDBusMessage&)>& taken)
{
    QDBusPendingCallWatcher* const answer =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question, answerTakesAtMost), listener);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, listener, [answer, taken] {
        answer->deleteLater();
        taken(answer->reply());
    });
}
} // namespace

DesktopNotices::DesktopNotices()
{
    m_eventEnd.setSingleShot(true);
    connect(&m_eventEnd, &QTimer::timeout, this, &DesktopNotices::ask);
}

void DesktopNotices::add(const QString& title, const QString& text, const QString& subject, const QString& link)
{
    m_failures.append({title, text, subject, link});
    m_words.add(title, text, subject, link);
    // What comes while the service is asked is told after its answer.
    if (!m_isAsking)
        m_eventEnd.start(0);
}

void DesktopNotices::listen()
{
    if (std::exchange(m_isListening, true))
        return;
    // From whoever it is: to ask for the owner of the name would be to wait.
    QDBusConnection bus = QDBusConnection::sessionBus();
    const QString anybody, place = QLatin1String(object), interface = QLatin1String(service);
    bus.connect(anybody, place, interface, QStringLiteral("ActionInvoked"), this,
                SLOT(onActionInvoked(uint, QString, QDBusMessage)));
    bus.connect(anybody, place, interface, QStringLiteral("ActivationToken"), this,
                SLOT(onActivationToken(uint, QString, QDBusMessage)));
    bus.connect(anybody, place, interface, QStringLiteral("NotificationClosed"), this,
                SLOT(onClosed(uint, uint, QDBusMessage)));
}

/** What the service can do decides how it is spoken to; another one may have taken its place since. */
void DesktopNotices::ask()
{
    listen();
    m_isAsking = true;
    askBus(call("GetCapabilities"), this, [this](const QDBusMessage& answer) {
        if (answer.type() == QDBusMessage::ReplyMessage)
            send(answer.arguments().value(0).toStringList());
        else
            showWindow();
    });
}

void DesktopNotices::send(const QStringList& capabilities)
{
    const QString text = m_words.text();
    const bool isMarkup = capabilities.contains(QLatin1String("body-markup"));
    QStringList actions;
    if (capabilities.contains(QLatin1String("actions"))) {
        actions << QStringLiteral("default") << QGuiApplication::applicationDisplayName();
        if (!m_words.link().isEmpty())
            actions << QStringLiteral("edit") << withoutKey(EditLinkButton::textFor(m_words.hasSeveralLinks()));
    }
    const QVariantMap hints{{QStringLiteral("desktop-entry"), QGuiApplication::desktopFileName()}};
    const int told = int(m_failures.size());
    QDBusMessage question = call("Notify");
    question << QGuiApplication::applicationDisplayName() << m_id << QGuiApplication::desktopFileName()
             << m_words.title() << (isMarkup ? text.toHtmlEscaped() : text) << actions << hints
             << expiresAsTheDesktopLikes;
    askBus(question, this, [this, told](const QDBusMessage& answer) {
        m_id = answer.arguments().value(0).toUInt();
        m_service = answer.service();
        if (answer.type() != QDBusMessage::ReplyMessage || m_id == 0)
            return showWindow();
        m_isAsking = false;
        if (m_failures.size() > told)
            ask();
    });
}

/** All of it as if there were no notifications. */
void DesktopNotices::showWindow()
{
    const QList<Failure> failures = m_failures;
    forget();
    for (const Failure& failure : failures)
        showNoticeWindow(failure.title, failure.text, failure.subject, failure.link);
}

bool DesktopNotices::isOurs(uint id, const QDBusMessage& message) const
{
    return m_id != 0 && id == m_id && message.service() == m_service;
}

void DesktopNotices::onActionInvoked(uint id, const QString& action, const QDBusMessage& message)
{
    if (!isOurs(id, message))
        return;
    const QString link = m_words.link();
    Q_EMIT windowRequested(std::exchange(m_token, QByteArray()));
    if (action == QLatin1String("edit") && !link.isEmpty())
        Q_EMIT editRequested(link);
    else
        showWindow();
}

void DesktopNotices::onActivationToken(uint id, const QString& token, const QDBusMessage& message)
{
    if (isOurs(id, message))
        m_token = token.toUtf8();
}

void DesktopNotices::onClosed(uint id, uint reason, const QDBusMessage& message)
{
    Q_UNUSED(reason);
    // What came since the last question is told by a new one.
    if (isOurs(id, message) && !m_isAsking && !m_eventEnd.isActive())
        forget();
    else if (isOurs(id, message))
        m_id = 0;
}

void DesktopNotices::forget()
{
    m_failures.clear();
    m_words = FailureList();
    m_token.clear();
    m_id = 0;
    m_isAsking = false;
    m_eventEnd.stop();
}
