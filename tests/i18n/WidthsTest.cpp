// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The plug-in's windows, whose sizes are fixed in pixels, show their texts whole in every language.

#include <QApplication>
#include <QFontInfo>
#include <QTabBar>
#include <QTextLayout>

#include "Catalogue.h"
#include "PluginWindows.h"
#include "ShownLanguage.h"
#include "Test.h"
#include "TextFit.h"

class WidthsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyLetterHasAGlyph_data() { addLanguageRows(); }
    void everyLetterHasAGlyph();
    void pageShowsItsTexts_data() { addLanguageRows(); }
    void pageShowsItsTexts();
    void dialogShowsItsTexts_data();
    void dialogShowsItsTexts();
};

void WidthsTest::initTestCase()
{
    QApplication::setStyle("fusion");
    QApplication::setFont(QFont("DejaVu Sans", 9));
    // Another font or density would measure something else than users see.
    const QFontInfo font(QApplication::font());
    QCOMPARE(font.family(), "DejaVu Sans");
    QCOMPARE(font.pixelSize(), 12);
}

void WidthsTest::everyLetterHasAGlyph()
{
    QFETCH(QString, language);
    QStringList wrong;
    const QList<CatalogueText> texts = readCatalogue(cataloguePath(language));
    QVERIFY(!texts.isEmpty());
    for (const CatalogueText& text : texts) {
        QTextLayout layout(text.translations.join(' '), QApplication::font());
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        const QList<QGlyphRun> runs = layout.glyphRuns();
        for (const QGlyphRun& run : runs) {
            if (run.glyphIndexes().contains(0))
                wrong.append(layout.text());
        }
    }
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join('\n')));
}

void WidthsTest::pageShowsItsTexts()
{
    QFETCH(QString, language);
    const ShownLanguage shown(language);
    QVERIFY(shown.isKnown());
    const PluginWindows windows;
    QVERIFY(windows.settings());
    QVERIFY(QTest::qWaitForWindowExposed(windows.settings()));
    const QStringList cut = cutTexts(windows.settings());
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join('\n')));
}

void WidthsTest::dialogShowsItsTexts_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("type");
    const char* const types[] = {"application", "e-mail", "Internet"};
    const QStringList languages = catalogueLanguages();
    for (const QString& language : languages) {
        for (int type = 0; type < 3; ++type)
            QTest::newRow(qPrintable(language + ", " + types[type])) << language << type;
    }
}

void WidthsTest::dialogShowsItsTexts()
{
    QFETCH(QString, language);
    QFETCH(int, type);
    const ShownLanguage shown(language);
    QVERIFY(shown.isKnown());
    PluginWindows windows;
    QVERIFY(windows.settings());
    QDialog* const dialog = windows.linkDialog();
    QVERIFY(dialog);
    windows.chooseType(type);
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    const QStringList cut = cutTexts(dialog);
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join('\n')));
}

REGISTER_TEST(WidthsTest)
#include "WidthsTest.moc"
