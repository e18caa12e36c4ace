// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "StoreText.h"

#include <cstring>

#include "Utf16.h"

namespace
{
/**
 * Whether every unit lies from U+0020 to U+7FFF, where all can be written. Four units at a time, since every field of
 * every link comes by at every save, and few have others.
 */
bool isPlain(const QString& text)
{
    const quint64 one = Q_UINT64_C(0x0001000100010001);
    const QChar* const units = text.constData();
    const int size = text.size();
    // The top bit of a unit is set from U+8000 on, and by the subtraction below U+0020.
    quint64 seen = 0;
    int place = 0;
    for (; place + 4 <= size; place += 4) {
        quint64 four;
        std::memcpy(&four, units + place, sizeof four);
        seen |= four | (four - 0x20 * one);
    }
    for (; place < size; ++place) {
        const uint unit = units[place].unicode();
        seen |= unit | (unit - 0x20);
    }
    return (seen & (one << 15)) == 0;
}

/** How many units at place make a character that the file can hold; 0 if they make none. */
int heldUnitsAt(const QString& text, int place)
{
    const int units = Utf16::unitsAt(text, place);
    const ushort unit = text.at(place).unicode();
    const bool isControl = unit < 0x20 && unit != '\t' && unit != '\n' && unit != '\r';
    return isControl || unit >= 0xfffe ? 0 : units;
}

/** Where the characters from place on end that the file can hold. */
int endOfHeld(const QString& text, int place)
{
    while (place < text.size()) {
        const int units = heldUnitsAt(text, place);
        if (units == 0)
            break;
        place += units;
    }
    return place;
}
} // namespace

bool StoreText::isWritable(const QString& text)
{
    return isPlain(text) || endOfHeld(text, 0) == text.size();
}

QString StoreText::writable(const QString& text)
{
    QString held;
    int place = 0;
    while (place < text.size()) {
        const int end = endOfHeld(text, place);
        held += text.mid(place, end - place);
        place = end + 1;
    }
    return held;
}
