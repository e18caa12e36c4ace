// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/**
 * Starting together with the user's session, by a file that the desktop reads when one begins (freedesktop, Desktop
 * Application Autostart Specification).
 */
namespace Autostart
{

/** The file of this program, an absolute path: autostart/<name of the desktop entry> in the folder of settings. */
QString file();

/** Whether the desktop starts the program: the file is there, and neither the user nor a tool has switched it off. */
bool isOn();

/** Writes the file, so that the desktop starts this program with arguments. False when that cannot be done. */
bool turnOn(const QStringList& arguments);

/** Takes the file away. False when it is still there. */
bool turnOff();

/** What the file says (freedesktop, Desktop Entry Specification), for a program with an absolute path. */
QByteArray entry(const QString& program, const QStringList& arguments);

} // namespace Autostart
