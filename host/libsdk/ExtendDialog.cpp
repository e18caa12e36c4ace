// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ExtendDialog.h"

#include <QApplication>
#include <QEvent>
#include <QVBoxLayout>
#if QT_VERSION < 0x050000
#include <QDesktopWidget>
#else
#include <QScreen>
#endif

#include "SpareRoom.h"

namespace
{

QRect screenAround(const QWidget* window)
{
#if QT_VERSION < 0x050000
    return QApplication::desktop()->availableGeometry(window);
#else
    return window->screen()->availableGeometry();
#endif
}

/** Puts a frame over the middle of its parent's window, inside the screen, each time it is shown. */
class Centring : public QObject
{
public:
    explicit Centring(ExtendDialog* frame)
        : QObject(frame)
    {
        frame->installEventFilter(this);
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        QWidget* const frame = static_cast<QWidget*>(object);
        // A spontaneous one is the desktop's: the user brings the frame back to where it was.
        if (event->type() == QEvent::Show && !event->spontaneous() && frame->parentWidget())
            centre(frame, frame->parentWidget()->window());
        return QObject::eventFilter(object, event);
    }

private:
    static void centre(QWidget* frame, const QWidget* window)
    {
        QRect place = frame->frameGeometry();
        place.moveCenter(window->frameGeometry().center());
        const QRect screen = screenAround(window);
        place.moveLeft(qMax(screen.left(), qMin(place.left(), screen.right() + 1 - place.width())));
        place.moveTop(qMax(screen.top(), qMin(place.top(), screen.bottom() + 1 - place.height())));
        frame->move(place.topLeft());
    }
};

} // namespace

ExtendDialog::ExtendDialog(QWidget* parent, Qt::WindowFlags flags, int widgetType, bool flag)
    : QDialog(parent, flags | Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint)
{
    Q_UNUSED(widgetType);
    setModal(true);
    setSizeGripEnabled(flag);
    new Centring(this);
}

void ExtendDialog::AddMainWidget(QWidget* widget)
{
    if (!widget)
        return;
    QLayout* box = layout();
    if (!box) {
        box = new QVBoxLayout(this);
        box->setContentsMargins(0, 0, 0, 0);
        // Whoever fixes the frame's size decides, not what the main widget would like.
        box->setSizeConstraint(QLayout::SetNoConstraint);
    }
    while (QLayoutItem* const former = box->takeAt(0)) {
        if (former->widget() != widget)
            former->widget()->hide();
        delete former;
    }
    box->addWidget(widget);
    new SpareRoom(widget);
}

void ExtendDialog::setWindowTitle(const QString& title)
{
    QDialog::setWindowTitle(title);
}
