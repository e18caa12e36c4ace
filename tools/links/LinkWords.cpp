// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkWords.h"

QString LinkWords::typeOf(const QString& word)
{
    if (word == QLatin1String("internet"))
        return LinkType::internet();
    if (word == QLatin1String("e-mail"))
        return LinkType::email();
    return word == QLatin1String("application") ? LinkType::application() : word;
}

QString LinkWords::ofType(const QString& type)
{
    for (const char* const word : {"internet", "e-mail", "application"}) {
        if (typeOf(QLatin1String(word)) == type)
            return QLatin1String(word);
    }
    return type;
}

int LinkWords::find(const QuickLinkRecordList& links, const QString& word, QString& problem)
{
    QStringList places;
    for (int i = 0; i < links.size(); ++i) {
        if (links.at(i).name == word)
            places.append(QString::number(i + 1));
    }
    bool isNumber = false;
    const int place = word.toInt(&isNumber);
    if (places.size() == 1)
        return places.constFirst().toInt() - 1;
    if (places.isEmpty() && isNumber && place >= 1 && place <= links.size())
        return place - 1;
    problem = places.isEmpty() ? QStringLiteral("There is no link \"%1\".").arg(word)
                               : QStringLiteral("The links %1 have the name \"%2\": say which by its number.")
                                     .arg(places.join(QStringLiteral(", ")), word);
    return -1;
}
