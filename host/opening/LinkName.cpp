// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkName.h"

QString LinkName::onOneLine(const QString& name)
{
    QString line = name;
    for (QChar& character : line) {
        const QChar::Category category = character.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph)
            character = QLatin1Char(' ');
    }
    return line;
}

QString LinkName::withAmpersands(QString name)
{
    return name.replace(QLatin1Char('&'), QStringLiteral("&&"));
}
