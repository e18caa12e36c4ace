// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/**
 * The answers that libsdk would ask the user for. The program is linked with the real libcore and libsdk; these two
 * functions come before those of the libraries: the user's folder is the one given, and a message is answered at once.
 */
namespace FakeAnswers
{
/** The folder that plugins/QuickLinkUIPlugin/config.xml lies under. */
void setUserFolder(const QString& folder);
} // namespace FakeAnswers
