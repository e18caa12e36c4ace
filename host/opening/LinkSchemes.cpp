// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkSchemes.h"

#include <QSet>
#include <QUrl>
#include <QXmlStreamReader>

#include <algorithm>

QStringList LinkSchemes::of(const QByteArray& file)
{
    QSet<QString> schemes;
    QXmlStreamReader reader(file);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != QLatin1String("item"))
            continue;
        // Read as it is when it is opened.
        const QString address = reader.attributes().value(QLatin1String("url")).toString();
        if (address.contains(QLatin1Char(':')))
            schemes.insert(QUrl(address).scheme());
    }
    schemes.remove(QString());
    QStringList sorted = schemes.values();
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}
