// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <QMessageBox>

/** The message on the screen that waits for no answer; null without one. */
inline QMessageBox* notice()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        QMessageBox* const box = qobject_cast<QMessageBox*>(window);
        if (box && box->isVisible() && !box->isModal())
            return box;
    }
    return nullptr;
}
