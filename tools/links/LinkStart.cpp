// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkStart.h"

#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include "LinkExchange.h"
#include "LinkJudgement.h"
#include "LinkPath.h"
#include "QuickLinkRecord.h"
#include "SchemeRules.h"

static QString start(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    if (process.startDetached())
        return QString();
    return QStringLiteral("%1 cannot be started: %2.").arg(program, process.errorString());
}

QString LinkStart::open(const QuickLinkRecord& link)
{
    if (!LinkJudgement::ofType(link.type).isEmpty())
        return LinkJudgement::ofType(link.type);
    const QList<LinkJudgement::Problem> problems = LinkJudgement::of(link);
    for (const LinkJudgement::Problem& problem : problems) {
        // Neither the name nor a long text keeps a link from opening.
        if (problem.code != FindingCode::EmptyName && problem.code != FindingCode::TooLong)
            return problem.sentence;
    }
    const QUrl address(LinkExchange::addressOf(link));
    switch (SchemeRules::ruleFor(address.scheme())) {
    case SchemeRule::Path: {
        const QFileInfo target(LinkPath::of(address));
        const bool isEntry = target.suffix() == QLatin1String("desktop") && target.isFile();
        if (isEntry)
            return start(QStringLiteral("gio"), {QStringLiteral("launch"), target.filePath()});
        if (target.isFile() && target.isExecutable())
            return start(target.filePath(), {});
        return start(QStringLiteral("xdg-open"), {target.filePath()});
    }
    case SchemeRule::HandOver:
        return start(QStringLiteral("xdg-open"), {address.toString(QUrl::FullyEncoded)});
    case SchemeRule::Ask:
    case SchemeRule::Refuse:
        break;
    }
    return QStringLiteral("Addresses with \"%1:\" are opened in the window only, which asks about them.")
        .arg(address.scheme());
}
