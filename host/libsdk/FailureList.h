// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>

/**
 * What failed while one notice is on the screen, in the words of that notice. However many failures come, it keeps the
 * first 200 and counts the others.
 */
class FailureList
{
    Q_DECLARE_TR_FUNCTIONS(FailureList)

public:
    /** An empty list. */
    FailureList();

    /** Adds a failure: the title of a notice about it alone, the reason, and what the reason speaks of. */
    void add(const QString& title, const QString& reason, const QString& subject);

    /** The title that the failures share, else one that fits them all. */
    QString title() const;

    /** The reason with its subject below it; of several failures each subject in a line below its reason, and how
     * many more there are after ten. */
    QString text() const;

    /** What the text leaves out, to be unfolded: a long subject, or a line each for all that are kept. Else empty. */
    QString details() const;

private:
    struct Failure {
        QString reason, subject;
    };

    QString lines(int count, bool isShortened) const;

    QString m_title;
    QList<Failure> m_kept;
    int m_count;
    bool m_sharesTitle;
    bool m_hasLongSubject;
};
