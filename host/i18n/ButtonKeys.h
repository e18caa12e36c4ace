// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/**
 * The keys that every plug-in may give to CommonUtils::ShowMessage() for its buttons, with comments for translators.
 * Like those of QuickLinkKeys.h, they are here for lupdate to find. Other keys are looked up among the quick links'
 * own.
 */
static const char* const buttonKeys[] = {
    //: First button of messages. Up to about 14 characters.
    QT_TRANSLATE_NOOP("CommonUtils", "IDS_OK"),
    //: Second button of messages. Up to about 14 characters.
    QT_TRANSLATE_NOOP("CommonUtils", "IDS_CANCEL"),
};
