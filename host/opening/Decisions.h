// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>
#include <QStringList>

#include "Decision.h"

/**
 * The last decisions about connections and links, for the user who asks why something opened or did not. They name what
 * the user opens, and so are kept in memory only and never written to a file or log.
 */
class Decisions : public QObject
{
    Q_OBJECT

public:
    static constexpr int longest = 200; ///< how many are kept

    /** Keeps one more, with each of its texts on one line and of a length that can be shown. */
    void add(const Decision& decision);

    /** All that are kept. */
    const QList<Decision>& newestFirst() const { return m_all; }

    /** A decision as it is shown: time, name, cause and outcome. */
    static QStringList cells(const Decision& decision);

    /** Decisions as plain text: a line each, with a tab between its cells and a line feed at its end. */
    static QString text(const QList<Decision>& decisions);

Q_SIGNALS:
    /** There is a new first one, and the last one may be gone. */
    void added();

private:
    QList<Decision> m_all;
};
