// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The written document, and what a save leaves alone.

#include <unistd.h>

#include "StoreFixture.h"
#include "Test.h"

using namespace StoreFixture;

class StoreWriterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void documentOfTwoLinks();
    void documentOfAnyList_data();
    void documentOfAnyList();
    void attributesInFileOrder();
    void nothingElseChanges_data();
    void nothingElseChanges();
    void visibleBecomesOne_data();
    void visibleBecomesOne();
    void hiddenLinkIsWrittenButNotReadBack();
    void oldFileIsReplaced_data();
    void oldFileIsReplaced();
    void oldFileIsRemovedNotOverwritten();
    void linkInPlaceOfFileIsRemoved();
    void nothingElseLiesInTheFolder();
    void noRecords_data();
    void noRecords();
    void traceOfSave();
};

void StoreWriterTest::documentOfTwoLinks()
{
    QuickLinkRecord portal = makeRecord("Portal", "internet", "http://portal.example.org/?a=1&b=2");
    portal.id = "0";
    portal.startconnect = "1";
    QuickLinkRecord editor = makeRecord("Editor", "application", "/usr/bin/editor");
    editor.id = "1";
    editor.para = "--new \"a b\"";
    QuickLinkRecordList records;
    records << portal << editor;
    store()->m_currentId = "2";

    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    const QByteArray expected =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<tovadoc type=\"config\">\n"
        "    <function>\n"
        "        <Visible>1</Visible>\n"
        "        <CurrentID>2</CurrentID>\n"
        "    </function>\n"
        "    <type>\n"
        "        <item id=\" 0\" name=\"IDS_LINK_TYPE_APPLICATION\"/>\n"
        "        <item id=\" 1\" name=\"IDS_LINK_TYPE_E_MAIL\"/>\n"
        "        <item id=\" 2\" name=\"IDS_LINK_TYPE_INTERNET\"/>\n"
        "    </type>\n"
        "    <menu parent=\"quicklink\">\n"
        "        <item id=\"0\" name=\"Portal\" type=\"IDS_LINK_TYPE_INTERNET\""
        " url=\"http://portal.example.org/?a=1&amp;b=2\" para=\"\""
        " startconnect=\"1\" startmobile=\"0\" delete=\"1\" edit=\"1\" visible=\"1\"/>\n"
        "        <item id=\"1\" name=\"Editor\" type=\"IDS_LINK_TYPE_APPLICATION\" url=\"/usr/bin/editor\""
        " para=\"--new &quot;a b&quot;\""
        " startconnect=\"0\" startmobile=\"0\" delete=\"1\" edit=\"1\" visible=\"1\"/>\n"
        "    </menu>\n"
        "</tovadoc>\n";
    QCOMPARE(FakeHost::instance().readConfig(), expected);
    QCOMPARE(configDocument("1", "2", {portal, editor}), expected);
}

void StoreWriterTest::documentOfAnyList_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("counter");
    QTest::newRow("no link") << 0 << "0";
    QTest::newRow("no link, no counter") << 0 << "";
    QTest::newRow("one link") << 1 << "1";
    QTest::newRow("a thousand links") << 1000 << "1000";
    QTest::newRow("a counter of letters") << 1 << "letters";
    QTest::newRow("a counter of markup") << 1 << "<&>";
}

void StoreWriterTest::documentOfAnyList()
{
    QFETCH(int, count);
    QFETCH(QString, counter);
    QuickLinkRecordList records;
    QList<QuickLinkRecord> expected;
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(i);
        records.append(numbered(number.constData(), "a link & more"));
        expected.append(records.last());
    }
    store()->m_currentId = counter;
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    QCOMPARE(FakeHost::instance().readConfig(), configDocument("1", counter, expected));
}

void StoreWriterTest::attributesInFileOrder()
{
    QuickLinkRecord record = makeRecord("N", "T", "U");
    record.id = "I";
    record.para = "P";
    record.startconnect = "C";
    record.startmobile = "M";
    record.delete_ = "D";
    record.edit = "E";
    record.visible = "V";
    QuickLinkRecordList records(1, record);
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    const QByteArray expected = "<item id=\"I\" name=\"N\" type=\"T\" url=\"U\" para=\"P\" startconnect=\"C\" "
                                "startmobile=\"M\" delete=\"D\" edit=\"E\" visible=\"V\"/>";
    QVERIFY2(FakeHost::instance().readConfig().contains(expected), FakeHost::instance().readConfig().constData());
}

void StoreWriterTest::nothingElseChanges_data()
{
    QTest::addColumn<int>("keepCurrentId");
    QTest::newRow("appended") << 0;
    QTest::newRow("not appended") << 1;
}

void StoreWriterTest::nothingElseChanges()
{
    QFETCH(int, keepCurrentId);
    readBytes(document("<Visible>x</Visible><CurrentID>5</CurrentID><menu><item name='a' visible='1'/></menu>"));
    QuickLinkRecordList* const list = store()->m_recordList;
    const QuickLinkRecordList copy = *list;
    const QuickLinkRecord scratch = store()->m_currentRecord;
    QCOMPARE(store()->SaveToConfigFile(list, keepCurrentId), 0);
    QCOMPARE(store()->m_recordList, list);
    // Still shared with the copy, so nobody wrote to it.
    QCOMPARE(list->constData(), copy.constData());
    QCOMPARE(difference(copy.at(0), list->at(0)), QString());
    QCOMPARE(difference(store()->m_currentRecord, scratch), QString());
    QCOMPARE(store()->m_visible, "x");
    QCOMPARE(store()->m_currentId, keepCurrentId == 0 ? "6" : "5");
}

