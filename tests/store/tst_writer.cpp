// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The written document and the numbering of links.

#include <QtTest>

#include <climits>
#include <unistd.h>

#include "StoreFixture.h"

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
    return ids.join(QLatin1String(","));
}
} // namespace

class TestWriter : public QObject
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

void TestWriter::documentOfTwoLinks()
{
    QuickLinkRecord portal = makeRecord("Portal", "internet", "http://portal.example.org/?a=1&b=2");
    portal.id = QLatin1String("0");
    portal.startconnect = QLatin1String("1");
    QuickLinkRecord editor = makeRecord("Editor", "application", "/usr/bin/editor");
    editor.id = QLatin1String("1");
    editor.para = QLatin1String("--new \"a b\"");
    QuickLinkRecordList records;
    records << portal << editor;
    store()->m_currentId = QLatin1String("2");

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
    QCOMPARE(configDocument(QLatin1String("1"), QLatin1String("2"), {portal, editor}), expected);
}

void TestWriter::documentOfAnyList_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("counter");
    QTest::newRow("no link") << 0 << QStringLiteral("0");
    QTest::newRow("no link, no counter") << 0 << QStringLiteral("");
    QTest::newRow("one link") << 1 << QStringLiteral("1");
    QTest::newRow("a thousand links") << 1000 << QStringLiteral("1000");
    QTest::newRow("a counter of letters") << 1 << QStringLiteral("letters");
    QTest::newRow("a counter of markup") << 1 << QStringLiteral("<&>");
}

void TestWriter::documentOfAnyList()
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
    QCOMPARE(FakeHost::instance().readConfig(), configDocument(QLatin1String("1"), counter, expected));
}

void TestWriter::attributesInFileOrder()
{
    QuickLinkRecord record = makeRecord("N", "T", "U");
    record.id = QLatin1String("I");
    record.para = QLatin1String("P");
    record.startconnect = QLatin1String("C");
    record.startmobile = QLatin1String("M");
    record.delete_ = QLatin1String("D");
    record.edit = QLatin1String("E");
    record.visible = QLatin1String("V");
    QuickLinkRecordList records(1, record);
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    const QByteArray expected = "<item id=\"I\" name=\"N\" type=\"T\" url=\"U\" para=\"P\" startconnect=\"C\" "
                                "startmobile=\"M\" delete=\"D\" edit=\"E\" visible=\"V\"/>";
    QVERIFY2(FakeHost::instance().readConfig().contains(expected), FakeHost::instance().readConfig().constData());
}

void TestWriter::numbering_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("keepCurrentId");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("id");
    QTest::newRow("no counter yet") << QStringLiteral("") << 0 << QStringLiteral("1") << QStringLiteral("0");
    QTest::newRow("no counter yet, kept") << QStringLiteral("") << 1 << QStringLiteral("") << QStringLiteral("-1");
    QTest::newRow("0") << QStringLiteral("0") << 0 << QStringLiteral("1") << QStringLiteral("0");
    QTest::newRow("0, kept") << QStringLiteral("0") << 1 << QStringLiteral("0") << QStringLiteral("-1");
    QTest::newRow("7") << QStringLiteral("7") << 0 << QStringLiteral("8") << QStringLiteral("7");
    QTest::newRow("7, kept") << QStringLiteral("7") << 1 << QStringLiteral("7") << QStringLiteral("6");
    QTest::newRow("7, kept by 2") << QStringLiteral("7") << 2 << QStringLiteral("7") << QStringLiteral("6");
    QTest::newRow("7, kept by -1") << QStringLiteral("7") << -1 << QStringLiteral("7") << QStringLiteral("6");
    QTest::newRow("7, kept by the least number")
        << QStringLiteral("7") << INT_MIN << QStringLiteral("7") << QStringLiteral("6");
    QTest::newRow("letters") << QStringLiteral("letters") << 0 << QStringLiteral("1") << QStringLiteral("0");
    QTest::newRow("letters, kept") << QStringLiteral("letters") << 1 << QStringLiteral("letters")
                                   << QStringLiteral("-1");
    QTest::newRow("number and letters") << QStringLiteral("12x") << 0 << QStringLiteral("1") << QStringLiteral("0");
    QTest::newRow("hexadecimal") << QStringLiteral("0x10") << 0 << QStringLiteral("1") << QStringLiteral("0");
    QTest::newRow("a fraction") << QStringLiteral("1.5") << 0 << QStringLiteral("1") << QStringLiteral("0");
    QTest::newRow("an exponent") << QStringLiteral("1e3") << 0 << QStringLiteral("1") << QStringLiteral("0");
    QTest::newRow("zeros before") << QStringLiteral("007") << 0 << QStringLiteral("8") << QStringLiteral("7");
    QTest::newRow("zeros before, kept") << QStringLiteral("007") << 1 << QStringLiteral("007") << QStringLiteral("6");
    QTest::newRow("negative") << QStringLiteral("-5") << 0 << QStringLiteral("-4") << QStringLiteral("-5");
    QTest::newRow("-1") << QStringLiteral("-1") << 0 << QStringLiteral("0") << QStringLiteral("-1");
    QTest::newRow("end of 32 bits") << QStringLiteral("2147483647") << 0 << QStringLiteral("2147483648")
                                    << QStringLiteral("2147483647");
    QTest::newRow("beyond 32 bits") << QStringLiteral("4294967296") << 0 << QStringLiteral("4294967297")
                                    << QStringLiteral("4294967296");
    QTest::newRow("beyond 64 bits") << QStringLiteral("99999999999999999999") << 0 << QStringLiteral("1")
                                    << QStringLiteral("0");
}

