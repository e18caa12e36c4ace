// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Texts of others, made fit to be shown.

#include <QApplication>

#include "ShownText.h"
#include "Test.h"

class ShownTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QApplication::setLayoutDirection(Qt::LeftToRight); }

    void standsOnOneLine_data();
    void standsOnOneLine();
    void losesItsDirections_data();
    void losesItsDirections();
    void keepsTheMarksOfLetters();
    void isShortened_data();
    void isShortened();
    void neverCutsACharacter();
    void isShortenedOnOneLine();
    void isWholeInAToolTip_data();
    void isWholeInAToolTip();
    void standsBelowItsMessage();
    void keepsItsOrder_data();
    void keepsItsOrder();
    void isCopiedWithoutSigns();
};

void ShownTextTest::standsOnOneLine_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("usual") << "My Web Mail"
                           << "My Web Mail";
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("line feed") << "a\nb"
                               << "a b";
    QTest::newRow("both ends of a line") << "a\r\nb"
                                         << "a  b";
    QTest::newRow("tab") << "a\tb"
                         << "a b";
    QTest::newRow("escape") << "\033[31mred"
                            << " [31mred";
    QTest::newRow("zero") << QString(QChar(0)) << " ";
    QTest::newRow("delete") << "a\177"
                            << "a ";
    QTest::newRow("next line") << QString(QChar(0x85)) << " ";
    QTest::newRow("line separator") << QString(QChar(0x2028)) << " ";
    QTest::newRow("paragraph separator") << QString(QChar(0x2029)) << " ";
    QTest::newRow("beyond 16 bits") << QString::fromUtf8("\xf0\x9f\x93\xa7 Post")
                                    << QString::fromUtf8("\xf0\x9f\x93\xa7 Post");
    QTest::newRow("joined letters") << QString::fromUtf8("\xe2\x80\x8d") << QString::fromUtf8("\xe2\x80\x8d");
}

void ShownTextTest::standsOnOneLine()
{
    QFETCH(QString, name);
    QTEST(ShownText::onOneLine(name), "shown");
}

void ShownTextTest::losesItsDirections_data()
{
    QTest::addColumn<uint>("sign");
    QTest::newRow("left-to-right embedding") << 0x202au;
    QTest::newRow("right-to-left embedding") << 0x202bu;
    QTest::newRow("end of both") << 0x202cu;
    QTest::newRow("left-to-right override") << 0x202du;
    QTest::newRow("right-to-left override") << 0x202eu;
    QTest::newRow("left-to-right isolate") << 0x2066u;
    QTest::newRow("right-to-left isolate") << 0x2067u;
    QTest::newRow("first strong isolate") << 0x2068u;
    QTest::newRow("end of an isolate") << 0x2069u;
}

void ShownTextTest::losesItsDirections()
{
    QFETCH(uint, sign);
    QCOMPARE(ShownText::onOneLine("photo" + codePoint(sign) + "gpj.exe"), "photo gpj.exe");
}

void ShownTextTest::keepsTheMarksOfLetters()
{
    // Right-to-left mark, Arabic letter mark and joiner belong to how words are written.
    const QString text = codePoint(0x200f) + codePoint(0x061c) + codePoint(0x200d) + codePoint(0x2065);
    QCOMPARE(ShownText::onOneLine(text), text);
}

void ShownTextTest::isShortened_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("shown");
    QTest::newRow("empty") << 0 << 0;
    QTest::newRow("just short enough") << 120 << 120;
    QTest::newRow("too long by one") << 121 << 121; // its beginning and an ellipsis
    QTest::newRow("very long") << 100000 << 121;
}

void ShownTextTest::isShortened()
{
    QFETCH(int, length);
    QFETCH(int, shown);
    const QString text(length, 'x');
    const QString result = ShownText::shortLine(text);
    QCOMPARE(int(result.size()), shown);
    QCOMPARE(result.endsWith(QChar(0x2026)), length > 120);
    QCOMPARE(ShownText::detailsOf(text), length > 120 ? text : QString());
}

