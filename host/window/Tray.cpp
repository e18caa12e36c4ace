// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Tray.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>

#include "ConnectionIcon.h"

Tray::Tray(QWidget& window, QMenu& linkMenu)
    : m_window(window)
{
    m_menu.addMenu(&linkMenu);
    m_menu.addSeparator();
    m_show = m_menu.addAction(QString(), this, &Tray::showWindow);
    m_quit = m_menu.addAction(QString(), this, &Tray::quitRequested);
    setTexts();
    m_icon.setContextMenu(&m_menu);
    connect(&m_icon, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger)
            toggleWindow();
    });
    // It is the window that hears of a new language.
    m_window.installEventFilter(this);
}

bool Tray::isAvailable()
{
    return QSystemTrayIcon::isSystemTrayAvailable();
}

void Tray::setState(bool isUp, const QString& summary)
{
    m_icon.setIcon(connectionIcon(isUp));
    m_icon.setToolTip(summary);
    // Where there is no tray yet, the icon appears together with it.
    m_icon.show();
}

void Tray::tellThatItKeepsRunning()
{
    if (m_hasToldThatItKeepsRunning)
        return;
    m_hasToldThatItKeepsRunning = true;
    m_icon.showMessage(QGuiApplication::applicationDisplayName(),
                       tr("The program goes on here. Click the icon to see its window."));
}

void Tray::setTexts()
{
    m_show->setText(tr("Show Window"));
    m_quit->setText(tr("Quit"));
}

bool Tray::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        setTexts();
    return QObject::eventFilter(object, event);
}

void Tray::toggleWindow()
{
    if (m_window.isVisible() && !m_window.isMinimized())
        m_window.hide();
    else
        showWindow();
}

void Tray::showWindow()
{
    m_window.setWindowState(m_window.windowState() & ~Qt::WindowMinimized);
    m_window.show();
    m_window.raise();
    m_window.activateWindow();
}
