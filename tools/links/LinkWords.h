// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include "QuickLinkRecord.h"

/** The words by which people name links and their types. */
namespace LinkWords
{

/** The type that is called "internet", "e-mail" or "application"; another word is taken for the type itself. */
QString typeOf(const QString& word);

/** The other way round. */
QString ofType(const QString& type);

/** The index of a link by its name, or else by its number, from 1; -1 with the reason in problem. */
int find(const QuickLinkRecordList& links, const QString& word, QString& problem);

} // namespace LinkWords