void StoreWriterTest::visibleBecomesOne_data()
{
    QTest::addColumn<QString>("visible");
    QTest::newRow("0") << "0";
    QTest::newRow("1") << "1";
    QTest::newRow("empty") << "";
    QTest::newRow("a word") << "word";
}

void StoreWriterTest::visibleBecomesOne()
{
    QFETCH(QString, visible);
    QuickLinkRecordList records;
    store()->m_visible = visible;
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    QCOMPARE(store()->m_visible, visible);
    QCOMPARE(FakeHost::instance().readConfig(), configDocument("1", QString(), {}));
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QCOMPARE(store()->m_visible, "1");
}

void StoreWriterTest::hiddenLinkIsWrittenButNotReadBack()
{
    QuickLinkRecordList records;
    records << numbered("0", "a") << numbered("1", "hidden") << numbered("2", "c");
    records[1].visible = "0";
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    QVERIFY(FakeHost::instance().readConfig().contains("name=\"hidden\""));
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QCOMPARE(names(), "a,c");
    QCOMPARE(store()->SaveToConfigFile(store()->m_recordList, 1), 0);
    QVERIFY(!FakeHost::instance().readConfig().contains("name=\"hidden\""));
}

void StoreWriterTest::oldFileIsReplaced_data()
{
    QTest::addColumn<QByteArray>("old");
    QTest::newRow("longer") << QByteArray(100000, 'x');
    QTest::newRow("shorter") << QByteArray("x");
    QTest::newRow("empty") << QByteArray();
}

void StoreWriterTest::oldFileIsReplaced()
{
    QFETCH(QByteArray, old);
    QVERIFY(FakeHost::instance().writeConfig(old));
    QuickLinkRecordList records(1, numbered("0", "a"));
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    QCOMPARE(FakeHost::instance().readConfig(), configDocument("1", QString(), {records.at(0)}));
}

void StoreWriterTest::oldFileIsRemovedNotOverwritten()
{
    FakeHost& host = FakeHost::instance();
    QVERIFY(host.writeConfig("old bytes"));
    const QString otherName = host.userFolder + "/other";
    QCOMPARE(::link(QFile::encodeName(host.configPath()).constData(), QFile::encodeName(otherName).constData()), 0);
    QuickLinkRecordList records;
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    QFile other(otherName);
    QVERIFY(other.open(QIODevice::ReadOnly));
    QCOMPARE(other.readAll(), "old bytes");
}

void StoreWriterTest::linkInPlaceOfFileIsRemoved()
{
    FakeHost& host = FakeHost::instance();
    const QString target = host.userFolder + "/target";
    QFile file(target);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("old bytes") == 9);
    file.close();
    QVERIFY(QFile::link(target, host.configPath()));
    QuickLinkRecordList records;
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    QVERIFY(!QFileInfo(host.configPath()).isSymLink());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "old bytes");
}

void StoreWriterTest::nothingElseLiesInTheFolder()
{
    QuickLinkRecordList records(1, numbered("0", "a"));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(store()->SaveToConfigFile(&records, 0), 0);
    const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    QCOMPARE(QDir(FakeHost::instance().configFolder()).entryList(all), QStringList("config.xml"));
    QCOMPARE(QDir(FakeHost::instance().userFolder).entryList(all), QStringList("plugins"));
}

void StoreWriterTest::noRecords_data()
{
    QTest::addColumn<bool>("hasFile");
    QTest::addColumn<int>("keepCurrentId");
    QTest::newRow("file, appended") << true << 0;
    QTest::newRow("file, not appended") << true << 1;
    QTest::newRow("no file, appended") << false << 0;
    QTest::newRow("no file, not appended") << false << 1;
}

void StoreWriterTest::noRecords()
{
    QFETCH(bool, hasFile);
    QFETCH(int, keepCurrentId);
    FakeHost& host = FakeHost::instance();
    if (hasFile)
        QVERIFY(host.writeConfig("old bytes"));
    store()->m_currentId = "7";
    RecordingTrace trace;
    QCOMPARE(store()->SaveToConfigFile(nullptr, keepCurrentId), 15);
    QCOMPARE(QFile::exists(host.configPath()), hasFile);
    QCOMPARE(host.readConfig(), hasFile ? QByteArray("old bytes") : QByteArray());
    QCOMPARE(store()->m_currentId, "7");
    QCOMPARE(trace.debugDifference(writerLines().mid(0, 1)), QString());
}

void StoreWriterTest::traceOfSave()
{
    QuickLinkRecordList records(2, numbered("0", "a"));
    RecordingTrace trace;
    QCOMPARE(store()->SaveToConfigFile(&records, 0), 0);
    QCOMPARE(trace.debugDifference(writerLines()), QString());
    QCOMPARE(trace.warningLines, QStringList());
}

REGISTER_TEST(StoreWriterTest)
#include "StoreWriterTest.moc"
