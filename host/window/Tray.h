// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMenu>
#include <QSystemTrayIcon>

class QWidget;

/** The program in the desktop's tray, where there is one: the state of the connection and the quick links. */
class Tray : public QObject
{
    Q_OBJECT

public:
    /** Shows window on a click. Its menu holds linkMenu. Both must outlive the tray. Appears with the first state. */
    Tray(QWidget& window, QMenu& linkMenu);

    /** Whether the desktop has a tray now. */
    static bool isAvailable();

    /** Shows the state, with summary as the tool tip. */
    void setState(bool isUp, const QString& summary);

    /** Tells the user, the first time only, that the program keeps running without its window. */
    void tellThatItKeepsRunning();

Q_SIGNALS:
    /** The user wants to end the program. */
    void quitRequested();

private:
    void setTexts();
    bool eventFilter(QObject* object, QEvent* event) override;
    void toggleWindow();

    QWidget& m_window;
    QMenu m_menu;
    QAction* m_show = nullptr;
    QAction* m_quit = nullptr;
    QSystemTrayIcon m_icon;
    bool m_hasToldThatItKeepsRunning = false;
};
