// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** A link's name, which may hold anything, made fit to be shown. */
namespace LinkName
{

/** With a blank for whatever would break the line or turn its direction, see ShownText. */
QString onOneLine(const QString& name);

/** With its ampersands doubled, so that a menu or button shows them and underlines nothing. */
QString withAmpersands(QString name);

} // namespace LinkName
