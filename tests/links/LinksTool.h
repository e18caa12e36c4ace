// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include "CheckTable.h"
#include "LinksFile.h"

/** The program, run for a user who has nothing but a folder of their own. */
class LinksTool
{
public:
    explicit LinksTool(const QString& program = PROGRAM)
        : m_program(program)
    {
        QDir().mkpath(m_home.filePath("bin"));
    }

    /** How a run ended and what it said; -1 where it did not end. */
    struct Answer {
        int code;
        QString out;
        QString error;
    };

    Answer run(const QStringList& arguments) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("XDG_DATA_HOME", m_home.filePath("data"));
        environment.insert("PATH", m_home.filePath("bin") + ':' + environment.value("PATH"));
        environment.insert("LC_ALL", "C.UTF-8");
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_home.path());
        process.start(m_program, arguments);
        // Under the sanitizers 45,000 links take long; the limit is that of the whole test.
        const bool hasEnded = process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit;
        return {hasEnded ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    /** A file below the user's folder. */
    QString path(const QString& name) const { return m_home.filePath(name); }
    QString userFolder() const { return path("data/vellumconnect"); }
    QString ownFile() const { return userFolder() + "/plugins/QuickLinkUIPlugin/config.xml"; }

    /** Makes a file with what leads to it. */
    bool write(const QString& file, const QByteArray& content) const
    {
        QDir().mkpath(QFileInfo(file).path());
        QFile target(file);
        return target.open(QIODevice::WriteOnly) && target.write(content) == content.size();
    }

    static QByteArray read(const QString& file)
    {
        QFile source(file);
        return source.open(QIODevice::ReadOnly) ? source.readAll() : "no file";
    }

    /** One field of all links in a file. */
    static QStringList fields(const QString& file, QString QuickLinkRecord::*field = &QuickLinkRecord::name)
    {
        // The store's trace is not what is looked at.
        QLoggingCategory::setFilterRules("default.debug=false");
        LinksFile links(file);
        QStringList texts{links.read()};
        texts.removeAll(QString());
        for (const QuickLinkRecord& link : qAsConst(links.links))
            texts.append(link.*field);
        return texts;
    }

private:
    const QString m_program;
    QTemporaryDir m_home;
};
