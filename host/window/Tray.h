// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QMenu>
#include <QSystemTrayIcon>
#include <QTimer>

#include <memory>

#include "TrayWatch.h"

class QWidget;

/**
 * The program in the desktop's tray, where there is one: the state of the connection and the quick links. A window that
 * is hidden comes back when there is no tray by which it could be shown.
 */
class Tray : public QObject
{
    Q_OBJECT

public:
    /** Shows window on a click. Its menu holds linkMenu. Both must outlive the tray. Appears as soon as there is one.
     */
    Tray(QWidget& window, QMenu& linkMenu);

    /** Whether the desktop has a tray now. */
    bool isAvailable() const { return m_watch.isThere(); }

    /** Shows the state, with summary as the tool tip. */
    void setState(bool isUp, const QString& summary);

    /** Tells the user, the first time only, that the program keeps running without its window. */
    void tellThatItKeepsRunning();

Q_SIGNALS:
    /** The user wants to end the program. */
    void quitRequested();

private:
    void follow();
    void bringBack();
    void showIcon();
    void setTexts();
    bool eventFilter(QObject* object, QEvent* event) override;
    void toggleWindow();

    QWidget& m_window;
    TrayWatch m_watch;
    QTimer m_patience; ///< runs while a hidden window waits for a tray
    QMenu m_menu;
    QAction* m_show = nullptr;
    QAction* m_quit = nullptr;
    bool m_isUp = false;
    QString m_summary;
    std::unique_ptr<QSystemTrayIcon> m_icon; ///< from the first tray on
    bool m_hasToldThatItKeepsRunning = false;
};
