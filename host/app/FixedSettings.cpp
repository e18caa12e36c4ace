// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "FixedSettings.h"

#include <QFileInfo>
#include <QSettings>

#include "ConnectionChoice.h"
#include "Places.h"

namespace
{
/** The value of key that is among good, as it is there; none where there is another. */
template <class Value>
std::optional<Value> valueAmong(const QHash<QString, Value>& good, const QSettings& settings, const QString& key)
{
    if (!settings.contains(key))
        return std::nullopt;
    const auto value = good.constFind(settings.value(key).toString());
    if (value != good.constEnd())
        return *value;
    qWarning("\"%s\" has no good value in %s; it is not fixed", qUtf8Printable(key),
             qUtf8Printable(settings.fileName()));
    return std::nullopt;
}

/** Each text by itself. */
QHash<QString, QString> hashOf(const QStringList& texts)
{
    QHash<QString, QString> hash;
    for (const QString& text : texts)
        hash.insert(text, text);
    return hash;
}
} // namespace

QString FixedSettings::file()
{
    return Places::operatorFolders().constLast() + QStringLiteral("/vellumconnect.ini");
}

FixedSettings FixedSettings::read(const QString& file, QStringList (*languages)())
{
    FixedSettings fixed;
    // A pipe or device would be read for ever.
    if (!QFileInfo(file).isFile())
        return fixed;
    const QSettings settings(file, QSettings::IniFormat);
    if (settings.status() != QSettings::NoError) {
        qWarning("%s cannot be read; it fixes nothing", qUtf8Printable(file));
        return fixed;
    }
    fixed.language = valueAmong(hashOf(languages()), settings, QStringLiteral("language"));
    fixed.connection = valueAmong(ConnectionChoice::kinds(), settings, QStringLiteral("connection/kind"));
    const QHash<QString, bool> flags = {{QStringLiteral("true"), true}, {QStringLiteral("false"), false}};
    fixed.startsWithSession = valueAmong(flags, settings, QStringLiteral("startWithSession"));
    return fixed;
}
