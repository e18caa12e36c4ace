// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "Translator.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>

#include "Places.h"

static const QString catalogue = QStringLiteral("vellumconnect");

/** What a catalogue's file name has between its first underscore and its suffix. */
static QString languageOf(const QString& file)
{
    return QFileInfo(file).completeBaseName().section(QLatin1Char('_'), 1);
}

QStringList Translator::languages()
{
    QStringList languages;
    const QDir folder(Places::translationFolder());
    const QStringList files = folder.entryList({catalogue + QStringLiteral("_*.qm")}, QDir::Files, QDir::Name);
    for (const QString& file : files)
        languages.append(languageOf(file));
    return languages;
}

bool Translator::use(const QString& language)
{
    m_followsSystem = language.isEmpty();
    if (m_english.isEmpty() && m_english.load(catalogue + QStringLiteral("_en"), Places::translationFolder()))
        QCoreApplication::installTranslator(&m_english);
    QCoreApplication::removeTranslator(&m_toolkit);
    QCoreApplication::removeTranslator(&m_language);
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    // A name that is none gives the "C" locale, which is English without being asked for.
    const bool isKnown = language.isEmpty() || locale.language() != QLocale::C;
    const bool isFound = isKnown && load(locale);
    if (!isFound && !language.isEmpty())
        qWarning("There are no texts in the language \"%s\"; they are shown in English", qUtf8Printable(language));
    const QLocale shown(current());
    // Times and dates as the system has them, as long as the user chooses nothing else.
    QLocale::setDefault(language.isEmpty() ? QLocale::system() : shown);
    QGuiApplication::setLayoutDirection(shown.textDirection());
    return isFound;
}

QString Translator::current() const
{
    return m_language.isEmpty() ? QStringLiteral("en") : languageOf(m_language.filePath());
}

bool Translator::followsSystem() const
{
    return m_followsSystem;
}

bool Translator::load(const QLocale& locale)
{
    // Of a language that was named, its own catalogue first: for one of a country, Qt 6 looks for the language's
    // before.
    const bool isExact = !m_followsSystem && languages().contains(locale.name()) &&
                         m_language.load(catalogue + QLatin1Char('_') + locale.name(), Places::translationFolder());
    if (!isExact && !m_language.load(locale, catalogue, QStringLiteral("_"), Places::translationFolder()))
        return false;
    // The toolkit's own buttons follow, but never in a language that the program does not speak.
    if (m_toolkit.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"), Places::toolkitTranslationFolder()))
        QCoreApplication::installTranslator(&m_toolkit);
    QCoreApplication::installTranslator(&m_language);
    return true;
}
