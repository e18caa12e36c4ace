// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>

/**
 * A program that is started for the user and has nothing to do with this one from then on: it runs in a session of its
 * own, with standard streams that lead nowhere, with the usual signal mask and reaction to a broken pipe, and holds no
 * other file, socket or pipe of this program.
 *
 * Make it with new: it deletes itself when the run has ended or could not begin. A run that lasts longer than this
 * program goes on, which is why nothing else may own or delete the object.
 */
class OutlivingProcess : public QProcess
{
    Q_OBJECT

public:
    /** Runs program, a path or a name that is looked for in PATH, with these arguments. */
    OutlivingProcess(const QString& program, const QStringList& arguments);
    ~OutlivingProcess() override;

    /**
     * Cuts the process in which it is called off from this program, as said above. Only for a child between fork and
     * exec.
     */
    static void cutOff();

    /** How many of these objects there are: the runs whose end has not been dealt with yet. */
    static int count();

Q_SIGNALS:
    /** There is no such program, or the system does not run it. */
    void notStarted();

private:
#if QT_VERSION < 0x060000
    void setupChildProcess() override;
#endif
    void onError(QProcess::ProcessError error);
};
