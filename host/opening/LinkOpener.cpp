// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkOpener.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include "DesktopOpener.h"
#include "DesktopPrograms.h"
#include "EntryRun.h"
#include "LinkPath.h"
#include "Notice.h"
#include "OpenedLink.h"
#include "ProgramRun.h"
#include "SchemeRules.h"

// The system takes no argument of a program that is longer.
static const int longestTarget = 128 * 1024 - 1; // bytes

LinkOpener::LinkOpener(const AgreedAddresses& agreed)
    : m_agreed(agreed)
{
    takeOver(SchemeRules::known());
    connect(&m_questions, &AddressQuestions::agreed, this, [this](const QString& address) {
        if (m_agreed.add)
            m_agreed.add(address);
        handToDesktop(address, OpenedLink::nameFor(address));
    });
}

LinkOpener::~LinkOpener()
{
    for (const QString& scheme : qAsConst(m_schemes))
        QDesktopServices::unsetUrlHandler(scheme);
}

void LinkOpener::takeOver(const QStringList& schemes)
{
    for (const QString& scheme : schemes) {
        // The toolkit makes one more connection at every call.
        if (m_schemes.contains(scheme))
            continue;
        m_schemes.insert(scheme);
        QDesktopServices::setUrlHandler(scheme, this, "open");
    }
}

void LinkOpener::open(const QUrl& address)
{
    // Without letters that only look like others, and without signs that turn the direction.
    const QString encoded = QString::fromLatin1(address.toEncoded());
    const QString link = OpenedLink::nameFor(encoded);
    if (!address.isValid() && !address.isEmpty()) {
        // It has no text of its own any more but in what the toolkit says of it.
        tell(tr("This is no valid address:"), address.errorString(), link);
        return;
    }
    switch (SchemeRules::ruleFor(address.scheme())) {
    case SchemeRule::Path:
        return openPath(address, link);
    case SchemeRule::HandOver:
        return handToDesktop(encoded, link);
    case SchemeRule::Refuse:
        return tell(tr("Addresses that are themselves a script or a page are never opened:"), encoded, link);
    case SchemeRule::Ask:
        return ask(encoded, link);
    }
}

void LinkOpener::openPath(const QUrl& address, const QString& link)
{
    const QString typed = LinkPath::typed(address);
    const QString path = LinkPath::of(address);
    if (typed.isEmpty())
        tell(tr("This link leads nowhere: it has no path."), typed, link);
    else if (path.isEmpty())
        tell(tr("The path of an application or file must begin with \"/\":"), typed, link);
    else
        openFile(path, link);
}

void LinkOpener::openFile(const QString& path, const QString& link)
{
    const QFileInfo target(path);
    // What the system's encoding cannot hold would be left out, and another file be meant.
    const bool isExact = QFile::decodeName(QFile::encodeName(path)) == path;
    if (!isExact || !target.exists())
        tell(tr("There is no such file or folder, or you are not allowed to see it:"), path, link);
    else if (target.isReadable() && DesktopPrograms::isEntry(target))
        startEntry(path, link);
    else if (target.isFile() && target.isExecutable())
        startProgram(path, link);
    else if (!target.isReadable())
        tell(tr("You are not allowed to open this:"), path, link);
    else
        handToDesktop(path, link);
}

void LinkOpener::startProgram(const QString& path, const QString& link)
{
    ProgramRun* const program = new ProgramRun(path);
    connect(program, &ProgramRun::failed, this, [path, link](const QString& reason) { tell(reason, path, link); });
    program->start();
}

void LinkOpener::startEntry(const QString& path, const QString& link)
{
    EntryRun* const run = new EntryRun(path, this);
    connect(run, &EntryRun::failed, this, [path, link](const QString& reason) { tell(reason, path, link); });
    run->start();
}

void LinkOpener::ask(const QString& address, const QString& link)
{
    if (m_agreed.contains && m_agreed.contains(address))
        handToDesktop(address, link);
    else if (!m_questions.ask(address))
        tell(tr("Too many questions wait for an answer to ask about this address, too:"), address, link);
}

void LinkOpener::handToDesktop(const QString& target, const QString& link)
{
    if (target.toUtf8().size() > longestTarget) {
        tell(tr("This is too long to be opened:"), target, link);
        return;
    }
    DesktopOpener* const opener = new DesktopOpener(target);
    connect(opener, &DesktopOpener::failed, this,
            [target, link](const QString& reason) { tell(reason, target, link); });
    opener->start();
}

void LinkOpener::tell(const QString& reason, const QString& target, const QString& link)
{
    showNotice(tr("Not opened"), reason, target, link);
}
