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
#include "FailureList.h"
#include "LinkPath.h"
#include "Notice.h"
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
        handToDesktop(address, m_asked.take(address));
    });
    connect(&m_questions, &AddressQuestions::declined, this,
            [this](const QString& address) { m_asked.take(address).decline(); });
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
    const Opening opening(encoded);
    if (!address.isValid() && !address.isEmpty()) {
        // It has no text of its own any more but in what the toolkit says of it.
        refuse(tr("This is no valid address:"), address.errorString(), opening);
        return;
    }
    switch (SchemeRules::ruleFor(address.scheme())) {
    case SchemeRule::Path:
        return openPath(address, opening);
    case SchemeRule::HandOver:
        return handToDesktop(encoded, opening);
    case SchemeRule::Refuse:
        return refuse(tr("Addresses that are themselves a script or a page are never opened:"), encoded, opening);
    case SchemeRule::Ask:
        return ask(encoded, opening);
    }
}

void LinkOpener::openPath(const QUrl& address, const Opening& opening)
{
    const QString typed = LinkPath::typed(address);
    const QString path = LinkPath::of(address);
    if (typed.isEmpty())
        refuse(tr("This link leads nowhere: it has no path."), typed, opening);
    else if (path.isEmpty())
        refuse(tr("The path of an application or file must begin with \"/\":"), typed, opening);
    else
        openFile(path, opening);
}

void LinkOpener::openFile(const QString& path, const Opening& opening)
{
    const QFileInfo target(path);
    // What the system's encoding cannot hold would be left out, and another file be meant.
    const bool isExact = QFile::decodeName(QFile::encodeName(path)) == path;
    if (!isExact || !target.exists())
        refuse(tr("There is no such file or folder, or you are not allowed to see it:"), path, opening);
    else if (target.isReadable() && DesktopPrograms::isEntry(target))
        startEntry(path, opening);
    else if (target.isFile() && target.isExecutable())
        startProgram(path, opening);
    else if (!target.isReadable())
        refuse(tr("You are not allowed to open this:"), path, opening);
    else
        handToDesktop(path, opening);
}

void LinkOpener::startProgram(const QString& path, const Opening& opening)
{
    ProgramRun* const program = new ProgramRun(path);
    connect(program, &QProcess::started, this, [opening] { opening.succeed(); });
    connect(program, &ProgramRun::failed, this,
            [path, opening](const QString& reason) { fail(reason, path, opening); });
    program->start();
}

void LinkOpener::startEntry(const QString& path, const Opening& opening)
{
    EntryRun* const run = new EntryRun(path, this);
    connect(run, &EntryRun::started, this, [opening] { opening.succeed(); });
    connect(run, &EntryRun::failed, this, [path, opening](const QString& reason) { fail(reason, path, opening); });
    run->start();
}

void LinkOpener::ask(const QString& address, const Opening& opening)
{
    if (m_agreed.contains && m_agreed.contains(address))
        handToDesktop(address, opening);
    else if (m_questions.ask(address))
        waitFor(address, opening);
    else
        refuse(tr("Too many questions wait for an answer to ask about this address, too:"), address, opening);
}

void LinkOpener::waitFor(const QString& address, const Opening& opening)
{
    m_asked.insert(address, opening);
    opening.wait();
}

void LinkOpener::handToDesktop(const QString& target, const Opening& opening)
{
    if (target.toUtf8().size() > longestTarget) {
        refuse(tr("This is too long to be opened:"), target, opening);
        return;
    }
    DesktopOpener* const opener = new DesktopOpener(target);
    connect(opener, &QProcess::started, this, [opening] { opening.succeed(); });
    connect(opener, &DesktopOpener::failed, this,
            [target, opening](const QString& reason) { fail(reason, target, opening); });
    opener->start();
}

void LinkOpener::refuse(const QString& reason, const QString& target, const Opening& opening)
{
    opening.refuse(reason);
    showNotice(FailureList::notOpened(), reason, target, opening.link());
}

void LinkOpener::fail(const QString& reason, const QString& target, const Opening& opening)
{
    opening.fail(reason);
    showNotice(FailureList::notOpened(), reason, target, opening.link());
}
