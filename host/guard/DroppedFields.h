// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include "LinkItems.h"

/**
 * What an edit took from a link though its user asked for nothing of it: the plug-in writes an edited link as if it
 * were new, with what the dialog was clicked for and nothing else.
 */
struct DroppedFields {
    /** What the dialog showed when the user agreed to it. */
    struct Shown {
        bool opensOnConnect = false;
        bool opensOnStart = false;
    };

    int index = -1;           ///< of the edited link, counted as in LinkItems::of(); -1 for none
    LinkItems::Fields rights; ///< that the operator gave or withheld, as they were
    LinkItems::Fields marks;  ///< launch marks and the recipient of a mail, as they were

    /** What went with the edit that turned from into to. Nothing where it was no edit of exactly one link. */
    static DroppedFields between(const QByteArray& from, const QByteArray& to, const Shown& shown);
};
