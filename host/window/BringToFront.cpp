// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "BringToFront.h"

#include <QApplication>
#include <QWidget>

void bringToFront(QWidget* window, const QByteArray& token)
{
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    // A dialog that is open has the keyboard, and lies above.
    QWidget* const modal = QApplication::activeModalWidget();
    QWidget* const front = modal ? modal : window;
    // The toolkit takes the token from there, for a window that is there already.
    if (!token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token);
    front->raise();
    front->activateWindow();
    qunsetenv("XDG_ACTIVATION_TOKEN");
}
