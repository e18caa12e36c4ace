// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ProgramRun.h"

#include <QFileInfo>

#include "ProgramEnd.h"

ProgramRun::ProgramRun(const QString& path)
    : OutlivingProcess(path, {})
{
    setWorkingDirectory(QFileInfo(path).path());
    connect(this, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, &ProgramRun::onFinished);
    connect(this, &OutlivingProcess::notStarted, this,
            [this] { Q_EMIT failed(tr("This program could not be started:")); });
}

void ProgramRun::start()
{
    m_elapsed.start();
    QProcess::start();
}

/** Of a program that a signal ended, the toolkit tells the signal as the code. */
void ProgramRun::onFinished(int code, QProcess::ExitStatus status)
{
    const QString failure = ProgramEnd{status == QProcess::CrashExit, code, m_elapsed.elapsed()}.failure();
    if (!failure.isEmpty())
        Q_EMIT failed(failure);
}
