// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Places.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>

static QString fromProgram(const QString& relative)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1Char('/') + relative);
}

QString Places::pluginFolder()
{
    return fromProgram(QStringLiteral(VELLUM_BIN_TO_PLUGINS));
}

QString Places::defaultsFolder()
{
    return fromProgram(QStringLiteral(VELLUM_BIN_TO_DATA "/defaults"));
}

QString Places::schemaFile()
{
    return fromProgram(QStringLiteral(VELLUM_BIN_TO_DATA "/config.rng"));
}

QStringList Places::operatorFolders()
{
    QStringList chosen =
        qEnvironmentVariable("VELLUMCONNECT_OPERATOR_DIRS").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    if (!chosen.isEmpty())
        return chosen;
    return {QStringLiteral("/usr/share/vellumconnect"), QStringLiteral("/etc/vellumconnect")};
}

QString Places::translationFolder()
{
    return fromProgram(QStringLiteral(VELLUM_BIN_TO_DATA "/translations"));
}

QString Places::toolkitTranslationFolder()
{
#if QT_VERSION < 0x060000
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}
