// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The program finds the catalogue of the language that it is told to speak.

#include <QProcess>

#include "Catalogue.h"
#include "Test.h"

class ProgramLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void speaks_data();
    void speaks();
};

/** A text of the help in a language; empty when the catalogue lacks it. */
static QString description(const QString& language)
{
    const QList<CatalogueText> texts = readCatalogue(cataloguePath(language));
    for (const CatalogueText& text : texts) {
        if (text.id() == "CommandLine: Connection manager with quick links.")
            return language == "en" ? text.source : text.translations.value(0);
    }
    return QString();
}

void ProgramLanguageTest::speaks_data()
{
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("spoken");
    const QStringList languages = catalogueLanguages();
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << language << language;
    const char* const others[][2] = {{"ar_EG", "ar"}, {"de_AT", "de"}, {"en_GB", "en"},        {"es_MX", "es"},
                                     {"fr_CA", "fr"}, {"hi_IN", "hi"}, {"pt_BR", "pt"},        {"pt_PT", "pt"},
                                     {"zh", "zh_CN"}, {"ru_RU", "ru"}, {"zh_Hans_CN", "zh_CN"}};
    for (const char* const* other : others)
        QTest::newRow(other[0]) << other[0] << other[1];
}

void ProgramLanguageTest::speaks()
{
    QFETCH(QString, asked);
    QFETCH(QString, spoken);
    const QString expected = description(spoken);
    QVERIFY(!expected.isEmpty());
    QProcess program;
    program.start(QString(PROGRAM_FILE), {"--language", asked, "--help"});
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 0);
    const QString help = QString::fromUtf8(program.readAllStandardOutput());
    QVERIFY2(help.contains(expected), qPrintable(help));
}

REGISTER_TEST(ProgramLanguageTest)
#include "ProgramLanguageTest.moc"
