// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkRowDelegate.h"

#include <QApplication>
#include <QFontInfo>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <cmath>

#include "LinkPage.h"
#include "ShownText.h"
#include "TextInk.h"

static const int smallest = 6; // pixels; less is no letter any more

/** The part of a cell that has text, with the margins that the toolkit gives it. */
static QRect textPart(const QRect& cell, const QWidget* table)
{
    const int margin = QApplication::style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, table) + 1;
    return cell.adjusted(margin, 0, -margin, 0);
}

void LinkRowDelegate::addTo(QWidget* page)
{
    if (QTableWidget* const table = LinkPage(page).table())
        table->setItemDelegate(new LinkRowDelegate(table));
}

LinkRowDelegate::LinkRowDelegate(QObject* table)
    : QItemDelegate(table)
{
}

/** By its ink: what a font reserves above and below is more than a row has, for Japanese by a half. */
LinkRowDelegate::Line LinkRowDelegate::fitted(const QString& text, const QFont& font, const QSize& room)
{
    const QString whole = ShownText::shortLine(text);
    Line line{whole, font, 0};
    for (int size = QFontInfo(font).pixelSize();; --size) {
        line.font.setPixelSize(size);
        const QRectF ink = TextInk::of(whole, line.font).rect;
        const int above = int(std::ceil(-ink.top()));
        const int below = int(std::ceil(ink.bottom()));
        if (above + below > room.height() && size > smallest)
            continue;
        line.text = QFontMetrics(line.font).elidedText(whole, Qt::ElideRight, room.width());
        // All on one line, as far as the row shows them whole there.
        const int common = int((room.height() + QFontMetricsF(line.font).capHeight()) / 2);
        line.baseline = std::max(above, std::min(common, room.height() - below));
        return line;
    }
}

void LinkRowDelegate::drawDisplay(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect,
                                  const QString& text) const
{
    // Its ground and its colour.
    QItemDelegate::drawDisplay(painter, option, rect, QString());
    const QRect place = textPart(rect, option.widget);
    const Line line = fitted(text, option.font, place.size());
    const int width = QFontMetrics(line.font).horizontalAdvance(line.text);
    const int left = option.direction == Qt::RightToLeft ? place.right() + 1 - width : place.left();
    painter->setFont(line.font);
    painter->setLayoutDirection(Qt::LayoutDirectionAuto);
    painter->drawText(left, place.top() + line.baseline, line.text);
}

void LinkRowDelegate::drawFocus(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect) const
{
    Q_UNUSED(painter);
    Q_UNUSED(option);
    Q_UNUSED(rect);
}

bool LinkRowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                                const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QItemDelegate::helpEvent(event, view, option, index);
    const QString text = ShownText::onOneLine(index.data().toString());
    const QRect cell = view->visualRect(index);
    const bool isWhole = fitted(text, view->font(), textPart(cell, view).size()).text == text;
    QToolTip::showText(event->globalPos(), isWhole ? QString() : ShownText::toolTip(text), view, cell);
    return true;
}
