// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QPair>
#include <QSet>
#include <QString>

class QuickLinkRecord;

/** The links that are there when others are taken in: two with one name and one address are the same. */
class KnownLinks
{
public:
    /** Knows a link from now on. */
    void add(const QuickLinkRecord& link);

    /** Whether the link is there, be it under the name that freeName() gave it. */
    bool contains(const QuickLinkRecord& link) const;

    /** The name, with a number behind it where another link has it; no longer than the dialog lets it be. */
    QString freeName(const QString& name);

private:
    QSet<QString> m_names;
    QSet<QPair<QString, QString>> m_links; ///< names and addresses
    QHash<QString, int> m_numbers;         ///< what freeName() tries next behind what is left of a name
};
