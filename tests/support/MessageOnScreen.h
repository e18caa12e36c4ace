// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QApplication>
#include <QMessageBox>

#include "Test.h"

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

/** How many messages are on the screen, modal or not. */
inline int messageCount()
{
    int count = 0;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        count += qobject_cast<QMessageBox*>(window) && window->isVisible();
    return count;
}

/** Presses a button of a message as the user does. */
inline void clickButton(QMessageBox* box, QMessageBox::StandardButton button)
{
    QVERIFY(QTest::qWaitForWindowExposed(box));
    clickThroughWindow(box->button(button));
}

/** Looks for a modal message from the event loop, acts on the first and goes. */
class MessageWatch : public QObject
{
public:
    explicit MessageWatch(const std::function<void(QMessageBox*)>& action)
        : QObject(qApp)
        , m_action(action)
    {
        startTimer(1);
    }

protected:
    void timerEvent(QTimerEvent* event) override
    {
        QMessageBox* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        killTimer(event->timerId());
        m_action(box);
        deleteLater();
    }

private:
    const std::function<void(QMessageBox*)> m_action;
};

/** Runs action from the event loop as soon as a modal message is on the screen. */
inline void whenMessageShows(const std::function<void(QMessageBox*)>& action)
{
    new MessageWatch(action);
}
