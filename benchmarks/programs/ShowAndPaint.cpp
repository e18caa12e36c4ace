// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ShowAndPaint.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace
{
class PaintWatch : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        isPainted = isPainted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

    bool isPainted = false;
};
} // namespace

void showAndPaint(QWidget* window, QWidget* viewport)
{
    PaintWatch watch;
    viewport->installEventFilter(&watch);
    window->show();
    // The filter sees the event before the widget does; the call that delivers it paints the window wholly.
    while (!watch.isPainted)
        QCoreApplication::processEvents();
}
