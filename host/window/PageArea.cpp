// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "PageArea.h"

#include <QEvent>

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

void PageArea::setPage(QWidget* page)
{
    m_page = page;
    pageParent()->setMinimumSize(
        page ? page->sizeHint().expandedTo(page->minimumSizeHint()).expandedTo(page->minimumSize()) : QSize(0, 0));
    if (page)
        page->setGeometry(pageParent()->rect());
    updateGeometry();
}

QSize PageArea::sizeHint() const
{
    return pageParent()->minimumSize().expandedTo(QSize(400, 360));
}

bool PageArea::eventFilter(QObject* object, QEvent* event)
{
    if (object == pageParent() && event->type() == QEvent::Resize && m_page)
        m_page->setGeometry(pageParent()->rect());
    return QScrollArea::eventFilter(object, event);
}
