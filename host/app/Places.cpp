// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Places.h"

#include <QCoreApplication>
#include <QDir>

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

QString Places::translationFolder()
{
    return fromProgram(QStringLiteral(VELLUM_BIN_TO_DATA "/translations"));
}
