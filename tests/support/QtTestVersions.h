// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtTest>

// What tests use of QtTest and Qt 4.8 lacks, in the words of Qt 5.

/** Whether an object tells its name to others; a name that another follows at once is seen by nobody else. */
const bool isNameTold = QT_VERSION >= 0x050000;

#if QT_VERSION < 0x050000
#include <QWidget>

bool qt_tryModalHelper(QWidget* window, QWidget** top); // of the toolkit, which does not declare it

namespace QTest
{
/** Qt 5 also deletes what is to be deleted later. */
inline void waitShortly()
{
    qWait(20);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
} // namespace QTest

#undef QSKIP
#define QSKIP(reason)                                                                                                  \
    do {                                                                                                               \
        QTest::qSkip(reason, QTest::SkipSingle, __FILE__, __LINE__);                                                   \
        return;                                                                                                        \
    } while (false)

#define QTRY_VERIFY(condition)                                                                                         \
    do {                                                                                                               \
        for (int waited = 0; waited < 5000 && !(condition); waited += 20)                                              \
            QTest::waitShortly();                                                                                      \
        QVERIFY(condition);                                                                                            \
    } while (false)

#define QTRY_COMPARE(actual, expected)                                                                                 \
    do {                                                                                                               \
        for (int waited = 0; waited < 5000 && !((actual) == (expected)); waited += 20)                                 \
            QTest::waitShortly();                                                                                      \
        QCOMPARE(actual, expected);                                                                                    \
    } while (false)

namespace QTest
{
/** Qt 4.8 waits only for the window to be shown; the rest is waited for here, and asked for where no window manager is.
 */
inline bool qWaitForWindowActive(QWidget* window)
{
    qWaitForWindowShown(window);
    for (int waited = 0; waited < 5000 && !window->isActiveWindow(); waited += 20) {
        window->activateWindow();
        qWait(20);
    }
    return window->isActiveWindow();
}

inline bool qWaitForWindowExposed(QWidget* window)
{
    return qWaitForWindowShown(window);
}

template <class Condition>
bool qWaitFor(Condition condition, int limit = 5000)
{
    for (int waited = 0; waited < limit && !condition(); waited += 20)
        waitShortly();
    return condition();
}
} // namespace QTest

/** Clicks as the window system would, which does not reach a window blocked by a modal one. */
inline void clickThroughWindow(QWidget* widget)
{
    if (qt_tryModalHelper(widget->window(), nullptr))
        QTest::mouseClick(widget, Qt::LeftButton);
}
#else
#include <QWidget>
#include <QWindow>

inline void clickThroughWindow(QWidget* widget)
{
    QWidget* const window = widget->window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      widget->mapTo(window, widget->rect().center()));
}
#endif
