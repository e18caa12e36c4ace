// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Autostart.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QStandardPaths>

#include "DurableFile.h"

/** As a value of the type "string". */
static QString asValue(QString text)
{
    return text.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('\n'), QLatin1String("\\n"));
}

/** As one argument of a command line, by the rules of the key "Exec". */
static QString asArgument(QString text)
{
    static const QRegularExpression needsQuotes(QStringLiteral("[^A-Za-z0-9/._=+-]"));
    const bool isPlain = !text.isEmpty() && !text.contains(needsQuotes);
    // A percent sign begins a field that the desktop fills.
    text.replace(QLatin1Char('%'), QLatin1String("%%"));
    static const QRegularExpression special(QStringLiteral("([\"`$\\\\])"));
    text.replace(special, QStringLiteral("\\\\1"));
    return isPlain ? text : QLatin1Char('"') + text + QLatin1Char('"');
}

QString Autostart::file()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/autostart/") +
           QGuiApplication::desktopFileName() + QStringLiteral(".desktop");
}

bool Autostart::isOn()
{
    QFile entry(file());
    // A pipe or device would be read for ever.
    if (!QFileInfo(file()).isFile() || !entry.open(QIODevice::ReadOnly))
        return false;
    const QList<QByteArray> lines = entry.readAll().split('\n');
    // The first is the rule, the second what GNOME's tools write.
    return !lines.contains("Hidden=true") && !lines.contains("X-GNOME-Autostart-enabled=false");
}

bool Autostart::turnOn(const QStringList& arguments)
{
    return DurableFile::makePrivateFolder(QFileInfo(file()).path()) &&
           DurableFile::write(file(), entry(QCoreApplication::applicationFilePath(), arguments));
}

bool Autostart::turnOff()
{
    return QFile::remove(file()) || !QFileInfo::exists(file());
}

QByteArray Autostart::entry(const QString& program, const QStringList& arguments)
{
    QStringList command{asArgument(program)};
    for (const QString& argument : arguments)
        command.append(asArgument(argument));
    // TryExec: once the program is gone, the desktop says nothing of it.
    const QString lines = QStringLiteral("[Desktop Entry]\n"
                                         "Type=Application\n"
                                         "Name=%1\n"
                                         "Icon=network-wireless\n"
                                         "TryExec=%2\n"
                                         "Exec=%3\n"
                                         "Terminal=false\n"
                                         "StartupNotify=false\n");
    return lines
        .arg(asValue(QGuiApplication::applicationDisplayName()), asValue(program),
             asValue(command.join(QLatin1Char(' '))))
        .toUtf8();
}
