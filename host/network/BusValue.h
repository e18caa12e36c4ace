// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusObjectPath>
#include <QMap>
#include <QStringList>
#include <QVariantMap>

/**
 * Reads what came over the bus. A value of another type than the one asked for was not said: numbers are 0, flags
 * false, and texts, paths, lists and maps empty then. Nothing is converted.
 */
namespace BusValue
{

/** The interface by which any object tells its properties (D-Bus specification, "Standard Interfaces"). */
constexpr char properties[] = "org.freedesktop.DBus.Properties";

/** A number without sign ("u"). */
uint number(const QVariant& value);

/** A flag ("b"). */
bool flag(const QVariant& value);

/** A text ("s"). */
QString text(const QVariant& value);

/** A list of object paths ("ao"). */
QStringList paths(const QVariant& value);

/** An object path ("o"). */
QString path(const QVariant& value);

/** Values by name ("a{sv}"). */
QVariantMap map(const QVariant& value);

/** Values by name in named sections, such as those of an object's interfaces ("a{sa{sv}}"). */
QMap<QString, QVariantMap> sections(const QVariant& value);

/** Objects with the values of their interfaces ("a{oa{sa{sv}}}"). */
QMap<QDBusObjectPath, QMap<QString, QVariantMap>> objects(const QVariant& value);

} // namespace BusValue
