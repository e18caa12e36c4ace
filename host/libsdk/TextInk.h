// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>

class QFont;
class QString;

/** What a text on one line covers: marks may reach out of what its font asks for, as in Hindi. */
struct TextInk {
    QRectF rect;  ///< seen from the beginning of its baseline
    qreal ascent; ///< what the line has above the baseline

    /** In pixels. The toolkit's own measure leaves out how marks are moved. */
    static TextInk of(const QString& text, const QFont& font);
};