void TestWriter::numbering()
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
    QCOMPARE(FakeHost::instance().readConfig(), configDocument(QLatin1String("1"), after, {records.at(0), written}));
    QCOMPARE(records.at(1).id, QString());
}

void TestWriter::counterAtTheEndOfItsRange()
{
    store()->m_currentId = QString::number(LLONG_MAX);
    QuickLinkRecordList records(1, makeRecord("a", "internet", "www.example.org"));
    QCOMPARE(store()->SaveToConfigFile(&records, 0), 0);
    QVERIFY(FakeHost::instance().readConfig().contains("<item id=\"9223372036854775807\" name=\"a\""));
}

void TestWriter::onlyEmptyIdsAreNumbered()
{
    store()->m_currentId = QLatin1String("9");
    QuickLinkRecordList records;
    records << makeRecord("a", "internet", "u") << numbered("4", "b") << makeRecord("c", "internet", "u")
            << numbered(" ", "d");
    QCOMPARE(store()->SaveToConfigFile(&records, 0), 0);
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QCOMPARE(idsInMemory(), QStringLiteral("9,4,9, "));
}

void TestWriter::twoSavesAdvanceTwice()
{
    QuickLinkRecordList records(1, numbered("0", "a"));
    store()->m_currentId = QLatin1String("1");
    store()->SaveToConfigFile(&records, 0);
    store()->SaveToConfigFile(&records, 0);
    QCOMPARE(store()->m_currentId, QStringLiteral("3"));
    QCOMPARE(FakeHost::instance().readConfig(),
             configDocument(QLatin1String("1"), QLatin1String("3"), {records.at(0)}));
}

void TestWriter::nothingElseChanges_data()
{
    QTest::addColumn<int>("keepCurrentId");
    QTest::newRow("appended") << 0;
    QTest::newRow("not appended") << 1;
}

void TestWriter::nothingElseChanges()
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
    QCOMPARE(store()->m_visible, QStringLiteral("x"));
    QCOMPARE(store()->m_currentId, keepCurrentId == 0 ? QStringLiteral("6") : QStringLiteral("5"));
}

void TestWriter::visibleBecomesOne_data()
{
    QTest::addColumn<QString>("visible");
    QTest::newRow("0") << QStringLiteral("0");
    QTest::newRow("1") << QStringLiteral("1");
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("a word") << QStringLiteral("word");
}

void TestWriter::visibleBecomesOne()
{
    QFETCH(QString, visible);
    QuickLinkRecordList records;
    store()->m_visible = visible;
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    QCOMPARE(store()->m_visible, visible);
    QCOMPARE(FakeHost::instance().readConfig(), configDocument(QLatin1String("1"), QString(), {}));
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QCOMPARE(store()->m_visible, QStringLiteral("1"));
}

void TestWriter::hiddenLinkIsWrittenButNotReadBack()
{
    QuickLinkRecordList records;
    records << numbered("0", "a") << numbered("1", "hidden") << numbered("2", "c");
    records[1].visible = QLatin1String("0");
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    QVERIFY(FakeHost::instance().readConfig().contains("name=\"hidden\""));
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QCOMPARE(names(), QStringLiteral("a,c"));
    QCOMPARE(store()->SaveToConfigFile(store()->m_recordList, 1), 0);
    QVERIFY(!FakeHost::instance().readConfig().contains("name=\"hidden\""));
}

void TestWriter::idsOfNewLinks()
{
    QCOMPARE(store()->ReadXmlInformation(), 3);
    addLink("a");
    QCOMPARE(idsInMemory(), QStringLiteral("0"));
    QCOMPARE(store()->m_currentId, QStringLiteral("1"));
    addLink("b");
    addLink("c");
    QCOMPARE(idsInMemory(), QStringLiteral("0,1,2"));
    QCOMPARE(store()->m_currentId, QStringLiteral("3"));
}

