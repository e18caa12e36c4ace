// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

/** Files of links, and what "check" finds in them. */
struct CheckedFile {
    const char* name;
    QByteArray content;
    QStringList findings; ///< in order, each "<code> <what the file has at that place, or the beginning of it>"
};

/** A file in which there is nothing to find. */
QByteArray goodFile();

/** All of the table. */
QList<CheckedFile> checkedFiles();
