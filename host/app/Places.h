// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/**
 * Where the installation has its things, relative to the program, so that a build tree or a moved installation works
 * like an installed one; and where the computer has what is the operator's. Absolute paths; the folders need not exist.
 */
namespace Places
{

/** The folder with <Name>/lib<Name>.so for every plug-in. */
QString pluginFolder();

/** The operator's defaults: plugins/<Name>/ with files for the user's folder of that name. */
QString defaultsFolder();

/** The schema of config.xml in RELAX NG. */
QString schemaFile();

/**
 * Where the operator of the computer has what is for all of its users, the more important folder last:
 * /usr/share/vellumconnect, which is for packages, and /etc/vellumconnect. Others where VELLUMCONNECT_OPERATOR_DIRS
 * names them, absolute paths with colons between them.
 */
QStringList operatorFolders();

/** The folder with vellumconnect_<language>.qm. */
QString translationFolder();

/** The folder with the toolkit's own texts, which is the toolkit's and lies elsewhere. */
QString toolkitTranslationFolder();

} // namespace Places
