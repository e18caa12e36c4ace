// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "WrappedText.h"

static const int spareHeight = 4; // The letters of some languages reach further than the toolkit reckons.

WrappedText::WrappedText()
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

int WrappedText::heightForWidth(int width) const
{
    return QLabel::heightForWidth(width) + spareHeight;
}
