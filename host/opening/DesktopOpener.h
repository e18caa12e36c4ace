// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QProcess>

/** Connects the standard streams of a process that outlives this one to nothing: ours may be closed before it ends. */
void detachStandardStreams(QProcess& process);

/**
 * One run of xdg-open, which lets the desktop open a file, folder or address with the user's program for it.
 *
 * Make it with new: it deletes itself when the run has ended. A run that lasts longer than this program goes on, which
 * is why nothing else may own or delete the object.
 */
class DesktopOpener : public QProcess
{
    Q_OBJECT

public:
    /** target is an absolute path or an address, so it never looks like an option. */
    explicit DesktopOpener(const QString& target);

    /** Starts the run and returns at once. */
    void start();

Q_SIGNALS:
    /** The target was not opened, for a reason in words that are followed by the target. */
    void failed(const QString& reason);

private:
#if QT_VERSION < 0x060000
    void setupChildProcess() override;
#endif
    void onFinished(int exitCode, QProcess::ExitStatus status);
    void onError(QProcess::ProcessError error);

    QElapsedTimer m_elapsed;
};
