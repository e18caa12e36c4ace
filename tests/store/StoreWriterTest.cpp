// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The written document and the numbering of links.


#include <climits>
#include <unistd.h>

#include "StoreFixture.h"
#include "Test.h"

using namespace StoreFixture;

namespace
{
QuickLinkRecord numbered(const char* id, const char* name)
{
    QuickLinkRecord record = makeRecord(name, "internet", "www.example.org");
    record.id = QLatin1String(id);
    return record;
}

/** What the settings page does for New: append, save with 0, read back. */
void addLink(const char* name)
{
    store()->m_recordList->append(makeRecord(name, "internet", "www.example.org"));
    store()->SaveToConfigFile(store()->m_recordList, 0);
    store()->ReadXmlInformation();
}

QString idsInMemory()
{
    QStringList ids;
    for (const QuickLinkRecord& record : *store()->m_recordList)
        ids.append(record.id);
    return ids.join(",");
}
} // namespace

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
    void numbering_data();
    void numbering();
    void counterAtTheEndOfItsRange();
    void onlyEmptyIdsAreNumbered();
    void twoSavesAdvanceTwice();
    void nothingElseChanges_data();
    void nothingElseChanges();
    void visibleBecomesOne_data();
    void visibleBecomesOne();
    void hiddenLinkIsWrittenButNotReadBack();
    void idsOfNewLinks();
    void deletedIdIsNotUsedAgain();
    void editedLinkSharesAnId();
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

void StoreWriterTest::numbering_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("keepCurrentId");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("id");
    QTest::newRow("no counter yet") << "" << 0 << "1" << "0";
    QTest::newRow("no counter yet, kept") << "" << 1 << "" << "-1";
    QTest::newRow("0") << "0" << 0 << "1" << "0";
    QTest::newRow("0, kept") << "0" << 1 << "0" << "-1";
    QTest::newRow("7") << "7" << 0 << "8" << "7";
    QTest::newRow("7, kept") << "7" << 1 << "7" << "6";
    QTest::newRow("7, kept by 2") << "7" << 2 << "7" << "6";
    QTest::newRow("7, kept by -1") << "7" << -1 << "7" << "6";
    QTest::newRow("7, kept by the least number")
        << "7" << INT_MIN << "7" << "6";
    QTest::newRow("letters") << "letters" << 0 << "1" << "0";
    QTest::newRow("letters, kept") << "letters" << 1 << "letters"
                                   << "-1";
    QTest::newRow("number and letters") << "12x" << 0 << "1" << "0";
    QTest::newRow("hexadecimal") << "0x10" << 0 << "1" << "0";
    QTest::newRow("a fraction") << "1.5" << 0 << "1" << "0";
    QTest::newRow("an exponent") << "1e3" << 0 << "1" << "0";
    QTest::newRow("zeros before") << "007" << 0 << "8" << "7";
    QTest::newRow("zeros before, kept") << "007" << 1 << "007" << "6";
    QTest::newRow("negative") << "-5" << 0 << "-4" << "-5";
    QTest::newRow("-1") << "-1" << 0 << "0" << "-1";
    QTest::newRow("end of 32 bits") << "2147483647" << 0 << "2147483648"
                                    << "2147483647";
    QTest::newRow("beyond 32 bits") << "4294967296" << 0 << "4294967297"
                                    << "4294967296";
    QTest::newRow("beyond 64 bits") << "99999999999999999999" << 0 << "1"
                                    << "0";
}

void StoreWriterTest::numbering()
{
    QFETCH(QString, before);
    QFETCH(int, keepCurrentId);
    QFETCH(QString, after);
    QFETCH(QString, id);
    store()->m_currentId = before;
    QuickLinkRecordList records;
    records << numbered("3", "first") << makeRecord("second", "email", "mailto:");
    QCOMPARE(store()->SaveToConfigFile(&records, keepCurrentId), 0);
    QCOMPARE(store()->m_currentId, after);
    QuickLinkRecord written = records.at(1);
    written.id = id;
    QCOMPARE(FakeHost::instance().readConfig(), configDocument("1", after, {records.at(0), written}));
    QCOMPARE(records.at(1).id, QString());
}

