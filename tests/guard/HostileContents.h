// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

#include "LinkFile.h"

/** What nobody should write into config.xml, and what a look and the plug-in make of it. */
struct HostileContent {
    QByteArray name;
    QByteArray content;
    LinkFile::Condition condition; ///< Good, Empty, Damaged or TooLarge
    int links;                     ///< that the plug-in loads from it as it is

    /** Good and bad encodings and byte order marks, and bytes that are no text. */
    static QList<HostileContent> encodings();

    /** Files that end too early, or go on after their end. */
    static QList<HostileContent> cuts();

    /** XML that means harm: entities, nesting, sizes. */
    static QList<HostileContent> bombs();

    /** XML that is well-formed or nearly so, with other things in it than the plug-in writes. */
    static QList<HostileContent> oddities();
};
