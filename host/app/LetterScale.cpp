// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LetterScale.h"

#include <QApplication>
#include <QFont>
#include <QHash>
#include <QScreen>

static const char factorName[] = "QT_SCALE_FACTOR";
static const char ownName[] = "VELLUMCONNECT_LETTER_SCALE"; // tells what this program asked for from the user's wishes
static const int fitting = 12;                              // pixels

/** Classes for which a desktop may have a font of their own. */
static const char* const classes[] = {"QMenu",       "QMenuBar",    "QMessageBox",   "QLabel",    "QTipLabel",
                                      "QStatusBar",  "QPushButton", "QCheckBox",     "QListView", "QAbstractItemView",
                                      "QHeaderView", "QToolButton", "QComboMenuItem"};

/** Of the desktop's letters; 0 where the font says it in pixels, which are those of the program. */
static double pixelsOf(const QFont& font)
{
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen && font.pointSizeF() > 0 ? font.pointSizeF() * screen->logicalDotsPerInch() / 72 : 0;
}

static QFont smaller(QFont font, double ratio)
{
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * ratio);
    return font;
}

double LetterScale::factorFor(double pixels)
{
    // Less than half a pixel more has room.
    return qRound(pixels) > fitting ? pixels / fitting : 1;
}

QList<QByteArray> LetterScale::wanted()
{
    for (const char* const name : {factorName, "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI"}) {
        if (qEnvironmentVariableIsSet(name))
            return {};
    }
    const double factor = factorFor(pixelsOf(QApplication::font()));
    if (factor <= 1)
        return {};
    return {QByteArray(ownName) + "=1", QByteArray(factorName) + '=' + QByteArray::number(factor, 'f', 4)};
}

void LetterScale::apply()
{
    if (!qEnvironmentVariableIsSet(ownName))
        return;
    qunsetenv(ownName);
    qunsetenv(factorName);
    const QFont font = QApplication::font();
    const double ratio = 1 / factorFor(pixelsOf(font));
    QHash<const char*, QFont> others;
    for (const char* const name : classes) {
        if (QApplication::font(name) != font)
            others.insert(name, QApplication::font(name));
    }
    // That of all classes first, which takes away the others.
    QApplication::setFont(smaller(font, ratio));
    for (auto other = others.cbegin(); other != others.cend(); ++other)
        QApplication::setFont(smaller(other.value(), ratio), other.key());
}
