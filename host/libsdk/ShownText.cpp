// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ShownText.h"

#include <QApplication>
#include <QTextDocument>

static const QChar leftToRightIsolate(0x2066);
static const QChar firstStrongIsolate(0x2068);
static const QChar endOfIsolate(0x2069);

static bool turnsDirection(QChar character)
{
    const ushort code = character.unicode();
    return (code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069);
}

static bool hasRightToLeft(const QString& text)
{
    for (const QChar character : text) {
        const QChar::Direction direction = character.direction();
        if (direction == QChar::DirR || direction == QChar::DirAL)
            return true;
    }
    return false;
}

static QString isolated(QChar begin, const QString& text)
{
    if (text.isEmpty() || (!QApplication::isRightToLeft() && !hasRightToLeft(text)))
        return text;
    return begin + text + endOfIsolate;
}

QString ShownText::onOneLine(const QString& text)
{
    QString line = text;
    for (int i = 0; i < line.size(); ++i) {
        const QChar::Category category = line.at(i).category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph || turnsDirection(line.at(i)))
            line[i] = QLatin1Char(' ');
    }
    return line;
}

QString ShownText::shortLine(const QString& text, int longest)
{
    if (text.size() <= longest)
        return onOneLine(text);
    // Never half a character.
    const int end = text.at(longest - 1).isHighSurrogate() ? longest - 1 : longest;
    return onOneLine(text.left(end)) + QChar(0x2026);
}

QString ShownText::toolTip(const QString& text)
{
    const int longestWord = 50;
    const QChar zeroWidthSpace(0x200b);
    QString breakable;
    int length = 0;
    for (const QChar character : text) {
        length = character.isSpace() ? 0 : length + 1;
        // Never within a letter.
        if (length > longestWord && !character.isLowSurrogate() && !character.isMark()) {
            breakable += zeroWidthSpace;
            length = 1;
        }
        breakable += character;
    }
    return Qt::convertFromPlainText(breakable, Qt::WhiteSpaceNormal);
}

QString ShownText::isolatedPath(const QString& path)
{
    return isolated(leftToRightIsolate, path);
}

QString ShownText::isolatedName(const QString& name)
{
    return isolated(firstStrongIsolate, name);
}

QString ShownText::withoutIsolates(QString text)
{
    return text.remove(leftToRightIsolate).remove(firstStrongIsolate).remove(endOfIsolate);
}

QString ShownText::withSubject(const QString& message, const QString& subject)
{
    return message + QLatin1String("\n\n") + isolatedPath(shortLine(subject));
}

QString ShownText::detailsOf(const QString& subject)
{
    return subject.size() > longestLine ? isolatedPath(onOneLine(subject)) : QString();
}
