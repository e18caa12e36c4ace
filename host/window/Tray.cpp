// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Tray.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>

#include <chrono>

#include "BringToFront.h"
#include "ConnectionIcon.h"

// In a session that begins the tray comes after the programs, and a panel that is started again is away for a moment.
static const std::chrono::seconds patience(5);

Tray::Tray(QWidget& window, QMenu& linkMenu)
    : m_window(window)
{
    m_menu.addMenu(&linkMenu);
    m_menu.addSeparator();
    m_show = m_menu.addAction(QString(), this, [this] { bringToFront(&m_window); });
    m_quit = m_menu.addAction(QString(), this, &Tray::quitRequested);
    setTexts();
    m_patience.setSingleShot(true);
    m_patience.setInterval(patience);
    connect(&m_patience, &QTimer::timeout, this, &Tray::bringBack);
    connect(&m_watch, &TrayWatch::changed, this, &Tray::follow);
    // It is the window that hears of a new language.
    m_window.installEventFilter(this);
    follow();
}

void Tray::setState(bool isUp, const QString& summary)
{
    m_isUp = isUp;
    m_summary = summary;
    if (m_icon)
        showIcon();
}

void Tray::tellThatItKeepsRunning()
{
    if (m_hasToldThatItKeepsRunning || !m_icon)
        return;
    m_hasToldThatItKeepsRunning = true;
    m_icon->showMessage(QGuiApplication::applicationDisplayName(),
                        tr("Vellum Connect keeps running here. Click the icon to show its window."));
}

/** At the start as well, when it is not known yet whether the window shows. */
void Tray::follow()
{
    if (isAvailable()) {
        m_patience.stop();
        showIcon();
    } else if (m_window.isHidden()) {
        m_patience.start();
    }
}

void Tray::bringBack()
{
    if (m_window.isHidden())
        bringToFront(&m_window);
}

void Tray::showIcon()
{
    if (!m_icon) {
        m_icon = std::make_unique<QSystemTrayIcon>();
        m_icon->setContextMenu(&m_menu);
        connect(m_icon.get(), &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
            if (reason == QSystemTrayIcon::Trigger)
                toggleWindow();
        });
    }
    m_icon->setIcon(connectionIcon(m_isUp));
    m_icon->setToolTip(m_summary);
    m_icon->show();
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
