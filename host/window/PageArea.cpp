// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "PageArea.h"

#include <QEvent>

PageArea::PageArea()
{
    QWidget* const ground = new QWidget;
    ground->installEventFilter(this);
    setWidget(ground);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    // The page's own controls are what the keyboard goes to.
    setFocusPolicy(Qt::NoFocus);
}

QWidget* PageArea::ground() const
{
    return widget();
}

void PageArea::setPage(QWidget* page)
{
    m_page = page;
    ground()->setMinimumSize(page ? page->sizeHint().expandedTo(page->minimumSizeHint()).expandedTo(page->minimumSize())
                                  : QSize(0, 0));
    if (page)
        page->setGeometry(ground()->rect());
    updateGeometry();
}

QSize PageArea::sizeHint() const
{
    return ground()->minimumSize().expandedTo(QSize(400, 360));
}

bool PageArea::eventFilter(QObject* object, QEvent* event)
{
    if (object == ground() && event->type() == QEvent::Resize && m_page)
        m_page->setGeometry(ground()->rect());
    return QScrollArea::eventFilter(object, event);
}
