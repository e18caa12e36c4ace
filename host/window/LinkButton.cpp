// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkButton.h"

#include <QStyleOptionButton>
#include <QStylePainter>

static const int gap = 4; // pixels, as the toolkit has it from left to right

LinkButton::LinkButton(QWidget* parent)
    : QPushButton(parent)
{
}

/** The toolkit puts the text of a button with an icon to the far border there. */
void LinkButton::paintEvent(QPaintEvent* event)
{
    QStyleOptionButton whole;
    initStyleOption(&whole);
    if (whole.direction == Qt::LeftToRight || whole.icon.isNull() || whole.text.isEmpty()) {
        QPushButton::paintEvent(event);
        return;
    }
    QStyleOptionButton frame = whole;
    frame.text.clear();
    frame.icon = QIcon();
    QStyleOptionButton text = whole;
    text.icon = QIcon();
    QStyleOptionButton icon = whole;
    icon.text.clear();
    const int textWidth = fontMetrics().size(Qt::TextShowMnemonic, whole.text).width();
    const int width = textWidth + gap + whole.iconSize.width();
    text.rect.setLeft(whole.rect.center().x() - width / 2);
    text.rect.setWidth(textWidth);
    icon.rect.setLeft(text.rect.right() + gap);
    icon.rect.setWidth(whole.iconSize.width());
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_PushButton, frame);
    painter.drawControl(QStyle::CE_PushButtonLabel, text);
    painter.drawControl(QStyle::CE_PushButtonLabel, icon);
}
