// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>

#include "OutlivingProcess.h"

/** One run of a program that a link leads to. Make it with new, as every OutlivingProcess. */
class ProgramRun : public OutlivingProcess
{
    Q_OBJECT

public:
    /** Runs the file path, which is absolute, in its own folder and without arguments. */
    explicit ProgramRun(const QString& path);

    /** Starts the run and returns at once. */
    void start();

Q_SIGNALS:
    /** The program did not start, or failed (ProgramEnd), for a reason in words that are followed by its path. */
    void failed(const QString& reason);

private:
    void onFinished(int code, QProcess::ExitStatus status);

    QElapsedTimer m_elapsed;
};
