// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QItemDelegate>

/**
 * Paints the table of the quick links' page, whose rows are 14 pixels high whatever font the desktop has: the letters
 * stand where the row shows them whole, and are made smaller where they are higher than it. A name stays on its line
 * and in its direction, and is whole in its tool tip. Belongs to the table.
 */
class LinkRowDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    /** Lets it paint the table within page, which may be null; nothing where that is another plug-in's. */
    static void addTo(QWidget* page);

    /** Shows a text that the cell cuts off. */
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

protected:
    void drawDisplay(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect,
                     const QString& text) const override;

    /** Nothing: the selected row shows where the keyboard is. */
    void drawFocus(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect) const override;

private:
    /** How a text stands in a row. */
    struct Line {
        QString text; ///< as much of it as there is room for
        QFont font;
        int baseline; ///< pixels below the upper edge
    };

    explicit LinkRowDelegate(QObject* table);

    static Line fitted(const QString& text, const QFont& font, const QSize& room);
};
