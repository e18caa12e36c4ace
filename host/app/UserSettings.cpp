// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "UserSettings.h"

#include <QFile>
#include <QSettings>
#include <QStringList>
#include <QVariantMap>

#include "HostContract.h"
#include "UserFolder.h"

static const QString languageKey = QStringLiteral("language");
static const QString connectionGroup = QStringLiteral("connection");
static const QString settingsPageKey = QStringLiteral("settingsPage");
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

static void keep(const QVariantMap& values, const QString& group = QString())
{
    QSettings settings(file(), QSettings::IniFormat);
    settings.beginGroup(group);
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        settings.setValue(value.key(), value.value());
    settings.sync();
    if (settings.status() != QSettings::NoError)
        qWarning("The choice cannot be kept in %s", qUtf8Printable(file()));
}

static void keep(const QString& key, const QVariant& value)
{
    keep({{key, value}});
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

ConnectionChoice UserSettings::connection()
{
    QSettings settings(file(), QSettings::IniFormat);
    settings.beginGroup(connectionGroup);
    QVariantMap values;
    const QStringList keys = settings.childKeys();
    for (const QString& key : keys)
        values.insert(key, settings.value(key));
    return ConnectionChoice::of(values);
}

void UserSettings::setConnection(const ConnectionChoice& choice)
{
    keep(choice.values(), connectionGroup);
}

QString UserSettings::settingsPage()
{
    const QString name = kept(settingsPageKey).toString();
    return name.isEmpty() ? QString::fromLatin1(HostContract::quickLinks.name) : name;
}

void UserSettings::setSettingsPage(const QString& name)
{
    if (name != settingsPage())
        keep(settingsPageKey, name);
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
