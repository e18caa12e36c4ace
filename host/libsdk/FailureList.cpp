// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "FailureList.h"

#include <QStringList>

#include "ShownText.h"

static const int shownAtMost = 10;
static const int keptAtMost = 200;
static const int longestLine = 4096; // characters of a subject among others: as long as a path may be

FailureList::FailureList()
    : m_count(0)
    , m_sharesTitle(true)
    , m_hasLongSubject(false)
    , m_hasSeveralLinks(false)
{
}

void FailureList::add(const QString& title, const QString& reason, const QString& subject, const QString& link)
{
    if (m_count == 0)
        m_title = title;
    m_sharesTitle = m_sharesTitle && title == m_title;
    ++m_count;
    if (m_link.isEmpty())
        m_link = link;
    m_hasSeveralLinks = m_hasSeveralLinks || (!link.isEmpty() && link != m_link);
    if (m_kept.size() == keptAtMost)
        return;
    const Failure failure = {reason, m_count == 1 ? subject : subject.left(longestLine), link};
    m_kept.append(failure);
    m_hasLongSubject = m_hasLongSubject || !ShownText::detailsOf(subject).isEmpty();
}

QString FailureList::title() const
{
    return m_sharesTitle ? m_title : notOpened();
}

QString FailureList::text() const
{
    if (m_count == 1) {
        const Failure& failure = m_kept.first();
        const QString subject = ShownText::isolatedPath(ShownText::shortLine(failure.subject));
        return failure.reason + QLatin1String("\n\n") + named(failure, subject);
    }
    const QString text = lines(shownAtMost, true);
    return m_count > shownAtMost ? text + QLatin1Char('\n') + tr("and %n more", nullptr, m_count - shownAtMost) : text;
}

QString FailureList::details() const
{
    if (m_count == 1)
        return ShownText::detailsOf(m_kept.first().subject);
    if (m_count <= shownAtMost && !m_hasLongSubject)
        return QString();
    const QString all = lines(keptAtMost, false);
    return m_count > keptAtMost ? all + QLatin1Char('\n') + QChar(0x2026) : all;
}

/** A subject as it is shown, with the name of the link before it. */
QString FailureList::named(const Failure& failure, const QString& subject)
{
    if (failure.link.isEmpty())
        return subject;
    const QString name = ShownText::isolatedName(ShownText::shortLine(failure.link));
    return subject.isEmpty() ? name : tr("%1: %2", "name of a link and its address").arg(name, subject);
}

/** The subjects of the first failures, a line each, below the reason that one or several in a row share. */
QString FailureList::lines(int count, bool isShortened) const
{
    QStringList lines;
    for (int i = 0; i < m_kept.size() && i < count; ++i) {
        const Failure& failure = m_kept.at(i);
        if (i == 0 || failure.reason != m_kept.at(i - 1).reason)
            lines.append(failure.reason);
        const QString subject = failure.subject.left(longestLine);
        const QString shown = isShortened ? ShownText::shortLine(subject) : ShownText::onOneLine(subject);
        // A long line takes several on the screen: the dot tells where one begins.
        lines.append(QString(QChar(0x2022)) + QLatin1Char(' ') + named(failure, ShownText::isolatedPath(shown)));
    }
    return lines.join(QLatin1String("\n"));
}