void ShownTextTest::neverCutsACharacter()
{
    const QString text = QString(119, 'x') + codePoint(0x1f4e7) + "yz";
    QCOMPARE(ShownText::shortLine(text), QString(119, 'x') + QChar(0x2026));
}

void ShownTextTest::isShortenedOnOneLine()
{
    QCOMPARE(ShownText::shortLine("a\nb" + codePoint(0x202e) + 'c'), "a b c");
    QCOMPARE(ShownText::shortLine(codePoint(0x202e) + "\tabc", 3), "  a" + QString(QChar(0x2026)));
    QCOMPARE(ShownText::shortLine("abc", 3), "abc");
}

void ShownTextTest::isWholeInAToolTip_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    const QString space = codePoint(0x200b), word(50, 'x'), mark = codePoint(0x0301), envelope = codePoint(0x1f4e7);
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("like markup") << "<b> & </b>"
                                 << "&lt;b&gt; &amp; &lt;/b&gt;";
    QTest::newRow("words that are not too long") << word + ' ' + word << word + ' ' + word;
    QTest::newRow("a long word") << word + word + 'y' << word + space + word + space + 'y';
    QTest::newRow("never within an accented letter") << word + mark + 'y' << word + mark + space + 'y';
    QTest::newRow("never within a character") << word.mid(1) + envelope << word.mid(1) + envelope;
}

void ShownTextTest::isWholeInAToolTip()
{
    QFETCH(QString, text);
    QString toolTip = ShownText::toolTip(text);
    QTEST(toolTip.remove("<p>").remove("</p>"), "shown");
}

void ShownTextTest::standsBelowItsMessage()
{
    QCOMPARE(ShownText::withSubject("Not found:", "/a"), "Not found:\n\n/a");
    // Whoever wrote it does not write the message.
    QCOMPARE(ShownText::withSubject("Not found:", "/a\n/b"), "Not found:\n\n/a /b");
    const QString turned = "photo" + codePoint(0x202e) + "gpj.exe";
    QCOMPARE(ShownText::withSubject("Not found:", turned), "Not found:\n\nphoto gpj.exe");
    const QString longest(200, 'x');
    QCOMPARE(ShownText::detailsOf(longest + '\n' + turned), longest + " photo gpj.exe");
}

void ShownTextTest::keepsItsOrder_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isIsolated");
    const QString alef = codePoint(0x0627), hebrewAlef = codePoint(0x05d0);
    QTest::newRow("nothing from right to left") << int(Qt::LeftToRight) << "/a" << false;
    QTest::newRow("in a program from right to left") << int(Qt::RightToLeft) << "/a" << true;
    QTest::newRow("with an Arabic letter") << int(Qt::LeftToRight) << "/a/" + alef << true;
    QTest::newRow("with a Hebrew letter") << int(Qt::LeftToRight) << "/a/" + hebrewAlef << true;
    QTest::newRow("nothing") << int(Qt::RightToLeft) << "" << false;
}

void ShownTextTest::keepsItsOrder()
{
    QFETCH(int, direction);
    QFETCH(QString, text);
    QFETCH(bool, isIsolated);
    QApplication::setLayoutDirection(Qt::LayoutDirection(direction));
    const QString path = isIsolated ? codePoint(0x2066) + text + codePoint(0x2069) : text;
    const QString name = isIsolated ? codePoint(0x2068) + text + codePoint(0x2069) : text;
    QCOMPARE(ShownText::isolatedPath(text), path);
    QCOMPARE(ShownText::isolatedName(text), name);
    QCOMPARE(ShownText::withSubject("Not found:", text), "Not found:\n\n" + path);
}

void ShownTextTest::isCopiedWithoutSigns()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    const QString both = ShownText::isolatedPath("/a") + ShownText::isolatedName("b");
    QCOMPARE(int(both.size()), 7);
    QCOMPARE(ShownText::withoutIsolates(both), "/ab");
    const QString longest(200, 'x');
    QCOMPARE(ShownText::withoutIsolates(ShownText::detailsOf(longest)), longest);
}

REGISTER_TEST(ShownTextTest)
#include "ShownTextTest.moc"
