// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What is written comes back: every character that XML allows, in every field.

#include "StoreFixture.h"
#include "Test.h"

using namespace StoreFixture;

namespace
{
/** A record with text in every field but the one that must be "1" to be read. */
QuickLinkRecord filledWith(const QString& text)
{
    QuickLinkRecord record;
    record.id = record.name = record.url = record.startconnect = record.startmobile = text;
    record.type = record.para = record.delete_ = record.edit = text;
    return record;
}

/** Whether XML allows the character. */
bool isAllowed(uint code)
{
    return code == 0x9 || code == 0xa || code == 0xd || (code >= 0x20 && code <= 0xd7ff) ||
           (code >= 0xe000 && code <= 0xfffd) || (code >= 0x10000 && code <= 0x10ffff);
}
} // namespace

class StoreRoundtripTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void textInAllFields_data();
    void textInAllFields();
    void textInOneField_data();
    void textInOneField();
    void everyCharacter_data();
    void everyCharacter();
    void counterText_data();
    void counterText();
    void orderAndCount();
    void writtenTwiceIsTheSame();
};

void StoreRoundtripTest::textInAllFields_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("letters") << "letters";
    QTest::newRow("ampersand") << "R&D";
    QTest::newRow("double quote") << "\"quoted\"";
    QTest::newRow("single quote") << "it's";
    QTest::newRow("less-than") << "a<b";
    QTest::newRow("greater-than") << "a>b";
    QTest::newRow("end of character data") << "]]>";
    QTest::newRow("an element") << "<item visible='0'/>";
    QTest::newRow("the end of the menu") << "\"/></menu></tovadoc>";
    QTest::newRow("a comment") << "<!-- x -->";
    QTest::newRow("a reference") << "&amp;";
    QTest::newRow("a character reference") << "&#9;&#x41;";
    QTest::newRow("tab") << "a\tb";
    QTest::newRow("line feed") << "a\nb";
    QTest::newRow("carriage return") << "a\rb";
    QTest::newRow("carriage return and line feed") << "a\r\nb";
    QTest::newRow("only white space") << " \t\n ";
    QTest::newRow("one blank") << " ";
    QTest::newRow("blanks around") << "  a  b  ";
    QTest::newRow("format characters") << "%s%n%1";
    QTest::newRow("backslash") << QString("C:\\x\\n");
    QTest::newRow("next line and line separator") << QString::fromUtf8("a\xc2\x85\xe2\x80\xa8z");
    QTest::newRow("no-break blank") << QString::fromUtf8("a\xc2\xa0z");
    QTest::newRow("accents") << QString::fromUtf8("\xc3\xa9 and e\xcc\x81");
    QTest::newRow("right to left") << QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d");
    QTest::newRow("Chinese") << QString::fromUtf8("\xe9\x93\xbe\xe6\x8e\xa5");
    QTest::newRow("astral") << QString::fromUtf8("\xf0\x9f\x94\x97 \xf0\x90\x80\x80");
    QTest::newRow("last before the surrogates") << codePoint(0xd7ff);
    QTest::newRow("first after the surrogates") << codePoint(0xe000);
    QTest::newRow("replacement character") << codePoint(0xfffd);
    QTest::newRow("last that may be exchanged") << codePoint(0x10fffd);
    QTest::newRow("byte order mark") << "a" + codePoint(0xfeff);
    QTest::newRow("long") << QString(100000, 'x');
    QTest::newRow("long and escaped") << QString(100000, '&');
}

void StoreRoundtripTest::textInAllFields()
{
    QFETCH(QString, text);
    QuickLinkRecordList records(1, filledWith(text));
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    const QByteArray written = FakeHost::instance().readConfig();
    const QByteArray expected = configDocument("1", QString(), {records.at(0)});
    QVERIFY2(written == expected, written.left(2000).constData());
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QCOMPARE(listDifference(*store()->m_recordList, records), QString());
}

void StoreRoundtripTest::textInOneField_data()
{
    QTest::addColumn<int>("index");
    const char* const names[] = {"id",   "name", "url",    "startconnect", "startmobile",
                                 "type", "para", "delete", "edit",         "visible"};
    for (int i = 0; i < 10; ++i)
        QTest::newRow(names[i]) << i;
}

void StoreRoundtripTest::textInOneField()
{
    QFETCH(int, index);
    QString QuickLinkRecord::*const fields[] = {
        &QuickLinkRecord::id,          &QuickLinkRecord::name,   &QuickLinkRecord::url,  &QuickLinkRecord::startconnect,
        &QuickLinkRecord::startmobile, &QuickLinkRecord::type,   &QuickLinkRecord::para, &QuickLinkRecord::delete_,
        &QuickLinkRecord::edit,        &QuickLinkRecord::visible};
    const bool isVisible = fields[index] == &QuickLinkRecord::visible;
    QuickLinkRecord record = filledWith("other");
    record.*fields[index] = isVisible ? "1" : "<\"this\">\t\n&";
    QuickLinkRecordList records(1, record);
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QCOMPARE(listDifference(*store()->m_recordList, records), QString());
}

void StoreRoundtripTest::everyCharacter_data()
{
    QTest::addColumn<uint>("plane");
    for (uint plane = 0; plane <= 0x10; ++plane)
        QTest::newRow(QByteArray("plane " + QByteArray::number(plane)).constData()) << plane;
}

void StoreRoundtripTest::everyCharacter()
{
    QFETCH(uint, plane);
    // One link for each 256 characters, so that a loss is easy to find.
    QuickLinkRecordList records;
    for (uint block = plane << 16; block < (plane + 1) << 16; block += 0x100) {
        QString text;
        for (uint code = block; code < block + 0x100; ++code) {
            if (isAllowed(code) && isWritable(code))
                text += codePoint(code);
        }
        records.append(makeRecord("x", "internet", "u"));
        records.last().id = QString::number(block, 16);
        records.last().name = text;
    }
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QCOMPARE(listDifference(*store()->m_recordList, records), QString());
}

void StoreRoundtripTest::counterText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("number") << "12";
    QTest::newRow("empty") << "";
    QTest::newRow("letters") << "letters";
    QTest::newRow("markup") << "<&>\"'";
    QTest::newRow("blanks") << " 7 ";
}

void StoreRoundtripTest::counterText()
{
    QFETCH(QString, text);
    QuickLinkRecordList records;
    store()->m_currentId = text;
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    store()->m_currentId = "other";
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QCOMPARE(store()->m_currentId, text);
}

void StoreRoundtripTest::orderAndCount()
{
    QuickLinkRecordList records;
    for (int i = 0; i < 5000; ++i)
        records.append(filledWith(QString::number(i * 7919 % 5000)));
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QCOMPARE(listDifference(*store()->m_recordList, records), QString());
}

void StoreRoundtripTest::writtenTwiceIsTheSame()
{
    QuickLinkRecordList records(3, filledWith("a<b & c"));
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    const QByteArray first = FakeHost::instance().readConfig();
    QVERIFY(!first.isEmpty());
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QCOMPARE(store()->SaveToConfigFile(store()->m_recordList, 1), 0);
    QCOMPARE(FakeHost::instance().readConfig(), first);
}

REGISTER_TEST(StoreRoundtripTest)
#include "StoreRoundtripTest.moc"
