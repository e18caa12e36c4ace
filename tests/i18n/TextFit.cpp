// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "TextFit.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QImage>
#include <QItemDelegate>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QStyleOptionHeader>
#include <QTabBar>
#include <QTableWidget>
#include <QTextLayout>

#include <algorithm>

namespace
{
// The edges of letters are smoothed: what is nearly white is not seen.
const int faintest = 230;
const double smallestPart = 0.85; // of the size of other letters, so that those of a row are read as easily

/** A text and where it is drawn. */
struct Place {
    const QWidget* widget;
    QString text; ///< with its ampersands
    QFont font;
    QRect rect;           ///< in the widget
    bool isRow = false;   ///< in a row whose height is not the text's
    bool isPlain = false; ///< ampersands are shown
    int flags = Qt::AlignCenter | Qt::TextSingleLine;
};

QString withoutMnemonic(const QString& text)
{
    QString plain;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == '&' && i + 1 < text.size())
            ++i;
        plain += text.at(i);
    }
    return plain;
}

QString nameOf(const QWidget* widget)
{
    for (const QWidget* named = widget; named; named = named->parentWidget()) {
        const QString name = named->objectName();
        if (!name.isEmpty() && !name.startsWith("qt_"))
            return name;
    }
    return widget->metaObject()->className();
}

/** The rows of pixels in which an image has more ink than another one. */
int rowsLost(const QImage& whole, const QImage& cut)
{
    int rows = 0;
    for (int y = 0; y < whole.height(); ++y) {
        const uchar* const wholeLine = whole.constScanLine(y);
        const uchar* const cutLine = cut.constScanLine(y);
        bool isLost = false;
        for (int x = 0; x < whole.width(); ++x)
            isLost = isLost || (wholeLine[x] < faintest && cutLine[x] != wholeLine[x]);
        rows += isLost ? 1 : 0;
    }
    return rows;
}

int widthOf(const QString& text, const Place& place)
{
    if (!(place.flags & Qt::TextWordWrap))
        return QFontMetrics(place.font).size(Qt::TextSingleLine, text).width();
    const QRect room(0, 0, place.rect.width(), QWIDGETSIZE_MAX);
    return QFontMetrics(place.font).boundingRect(room, place.flags, text).width();
}

/** How many rows of a text's ink do not show when it is drawn in its place, as the style does. */
int missingHeight(const QString& text, const Place& place, const QRect& visible)
{
    const int margin = place.font.pointSize() * 4;
    const int width = place.flags & Qt::TextWordWrap ? place.rect.width() - 2 : widthOf(text, place);
    // Wider than the text, which else would be clipped on all sides.
    const QRect rect(margin, margin + place.rect.top(), width + 2, place.rect.height());
    QImage whole(width + 2 * margin, place.widget->height() + 2 * margin, QImage::Format_Grayscale8);
    whole.fill(Qt::white);
    QImage cut = whole;

    QPainter wholePainter(&whole);
    wholePainter.setFont(place.font);
    wholePainter.drawText(rect, place.flags | Qt::TextDontClip, text);
    wholePainter.end();
    QPainter cutPainter(&cut);
    cutPainter.setFont(place.font);
    cutPainter.setClipRect(QRect(0, margin + visible.top(), cut.width(), visible.height()));
    cutPainter.drawText(rect, place.flags, text);
    cutPainter.end();
    return rowsLost(whole, cut);
}

/** Where the first and the last row of pixels with ink are; both -1 for a picture without ink. */
struct Ink {
    int top = -1;
    int bottom = -1;

    int height() const { return top < 0 ? 0 : bottom - top + 1; }
};

Ink inkOf(const QImage& picture)
{
    Ink ink;
    for (int y = 0; y < picture.height(); ++y) {
        const uchar* const line = picture.constScanLine(y);
        if (std::any_of(line, line + picture.width(), [](uchar shade) { return shade < faintest; })) {
            ink.bottom = y;
            ink.top = ink.top < 0 ? y : ink.top;
        }
    }
    return ink;
}

QImage paper(const QSize& size)
{
    QImage image(size, QImage::Format_Grayscale8);
    image.fill(Qt::white);
    return image;
}

/** What a cell shows where nothing cuts it off, in the middle of three times its height. */
QImage pictureOf(const QTableWidget* table, int row, int column)
{
    const QRect cell = table->visualItemRect(table->item(row, column));
    QImage picture = paper(QSize(cell.width(), 3 * cell.height()));
    QStyleOptionViewItem option;
    option.initFrom(table);
    option.widget = table;
    option.font = table->font();
    option.rect = QRect(0, cell.height(), cell.width(), cell.height());
    option.state = QStyle::State_Enabled;
    option.palette.setColor(QPalette::Text, Qt::black);
    QItemDelegate* const delegate = qobject_cast<QItemDelegate*>(table->itemDelegate());
    delegate->setClipping(false);
    QPainter painter(&picture);
    delegate->paint(&painter, option, table->model()->index(row, column));
    delegate->setClipping(true);
    return picture;
}

