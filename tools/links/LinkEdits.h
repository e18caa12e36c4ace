// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>

#include "LinkAttributes.h"
#include "LinkCall.h"

/** The commands that change a file. Each says what it did, and leaves the file as it was where it cannot do all of it.
 */
namespace LinkEdits
{

/** The attributes of a link that can be told by an option of the same name. */
QList<LinkAttributes::Attribute> fields();

LinkCall::Result add(const LinkCall& call);
LinkCall::Result edit(const LinkCall& call);
LinkCall::Result importLinks(const LinkCall& call);
LinkCall::Result move(const LinkCall& call);
LinkCall::Result remove(const LinkCall& call);

} // namespace LinkEdits
