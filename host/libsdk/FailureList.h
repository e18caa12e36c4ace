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

    /**
     * Adds a failure: the title of a notice about it alone, the reason, what the reason speaks of, and the name of the
     * link that was opened, empty for none.
     */
    void add(const QString& title, const QString& reason, const QString& subject, const QString& link = QString());

    /** The title of every notice about something that was to be opened and was not. */
    static QString notOpened() { return tr("Not opened"); }

    /** The title that the failures share, else one that fits them all. */
    QString title() const;

    /** The reason with its subject below it; of several failures each subject in a line below its reason, and how
     * many more there are after ten. The link's name stands before its subject. */
    QString text() const;

    /** What the text leaves out, to be unfolded: a long subject, or a line each for all that are kept. Else empty. */
    QString details() const;

    /** The first link that failed; empty where none did. */
    QString link() const { return m_link; }

    /** Whether links of several names failed. */
    bool hasSeveralLinks() const { return m_hasSeveralLinks; }

private:
    struct Failure {
        QString reason, subject, link;
    };

    static QString named(const Failure& failure, const QString& subject);
    QString lines(int count, bool isShortened) const;

    QString m_title;
    QString m_link;
    QList<Failure> m_kept;
    int m_count;
    bool m_sharesTitle;
    bool m_hasLongSubject;
    bool m_hasSeveralLinks;
};
