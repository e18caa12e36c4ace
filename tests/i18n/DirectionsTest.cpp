// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// In Arabic, what is written from left to right reads so: paths, addresses and options.

#include <QApplication>
#include <QTextLayout>

#include "Change.h"
#include "CommandLine.h"
#include "FailureList.h"
#include "ShownLanguage.h"
#include "ShownText.h"
#include "Test.h"

class DirectionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void partsReadFromLeftToRight_data();
    void partsReadFromLeftToRight();
    void withoutSignsAPathIsTurned();
};

/** Whether every letter of part stands to the right of the one before it, in a line of text from right to left. */
static bool readsFromLeftToRight(const QString& text, const QString& part)
{
    const int begin = int(text.indexOf(part));
    QTextOption option;
    option.setTextDirection(Qt::RightToLeft);
    QTextLayout layout(text, QApplication::font());
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(10000);
    layout.endLayout();
    if (begin < 0)
        return false;
    qreal last = -1;
    for (int i = begin; i < begin + int(part.size()); ++i) {
        const QList<QGlyphRun> runs = line.glyphRuns(i, 1);
        if (runs.isEmpty() || runs.first().positions().isEmpty())
            return false;
        const qreal x = runs.first().positions().first().x();
        if (x <= last)
            return false;
        last = x;
    }
    return true;
}

void DirectionsTest::partsReadFromLeftToRight_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("part");
    const ShownLanguage shown("ar");
    QVERIFY(shown.isKnown());
    QCOMPARE(QApplication::layoutDirection(), Qt::RightToLeft);
    const QString path = "/home/someone/";
    FailureList failures;
    failures.add("Title", "Gone:", path);
    QTest::newRow("alone in a notice") << failures.text().section('\n', -1) << path;
    failures.add("Title", "Gone:", path);
    QTest::newRow("in a line of a notice") << failures.text().section('\n', -1) << path;
    const QString addresses = Change::tr("IDS_LINK_SETTING_INVALID_URL", "QuickLinkUIPlugin");
    QTest::newRow("http") << addresses << "http://";
    QTest::newRow("https") << addresses << "https://";
    QTest::newRow("www") << addresses << "www.";
    const CommandLine line = CommandLine::parse({"program", "--data-dir="});
    QTest::newRow("option") << line.error << "--data-dir";
    QTest::newRow("advice") << line.error << "--help";
    const QString name = ShownText::isolatedName("Notes (old)");
    QTest::newRow("name") << QCoreApplication::translate("MenuManager", "Open %1").arg(name) << "Notes (old)";
}

void DirectionsTest::partsReadFromLeftToRight()
{
    QFETCH(QString, text);
    QFETCH(QString, part);
    QVERIFY2(readsFromLeftToRight(text, part), qPrintable(text));
}

/** The measure sees what it is for. */
void DirectionsTest::withoutSignsAPathIsTurned()
{
    QVERIFY(!readsFromLeftToRight("/home/someone/", "/home/someone/"));
}

REGISTER_TEST(DirectionsTest)
#include "DirectionsTest.moc"
