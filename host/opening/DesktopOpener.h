// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>

#include "OutlivingProcess.h"

/**
 * One run of xdg-open, which lets the desktop open a file, folder or address with the user's program for it. Make it
 * with new, as every OutlivingProcess.
 */
class DesktopOpener : public OutlivingProcess
{
    Q_OBJECT

public:
    /**
     * target is an absolute path or an address, so it never looks like an option. A run that ends after
     * openingTakesAtMost milliseconds or more has opened it, whatever its end.
     */
    explicit DesktopOpener(const QString& target, qint64 openingTakesAtMost = 60000);

    /** Starts the run and returns at once. */
    void start();

Q_SIGNALS:
    /** The target was not opened, for a reason in words that are followed by the target. */
    void failed(const QString& reason);

private:
    void onFinished(int exitCode, QProcess::ExitStatus status);

    const qint64 m_openingTakesAtMost;
    QElapsedTimer m_elapsed;
};
