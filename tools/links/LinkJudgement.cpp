// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkJudgement.h"

#include <QFileInfo>
#include <QUrl>

#include "AddressCheck.h"
#include "DialogLengthLimits.h"
#include "InternetAddress.h"
#include "LinkPath.h"
#include "QuickLinkRecord.h"
#include "SchemeRules.h"

namespace
{
using Problems = QList<LinkJudgement::Problem>;

void judgeLength(Problems& problems, const char* attribute, const QString& text, int longest)
{
    if (text.size() > longest)
        problems.append({FindingCode::TooLong, attribute,
                         QStringLiteral("The %1 has %2 signs; the dialog lets it have %3.")
                             .arg(QLatin1String(attribute))
                             .arg(text.size())
                             .arg(longest)});
}

void judgeInternet(Problems& problems, const QString& url)
{
    if (!AddressCheck::passes(url))
        problems.append({FindingCode::AddressRefused, "url",
                         QStringLiteral("A click is refused: the address \"%1\" has none of \"http://\", \"https://\", "
                                        "\"ftp\" and \"www.\" in it, in lower case.")
                             .arg(url)});
    else if (InternetAddress::completed(QUrl(url).toString()).isEmpty())
        problems.append({FindingCode::AddressLeadsNowhere, "url",
                         QStringLiteral("The address \"%1\" leads to no host by http, https or ftp.").arg(url)});
}

void judgePath(Problems& problems, const QUrl& address)
{
    const QString path = LinkPath::of(address);
    if (path.isEmpty())
        problems.append({FindingCode::RelativePath, "url",
                         QStringLiteral("The path \"%1\" does not begin with \"/\": it is not opened.")
                             .arg(LinkPath::typed(address))});
    else if (!QFileInfo::exists(path))
        problems.append({FindingCode::ProgramMissing, "url",
                         QStringLiteral("There is no program, file or folder \"%1\" on this computer.").arg(path)});
}

/** What the desktop is asked to open goes by its scheme, whatever the link's type says. */
void judgeTarget(Problems& problems, const QString& url)
{
    const QUrl address(url);
    if (!address.isValid() && !address.isEmpty()) {
        problems.append({FindingCode::AddressLeadsNowhere, "url",
                         QStringLiteral("\"%1\" is no valid address: it is not opened.").arg(url)});
        return;
    }
    switch (SchemeRules::ruleFor(address.scheme())) {
    case SchemeRule::Path:
        return judgePath(problems, address);
    case SchemeRule::Refuse:
        problems.append({FindingCode::AddressNeverOpened, "url",
                         QStringLiteral("An address with \"%1:\" is itself a script or a page: it never opens.")
                             .arg(address.scheme())});
        return;
    case SchemeRule::HandOver:
    case SchemeRule::Ask: // The user decides.
        return;
    }
}
} // namespace

QString LinkJudgement::ofType(const QString& type)
{
    if (type == LinkType::application() || type == LinkType::email() || type == LinkType::internet())
        return QString();
    // The list of types at the head of the file has it so.
    const bool isSlip = type == QLatin1String("IDS_LINK_TYPE_E_MAIL");
    return QStringLiteral("There is no type \"%1\": the link opens nothing.%2")
        .arg(type, isSlip ? QStringLiteral(" Of a link it is spelt with a hyphen, \"%1\".").arg(LinkType::email())
                          : QString());
}

QList<LinkJudgement::Problem> LinkJudgement::of(const QuickLinkRecord& link)
{
    Problems problems;
    if (link.name.isEmpty())
        problems.append({FindingCode::EmptyName, "name", QStringLiteral("The link has no name.")});
    judgeLength(problems, "name", link.name, DialogLengthLimits::longestName);
    judgeLength(problems, "url", link.url, DialogLengthLimits::longestTarget);
    judgeLength(problems, "para", link.para, DialogLengthLimits::longestTarget);
    if (link.type == LinkType::internet())
        judgeInternet(problems, link.url);
    else if (ofType(link.type).isEmpty())
        judgeTarget(problems, link.url);
    return problems;
}
