// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "OutlivingProcess.h"

#include <QSet>

#include <csignal>
#include <unistd.h>

/** Those whose end has not been dealt with. It stays when the program ends: a run that goes on keeps its object. */
static QSet<const OutlivingProcess*>& running()
{
    static auto* const all = new QSet<const OutlivingProcess*>;
    return *all;
}

/** Only with calls that a signal handler may make: see fork(2), signal-safety(7). */
void OutlivingProcess::cutOff()
{
    // In a session of its own, what ends this program's terminal does not end what was opened.
    ::setsid();
    // What a program blocks is handed down, and so is what this program was itself started with. What it ignores, too,
    // but the toolkit gives back the reaction to a broken pipe by itself.
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    // At the end of exec: the toolkit's pipe is needed until then, to tell why the program did not start.
    ::close_range(STDERR_FILENO + 1, ~0U, CLOSE_RANGE_CLOEXEC);
}

OutlivingProcess::OutlivingProcess(const QString& program, const QStringList& arguments)
{
    running().insert(this);
    setProgram(program);
    setArguments(arguments);
    // Those of this program may be closed before the other one ends.
    setStandardInputFile(nullDevice());
    setStandardOutputFile(nullDevice());
    setStandardErrorFile(nullDevice());
#if QT_VERSION >= 0x060000
    setChildProcessModifier(cutOff);
#endif
    connect(this, &QProcess::errorOccurred, this, &OutlivingProcess::onError);
    connect(this, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, &QObject::deleteLater);
}

OutlivingProcess::~OutlivingProcess()
{
    running().remove(this);
}

int OutlivingProcess::count()
{
    return int(running().size());
}

#if QT_VERSION < 0x060000
void OutlivingProcess::setupChildProcess()
{
    cutOff();
}
#endif

void OutlivingProcess::onError(QProcess::ProcessError error)
{
    // Other errors come with the end of the run.
    if (error != QProcess::FailedToStart)
        return;
    Q_EMIT notStarted();
    deleteLater();
}
