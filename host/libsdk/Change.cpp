// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Change.h"

#include <QCoreApplication>

QString Change::tr(QString key, QString context)
{
    const QByteArray contextName = context.toUtf8();
    const QByteArray keyName = key.toUtf8();
#if QT_VERSION < 0x050000
    return QCoreApplication::translate(contextName.constData(), keyName.constData(), nullptr,
                                       QCoreApplication::UnicodeUTF8);
#else
    return QCoreApplication::translate(contextName.constData(), keyName.constData());
#endif
}
