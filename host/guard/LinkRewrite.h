// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QSet>

#include "LinkItems.h"

/** What is to become of the links of a file; all else in it, hidden links and comments included, stays as it is. */
struct LinkRewrite {
    QMap<int, LinkItems::Fields> changed; ///< fields to set in the link at an index, counted as in LinkItems::of()
    QSet<int> removed;                    ///< indices of links that go
    QList<LinkItems::Fields> added;       ///< behind the last link; visible, and numbered as new ones

    bool isNone() const { return changed.isEmpty() && removed.isEmpty() && added.isEmpty(); }

    /** content with that done. Empty where content is not well-formed or lacks a link that is named here. */
    QByteArray applied(const QByteArray& content) const;
};
