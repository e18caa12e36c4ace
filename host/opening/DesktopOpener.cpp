// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "DesktopOpener.h"

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

DesktopOpener::DesktopOpener(const QString& target, qint64 openingTakesAtMost)
    : OutlivingProcess(QStringLiteral("xdg-open"), {target})
    , m_openingTakesAtMost(openingTakesAtMost)
{
    connect(this, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, &DesktopOpener::onFinished);
    connect(this, &OutlivingProcess::notStarted, this,
            [this] { Q_EMIT failed(tr("Opening this needs the program \"xdg-open\", which could not be started:")); });
}

void DesktopOpener::start()
{
    m_elapsed.start();
    QProcess::start();
}

void DesktopOpener::onFinished(int exitCode, QProcess::ExitStatus status)
{
    const bool isOpened = status == QProcess::NormalExit && exitCode == 0;
    // xdg-open may last as long as the program that it started, whose end then is no failure to open.
    if (!isOpened && m_elapsed.elapsed() < m_openingTakesAtMost)
        Q_EMIT failed(reasonOf(status == QProcess::NormalExit ? exitCode : -1));
}
