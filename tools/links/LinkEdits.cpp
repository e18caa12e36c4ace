// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkEdits.h"

#include <QFile>

#include "KnownLinks.h"
#include "LinkCall.h"
#include "LinkExchange.h"
#include "LinkJudgement.h"
#include "LinkObjection.h"
#include "LinkWords.h"
#include "LinksFile.h"
#include "StoreText.h"

namespace
{
/** Bytes of a file that is taken in. Browsers put the icons of pages into theirs. */
const qint64 largestSource = qint64(256) * 1024 * 1024;

QStringList namesOf(const QuickLinkRecordList& links)
{
    QStringList names;
    for (const QuickLinkRecord& link : links)
        names.append(link.name);
    return names;
}

/** Gives the link what the options say. The names of those that are another value now. */
QStringList setFields(QuickLinkRecord& link, const QCommandLineParser& line)
{
    QStringList changed;
    const QList<LinkAttributes::Attribute> attributes = LinkEdits::fields();
    for (const LinkAttributes::Attribute& attribute : attributes) {
        const QString name = QLatin1String(attribute.name);
        if (!line.isSet(name))
            continue;
        QString value = StoreText::writable(line.value(name));
        if (attribute.field == &QuickLinkRecord::type)
            value = LinkWords::typeOf(value);
        if (link.*attribute.field != value)
            changed.append(name);
        link.*attribute.field = value;
    }
    return changed;
}

/** Saves, and says what was done and what went with it. */
LinkCall::Result save(LinksFile& file, const QStringList& done)
{
    const int hidden = file.hiddenLinks();
    const QString problem = file.save();
    if (!problem.isEmpty())
        return LinkCall::refuse(problem);
    for (const QString& sentence : done)
        LinkCall::say(sentence);
    if (hidden > 0)
        LinkCall::say(QStringLiteral("Hidden links that are gone now, as at every save: %1.").arg(hidden));
    return LinkCall::Done;
}

/** A file that is going to be changed, and the link in it that is meant. */
struct Chosen {
    Chosen(const QString& path, const QString& word)
        : file(path)
        , problem(file.readToChange())
        , index(problem.isEmpty() ? LinkWords::find(file.links, word, problem) : -1)
    {
    }

    QuickLinkRecord& link() { return file.links[index]; }
    QString shown() const
    {
        return QStringLiteral("\"%1\", link %2 of %3")
            .arg(file.links.at(index).name, QString::number(index + 1), file.path());
    }

    LinksFile file;
    QString problem; ///< why there is none
    int index;
};

/** Why a link is not taken in; empty where it is. That a program is not there yet is no reason. */
QString reasonAgainst(const QuickLinkRecord& link)
{
    QString reason = LinkJudgement::ofType(link.type);
    const QList<LinkJudgement::Problem> problems = LinkJudgement::of(link);
    for (const LinkJudgement::Problem& problem : problems) {
        if (reason.isEmpty() && problem.code != FindingCode::ProgramMissing)
            reason = problem.sentence;
    }
    return reason;
}
} // namespace

QList<LinkAttributes::Attribute> LinkEdits::fields()
{
    QList<LinkAttributes::Attribute> attributes;
    for (const LinkAttributes::Attribute& attribute : LinkAttributes::all) {
        if (attribute.field != &QuickLinkRecord::id && attribute.field != &QuickLinkRecord::visible)
            attributes.append(attribute);
    }
    return attributes;
}