void TestWriter::deletedIdIsNotUsedAgain()
{
    store()->ReadXmlInformation();
    for (const char* name : {"a", "b", "c"})
        addLink(name);
    store()->m_recordList->remove(1);
    QCOMPARE(store()->SaveToConfigFile(store()->m_recordList, 1), 0);
    addLink("d");
    QCOMPARE(names(), QStringLiteral("a,c,d"));
    QCOMPARE(idsInMemory(), QStringLiteral("0,2,3"));
}

void TestWriter::editedLinkSharesAnId()
{
    store()->ReadXmlInformation();
    for (const char* name : {"a", "b", "c"})
        addLink(name);
    store()->m_recordList->replace(0, makeRecord("edited", "internet", "u"));
    QCOMPARE(store()->SaveToConfigFile(store()->m_recordList, 1), 0);
    QVERIFY(FakeHost::instance().readConfig().contains("<item id=\"2\" name=\"edited\""));
    QCOMPARE(idsInMemory(), QStringLiteral(",1,2"));
    addLink("d");
    QCOMPARE(idsInMemory(), QStringLiteral("3,1,2,3"));
    QCOMPARE(store()->m_currentId, QStringLiteral("4"));
}

void TestWriter::oldFileIsReplaced_data()
{
    QTest::addColumn<QByteArray>("old");
    QTest::newRow("longer") << QByteArray(100000, 'x');
    QTest::newRow("shorter") << QByteArray("x");
    QTest::newRow("empty") << QByteArray();
}

void TestWriter::oldFileIsReplaced()
{
    QFETCH(QByteArray, old);
    QVERIFY(FakeHost::instance().writeConfig(old));
    QuickLinkRecordList records(1, numbered("0", "a"));
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    QCOMPARE(FakeHost::instance().readConfig(), configDocument(QLatin1String("1"), QString(), {records.at(0)}));
}

void TestWriter::oldFileIsRemovedNotOverwritten()
{
    FakeHost& host = FakeHost::instance();
    QVERIFY(host.writeConfig("old bytes"));
    const QString otherName = host.userFolder + QLatin1String("/other");
    QCOMPARE(::link(QFile::encodeName(host.configPath()).constData(), QFile::encodeName(otherName).constData()), 0);
    QuickLinkRecordList records;
    QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    QFile other(otherName);
    QVERIFY(other.open(QIODevice::ReadOnly));
    QCOMPARE(other.readAll(), QByteArray("old bytes"));
}

void TestWriter::linkInPlaceOfFileIsRemoved()
{
    FakeHost& host = FakeHost::instance();
    const QString target = host.userFolder + QLatin1String("/target");
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

void TestWriter::nothingElseLiesInTheFolder()
{
    QuickLinkRecordList records(1, numbered("0", "a"));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(store()->SaveToConfigFile(&records, 0), 0);
    const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    QCOMPARE(QDir(FakeHost::instance().configFolder()).entryList(all), QStringList(QStringLiteral("config.xml")));
    QCOMPARE(QDir(FakeHost::instance().userFolder).entryList(all), QStringList(QStringLiteral("plugins")));
}

void TestWriter::noRecords_data()
{
    QTest::addColumn<bool>("hasFile");
    QTest::addColumn<int>("keepCurrentId");
    QTest::newRow("file, appended") << true << 0;
    QTest::newRow("file, not appended") << true << 1;
    QTest::newRow("no file, appended") << false << 0;
    QTest::newRow("no file, not appended") << false << 1;
}

void TestWriter::noRecords()
{
    QFETCH(bool, hasFile);
    QFETCH(int, keepCurrentId);
    FakeHost& host = FakeHost::instance();
    if (hasFile)
        QVERIFY(host.writeConfig("old bytes"));
    store()->m_currentId = QLatin1String("7");
    TraceRecorder trace;
    QCOMPARE(store()->SaveToConfigFile(nullptr, keepCurrentId), 15);
    QCOMPARE(QFile::exists(host.configPath()), hasFile);
    QCOMPARE(host.readConfig(), hasFile ? QByteArray("old bytes") : QByteArray());
    QCOMPARE(store()->m_currentId, QStringLiteral("7"));
    QCOMPARE(trace.debugDifference(QStringList(stampedLine(" : ", "SaveToConfigFile", "Entered"))), QString());
}

void TestWriter::traceOfSave()
{
    QuickLinkRecordList records(2, numbered("0", "a"));
    TraceRecorder trace;
    QCOMPARE(store()->SaveToConfigFile(&records, 0), 0);
    QCOMPARE(trace.debugDifference(QStringList() << stampedLine(" : ", "SaveToConfigFile", "Entered")
                                                 << stampedLine(" : ", "SaveToConfigFile", "Exit")),
             QString());
    QCOMPARE(trace.warningLines, QStringList());
}

QTEST_MAIN(TestWriter)
#include "tst_writer.moc"
