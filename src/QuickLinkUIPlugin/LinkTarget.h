// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

class QuickLinkRecord;

/** Opens the target of an application or e-mail link as the desktop does. Nobody is told when that fails. */
void openTarget(const QuickLinkRecord& record);
