// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The plug-in's windows, whose sizes are fixed in pixels, show their texts whole in every language and size of letters,
// and so do the program's page with the longest ones and the window of the decisions.

#include <QApplication>
#include <QFontInfo>
#include <QListWidget>
#include <QScreen>
#include <QTabBar>
#include <QTextLayout>

#include "Catalogue.h"
#include "ConnectionPage.h"
#include "Decisions.h"
#include "LetterScale.h"
#include "PluginWindows.h"
#include "ShownLanguage.h"
#include "Test.h"
#include "TextFit.h"
#include "WhyWindow.h"

class WidthsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { useFont(9); }
    void everyLetterHasAGlyph_data() { addLanguageRows(); }
    void everyLetterHasAGlyph();
    void pageShowsItsTexts_data() { addRows(); }
    void pageShowsItsTexts();
    void ownPageShowsItsTexts_data() { addRows(); }
    void ownPageShowsItsTexts();
    void whyWindowShowsItsTexts_data() { addRows(); }
    void whyWindowShowsItsTexts();
    void dialogShowsItsTexts_data() { addRows(); }
    void dialogShowsItsTexts();

private:
    static void addRows();
    static void useFont(double points);
};

/** Each language with each size of the desktop's letters. */
void WidthsTest::addRows()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<double>("points");
    const QStringList languages = catalogueLanguages();
    for (const QString& language : languages) {
        // At 9.3 points nothing is enlarged yet.
        for (const double points : {8., 9., 9.3, 10., 11., 12., 14., 18., 24.})
            QTest::newRow(qPrintable(QString("%1, %2 points").arg(language).arg(points))) << language << points;
    }
}

/** Letters as the program has them on a desktop of 96 dots per inch with such a font, where the toolkit enlarges the
 * rest as it is asked.
 */
void WidthsTest::useFont(double points)
{
    const double pixels = points * 96 / 72;
    const double density = QGuiApplication::primaryScreen()->logicalDotsPerInch();
    QFont font("DejaVu Sans");
    font.setPointSizeF(pixels / LetterScale::factorFor(pixels) * 72 / density);
    QApplication::setFont(font);
}

void WidthsTest::initTestCase()
{
    QApplication::setStyle("fusion");
    useFont(9);
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
    QFETCH(double, points);
    useFont(points);
    const ShownLanguage shown(language);
    QVERIFY(shown.isKnown());
    const PluginWindows windows;
    QVERIFY(windows.settings());
    QVERIFY(QTest::qWaitForWindowExposed(windows.settings()));
    const QStringList cut = cutTexts(windows.settings());
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join('\n')));
}

void WidthsTest::ownPageShowsItsTexts()
{
    QFETCH(QString, language);
    QFETCH(double, points);
    useFont(points);
    const ShownLanguage shown(language);
    const PluginWindows windows;
    QVERIFY(windows.settings());
    ConnectionChoice choice;
    choice.plans = {{"1", "Home"}};
    ConnectionPage* const page = new ConnectionPage(choice, true);
    windows.settings()->addPage(page);
    windows.settings()->findChild<QListWidget*>()->setCurrentRow(1);
    QVERIFY(QTest::qWaitForWindowExposed(windows.settings()));
    // Plans come when the page shows already.
    page->setPlans({{"2", "Work"}}, true);
    QCoreApplication::processEvents();
    QVERIFY(page->isVisible());
    const QStringList cut = cutTexts(windows.settings());
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join('\n')));
}

void WidthsTest::whyWindowShowsItsTexts()
{
    QFETCH(QString, language);
    QFETCH(double, points);
    useFont(points);
    const ShownLanguage shown(language);
    QVERIFY(shown.isKnown());
    const Decisions decisions;
    WhyWindow window(decisions, nullptr);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const QStringList cut = cutTexts(&window);
    QVERIFY2(cut.isEmpty(), qPrintable(cut.join('\n')));
}

void WidthsTest::dialogShowsItsTexts()
{
    QFETCH(QString, language);
    QFETCH(double, points);
    useFont(points);
    const ShownLanguage shown(language);
    QVERIFY(shown.isKnown());
    PluginWindows windows;
    QVERIFY(windows.settings());
    QDialog* const dialog = windows.linkDialog();
    QVERIFY(dialog);
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    for (const int type : {0, 1, 2}) {
        windows.chooseType(type);
        QCoreApplication::processEvents();
        const QStringList cut = cutTexts(dialog);
        QVERIFY2(cut.isEmpty(), qPrintable(QString("type %1\n").arg(type) + cut.join('\n')));
    }
}

REGISTER_TEST(WidthsTest)
#include "WidthsTest.moc"
