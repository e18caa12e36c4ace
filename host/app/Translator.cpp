// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Translator.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

#include "Places.h"

static QString toolkitFolder()
{
#if QT_VERSION < 0x060000
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

bool Translator::install(const QString& language)
{
    if (m_english.load(QStringLiteral("vellumconnect_en"), Places::translationFolder()))
        QCoreApplication::installTranslator(&m_english);
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    // A name that is none gives the "C" locale, which is English without being asked for.
    const bool isKnown = language.isEmpty() || locale.language() != QLocale::C;
    if (isKnown && loadLanguage(locale))
        return true;
    if (!language.isEmpty())
        qWarning("There are no texts in the language \"%s\"; they are shown in English", qUtf8Printable(language));
    return false;
}

bool Translator::loadLanguage(const QLocale& locale)
{
    if (!m_language.load(locale, QStringLiteral("vellumconnect"), QStringLiteral("_"), Places::translationFolder()))
        return false;
    // The toolkit's own buttons follow, but never in a language that the program does not speak.
    if (m_toolkit.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"), toolkitFolder()))
        QCoreApplication::installTranslator(&m_toolkit);
    QCoreApplication::installTranslator(&m_language);
    return true;
}
