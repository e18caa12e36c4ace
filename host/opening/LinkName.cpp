// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkName.h"

#include "ShownText.h"

QString LinkName::onOneLine(const QString& name)
{
    return ShownText::onOneLine(name);
}

QString LinkName::withAmpersands(QString name)
{
    return name.replace(QLatin1Char('&'), QStringLiteral("&&"));
}