/** The same text without any room to keep to. */
QImage freePictureOf(const QString& text, const QFont& font)
{
    const QSize size = QFontMetrics(font).size(Qt::TextSingleLine, text);
    QImage picture = paper(size * 2);
    QPainter painter(&picture);
    painter.setFont(font);
    painter.drawText(picture.rect(), Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, text);
    return picture;
}

/** The types, which are short, in both respects; the names only as to being cut off. */
QStringList verdictsOnRows(const QTableWidget* table)
{
    QStringList lines;
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column) {
            const QString text = table->item(row, column)->text();
            const int height = table->rowHeight(row);
            const Ink ink = inkOf(pictureOf(table, row, column));
            const int outside = qMax(0, height - ink.top) + qMax(0, ink.bottom - 2 * height + 1);
            if (ink.height() == 0 || outside > 0)
                lines.append(
                    QString("row \"%1\": cut by %2 pixels in height (of %3)").arg(text).arg(outside).arg(height));
            const int free = inkOf(freePictureOf(text, table->font())).height();
            if (column == 1 && ink.height() < smallestPart * free)
                lines.append(QString("row \"%1\": %2 pixels in place of %3").arg(text).arg(ink.height()).arg(free));
        }
    }
    return lines;
}

/** The widgets beside it in its parent that it covers or that cover it. */
QStringList neighboursOver(const QWidget* widget)
{
    QStringList names;
    const QList<QWidget*> siblings =
        widget->parentWidget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* sibling : siblings) {
        if (sibling != widget && sibling->isVisible() && !sibling->isWindow() &&
            sibling->geometry().intersects(widget->geometry()))
            names.append(nameOf(sibling));
    }
    return names;
}

QString verdict(const Place& place)
{
    const QString text = place.isPlain ? place.text : withoutMnemonic(place.text);
    // What lies outside of a parent does not show.
    const QRect visible = place.widget->visibleRegion().boundingRect();
    const QRect rect = place.rect & visible;
    const int width = widthOf(text, place) - rect.width();
    const int height = place.isRow ? 0 : missingHeight(text, place, visible);
    if (width <= 0 && height <= 0)
        return QString();
    return QString("%1 \"%2\": cut by %3 pixels in width (of %4), %5 in height (of %6)")
        .arg(nameOf(place.widget), place.text)
        .arg(qMax(0, width))
        .arg(rect.width())
        .arg(height)
        .arg(rect.height());
}

QList<Place> placesOf(const QLabel* label)
{
    if (label->wordWrap())
        return {}; // See verdictOnWrapped().
    const int margin = label->margin();
    return {
        Place{label, label->text(), label->font(), label->contentsRect().adjusted(margin, margin, -margin, -margin)}};
}

int inkHeightOf(QWidget* widget)
{
    return inkOf(widget->grab().toImage().convertToFormat(QImage::Format_Grayscale8)).height();
}

/** On a label whose text is wrapped at words: beside one with more room; empty where it is whole. */
QString verdictOnWrapped(QLabel* label)
{
    QLabel roomy(label->text());
    roomy.setFont(label->font());
    roomy.setWordWrap(true);
    roomy.setLayoutDirection(label->layoutDirection());
    // Twenty lines of pixels above as well as below, so that the letters fall onto pixels as they do there.
    roomy.resize(label->width(), label->height() + 40);
    const int height = inkHeightOf(&roomy) - inkHeightOf(label);
    QTextLayout layout(label->text(), label->font());
    layout.beginLayout();
    int width = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(label->width());
        width = qMax(width, int(line.naturalTextWidth()));
    }
    layout.endLayout();
    const QSize hidden = label->size() - label->visibleRegion().boundingRect().size();
    if (height == 0 && width <= label->width() && hidden.isNull())
        return QString();
    return QString("%1 \"%2\": %3 pixels of height cut, a line of %4 pixels (of %5), %6 by %7 out of sight")
        .arg(nameOf(label), label->text())
        .arg(height)
        .arg(width)
        .arg(label->width())
        .arg(hidden.width())
        .arg(hidden.height());
}

QList<Place> placesOf(const QAbstractButton* button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    const QPushButton* const push = qobject_cast<const QPushButton*>(button);
    if (push && push->autoDefault())
        option.features |= QStyleOptionButton::AutoDefaultButton;
    const auto element = push                                        ? QStyle::SE_PushButtonContents
                         : qobject_cast<const QRadioButton*>(button) ? QStyle::SE_RadioButtonContents
                                                                     : QStyle::SE_CheckBoxContents;
    QRect rect = button->style()->subElementRect(element, &option, button);
    if (!button->icon().isNull())
        rect.setWidth(rect.width() - button->iconSize().width() - 4);
    return {Place{button, button->text(), button->font(), rect}};
}

