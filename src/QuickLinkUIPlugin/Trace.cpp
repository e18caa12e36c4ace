// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Trace.h"

#include <QTime>

#include "QtVersionSwitches.h"
#ifdef QUICKLINK_DEBUG_CHANNEL_CAN_BE_OFF
#include <QLoggingCategory>
#endif

bool Trace::isOn()
{
#ifdef QUICKLINK_DEBUG_CHANNEL_CAN_BE_OFF
    return QLoggingCategory::defaultCategory()->isDebugEnabled();
#else
    return true;
#endif
}

QByteArray Trace::now()
{
    return QTime::currentTime().toString(QLatin1String("hh:mm:ss:zzz")).toLatin1();
}
