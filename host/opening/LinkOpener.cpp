// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkOpener.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#include "DesktopOpener.h"
#include "LinkPath.h"
#include "Notice.h"

static const char* const schemes[] = {"", "file", "mailto", "http", "https", "ftp"};

LinkOpener::LinkOpener()
{
    for (const char* scheme : schemes)
        QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), this, "open");
}

LinkOpener::~LinkOpener()
{
    for (const char* scheme : schemes)
        QDesktopServices::unsetUrlHandler(QString::fromLatin1(scheme));
}

void LinkOpener::open(const QUrl& address)
{
    if (LinkPath::isPath(address))
        openPath(LinkPath::of(address));
    else
        handToDesktop(QString::fromLatin1(address.toEncoded()));
}

void LinkOpener::openPath(const QString& path)
{
    const QFileInfo target(path);
    if (!target.exists())
        tell(tr("There is no such file or folder, or you are not allowed to see it:"), path);
    else if (target.isFile() && target.isExecutable())
        startProgram(path);
    else if (!target.isReadable())
        tell(tr("You are not allowed to open this:"), path);
    else
        handToDesktop(path);
}

void LinkOpener::startProgram(const QString& path)
{
    QProcess program;
    program.setProgram(path);
    program.setWorkingDirectory(QFileInfo(path).path());
    detachStandardStreams(program);
    if (!program.startDetached())
        tell(tr("This program could not be started:"), path);
}

void LinkOpener::handToDesktop(const QString& target)
{
    DesktopOpener* const opener = new DesktopOpener(target);
    connect(opener, &DesktopOpener::failed, this, [target](const QString& reason) { tell(reason, target); });
    opener->start();
}

void LinkOpener::tell(const QString& reason, const QString& target)
{
    showNotice(tr("Not opened"), reason, target);
}
