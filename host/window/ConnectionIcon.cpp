// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ConnectionIcon.h"

#include <QPainter>
#include <QPixmap>

static QPixmap newPicture(int size, const QColor& colour)
{
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 16.0, size / 16.0);
    painter.setPen(QPen(colour, 1.5, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(8, 7), QPointF(8, 14.5));
    painter.setBrush(colour);
    painter.drawEllipse(QPointF(8, 6), 1.2, 1.2);
    painter.setBrush(Qt::NoBrush);
    const int sixteenth = 16; // of a degree, in which the toolkit counts
    for (const qreal radius : {3.5, 6.2}) {
        const QRectF circle(8 - radius, 6 - radius, 2 * radius, 2 * radius);
        painter.drawArc(circle, -50 * sixteenth, 100 * sixteenth);
        painter.drawArc(circle, 130 * sixteenth, 100 * sixteenth);
    }
    return picture;
}

QIcon connectionIcon(bool isUp)
{
    const QColor colour = isUp ? QColor(0x1e, 0x8e, 0x3e) : QColor(0x80, 0x80, 0x80);
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64})
        icon.addPixmap(newPicture(size, colour));
    return icon;
}
