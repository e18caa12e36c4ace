// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QFileInfo;

/**
 * What the desktop knows of its programs, by GIO: their desktop entries (Desktop Entry Specification) and the user's
 * choices among them (Association between MIME types and applications). Where the library for it is missing, nothing.
 */
namespace DesktopPrograms
{

/** What came of starting a desktop entry. */
struct Start {
    bool isStarted = false;
    qint64 process = 0; ///< to be waited for (waitpid(2)) by the caller; 0 where the session bus started the program
};

/** Whether file is named as a desktop entry is. */
bool isEntry(const QFileInfo& file);

/**
 * Starts the program of the desktop entry path as the desktop would, in the terminal or by the session bus if the entry
 * says so, and cut off from this program (OutlivingProcess). Not started where it is no entry of an application, or its
 * program is not there. Does not wait for the program.
 */
Start start(const QString& path);

/** The icon of the desktop entry path: a name in the icon theme, or a file; empty for none. */
QString iconOfEntry(const QString& path);

/** The icon of the program that opens addresses of this scheme, likewise. */
QString iconOfScheme(const QString& scheme);

} // namespace DesktopPrograms
