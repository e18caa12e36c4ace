// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "TrayWatch.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QSystemTrayIcon>

#include "BusValue.h"

namespace
{
constexpr char watcher[] = "org.kde.StatusNotifierWatcher"; // the service, and its interface
constexpr char watcherPath[] = "/StatusNotifierWatcher";
} // namespace

TrayWatch::TrayWatch()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        look();
        return;
    }
    m_service =
        std::make_unique<QDBusServiceWatcher>(QLatin1String(watcher), bus, QDBusServiceWatcher::WatchForOwnerChange);
    connect(m_service.get(), &QDBusServiceWatcher::serviceOwnerChanged, this, &TrayWatch::ask);
    // The service may be there before a tray is, and stay when it goes.
    for (const char* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        bus.connect(QLatin1String(watcher), QLatin1String(watcherPath), QLatin1String(watcher), QLatin1String(signal),
                    this, SLOT(ask()));
    ask();
}

TrayWatch::~TrayWatch() = default;

void TrayWatch::ask()
{
    QDBusMessage question =
        QDBusMessage::createMethodCall(QLatin1String(watcher), QLatin1String(watcherPath),
                                       QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << QLatin1String(watcher) << QStringLiteral("IsStatusNotifierHostRegistered");
    // A tray is not to be started.
    question.setAutoStartService(false);
    m_answer = std::make_unique<QDBusPendingCallWatcher>(QDBusConnection::sessionBus().asyncCall(question));
    connect(m_answer.get(), &QDBusPendingCallWatcher::finished, this, [this] {
        // An error has no such value: there is no tray then.
        m_hasHost = BusValue::flag(m_answer->reply().arguments().value(0).value<QDBusVariant>().variant());
        look();
    });
}

void TrayWatch::look()
{
    if (m_kind == Undecided)
        decide();
    const bool wasThere = m_isThere;
    m_isThere = m_kind == X11 ? QSystemTrayIcon::isSystemTrayAvailable() : m_kind == StatusNotifier && m_hasHost;
    if (m_isThere != wasThere)
        Q_EMIT changed();
}

/** The toolkit decides for the bus where a tray is there when it is asked first, and then stays with its decision. */
void TrayWatch::decide()
{
    if (m_hasHost) {
        m_kind = StatusNotifier;
    } else if (QGuiApplication::platformName() == QLatin1String("xcb")) {
        m_kind = X11;
        // The toolkit's icon hears of trays by this signal as well. Its class is a QObject, but none that the toolkit
        // lets programs see, so that the connection is by name.
        connect(reinterpret_cast<QObject*>(QGuiApplication::platformNativeInterface()),
                SIGNAL(systemTrayWindowChanged(QScreen*)), this, SLOT(look()));
    }
}
