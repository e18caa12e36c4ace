// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ProgramIcon.h"

#include <QtGlobal>

QIcon programIcon()
{
    // As the pictures are in a static library.
    Q_INIT_RESOURCE(icons);
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128})
        icon.addFile(QStringLiteral(":/icons/com.norvik.vellumconnect-%1.png").arg(size), QSize(size, size));
    return icon;
}
