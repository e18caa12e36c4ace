// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The program finds the catalogue of the language that it is told to speak.

#include <QProcess>

#include "Catalogue.h"
#include "Test.h"
#include "UserFolder.h"
#include "UserSettings.h"

class ProgramLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void speaks_data();
    void speaks();
    void speaksTheSystemsLanguage_data();
    void speaksTheSystemsLanguage();
    void refusesInTheLanguage_data();
    void refusesInTheLanguage();
    void speaksTheKeptLanguage_data();
    void speaksTheKeptLanguage();
};

/** A text of the command line in a language; empty when the catalogue lacks it. */
static QString textOf(const QString& language, const QString& source)
{
    const QList<CatalogueText> texts = readCatalogue(cataloguePath(language));
    for (const CatalogueText& text : texts) {
        if (text.id() == "CommandLine: " + source)
            return language == "en" ? text.source : text.translations.value(0);
    }
    return QString();
}

/** A text of the help. */
static QString description(const QString& language)
{
    return textOf(language, "Connection manager with quick links.");
}

/** What the program says of itself; empty when it does not end well. */
static QString helpOf(const QStringList& arguments)
{
    QProcess program;
    program.start(QString(PROGRAM_FILE), arguments + QStringList("--help"));
    const bool isDone = program.waitForFinished() && program.exitStatus() == QProcess::NormalExit;
    return isDone && program.exitCode() == 0 ? QString::fromUtf8(program.readAllStandardOutput()) : QString();
}

void ProgramLanguageTest::speaks_data()
{
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("spoken");
    const QStringList languages = catalogueLanguages();
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << language << language;
    const char* const others[][2] = {{"ar_EG", "ar"}, {"de_AT", "de"}, {"en_GB", "en"},        {"es_MX", "es"},
                                     {"fr_CA", "fr"}, {"hi_IN", "hi"}, {"pt_BR", "pt"},        {"ja_JP", "ja"},
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
    const QString help = helpOf({"--language", asked});
    QVERIFY2(help.contains(expected), qPrintable(help));
}

void ProgramLanguageTest::speaksTheSystemsLanguage_data()
{
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("spoken");
    QTest::newRow("Brazil") << "pt_BR"
                            << "pt";
    QTest::newRow("Portugal") << "pt_PT"
                              << "pt_PT";
    QTest::newRow("Portuguese") << "pt"
                                << "pt";
    QTest::newRow("China") << "zh_CN"
                           << "zh_CN";
    QTest::newRow("not spoken") << "fi_FI"
                                << "en";
}

void ProgramLanguageTest::speaksTheSystemsLanguage()
{
    QFETCH(QString, system);
    QFETCH(QString, spoken);
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // The system may lack the locale itself, and with it the letters.
    environment.insert("LC_ALL", "C.UTF-8");
    environment.insert("LANGUAGE", system);
    program.setProcessEnvironment(environment);
    program.start(QString(PROGRAM_FILE), {"--help"});
    QVERIFY(program.waitForFinished());
    const QString help = QString::fromUtf8(program.readAllStandardOutput());
    QVERIFY2(help.contains(description(spoken)), qPrintable(help));
}

void ProgramLanguageTest::refusesInTheLanguage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("spoken");
    QTest::addColumn<QString>("named");
    const QString empty = "Empty value after \"--%1\".";
    for (const char* const language : {"ar", "de", "hi", "ja", "pt", "pt_PT", "en"}) {
        const QStringList asked{"--language", language};
        QTest::newRow(qPrintable(QString(language) + ", empty"))
            << asked + QStringList{"--data-dir="} << language << textOf(language, empty).arg("data-dir");
        QTest::newRow(qPrintable(QString(language) + ", unknown"))
            << asked + QStringList{"--sing"} << language << "sing";
    }
    QTest::newRow("no such language") << QStringList{"--language", "tlh", "--sing"} << "en"
                                      << "sing";
    QTest::newRow("no language") << QStringList{"--language"} << "en"
                                 << "language";
}

void ProgramLanguageTest::refusesInTheLanguage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, spoken);
    QFETCH(QString, named);
    QProcess program;
    program.start(QString(PROGRAM_FILE), arguments);
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 2);
    const QString error = QString::fromUtf8(program.readAllStandardError());
    QCOMPARE(int(error.count('\n')), 1);
    QVERIFY2(error.contains(named), qPrintable(error));
    const QString advice = textOf(spoken, "%1 Try --help.").section("%1", 1);
    QVERIFY(!advice.isEmpty());
    QVERIFY2(error.endsWith(advice + '\n'), qPrintable(error));
    // The toolkit's words for what is unknown, too.
    QCOMPARE(error.contains("Unknown"), spoken == "en" && named == "sing");
}

void ProgramLanguageTest::speaksTheKeptLanguage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("spoken");
    QTest::newRow("asked for nothing") << QStringList() << "de";
    QTest::newRow("asked for another") << QStringList{"--language", "fr"} << "fr";
}

void ProgramLanguageTest::speaksTheKeptLanguage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, spoken);
    const QTemporaryDir folder;
    UserFolder::setPath(folder.path());
    UserSettings::setLanguage("de");
    UserFolder::setPath(QString());
    const QString help = helpOf(QStringList{"--data-dir", folder.path()} + arguments);
    QVERIFY2(help.contains(description(spoken)), qPrintable(help));
}

REGISTER_TEST(ProgramLanguageTest)
#include "ProgramLanguageTest.moc"
