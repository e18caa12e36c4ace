// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkName.h"

QString LinkName::withAmpersands(QString name)
{
    return name.replace(QLatin1Char('&'), QStringLiteral("&&"));
}
