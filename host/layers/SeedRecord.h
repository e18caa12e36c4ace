// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include "LayerLink.h"

/** The file in which stands what a user was given of the operator's links. */
namespace SeedRecord
{

/**
 * What stands in file; nothing where there is none. Of a file that cannot be read, or is damaged, nothing either, and a
 * line in the log category "vellum.layers" says so.
 */
QList<GivenLink> read(const QString& file);

/** Lets file say that. False when it cannot be written; then it is what it was. */
bool write(const QString& file, const QList<GivenLink>& given);

} // namespace SeedRecord
