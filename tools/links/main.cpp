// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <QCoreApplication>
#include <QLoggingCategory>

#include <clocale>

#include "LinkCommands.h"

int main(int argc, char** argv)
{
    std::setlocale(LC_ALL, "");
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vellumconnect-links"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VELLUM_VERSION));
    // The store's trace is for developers.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    return LinkCommands::run(QCoreApplication::arguments());
}
