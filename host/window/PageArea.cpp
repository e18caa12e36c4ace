// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "PageArea.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QStyle>
#include <QTabBar>

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
    if (m_page)
        m_page->removeEventFilter(this);
    m_page = page;
    m_room = room;
    if (m_page)
        m_page->installEventFilter(this);
    makeRoom();
}

static bool isWorthTheFocus(const QWidget* control)
{
    const QAbstractItemView* const list = qobject_cast<const QAbstractItemView*>(control);
    // A widget of tabs hands the focus on to its tabs.
    return (control->focusPolicy() & Qt::TabFocus) && !control->focusProxy() && control->isVisible() &&
           control->isEnabled() && !qobject_cast<const QTabBar*>(control) &&
           !(list && list->model() && list->model()->rowCount() == 0);
}

void PageArea::takeFocus()
{
    if (!m_page)
        return;
    for (QWidget* next = m_page->nextInFocusChain(); next != m_page; next = next->nextInFocusChain()) {
        if (m_page->isAncestorOf(next) && isWorthTheFocus(next))
            return next->setFocus(Qt::TabFocusReason);
    }
}

void PageArea::makeRoom()
{
    pageParent()->setMinimumSize(
        m_page ? m_page->sizeHint().expandedTo(m_page->minimumSizeHint()).expandedTo(m_page->minimumSize())
               : QSize(0, 0));
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
    if (object == m_page && m_room == Whole && event->type() == QEvent::LayoutRequest) {
        makeRoom();
        Q_EMIT resized();
    }
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
