// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

class QuickLinkRecord;

/** What a link is refused for that somebody writes: the one place of it, for the tool and for the running program. */
namespace LinkObjection
{

/**
 * What the dialog or a click would object to, in words; empty where neither would. others are the names of the links
 * that there are besides.
 */
QString to(const QuickLinkRecord& link, const QStringList& others);

} // namespace LinkObjection
