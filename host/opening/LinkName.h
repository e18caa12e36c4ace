// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/** A link's name as a caption; see ShownText for what it may hold. */
namespace LinkName
{

/** With its ampersands doubled, so that a menu or button shows them and underlines nothing. */
QString withAmpersands(QString name);

} // namespace LinkName
