// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include "DesktopPrograms.h"

/**
 * What the library desktopentries does for DesktopPrograms, which says what each of these is for. It is the only one
 * that knows GLib. GIO brings five more libraries along, and no start of the program is to wait for them.
 */
struct DesktopEntries {
    /** cutOff is called in the child, between fork and exec. */
    DesktopPrograms::Start (*start)(const QString& path, void (*cutOff)());
    QString (*iconOfEntry)(const QString& path);
    QString (*iconOfScheme)(const QString& scheme);
};

extern "C" Q_DECL_EXPORT const DesktopEntries desktopEntries;
