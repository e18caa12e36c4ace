// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ShownLanguage.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

QString ShownLanguage::toolkitFolder()
{
#if QT_VERSION < 0x060000
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

ShownLanguage::ShownLanguage(const QString& language)
{
    if (m_toolkit.load(QLocale(language), QStringLiteral("qtbase"), QStringLiteral("_"), toolkitFolder()))
        QCoreApplication::installTranslator(&m_toolkit);
    m_isKnown = m_texts.load(QStringLiteral("vellumconnect_") + language, QStringLiteral(TRANSLATIONS));
    if (m_isKnown)
        QCoreApplication::installTranslator(&m_texts);
}
