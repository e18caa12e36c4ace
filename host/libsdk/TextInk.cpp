// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "TextInk.h"

#include <QGlyphRun>
#include <QPainterPath>
#include <QRawFont>
#include <QTextLayout>

/** As it is drawn, which may be a pixel more than its outline; only that is known to Qt 4.8. */
static QRectF inkOf(const QRawFont& font, quint32 glyph)
{
#if QT_VERSION >= 0x050000
    return font.boundingRect(glyph);
#else
    return font.pathForGlyph(glyph).boundingRect();
#endif
}

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
            rect |= inkOf(run.rawFont(), glyphs.at(i)).translated(places.at(i));
    }
    const TextInk ink = {rect.translated(0, -line.ascent()), line.ascent()};
    return ink;
}
