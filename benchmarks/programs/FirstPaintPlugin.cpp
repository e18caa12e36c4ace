// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "FirstPaintPlugin.h"

#include <cstdio>
#include <cstdlib>

#include <time.h>

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace
{
long long nanoseconds(clockid_t clock)
{
    timespec now = {};
    clock_gettime(clock, &now);
    return now.tv_sec * 1000000000LL + now.tv_nsec;
}

void tell()
{
    std::printf("first paint: %lld %lld\n", nanoseconds(CLOCK_MONOTONIC), nanoseconds(CLOCK_PROCESS_CPUTIME_ID));
    std::fflush(stdout);
    std::_Exit(0);
}

class WindowPaintWatch : public QObject
{
public:
    WindowPaintWatch() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const QWidget* const widget = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Paint && widget && widget->isWindow()) {
            QCoreApplication::instance()->removeEventFilter(this);
            // The event loop comes round when the whole window has been painted.
            startTimer(0);
        }
        return QObject::eventFilter(watched, event);
    }

protected:
    void timerEvent(QTimerEvent*) override { tell(); }
};
} // namespace

QObject* FirstPaintPlugin::create(const QString& name, const QString& arguments)
{
    Q_UNUSED(name);
    Q_UNUSED(arguments);
    return new WindowPaintWatch;
}
