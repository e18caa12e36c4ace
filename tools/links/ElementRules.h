// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** The elements of a file of links, and where each belongs; docs/config.rng has the same for machines. */
namespace ElementRules
{

/** An element where it belongs. */
struct Rule {
    const char* name;
    const char* parent;    ///< empty for the root
    const char* attribute; ///< the only one, where it is no item
    const char* value;     ///< which it must have
    bool isNeeded;

    bool isNamed(const char* other) const;
    bool isIn(const char* other) const;
};

const int count = 8;

/** All of them; children of one parent are in their order, but for those of "function". */
extern const Rule all[count];

/** The rule for an element in a parent; null where it does not belong there. */
const Rule* of(const QString& name, const QString& parent);

/** Whether the element belongs anywhere. */
bool isKnown(const QString& name);

const int typeCount = 3;

/** The list of types as every save writes it: ids and names. */
extern const char* const types[typeCount][2];

} // namespace ElementRules
