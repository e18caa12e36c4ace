// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ShownLanguage.h"

#include <QCoreApplication>
#include <QLocale>

#include "Places.h"

ShownLanguage::ShownLanguage(const QString& language)
{
    if (m_toolkit.load(QLocale(language), "qtbase", "_", Places::toolkitTranslationFolder()))
        QCoreApplication::installTranslator(&m_toolkit);
    m_isKnown = m_texts.load("vellumconnect_" + language, QString(TRANSLATIONS));
    if (m_isKnown)
        QCoreApplication::installTranslator(&m_texts);
}
