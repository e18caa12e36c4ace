// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "UserSettings.h"

#include <QSettings>

#include "UserFolder.h"

static const QString languageKey = QStringLiteral("language");

static QString file()
{
    return UserFolder::path() + QStringLiteral("/vellumconnect.ini");
}

QString UserSettings::language()
{
    return QSettings(file(), QSettings::IniFormat).value(languageKey).toString();
}

void UserSettings::setLanguage(const QString& language)
{
    QSettings settings(file(), QSettings::IniFormat);
    settings.setValue(languageKey, language);
    settings.sync();
    if (settings.status() != QSettings::NoError)
        qWarning("The choice cannot be kept in %s", qUtf8Printable(file()));
}
