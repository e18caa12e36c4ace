// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the program shows of the toolkit's own texts speaks the program's language, and is written in its direction.

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QPushButton>

#include "Catalogue.h"
#include "Places.h"
#include "ShownLanguage.h"
#include "Test.h"

class ToolkitTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areTranslated_data() { addLanguageRows(); }
    void areTranslated();
    void areInTheButtons_data() { addLanguageRows(); }
    void areInTheButtons();
    void runInTheDirectionOfTheLanguage_data() { addLanguageRows(); }
    void runInTheDirectionOfTheLanguage();
    void areCompleteWhereTheToolkitHasNone_data();
    void areCompleteWhereTheToolkitHasNone();
};

/** Texts that are alike in no two languages spoken here. */
static const struct {
    const char *context, *source;
} distinctTexts[] = {{"QPlatformTheme", "Cancel"},
                     {"QPlatformTheme", "&Yes"},
                     {"QMessageBox", "Show Details..."},
                     {"QCommandLineParser", "Options:"},
                     {"QCommandLineParser", "Unknown option '%1'."},
                     {"QCommandLineParser", "Missing value after '%1'."},
                     {"QLineEdit", "&Paste"},
                     {"QLineEdit", "Select All"},
                     {"QWidgetTextControl", "&Copy"},
                     {"QWidgetTextControl", "Select All"}};

void ToolkitTextsTest::areTranslated()
{
    QFETCH(QString, language);
    const ShownLanguage shown(language);
    QVERIFY(shown.isKnown());
    for (const auto& text : distinctTexts) {
        const QString translation = QCoreApplication::translate(text.context, text.source);
        const bool isEnglish = translation == text.source;
        QVERIFY2(isEnglish == (language == "en"), qPrintable(translation));
    }
}

void ToolkitTextsTest::areInTheButtons()
{
    QFETCH(QString, language);
    const ShownLanguage shown(language);
    const QDialogButtonBox box(QDialogButtonBox::Cancel);
    const QString text = box.button(QDialogButtonBox::Cancel)->text();
    QVERIFY2((text == "Cancel") == (language == "en"), qPrintable(text));
}

void ToolkitTextsTest::runInTheDirectionOfTheLanguage()
{
    QFETCH(QString, language);
    const ShownLanguage shown(language);
    QCOMPARE(QApplication::layoutDirection(), language == "ar" ? Qt::RightToLeft : Qt::LeftToRight);
}

void ToolkitTextsTest::areCompleteWhereTheToolkitHasNone_data()
{
    QTest::addColumn<QString>("file");
    const QDir folder = QFileInfo(cataloguePath("en")).dir();
    const QStringList files = folder.entryList({"toolkit_*.ts"}, QDir::Files, QDir::Name);
    for (const QString& file : files)
        QTest::newRow(qPrintable(file)) << folder.filePath(file);
}

void ToolkitTextsTest::areCompleteWhereTheToolkitHasNone()
{
    QFETCH(QString, file);
    QTranslator german;
    QVERIFY(german.load("qtbase_de", Places::toolkitTranslationFolder()));
    const QList<CatalogueText> texts = readCatalogue(file);
    QVERIFY(!texts.isEmpty());
    QStringList ids;
    for (const CatalogueText& text : texts) {
        ids.append(text.id());
        QVERIFY2(text.isFinished && !text.translations.join(QString()).isEmpty(), qPrintable(text.id()));
        // A text that the toolkit does not have would never be shown.
        const QByteArray context = text.context.toUtf8(), source = text.source.toUtf8();
        QVERIFY2(!german.translate(context.constData(), source.constData()).isEmpty(), qPrintable(text.id()));
    }
    for (const auto& text : distinctTexts) {
        const QString id = QLatin1String(text.context) + ": " + text.source;
        QVERIFY2(ids.contains(id), qPrintable(id));
    }
}

REGISTER_TEST(ToolkitTextsTest)
#include "ToolkitTextsTest.moc"
