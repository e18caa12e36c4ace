// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <QPainter>
#include <QPen>
#include <QStyleOptionViewItem>

#include "QuickLinkRecord.h"

GridDelegateLayout::~GridDelegateLayout()
{
}

void GridDelegateLayout::drawFocus(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect) const
{
    Q_UNUSED(rect);
    // The pen stays for what is drawn later in the same paint call. Qt 5 and 6 would make it one pixel wide.
    if (option.state & QStyle::State_HasFocus)
        painter->setPen(QPen(QBrush(Qt::white), 0));
}
