// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include "LinkCall.h"

/** The commands of vellumconnect-links; its manual page says what each does. Needs the application object. */
namespace LinkCommands
{

/** Does what the arguments say, the program's name first, and prints what it did. */
LinkCall::Result run(const QStringList& arguments);

} // namespace LinkCommands
