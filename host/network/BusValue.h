// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusMessage>
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

/** Values by name, the one thing that an answer says ("a{sv}"). */
QVariantMap map(const QDBusMessage& answer);

/** A text of a section, of an answer that has named values in named sections ("a{sa{sv}}"). */
QString text(const QDBusMessage& answer, const QString& section, const QString& name);

} // namespace BusValue
