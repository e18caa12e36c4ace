// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <QCoreApplication>
#include <QLoggingCategory>

#include <clocale>
#include <cstdio>

#include "LinkCommands.h"

int main(int argc, char** argv)
{
    std::setlocale(LC_ALL, "");
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vellumconnect-links"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VELLUM_VERSION));
    // The store's trace is for developers.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const LinkCall::Result result = LinkCommands::run(QCoreApplication::arguments());
    // Whoever keeps the output as a copy of the links must learn that it is none.
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
        return LinkCall::refuse(QStringLiteral("What was to be printed could not be written."));
    return result;
}
