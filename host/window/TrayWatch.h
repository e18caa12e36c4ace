// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <memory>

class QDBusPendingCallWatcher;
class QDBusServiceWatcher;

/**
 * Whether the desktop has a tray, and when that changes. It looks when the desktop says that something changed, never
 * by the clock, and waits for no answer.
 *
 * Two kinds of tray are known: the one that org.kde.StatusNotifierWatcher tells of on the session bus (freedesktop,
 * "StatusNotifierItem"), and that of X11 (freedesktop, "System Tray Protocol"). The toolkit decides once which of them
 * its icons are for. Where there is neither, the decision is put off; on X11 it cannot be, so that a tray of the first
 * kind alone that comes later is not seen there.
 */
class TrayWatch : public QObject
{
    Q_OBJECT

public:
    /** Knows of no tray before the bus has answered. */
    TrayWatch();

    ~TrayWatch() override;

    TrayWatch(const TrayWatch&) = delete;
    TrayWatch& operator=(const TrayWatch&) = delete;

    /** Whether an icon would be seen now. */
    bool isThere() const { return m_isThere; }

Q_SIGNALS:
    /** A tray came, or the tray went. */
    void changed();

private Q_SLOTS:
    void ask();
    void look();

private:
    enum Kind { Undecided, StatusNotifier, X11 };

    void decide();

    std::unique_ptr<QDBusServiceWatcher> m_service;
    std::unique_ptr<QDBusPendingCallWatcher> m_answer;
    Kind m_kind = Undecided;
    bool m_hasHost = false; ///< on the bus
    bool m_isThere = false;
};
