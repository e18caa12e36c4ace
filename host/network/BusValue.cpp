// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "BusValue.h"

#include <QDBusArgument>

template <typename Type>
static Type exactly(const QVariant& value)
{
    return value.userType() == qMetaTypeId<Type>() ? value.value<Type>() : Type();
}

/** What has no type of its own, such as a list of paths, comes as it was on the bus. */
template <typename Type>
static Type unpacked(const QVariant& value, const char* signature)
{
    const QDBusArgument packed = exactly<QDBusArgument>(value);
    return packed.currentSignature() == QLatin1String(signature) ? qdbus_cast<Type>(packed) : Type();
}

uint BusValue::number(const QVariant& value)
{
    return exactly<uint>(value);
}

bool BusValue::flag(const QVariant& value)
{
    return exactly<bool>(value);
}

QString BusValue::text(const QVariant& value)
{
    return exactly<QString>(value);
}

QStringList BusValue::paths(const QVariant& value)
{
    QStringList paths;
    const QList<QDBusObjectPath> found = unpacked<QList<QDBusObjectPath>>(value, "ao");
    for (const QDBusObjectPath& path : found)
        paths.append(path.path());
    return paths;
}

QString BusValue::path(const QVariant& value)
{
    return exactly<QDBusObjectPath>(value).path();
}

QVariantMap BusValue::map(const QVariant& value)
{
    return unpacked<QVariantMap>(value, "a{sv}");
}

QMap<QString, QVariantMap> BusValue::sections(const QVariant& value)
{
    return unpacked<QMap<QString, QVariantMap>>(value, "a{sa{sv}}");
}

QMap<QDBusObjectPath, QMap<QString, QVariantMap>> BusValue::objects(const QVariant& value)
{
    return unpacked<QMap<QDBusObjectPath, QMap<QString, QVariantMap>>>(value, "a{oa{sa{sv}}}");
}
