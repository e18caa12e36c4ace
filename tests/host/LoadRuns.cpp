// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LoadRuns.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "ProcessLimits.h"

static QByteArray contentOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The file %s is missing", qUtf8Printable(path));
    return file.readAll();
}

LoadRuns::LoadRuns()
    : m_environment(QProcessEnvironment::systemEnvironment())
    , m_command(LOAD_DRIVER)
{
    for (const QString& folder : {base(), plugins(), data()}) {
        if (!QDir().mkpath(folder) || !setMode(folder, 0755))
            qFatal("The folder %s cannot be made", qUtf8Printable(folder));
    }
    add("FakeSilent", "Good");
}

LoadRuns::~LoadRuns()
{
    // The toolkit cannot remove what has a name that is no text.
    QProcess::execute("rm", {"-rf", "--", plugins()});
}

void LoadRuns::makeFolder(const QString& name) const
{
    if (!QDir().mkpath(folder(name)) || !setMode(folder(name), 0755))
        qFatal("The folder %s cannot be made", qUtf8Printable(folder(name)));
}

void LoadRuns::add(const QString& built, const QString& name) const
{
    write(contentOf(QString("%1/%2/lib%2.so").arg(QString(FAKE_PLUGINS), built)), name);
}

void LoadRuns::write(const QByteArray& bytes, const QString& name) const
{
    makeFolder(name);
    QFile target(file(name));
    if (!target.open(QIODevice::WriteOnly) || target.write(bytes) != bytes.size() || !setMode(file(name), 0644))
        qFatal("The file %s cannot be made", qUtf8Printable(target.fileName()));
}

void LoadRuns::becomeNobody()
{
    m_command = QStringList({"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"}) + m_command;
    if (chown(QFile::encodeName(data()).constData(), 65534, 65534) != 0)
        qFatal("%s cannot be given away", qUtf8Printable(data()));
}

void LoadRuns::start(QProcess& process) const
{
    process.setProcessEnvironment(m_environment);
    const QStringList arguments = {data(), plugins(), QString::number(m_limit)};
    process.start(m_command.first(), m_command.mid(1) + arguments);
}

QStringList LoadRuns::run() const
{
    QProcess process;
    start(process);
    process.closeWriteChannel();
    return linesOf(process);
}

QStringList LoadRuns::linesOf(QProcess& process) const
{
    if (!process.waitForFinished())
        qFatal("%s does not end: %s", LOAD_DRIVER, qUtf8Printable(process.errorString()));
    QString said = QString::fromLocal8Bit(process.readAllStandardOutput());
    return said.remove(plugins() + '/').replace(base(), "BASE").split('\n', Qt::SkipEmptyParts);
}

QByteArray LoadRuns::notes() const
{
    QByteArray notes;
    const QFileInfoList files = QDir(data() + "/calls").entryInfoList(QDir::Files);
    for (const QFileInfo& file : files) {
        const QByteArray note = contentOf(file.filePath());
        notes += note.left(note.indexOf('\0')) + '\n';
    }
    return notes;
}
