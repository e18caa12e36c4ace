// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QObject>

#include <memory>

class QSocketNotifier;

/**
 * One run of the application of a desktop entry. It deletes itself when the run has ended, or nothing more will be
 * known of it. Whoever deletes it before leaves the run going on.
 */
class EntryRun : public QObject
{
    Q_OBJECT

public:
    /** Runs the application of the desktop entry path, which is absolute. */
    EntryRun(const QString& path, QObject* parent);
    ~EntryRun() override;

    EntryRun(const EntryRun&) = delete;
    EntryRun& operator=(const EntryRun&) = delete;

    /** Starts the run and returns at once. */
    void start();

Q_SIGNALS:
    /** The application was started, or asked by the session bus to show what it is wanted for. */
    void started();

    /** The application did not start, or failed (ProgramEnd), for a reason in words that are followed by the path. */
    void failed(const QString& reason);

private:
    void onEnded();

    const QString m_path;
    qint64 m_process = 0;
    int m_end = -1; ///< a file that can be read from when the process has ended, see pidfd_open(2)
    std::unique_ptr<QSocketNotifier> m_notifier;
    QElapsedTimer m_elapsed;
};