QList<Place> placesOf(const QComboBox* choice)
{
    QStyleOptionComboBox option;
    option.initFrom(choice);
    option.frame = choice->hasFrame();
    const QRect rect =
        choice->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, choice);
    QList<Place> places;
    for (int i = 0; i < choice->count(); ++i) {
        Place place{choice, choice->itemText(i), choice->font(), rect};
        place.isPlain = true;
        places.append(place);
    }
    return places;
}

QList<Place> placesOf(const QTabBar* tabs)
{
    QList<Place> places;
    for (int i = 0; i < tabs->count(); ++i) {
        QStyleOptionTab option;
        option.initFrom(tabs);
        option.rect = tabs->tabRect(i);
        option.text = tabs->tabText(i);
        option.shape = tabs->shape();
        const QRect rect = tabs->style()->subElementRect(QStyle::SE_TabBarTabText, &option, tabs);
        places.append(Place{tabs, option.text, tabs->font(), rect});
    }
    return places;
}

QList<Place> placesOf(const QHeaderView* header)
{
    QList<Place> places;
    for (int i = 0; header->orientation() == Qt::Horizontal && i < header->count(); ++i) {
        QStyleOptionHeader option;
        option.initFrom(header);
        option.rect = QRect(header->sectionViewportPosition(i), 0, header->sectionSize(i), header->height());
        option.section = i;
        option.text = header->model()->headerData(i, Qt::Horizontal).toString();
        // The headings of the selected row's columns are bold.
        QFont font = header->font();
        font.setBold(true);
        const QRect rect = header->style()->subElementRect(QStyle::SE_HeaderLabel, &option, header);
        Place place{header->viewport(), option.text, font, rect};
        place.isPlain = true;
        places.append(place);
    }
    return places;
}

QList<Place> placesOf(const QTableWidget* table)
{
    const int margin = table->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, table) + 1;
    QList<Place> places;
    for (int row = 0; row < table->rowCount(); ++row) {
        const QTableWidgetItem* const type = table->item(row, 1);
        Place place{table->viewport(), type->text(), table->font(),
                    table->visualItemRect(type).adjusted(margin, 0, -margin, 0)};
        place.isRow = true;
        place.isPlain = true;
        places.append(place);
    }
    return places;
}

/** Whether a button is lower than it wants to be, or a button or field is not seen whole. */
QString verdictOnControl(const QWidget* widget)
{
    const bool isButton = qobject_cast<const QAbstractButton*>(widget);
    if (!isButton && !qobject_cast<const QLineEdit*>(widget) && !qobject_cast<const QComboBox*>(widget))
        return QString();
    const int lower = isButton ? widget->sizeHint().height() - widget->height() : 0;
    const QSize hidden = widget->size() - widget->visibleRegion().boundingRect().size();
    if (lower <= 0 && hidden.isNull())
        return QString();
    return QString("%1: %2 pixels too low, %3 by %4 out of sight")
        .arg(nameOf(widget))
        .arg(qMax(0, lower))
        .arg(hidden.width())
        .arg(hidden.height());
}

QList<Place> placesIn(const QWidget* widget)
{
    if (const auto* const label = qobject_cast<const QLabel*>(widget))
        return placesOf(label);
    if (qobject_cast<const QPushButton*>(widget) || qobject_cast<const QCheckBox*>(widget) ||
        qobject_cast<const QRadioButton*>(widget))
        return placesOf(static_cast<const QAbstractButton*>(widget));
    if (const auto* const choice = qobject_cast<const QComboBox*>(widget))
        return placesOf(choice);
    if (const auto* const tabs = qobject_cast<const QTabBar*>(widget))
        return placesOf(tabs);
    if (const auto* const header = qobject_cast<const QHeaderView*>(widget))
        return placesOf(header);
    if (const auto* const table = qobject_cast<const QTableWidget*>(widget))
        return placesOf(table);
    return {};
}
} // namespace

QStringList cutTexts(QWidget* window)
{
    QStringList lines;
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (QWidget* const widget : widgets) {
        // A dialog over the window is measured by itself.
        if (!widget->isVisible() || widget->window() != window)
            continue;
        const QList<Place> places = placesIn(widget);
        const QStringList neighbours = places.isEmpty() ? QStringList() : neighboursOver(widget);
        if (!neighbours.isEmpty())
            lines.append(nameOf(widget) + ": overlaps " + neighbours.join(", "));
        for (const Place& place : places) {
            const QString line = verdict(place);
            if (!line.isEmpty() && !lines.contains(line))
                lines.append(line);
        }
        if (const auto* const table = qobject_cast<const QTableWidget*>(widget))
            lines += verdictsOnRows(table);
        const QString control = verdictOnControl(widget);
        if (!control.isEmpty())
            lines.append(control);
        QLabel* const label = qobject_cast<QLabel*>(widget);
        const QString wrapped = label && label->wordWrap() ? verdictOnWrapped(label) : QString();
        if (!wrapped.isEmpty())
            lines.append(wrapped);
    }
    return lines;
}
