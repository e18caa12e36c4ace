// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QuickLinkRecord;

/** Opening a link from a terminal, by the rules that the window has. */
namespace LinkStart
{

/**
 * Starts what the link leads to: a program itself, all else by xdg-open. It goes on when this program has ended. Why it
 * was not started, in words; empty where it was. What the window asks its user about is refused.
 */
QString open(const QuickLinkRecord& link);

} // namespace LinkStart
