// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QStringList>

/** What became of the links from one state of the file to another, by their names. */
struct LinkChanges {
    QStringList added;
    QStringList removed;
    QStringList edited; ///< by the name before
    QStringList moved;  ///< as few as explain the new order

    /** The changes from one content of the file to another. */
    static LinkChanges between(const QByteArray& from, const QByteArray& to);

    bool isNone() const { return added.isEmpty() && removed.isEmpty() && edited.isEmpty() && moved.isEmpty(); }
};
