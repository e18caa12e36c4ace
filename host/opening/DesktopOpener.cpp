// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "DesktopOpener.h"

#include <unistd.h>

// xdg-open may last as long as the program that it started, whose end then is no failure to open.
static const qint64 openingTakesAtMost = 60000; // ms

/** What xdg-open means by its exit code. */
static QString reasonOf(int exitCode)
{
    switch (exitCode) {
    case 2:
        return DesktopOpener::tr("There is no such file or folder:");
    case 3:
        return DesktopOpener::tr("No program was found that opens this:");
    case 4:
        return DesktopOpener::tr("The program that opens this reported a failure:");
    default:
        return DesktopOpener::tr("The desktop could not open this:");
    }
}

void detachStandardStreams(QProcess& process)
{
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
}

DesktopOpener::DesktopOpener(const QString& target)
{
    setProgram(QStringLiteral("xdg-open"));
    setArguments({target});
    detachStandardStreams(*this);
#if QT_VERSION >= 0x060000
    setChildProcessModifier([] { ::setsid(); });
#endif
    connect(this, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, &DesktopOpener::onFinished);
    connect(this, &QProcess::errorOccurred, this, &DesktopOpener::onError);
}

void DesktopOpener::start()
{
    m_elapsed.start();
    QProcess::start();
}

#if QT_VERSION < 0x060000
void DesktopOpener::setupChildProcess()
{
    // In a session of its own, what ends this program's terminal does not end what was opened.
    ::setsid();
}
#endif

void DesktopOpener::onFinished(int exitCode, QProcess::ExitStatus status)
{
    const bool isOpened = status == QProcess::NormalExit && exitCode == 0;
    if (!isOpened && !m_elapsed.hasExpired(openingTakesAtMost))
        Q_EMIT failed(reasonOf(status == QProcess::NormalExit ? exitCode : -1));
    deleteLater();
}

void DesktopOpener::onError(QProcess::ProcessError error)
{
    // Other errors come with the end of the run.
    if (error != QProcess::FailedToStart)
        return;
    Q_EMIT failed(tr("Opening this needs the program \"xdg-open\", which could not be started:"));
    deleteLater();
}
