// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

/**
 * Keeps the desktop's letters whole on the pages of plug-ins, whose sizes are fixed in pixels, made for letters of 12.
 * Where the desktop's are larger, the toolkit is asked to enlarge everything, and the letters are made smaller by as
 * much, so that they stay as large on the screen as the desktop wants them. The toolkit takes that wish by its
 * environment only (QT_SCALE_FACTOR), and only at its start.
 */
namespace LetterScale
{

/** By how much everything is to be enlarged for letters of so many pixels; 1 for not at all. */
double factorFor(double pixels);

/**
 * The lines of an environment to start the program anew with, for the desktop's font; empty where it can stay as it is.
 * That is so as well where the user, or this program before, has told the toolkit already, and where the font's size is
 * in pixels. Needs the application object.
 */
QList<QByteArray> wanted();

/**
 * Where the program was started anew: makes the letters smaller, and takes those lines out of the environment, so that
 * programs that this one starts have nothing of them. Before the first window.
 */
void apply();

} // namespace LetterScale
