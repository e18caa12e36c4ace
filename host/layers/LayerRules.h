// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringList>

#include "LayerLink.h"
#include "LinkRewrite.h"

/** What becomes of a user's links where an operator gives some to everybody, by docs/layer-rules.md; without files. */
namespace LayerRules
{

/** What is to be done. */
struct Outcome {
    LinkRewrite links;      ///< of the user
    QList<GivenLink> given; ///< what the user was given, once that is done
};

/**
 * Of the user's links, what was given to the user until now, and what the operator gives now, in the order in which it
 * is to appear. Nothing is known of the layers of the names unreadable: what came from them stays as it is.
 */
Outcome outcome(const QList<LinkItems::Fields>& users, const QList<GivenLink>& given, const QList<LayerLink>& operators,
                const QStringList& unreadable);

} // namespace LayerRules
