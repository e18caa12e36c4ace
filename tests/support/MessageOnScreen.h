// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>

/** Runs action from the event loop as soon as a modal message is on the screen. */
inline void whenMessageShows(const std::function<void(QMessageBox*)>& action)
{
    QTimer::singleShot(1, qApp, [action] {
        QMessageBox* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box && box->isVisible())
            action(box);
        else
            whenMessageShows(action);
    });
}
