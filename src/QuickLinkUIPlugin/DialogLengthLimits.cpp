// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "DialogLengthLimits.h"

#include <QLineEdit>
#include <QValidator>

#include "Utf16.h"

namespace
{
/** Takes the half out of a field that is left of a character when the field cuts what does not fit. */
class WholeCharacters : public QValidator
{
public:
    explicit WholeCharacters(QLineEdit* edit)
        : QValidator(edit)
        , m_limit(edit->maxLength())
    {
    }

    State validate(QString& text, int& cursor) const override
    {
        // With room left nothing was cut: halves that come one by one may still meet.
        if (text.size() >= m_limit)
            removeHalves(text, cursor);
        return Acceptable;
    }

private:
    static void removeHalves(QString& text, int& cursor)
    {
        int place = 0;
        while (place < text.size()) {
            const int units = Utf16::unitsAt(text, place);
            place += units;
            if (units > 0)
                continue;
            text.remove(place, 1);
            if (place < cursor)
                --cursor;
        }
    }

    const int m_limit; // UTF-16 units
};

void limit(QLineEdit* edit, int length)
{
    edit->setMaxLength(length);
    edit->setValidator(new WholeCharacters(edit));
}
} // namespace

void DialogLengthLimits::limitName(QLineEdit* edit)
{
    limit(edit, longestName);
}

void DialogLengthLimits::limitTarget(QLineEdit* edit)
{
    limit(edit, longestTarget);
}
