// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

/**
 * A folder of plug-ins, base/plugins, and a user's folder, with the program load_driver that loads the ones with the
 * other, in a process of its own for each run. Every folder of it begins as its user's alone (0755).
 */
class LoadRuns
{
public:
    /** Makes the folders, with a good plug-in "Good". */
    LoadRuns();

    ~LoadRuns();

    /** The folder in which all others lie. */
    QString base() const { return m_folder.path(); }

    QString plugins() const { return base() + "/plugins"; }
    QString data() const { return base() + "/data"; }

    /** The folder of the plug-in of that name, and its library. */
    QString folder(const QString& name = "Bad") const { return plugins() + '/' + name; }
    QString file(const QString& name = "Bad") const { return folder(name) + "/lib" + name + ".so"; }

    /** Makes the folder of a plug-in. */
    void makeFolder(const QString& name = "Bad") const;

    /** Puts a copy of a built plug-in there under this name, or a file of these bytes. */
    void add(const QString& built, const QString& name = "Bad") const;
    void write(const QByteArray& bytes, const QString& name = "Bad") const;

    /** Runs as the user nobody from now on; only root can. */
    void becomeNobody();

    /** A call hangs after so many milliseconds; none does unless a test says so. */
    void setLimit(int limit) { m_limit = limit; }

    void setVariable(const QString& name, const QString& value) { m_environment.insert(name, value); }

    /** Starts a run, and waits for nothing. */
    void start(QProcess& process) const;

    /** A whole run: what it said, paths counted from the folder of plug-ins. */
    QStringList run() const;

    /** What the process said up to its end, in the same way. */
    QStringList linesOf(QProcess& process) const;

    /** What is noted of the calls of all runs that have not ended, or not by themselves. */
    QByteArray notes() const;

private:
    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
    QStringList m_command;
    int m_limit = 3600000;
};
