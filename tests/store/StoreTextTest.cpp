// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the file cannot hold is left out of it, and costs nothing else: not the rest of its field, not another link.

#include "StoreText.h"
#include "StoreFixture.h"
#include "Test.h"

using namespace StoreFixture;

namespace
{
QString QuickLinkRecord::*const fields[] = {
    &QuickLinkRecord::id,          &QuickLinkRecord::name,   &QuickLinkRecord::url,  &QuickLinkRecord::startconnect,
    &QuickLinkRecord::startmobile, &QuickLinkRecord::type,   &QuickLinkRecord::para, &QuickLinkRecord::delete_,
    &QuickLinkRecord::edit,        &QuickLinkRecord::visible};

QString unit(uint code)
{
    return QString(QChar(static_cast<ushort>(code)));
}

/** Whether the file can hold the character that one unit makes. */
bool isHeld(uint code)
{
    return code == 0x9 || code == 0xa || code == 0xd || (code >= 0x20 && code <= 0xd7ff) ||
           (code >= 0xe000 && code <= 0xfffd);
}
} // namespace

class StoreTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void text_data();
    void text();
    void everyField_data() { text_data(); }
    void everyField();
    void everyUnit_data();
    void everyUnit();
    void everyPlace();
    void nameCutInsideAnEmoji();
    void counter();
    void recordsInMemoryStay();
    void noTrace();
};

void StoreTextTest::text_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const QString high = unit(0xd83d);
    const QString low = unit(0xdd17);
    const QString emoji = high + low;
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("letters") << "letters"
                             << "letters";
    QTest::newRow("emoji") << emoji << emoji;
    QTest::newRow("letters beyond U+7FFF") << codePoint(0x94fe) + codePoint(0xac00) + codePoint(0xff21)
                                           << codePoint(0x94fe) + codePoint(0xac00) + codePoint(0xff21);
    QTest::newRow("first half") << high << "";
    QTest::newRow("second half") << low << "";
    QTest::newRow("halves the wrong way round") << low + high << "";
    QTest::newRow("first half at the end") << "ab" + high << "ab";
    QTest::newRow("first half in the middle") << "a" + high + "b"
                                              << "ab";
    QTest::newRow("first half at the beginning") << high + "ab"
                                                 << "ab";
    QTest::newRow("second half in the middle") << "a" + low + "b"
                                               << "ab";
    QTest::newRow("first half before an emoji") << high + emoji << emoji;
    QTest::newRow("second half behind an emoji") << emoji + low << emoji;
    QTest::newRow("halves of two emoji") << emoji + high + "x" + low + emoji << emoji + "x" + emoji;
    QTest::newRow("control characters") << unit(0) + "a" + unit(1) + unit(0x1f) + "b" + unit(0xb) << "ab";
    QTest::newRow("white space") << "\ta\nb\rc"
                                 << "\ta\nb\rc";
    QTest::newRow("U+FFFE and U+FFFF") << "a" + unit(0xfffe) + unit(0xffff) + "b"
                                       << "ab";
    QTest::newRow("U+FFFD") << unit(0xfffd) << unit(0xfffd);
    QTest::newRow("markup around a half") << "<\"" + high + "&\">"
                                          << "<\"&\">";
}

void StoreTextTest::text()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(StoreText::isWritable(text), text == expected);
    QCOMPARE(StoreText::writable(text), expected);
    QVERIFY(StoreText::isWritable(expected));
}

void StoreTextTest::everyField()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    // A link for each field, with another before and behind. A link whose visible is not exactly "1" is not read.
    QuickLinkRecordList records;
    QuickLinkRecordList expectedRecords;
    const QuickLinkRecord other = numbered("7", "other");
    for (QString QuickLinkRecord::*const field : fields) {
        QuickLinkRecord record = other;
        record.*field = "1" + text;
        records << other << record << other;
        record.*field = "1" + expected;
        expectedRecords << other;
        if (isSet(record.visible))
            expectedRecords << record;
        expectedRecords << other;
    }
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QCOMPARE(listDifference(*store()->m_recordList, expectedRecords), QString());
}

void StoreTextTest::everyUnit_data()
{
    QTest::addColumn<uint>("first");
    QTest::addColumn<uint>("last");
    QTest::newRow("control characters and ASCII") << 0x0u << 0xffu;
    QTest::newRow("around the surrogates") << 0xd700u << 0xe0ffu;
    QTest::newRow("where units end") << 0xfd00u << 0xffffu;
}

void StoreTextTest::everyUnit()
{
    QFETCH(uint, first);
    QFETCH(uint, last);
    QuickLinkRecordList records;
    QuickLinkRecordList expected;
    for (uint code = first; code <= last; ++code) {
        if (isHeld(code) && !isWritable(code))
            continue;
        QuickLinkRecord record = numbered("7", "");
        record.name = "a" + unit(code) + "b";
        records.append(record);
        if (!isHeld(code))
            record.name = "ab";
        expected.append(record);
    }
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QCOMPARE(listDifference(*store()->m_recordList, expected), QString());
}

void StoreTextTest::everyPlace()
{
    // Texts are looked through in pieces: no place of a piece is left out.
    for (int size = 1; size <= 13; ++size) {
        for (int place = 0; place < size; ++place) {
            for (const uint code : {0x0u, 0x1fu, 0xd800u, 0xdfffu, 0xffffu}) {
                QString text(size, 'a');
                text[place] = QChar(static_cast<ushort>(code));
                QVERIFY(!StoreText::isWritable(text));
                QCOMPARE(StoreText::writable(text), QString(size - 1, 'a'));
            }
        }
    }
}

void StoreTextTest::nameCutInsideAnEmoji()
{
    const QString whole = QString(48, 'n') + codePoint(0x1f517);
    QuickLinkRecordList records;
    records << numbered("0", "first") << numbered("1", "") << numbered("2", "last");
    records[1].name = whole.left(49);
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    records[1].name = QString(48, 'n');
    QCOMPARE(FakeHost::instance().readConfig(),
             configDocument("1", QString(), {records.at(0), records.at(1), records.at(2)}));
}

void StoreTextTest::counter()
{
    QuickLinkRecordList records(1, numbered("0", "a"));
    store()->m_currentId = "4" + unit(0xd83d) + "2";
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    QCOMPARE(FakeHost::instance().readConfig(), configDocument("1", "42", {records.at(0)}));
    QCOMPARE(store()->m_currentId, "4" + unit(0xd83d) + "2");
}

void StoreTextTest::recordsInMemoryStay()
{
    QuickLinkRecordList records(1, numbered("0", "a"));
    records[0].name = "a" + unit(0xd83d);
    const QuickLinkRecordList copy = records;
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    // Still shared with the copy, so nobody wrote to it.
    QCOMPARE(records.constData(), copy.constData());
    QCOMPARE(records.at(0).name, "a" + unit(0xd83d));
}

void StoreTextTest::noTrace()
{
    QuickLinkRecordList records(1, numbered("0", "a"));
    records[0].name = unit(0xd83d) + unit(1) + unit(0xffff);
    RecordingTrace trace;
    QCOMPARE(store()->SaveToConfigFile(&records, 0), 0);
    QCOMPARE(trace.debugDifference(writerLines()), QString());
    QCOMPARE(trace.warningLines, QStringList());
}

REGISTER_TEST(StoreTextTest)
#include "StoreTextTest.moc"
