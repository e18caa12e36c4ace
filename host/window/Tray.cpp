// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Tray.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>

#include "BringToFront.h"
#include "ConnectionIcon.h"

Tray::Tray(QWidget& window, QMenu& linkMenu)
    : m_window(window)
{
    m_menu.addMenu(&linkMenu);
    m_menu.addSeparator();
    m_show = m_menu.addAction(QString(), this, [this] { bringToFront(&m_window); });
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
                       tr("Vellum Connect keeps running here. Click the icon to show its window."));
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
        bringToFront(&m_window);
}
