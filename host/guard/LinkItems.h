// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

/** The links of a file as they stand in it: what each says of itself, by the names of the file's attributes. */
namespace LinkItems
{

/** One link. */
using Fields = QMap<QString, QString>;

/** The links that content shows, in their order; of damaged content those before the damage. */
QList<Fields> of(const QByteArray& content);

/** Whether both say the same of themselves. Their numbers do not count: saves give them anew. */
bool isSame(Fields one, Fields other);

/**
 * content with these fields in the link at index, counted as in of(), and all else as it was. Empty where content is
 * not well-formed or has no such link.
 */
QByteArray with(const QByteArray& content, int index, const Fields& fields);

} // namespace LinkItems