LinkCall::Result LinkEdits::importLinks(const LinkCall& call)
{
    QFile source(call.word(0));
    QuickLinkRecordList links;
    if (!source.open(QIODevice::ReadOnly))
        return LinkCall::refuse(QStringLiteral("%1 cannot be read: %2.").arg(call.word(0), source.errorString()));
    const QByteArray content = source.read(largestSource + 1);
    if (content.size() > largestSource)
        return LinkCall::refuse(QStringLiteral("%1 is larger than any file of bookmarks.").arg(call.word(0)));
    if (!LinkExchange::from(content, links))
        return LinkCall::refuse(
            QStringLiteral("%1 is no JSON of links, no bookmarks of a browser and no XBEL.").arg(call.word(0)));
    LinksFile file(call.word(1));
    const QString problem = file.readToChange();
    if (!problem.isEmpty())
        return LinkCall::refuse(problem);
    KnownLinks known;
    for (const QuickLinkRecord& link : qAsConst(file.links))
        known.add(link);
    QStringList done;
    int added = 0;
    int leftOut = 0;
    for (QuickLinkRecord link : qAsConst(links)) {
        const QString reason = reasonAgainst(link);
        if (!reason.isEmpty()) {
            done.append(QStringLiteral("Left out \"%1\": %2").arg(link.name, reason));
            ++leftOut;
        } else if (!known.contains(link)) {
            link.name = known.freeName(link.name);
            link.visible = QStringLiteral("1");
            file.append(link);
            known.add(link);
            done.append(QStringLiteral("Added \"%1\".").arg(link.name));
            ++added;
        }
    }
    done.append(QStringLiteral("%1: %2 added, %3 there already, %4 left out.")
                    .arg(file.path(), QString::number(added), QString::number(links.size() - added - leftOut),
                         QString::number(leftOut)));
    if (added > 0)
        return save(file, done);
    for (const QString& sentence : qAsConst(done))
        LinkCall::say(sentence);
    return LinkCall::Done;
}

LinkCall::Result LinkEdits::add(const LinkCall& call)
{
    LinksFile file(call.word(0));
    QString problem = file.readToChange();
    if (!problem.isEmpty())
        return LinkCall::refuse(problem);
    QuickLinkRecord link;
    setFields(link, call.line);
    problem = LinkObjection::to(link, namesOf(file.links));
    if (!problem.isEmpty())
        return LinkCall::refuse(problem);
    file.append(link);
    return save(file, {QStringLiteral("Added \"%1\" as link %2 of %3.")
                           .arg(link.name, QString::number(file.links.size()), file.path())});
}

LinkCall::Result LinkEdits::edit(const LinkCall& call)
{
    Chosen chosen(call.word(1), call.word(0));
    if (chosen.index < 0)
        return LinkCall::refuse(chosen.problem);
    const QString shown = chosen.shown();
    const QStringList changed = setFields(chosen.link(), call.line);
    if (changed.isEmpty()) {
        LinkCall::say(QStringLiteral("Nothing to change in %1.").arg(shown));
        return LinkCall::Done;
    }
    QStringList others = namesOf(chosen.file.links);
    others.removeAt(chosen.index);
    const QString problem = LinkObjection::to(chosen.link(), others);
    if (!problem.isEmpty())
        return LinkCall::refuse(problem);
    return save(chosen.file, {QStringLiteral("Changed %1: %2.").arg(shown, changed.join(QStringLiteral(", ")))});
}

LinkCall::Result LinkEdits::remove(const LinkCall& call)
{
    Chosen chosen(call.word(1), call.word(0));
    if (chosen.index < 0)
        return LinkCall::refuse(chosen.problem);
    const QString shown = chosen.shown();
    chosen.file.links.remove(chosen.index);
    return save(chosen.file, {QStringLiteral("Removed %1.").arg(shown)});
}

LinkCall::Result LinkEdits::move(const LinkCall& call)
{
    Chosen chosen(call.word(2), call.word(0));
    if (chosen.index < 0)
        return LinkCall::refuse(chosen.problem);
    const int place = call.word(1).toInt();
    if (place < 1 || place > chosen.file.links.size())
        return LinkCall::refuse(QStringLiteral("There is no place \"%1\".").arg(call.word(1)));
    const QString shown = chosen.shown();
    chosen.file.links.insert(place - 1, chosen.file.links.takeAt(chosen.index));
    return save(chosen.file, {QStringLiteral("Moved %1 to place %2.").arg(shown, QString::number(place))});
}
