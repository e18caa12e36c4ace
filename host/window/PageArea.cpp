// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "PageArea.h"

#include <QEvent>
#include <QStyle>

PageArea::PageArea()
{
    QWidget* const parent = new QWidget;
    parent->installEventFilter(this);
    setWidget(parent);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    // The page's own controls are what the keyboard goes to.
    setFocusPolicy(Qt::NoFocus);
}

QWidget* PageArea::pageParent() const
{
    return widget();
}

void PageArea::setPage(QWidget* page, Room room)
{
    m_page = page;
    m_room = room;
    pageParent()->setMinimumSize(
        page ? page->sizeHint().expandedTo(page->minimumSizeHint()).expandedTo(page->minimumSize()) : QSize(0, 0));
    place();
    updateGeometry();
}

QSize PageArea::sizeHint() const
{
    return pageParent()->minimumSize().expandedTo(QSize(400, 360));
}

bool PageArea::eventFilter(QObject* object, QEvent* event)
{
    if (object == pageParent() && event->type() == QEvent::Resize)
        place();
    return QScrollArea::eventFilter(object, event);
}

void PageArea::place()
{
    if (!m_page)
        return;
    const QRect all = pageParent()->rect();
    const QSize size = m_room == Whole ? all.size() : pageParent()->minimumSize();
    m_page->setGeometry(QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, size, all));
}
