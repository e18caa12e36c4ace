// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Heading.h"

#include <QLabel>

QLabel* newHeading(int points)
{
    QLabel* const label = new QLabel;
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() + points);
    font.setBold(true);
    label->setFont(font);
    return label;
}
