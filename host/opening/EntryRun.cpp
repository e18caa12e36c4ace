// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "EntryRun.h"

#include <QSocketNotifier>

#include "DesktopPrograms.h"
#include "ProgramEnd.h"

#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

EntryRun::EntryRun(const QString& path, QObject* parent)
    : QObject(parent)
    , m_path(path)
{
}

EntryRun::~EntryRun()
{
    m_notifier.reset();
    if (m_end >= 0)
        ::close(m_end);
}

void EntryRun::start()
{
    m_elapsed.start();
    const DesktopPrograms::Start start = DesktopPrograms::start(m_path);
    m_process = start.process;
    if (start.isStarted)
        Q_EMIT started();
    else
        Q_EMIT failed(tr("The application of this could not be started:"));
    if (m_process > 0)
        m_end = int(::syscall(SYS_pidfd_open, pid_t(m_process), 0));
    if (m_end < 0) {
        deleteLater();
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_end, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &EntryRun::onEnded);
}

void EntryRun::onEnded()
{
    siginfo_t info{};
    const bool isTaken = ::waitid(P_PID, id_t(m_process), &info, WEXITED | WNOHANG) == 0 && info.si_pid != 0;
    if (!isTaken)
        return;
    m_notifier->setEnabled(false);
    const QString failure = ProgramEnd{info.si_code != CLD_EXITED, info.si_status, m_elapsed.elapsed()}.failure();
    if (!failure.isEmpty())
        Q_EMIT failed(failure);
    deleteLater();
}
