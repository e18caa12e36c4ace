// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/**
 * Where the installation has its things, relative to the program, so that a build tree or a moved installation works
 * like an installed one. Absolute paths; the folders need not exist.
 */
namespace Places
{

/** The folder with <Name>/lib<Name>.so for every plug-in. */
QString pluginFolder();

/** The operator's defaults: plugins/<Name>/ with files for the user's folder of that name. */
QString defaultsFolder();

/** The folder with vellumconnect_<language>.qm. */
QString translationFolder();

/** The folder with the toolkit's own texts, which is the toolkit's and lies elsewhere. */
QString toolkitTranslationFolder();

} // namespace Places
