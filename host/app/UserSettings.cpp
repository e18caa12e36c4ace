// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "UserSettings.h"

#include <QFile>
#include <QSettings>
#include <QStringList>

#include "UserFolder.h"

static const QString languageKey = QStringLiteral("language");
static const QString windowPlaceKey = QStringLiteral("windowPlace");
static const QString agreedKey = QStringLiteral("agreedAddresses");

static QString file()
{
    return UserFolder::path() + QStringLiteral("/vellumconnect.ini");
}

static QVariant kept(const QString& key)
{
    return QSettings(file(), QSettings::IniFormat).value(key);
}

static void keep(const QString& key, const QVariant& value)
{
    QSettings settings(file(), QSettings::IniFormat);
    settings.setValue(key, value);
    settings.sync();
    if (settings.status() != QSettings::NoError)
        qWarning("The choice cannot be kept in %s", qUtf8Printable(file()));
}

void UserSettings::removeLeftLock()
{
    QFile::remove(file() + QStringLiteral(".lock"));
}

QString UserSettings::language()
{
    return kept(languageKey).toString();
}

void UserSettings::setLanguage(const QString& language)
{
    keep(languageKey, language);
}

QByteArray UserSettings::windowPlace()
{
    return kept(windowPlaceKey).toByteArray();
}

void UserSettings::setWindowPlace(const QByteArray& place)
{
    if (place != windowPlace())
        keep(windowPlaceKey, place);
}

bool UserSettings::isAgreed(const QString& address)
{
    return kept(agreedKey).toStringList().contains(address);
}

void UserSettings::addAgreed(const QString& address)
{
    QStringList addresses = kept(agreedKey).toStringList();
    if (addresses.contains(address))
        return;
    addresses.append(address);
    keep(agreedKey, addresses);
}
