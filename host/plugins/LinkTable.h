// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

#include "PluginWith.h"

class IQuickLinkPlugin;

/** The quick links of plugins as a table for a terminal: number, name and plug-in. Ends with a line feed. */
QString linkTable(const QList<PluginWith<IQuickLinkPlugin>>& plugins);
