// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** What must be in the user's folder before plug-ins start. Harmless when repeated. */
namespace FirstStart
{

/**
 * Copies every file of defaults that the user's folder does not have, and never overwrites one. A file appears whole
 * or not at all, also after a power cut. False when one cannot be copied, which is written to the warning channel.
 */
bool copyDefaults(const QString& defaults, const QString& userFolder);

/**
 * Makes plugins/<Name> in the user's folder for every plug-in in pluginFolder: a plug-in never makes its own folder.
 * Failure is written to the warning channel.
 */
void makePluginFolders(const QString& pluginFolder, const QString& userFolder);

} // namespace FirstStart
