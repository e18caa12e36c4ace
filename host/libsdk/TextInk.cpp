// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "TextInk.h"

#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>

TextInk TextInk::of(const QString& text, const QFont& font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    QRectF rect;
    const QList<QGlyphRun> runs = layout.glyphRuns();
    for (const QGlyphRun& run : runs) {
        const QVector<quint32> glyphs = run.glyphIndexes();
        const QVector<QPointF> places = run.positions();
        for (int i = 0; i < glyphs.size(); ++i)
            rect |= run.rawFont().boundingRect(glyphs.at(i)).translated(places.at(i));
    }
    const TextInk ink = {rect.translated(0, -line.ascent()), line.ascent()};
    return ink;
}
