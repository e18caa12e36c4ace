// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Trace.h"

#include <QDateTime>

#include "QtVersionSwitches.h"
#ifdef QUICKLINK_DEBUG_CHANNEL_CAN_BE_OFF
#include <QLoggingCategory>
#endif

/** Writes number as so many decimal digits. */
static void setDigits(char* text, int digits, int number)
{
    for (int i = digits - 1; i >= 0; --i) {
        text[i] = static_cast<char>('0' + number % 10);
        number /= 10;
    }
}

bool Trace::isOn()
{
#ifdef QUICKLINK_DEBUG_CHANNEL_CAN_BE_OFF
    return QLoggingCategory::defaultCategory()->isDebugEnabled();
#else
    return true;
#endif
}

const char* Trace::now()
{
    // Making a local time looks at the files of the time zone: a second's text is made once, its milliseconds each
    // time.
    static char text[] = "hh:mm:ss:zzz";
    static qint64 textSecond = -1;
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const qint64 second = now / 1000;
    if (second != textSecond) {
        const QTime time = QDateTime::fromMSecsSinceEpoch(second * 1000).time();
        setDigits(text, 2, time.hour());
        setDigits(text + 3, 2, time.minute());
        setDigits(text + 6, 2, time.second());
        textSecond = second;
    }
    setDigits(text + 9, 3, static_cast<int>(now % 1000));
    return text;
}
