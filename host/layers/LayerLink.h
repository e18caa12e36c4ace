// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include "LinkItems.h"

/** A link of the operator. */
struct LayerLink {
    QString layer;            ///< name of the file that it stands in
    LinkItems::Fields fields; ///< those of names() that the file has

    /** What counts of such a link: its key, which tells it from all others, and what a link of the user has. */
    static QStringList names();
};

/** A link of the operator that the user was given, as it was then. */
struct GivenLink : LayerLink {
    /** It is never taken away: the user had it before, or has decided about it since. */
    bool isUsers = false;

    bool operator==(const GivenLink& other) const;
    bool operator!=(const GivenLink& other) const { return !(*this == other); }
};