void StoreWriterTest::counterAtTheEndOfItsRange()
{
    store()->m_currentId = QString::number(LLONG_MAX);
    QuickLinkRecordList records(1, makeRecord("a", "internet", "www.example.org"));
    QCOMPARE(store()->SaveToConfigFile(&records, 0), 0);
    QVERIFY(FakeHost::instance().readConfig().contains("<item id=\"9223372036854775807\" name=\"a\""));
}

void StoreWriterTest::onlyEmptyIdsAreNumbered()
{
    store()->m_currentId = "9";
    QuickLinkRecordList records;
    records << makeRecord("a", "internet", "u") << numbered("4", "b") << makeRecord("c", "internet", "u")
            << numbered(" ", "d");
    QCOMPARE(store()->SaveToConfigFile(&records, 0), 0);
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QCOMPARE(idsInMemory(), "9,4,9, ");
}

void StoreWriterTest::twoSavesAdvanceTwice()
{
    QuickLinkRecordList records(1, numbered("0", "a"));
    store()->m_currentId = "1";
    store()->SaveToConfigFile(&records, 0);
    store()->SaveToConfigFile(&records, 0);
    QCOMPARE(store()->m_currentId, "3");
    QCOMPARE(FakeHost::instance().readConfig(),
             configDocument("1", "3", {records.at(0)}));
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

void StoreWriterTest::idsOfNewLinks()
{
    QCOMPARE(store()->ReadXmlInformation(), 3);
    addLink("a");
    QCOMPARE(idsInMemory(), "0");
    QCOMPARE(store()->m_currentId, "1");
    addLink("b");
    addLink("c");
    QCOMPARE(idsInMemory(), "0,1,2");
    QCOMPARE(store()->m_currentId, "3");
}

void StoreWriterTest::deletedIdIsNotUsedAgain()
{
    store()->ReadXmlInformation();
    for (const char* name : {"a", "b", "c"})
        addLink(name);
    store()->m_recordList->remove(1);
    QCOMPARE(store()->SaveToConfigFile(store()->m_recordList, 1), 0);
    addLink("d");
    QCOMPARE(names(), "a,c,d");
    QCOMPARE(idsInMemory(), "0,2,3");
}

void StoreWriterTest::editedLinkSharesAnId()
{
    store()->ReadXmlInformation();
    for (const char* name : {"a", "b", "c"})
        addLink(name);
    store()->m_recordList->replace(0, makeRecord("edited", "internet", "u"));
    QCOMPARE(store()->SaveToConfigFile(store()->m_recordList, 1), 0);
    QVERIFY(FakeHost::instance().readConfig().contains("<item id=\"2\" name=\"edited\""));
    QCOMPARE(idsInMemory(), ",1,2");
    addLink("d");
    QCOMPARE(idsInMemory(), "3,1,2,3");
    QCOMPARE(store()->m_currentId, "4");
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
    QCOMPARE(other.readAll(), QByteArray("old bytes"));
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
    QCOMPARE(file.readAll(), QByteArray("old bytes"));
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
    QCOMPARE(trace.debugDifference(QStringList(stampedLine(" : ", "SaveToConfigFile", "Entered"))), QString());
}

void StoreWriterTest::traceOfSave()
{
    QuickLinkRecordList records(2, numbered("0", "a"));
    RecordingTrace trace;
    QCOMPARE(store()->SaveToConfigFile(&records, 0), 0);
    QCOMPARE(trace.debugDifference(QStringList() << stampedLine(" : ", "SaveToConfigFile", "Entered")
                                                 << stampedLine(" : ", "SaveToConfigFile", "Exit")),
             QString());
    QCOMPARE(trace.warningLines, QStringList());
}

REGISTER_TEST(StoreWriterTest)
#include "StoreWriterTest.moc"
