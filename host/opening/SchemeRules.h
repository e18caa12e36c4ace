// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/** What is done with an address, by its scheme alone. */
enum class SchemeRule {
    Path,     ///< it names a program, file or folder
    HandOver, ///< the desktop opens it
    Refuse,   ///< it is never opened: the address itself is a script or a page of its author's making
    Ask       ///< the desktop opens it where the user agrees: any program may have registered itself for it
};

namespace SchemeRules
{

/** The rule for a scheme as QUrl::scheme() answers it, in lower case; empty for an address without one. */
SchemeRule ruleFor(const QString& scheme);

/** All schemes that have another rule than Ask. */
QStringList known();

} // namespace SchemeRules
