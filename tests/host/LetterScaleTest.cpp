// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// How much the toolkit is asked to enlarge the program, and the letters that this leaves.

#include <QApplication>
#include <QFont>
#include <QFontInfo>

#include "LetterScale.h"
#include "Test.h"

class LetterScaleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void enlargesForLargeLetters_data();
    void enlargesForLargeLetters();
    void followsTheDesktopsFont_data();
    void followsTheDesktopsFont();
    void leavesToTheUserWhatWasAskedFor_data();
    void leavesToTheUserWhatWasAskedFor();
    void isAskedForOnce();
    void makesLettersFit_data();
    void makesLettersFit();
    void keepsTheFontsOfClassesApart();
    void isForgottenForOthers();

private:
    static void useFont(double points);
    static void startAnew();

    QFont m_font;
};

static const char* const own = "VELLUMCONNECT_LETTER_SCALE";
static const char* const variables[] = {"QT_SCALE_FACTOR", "QT_FONT_DPI", "QT_SCREEN_SCALE_FACTORS"};

void LetterScaleTest::init()
{
    m_font = QApplication::font();
}

void LetterScaleTest::cleanup()
{
    QApplication::setFont(m_font);
    for (const char* name : variables)
        qunsetenv(name);
    qunsetenv(own);
}

void LetterScaleTest::useFont(double points)
{
    QFont font("DejaVu Sans");
    font.setPointSizeF(points);
    QApplication::setFont(font);
}

/** As the program does, but without a new process: so the toolkit enlarges nothing here. */
void LetterScaleTest::startAnew()
{
    const QList<QByteArray> lines = LetterScale::wanted();
    for (const QByteArray& line : lines)
        qputenv(line.split('=').value(0).constData(), line.split('=').value(1));
}

void LetterScaleTest::enlargesForLargeLetters_data()
{
    QTest::addColumn<double>("pixels");
    QTest::addColumn<double>("factor");
    QTest::newRow("unknown") << 0. << 1.;
    QTest::newRow("small") << 9. << 1.;
    QTest::newRow("as the pages want them") << 12. << 1.;
    QTest::newRow("drawn as such") << 12.4 << 1.;
    QTest::newRow("drawn larger") << 12.6 << 1.05;
    QTest::newRow("large") << 18. << 1.5;
    QTest::newRow("huge") << 48. << 4.;
}

void LetterScaleTest::enlargesForLargeLetters()
{
    QFETCH(double, pixels);
    QTEST(LetterScale::factorFor(pixels), "factor");
}

void LetterScaleTest::followsTheDesktopsFont_data()
{
    QTest::addColumn<QString>("font");
    QTest::addColumn<bool>("isEnlarged");
    QTest::newRow("small") << "DejaVu Sans,8" << false;
    QTest::newRow("large") << "DejaVu Sans,14" << true;
    QTest::newRow("large, in pixels") << "DejaVu Sans,-1,30,5,50,0,0,0,0,0" << false;
}

void LetterScaleTest::followsTheDesktopsFont()
{
    QFETCH(QString, font);
    QFETCH(bool, isEnlarged);
    QFont desktops;
    QVERIFY(desktops.fromString(font));
    QApplication::setFont(desktops);
    QCOMPARE(!LetterScale::wanted().isEmpty(), isEnlarged);
}

void LetterScaleTest::leavesToTheUserWhatWasAskedFor_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char* name : variables)
        QTest::newRow(name) << QByteArray(name);
}

void LetterScaleTest::leavesToTheUserWhatWasAskedFor()
{
    QFETCH(QByteArray, name);
    useFont(14);
    QVERIFY(!LetterScale::wanted().isEmpty());
    qputenv(name.constData(), "1");
    QVERIFY(LetterScale::wanted().isEmpty());
    LetterScale::apply();
    QCOMPARE(qgetenv(name.constData()), "1");
    QCOMPARE(QApplication::font().pointSizeF(), 14.);
}

void LetterScaleTest::isAskedForOnce()
{
    useFont(14);
    startAnew();
    QVERIFY(qgetenv("QT_SCALE_FACTOR").toDouble() > 1.5);
    QVERIFY(LetterScale::wanted().isEmpty());
}

void LetterScaleTest::makesLettersFit_data()
{
    QTest::addColumn<double>("points");
    for (const double points : {10., 14., 24., 72.})
        QTest::newRow(QByteArray::number(points).constData()) << points;
}

void LetterScaleTest::makesLettersFit()
{
    QFETCH(double, points);
    useFont(points);
    startAnew();
    const double factor = qgetenv("QT_SCALE_FACTOR").toDouble();
    LetterScale::apply();
    QCOMPARE(QFontInfo(QApplication::font()).pixelSize(), 12);
    // On the screen they are what they were.
    QVERIFY(std::abs(QApplication::font().pointSizeF() * factor - points) < 0.1);
}

void LetterScaleTest::keepsTheFontsOfClassesApart()
{
    useFont(14);
    QFont bold("DejaVu Sans", 28);
    bold.setBold(true);
    QApplication::setFont(bold, "QMenu");
    startAnew();
    LetterScale::apply();
    QVERIFY(QApplication::font("QMenu").bold());
    QCOMPARE(QApplication::font("QMenu").pointSizeF(), 2 * QApplication::font().pointSizeF());
    QVERIFY(!QApplication::font("QLabel").bold());
    QCOMPARE(QFontInfo(QApplication::font("QLabel")).pixelSize(), 12);
}

void LetterScaleTest::isForgottenForOthers()
{
    useFont(14);
    startAnew();
    LetterScale::apply();
    QVERIFY(!qEnvironmentVariableIsSet(own));
    QVERIFY(!qEnvironmentVariableIsSet("QT_SCALE_FACTOR"));
    // Nor is it done a second time.
    LetterScale::apply();
    QCOMPARE(QFontInfo(QApplication::font()).pixelSize(), 12);
}

REGISTER_TEST(LetterScaleTest)
#include "LetterScaleTest.moc"
