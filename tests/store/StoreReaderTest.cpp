// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Reading well-formed files, and what remains when there is none.

#include <QXmlStreamReader>

#include "ProcessLimits.h"
#include "StoreFixture.h"
#include "Test.h"

using namespace StoreFixture;

namespace
{
const char fullItem[] = "<item id='I' name='N' type='T' url='U' para='P' startconnect='C' startmobile='M' delete='D' "
                        "edit='E' visible='1'/>";

QByteArray item(const char* name)
{
    return QByteArray("<item name='") + name + "' visible='1'/>";
}

QuickLinkRecord fullRecord()
{
    QuickLinkRecord record = makeRecord("N", "T", "U");
    record.id = "I";
    record.para = "P";
    record.startconnect = "C";
    record.startmobile = "M";
    record.delete_ = "D";
    record.edit = "E";
    return record;
}
} // namespace

class StoreReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void itemsThatAreLinks_data();
    void itemsThatAreLinks();
    void everyAttributeReachesItsField();
    void missingAttributeIsEmpty_data();
    void missingAttributeIsEmpty();
    void visibleFlag_data();
    void visibleFlag();
    void headerValues_data();
    void headerValues();
    void headerValuesSurvive_data();
    void headerValuesSurvive();
    void scratchRecordHoldsTheLastItem();
    void everyReadMakesNewList_data();
    void everyReadMakesNewList();
    void missingFile_data();
    void missingFile();
    void fileThatCannotBeOpened_data();
    void fileThatCannotBeOpened();
    void walkWithoutListStopsAtTheFirstItem();
};

void StoreReaderTest::itemsThatAreLinks_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("expected");
    const char* const rows[][3] = {
        {"file order", "<menu>[c][a][b]</menu>", "c,a,b"},
        {"empty menu", "<menu></menu>", ""},
        {"empty-element menu", "<menu parent='quicklink'/>", ""},
        {"no menu", "<function/>", ""},
        {"no menu, but items", "[a][b]", ""},
        {"nothing in the root", "", ""},
        {"type block before menu", "[types]<menu>[a]</menu>", "a"},
        {"type block after menu", "<menu>[a]</menu>[types]", "a"},
        {"visible item of a type block before menu", "<type>[b]</type><menu>[a]</menu>", "a"},
        {"visible item of a type block after menu", "<menu>[a]</menu><type>[b]</type>", "a,b"},
        {"item before menu", "[a]<menu>[b]</menu>", "b"},
        {"item after menu", "<menu>[a]</menu>[b]", "a,b"},
        {"item after an empty menu", "<menu/>[a]", "a"},
        {"second menu", "<menu>[a]</menu><menu>[b]</menu>", "a,b"},
        {"menu inside menu", "<menu><menu>[a]</menu>[b]</menu>[c]", "a,b,c"},
        {"menu at depth", "<x><y><menu>[a]</menu></y></x>", "a"},
        {"item inside an unknown element", "<menu><x><y>[a]</y></x></menu>", "a"},
        {"item inside an item", "<menu><item name='a' visible='1'>[b]</item></menu>", "a,b"},
        {"hidden item around an item", "<menu><item name='x' visible='0'>[b]</item></menu>", "b"},
        {"other parent of menu", "<menu parent='something'>[a]</menu>", "a"},
        {"unknown elements between", "<menu><x/>[a]<entry visible='1'/>[b]</menu>", "a,b"},
        {"unknown attributes", "<menu><item x='1' name='a' y='2' visible='1' z=''/></menu>", "a"},
        {"text between", "<menu>text[a]more text[b]</menu>", "a,b"},
        {"comments and instructions", "<menu><!-- [b] --><?do it?>[a]</menu>", "a"},
        {"markup as text", "<menu><![CDATA[[b]]]>[a]</menu>", "a"},
        {"duplicate names", "<menu>[a][b][a]</menu>", "a,b,a"},
        {"duplicate ids", "<menu><item id='0' name='a' visible='1'/><item id='0' name='b' visible='1'/></menu>", "a,b"},
        {"Menu is not menu", "<Menu>[a]</Menu>", ""},
        {"MENU is not menu", "<MENU>[a]</MENU>", ""},
        {"Item is not item", "<menu><Item name='a' visible='1'/></menu>", ""},
        {"ITEM is not item", "<menu><ITEM name='a' visible='1'/></menu>", ""},
        {"items is not item", "<menu><items name='a' visible='1'/></menu>", ""},
        {"Visible is not visible", "<menu><item name='a' Visible='1'/></menu>", ""},
        {"Name is not name", "<menu><item Name='a' name='b' visible='1'/></menu>", "b"},
        {"prefixed menu", "<p:menu xmlns:p='urn:p'>[a]</p:menu>", "a"},
        {"prefixed item", "<menu xmlns:p='urn:p'><p:item name='a' visible='1'/></menu>", "a"},
    };
    const QByteArray types = "<type><item id=' 0' name='IDS_LINK_TYPE_APPLICATION'/><item id=' 1' "
                             "name='IDS_LINK_TYPE_E_MAIL'/><item id=' 2' name='IDS_LINK_TYPE_INTERNET'/></type>";
    for (const auto& row : rows) {
        QByteArray content = row[1];
        content.replace("[types]", types);
        for (const char* name : {"a", "b", "c"})
            content.replace('[' + QByteArray(name) + ']', item(name));
        QTest::newRow(row[0]) << content << row[2];
    }
}

void StoreReaderTest::itemsThatAreLinks()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, expected);
    RecordingTrace trace;
    QCOMPARE(readBytes(document(content)), 0);
    QCOMPARE(names(), expected);
    QCOMPARE(trace.debugDifference(readerBeginning() + walkLines()), QString());
    QCOMPARE(trace.warningLines, QStringList());
}

void StoreReaderTest::everyAttributeReachesItsField()
{
    QCOMPARE(readBytes("<anything type='other'><menu>" + QByteArray(fullItem) + "</menu></anything>"), 0);
    QCOMPARE(store()->m_recordList->size(), 1);
    QCOMPARE(difference(store()->m_recordList->at(0), fullRecord()), QString());
}

void StoreReaderTest::missingAttributeIsEmpty_data()
{
    QTest::addColumn<QByteArray>("attribute");
    const char* const attributes[] = {"id='I' ",           "name='N' ",        "type='T' ",   "url='U' ", "para='P' ",
                                      "startconnect='C' ", "startmobile='M' ", "delete='D' ", "edit='E' "};
    for (const char* attribute : attributes)
        QTest::newRow(attribute) << QByteArray(attribute);
}

void StoreReaderTest::missingAttributeIsEmpty()
{
    QFETCH(QByteArray, attribute);
    QByteArray incomplete = fullItem;
    incomplete.replace(attribute, "");
    // The complete item before it must not lend its value.
    QCOMPARE(readBytes(document("<menu>" + QByteArray(fullItem) + incomplete + "</menu>")), 0);
    QCOMPARE(store()->m_recordList->size(), 2);
    const QByteArray name = attribute.left(attribute.indexOf('='));
    const QByteArray value = attribute.mid(attribute.indexOf('\'') + 1, 1);
    const QString expected =
        QString("%1 is \"\", not \"%2\"; ").arg(QString::fromLatin1(name), QString::fromLatin1(value));
    QCOMPARE(difference(store()->m_recordList->at(1), fullRecord()), expected);
}

void StoreReaderTest::visibleFlag_data()
{
    QTest::addColumn<QByteArray>("attribute");
    QTest::addColumn<int>("count");
    QTest::newRow("1") << QByteArray("visible='1'") << 1;
    QTest::newRow("1 as a character reference") << QByteArray("visible='&#49;'") << 1;
    QTest::newRow("missing") << QByteArray() << 0;
    for (const char* value : {"0", "", "true", " 1", "1 ", "01", "2", "11"})
        QTest::newRow(QByteArray('"' + QByteArray(value) + '"').constData())
            << QByteArray("visible='" + QByteArray(value) + "'") << 0;
}

void StoreReaderTest::visibleFlag()
{
    QFETCH(QByteArray, attribute);
    QFETCH(int, count);
    QCOMPARE(readBytes(document("<menu><item name='a' " + attribute + "/></menu>")), 0);
    QCOMPARE(store()->m_recordList->size(), count);
}

void StoreReaderTest::headerValues_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("visible");
    QTest::addColumn<QString>("counter");
    const char* const rows[][4] = {
        {"both", "<function><Visible>0</Visible><CurrentID>12</CurrentID></function>", "0", "12"},
        {"other order", "<CurrentID>12</CurrentID><Visible>0</Visible>", "0", "12"},
        {"at depth", "<a><b><Visible>0</Visible><c><CurrentID>3</CurrentID></c></b></a>", "0", "3"},
        {"neither", "", "before", "9"},
        {"only Visible", "<Visible>x</Visible>", "x", "9"},
        {"only CurrentID", "<CurrentID>x</CurrentID>", "before", "x"},
        {"empty elements", "<Visible/><CurrentID/>", "", ""},
        {"not trimmed", "<Visible> 0\n</Visible><CurrentID>\t5 </CurrentID>", " 0\n", "\t5 "},
        {"not a number", "<CurrentID>seven</CurrentID>", "before", "seven"},
        {"the last before menu",
         "<Visible>1</Visible><Visible>0</Visible><CurrentID>1</CurrentID><CurrentID>2</CurrentID>", "0", "2"},
        {"inside menu", "<menu><Visible>0</Visible><CurrentID>1</CurrentID></menu>", "before", "9"},
        {"after menu", "<menu/><Visible>0</Visible><CurrentID>1</CurrentID>", "before", "9"},
        {"other case", "<visible>0</visible><VISIBLE>0</VISIBLE><currentid>1</currentid><CurrentId>1</CurrentId>",
         "before", "9"},
        {"prefixed", "<p:Visible xmlns:p='urn:p'>0</p:Visible><p:CurrentID xmlns:p='urn:p'>1</p:CurrentID>", "0", "1"},
        {"character data and references", "<Visible><![CDATA[0]]></Visible><CurrentID>&#49;<!-- one -->2</CurrentID>",
         "0", "12"},
        {"attributes are ignored", "<Visible a='1'>0</Visible><CurrentID b='2'>4</CurrentID>", "0", "4"},
    };
    for (const auto& row : rows)
        QTest::newRow(row[0]) << QByteArray(row[1]) << row[2] << row[3];
}

void StoreReaderTest::headerValues()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, visible);
    QFETCH(QString, counter);
    store()->m_visible = "before";
    store()->m_currentId = "9";
    QCOMPARE(readBytes(document(content + "<menu>" + item("a") + "</menu>")), 0);
    QCOMPARE(store()->m_visible, visible);
    QCOMPARE(store()->m_currentId, counter);
    QCOMPARE(names(), "a");
}

void StoreReaderTest::headerValuesSurvive_data()
{
    QTest::addColumn<QString>("second");
    QTest::addColumn<int>("expected");
    QTest::newRow("a file without them") << "without" << 0;
    QTest::newRow("a missing file") << "missing" << 3;
    QTest::newRow("a folder in the file's place") << "folder" << 25;
    QTest::newRow("an empty file") << "empty" << 0;
}

void StoreReaderTest::headerValuesSurvive()
{
    QFETCH(QString, second);
    QFETCH(int, expected);
    FakeHost& host = FakeHost::instance();
    readBytes(document("<Visible>0</Visible><CurrentID>12</CurrentID><menu>" + item("a") + "</menu>"));
    QCOMPARE(names(), "a");
    QVERIFY(QFile::remove(host.configPath()));
    if (second == "folder")
        QVERIFY(QDir().mkpath(host.configPath()));
    else if (second != "missing")
        QVERIFY(host.writeConfig(second == "empty" ? QByteArray() : document("<menu/>")));
    QCOMPARE(store()->ReadXmlInformation(), expected);
    QCOMPARE(names(), QString());
    QCOMPARE(store()->m_visible, "0");
    QCOMPARE(store()->m_currentId, "12");
}

void StoreReaderTest::scratchRecordHoldsTheLastItem()
{
    readBytes(document("<menu>" + QByteArray(fullItem) + "<item name='hidden' visible='0'/></menu>"));
    QuickLinkRecord expected;
    expected.name = "hidden";
    expected.startconnect = expected.startmobile = expected.delete_ = expected.edit = QString();
    expected.visible = "0";
    QCOMPARE(difference(store()->m_currentRecord, expected), QString());
}

void StoreReaderTest::everyReadMakesNewList_data()
{
    QTest::addColumn<QString>("second");
    QTest::newRow("the same file") << "same";
    QTest::newRow("a missing file") << "missing";
    QTest::newRow("a folder in the file's place") << "folder";
}

void StoreReaderTest::everyReadMakesNewList()
{
    QFETCH(QString, second);
    FakeHost& host = FakeHost::instance();
    readBytes(document("<menu>" + QByteArray(fullItem) + item("b") + "</menu>"));
    // A shared copy tells whether the list that it was taken from is gone.
    QuickLinkRecordList copy = *store()->m_recordList;
    QCOMPARE(copy.size(), 2);
    QVERIFY(!copy.isDetached());
    if (second != "same")
        QVERIFY(QFile::remove(host.configPath()));
    if (second == "folder")
        QVERIFY(QDir().mkpath(host.configPath()));
    store()->ReadXmlInformation();
    QVERIFY(store()->m_recordList);
    QVERIFY(copy.isDetached());
    QCOMPARE(listDifference(*store()->m_recordList, second == "same" ? copy : QuickLinkRecordList()), QString());
}

void StoreReaderTest::missingFile_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("plain") << "/folder";
    QTest::newRow("separator at the end") << "/folder/";
    QTest::newRow("blank") << "/fol der";
    QTest::newRow("format characters") << "/100%s%d";
    QTest::newRow("not Latin") << QString::fromUtf8("/\xc3\xa4\xe6\xbc\xa2");
}

void StoreReaderTest::missingFile()
{
    QFETCH(QString, folder);
    FakeHost::instance().userFolder += folder;
    RecordingTrace trace;
    QCOMPARE(store()->ReadXmlInformation(), 3);
    QCOMPARE(names(), QString());
    QCOMPARE(store()->m_currentId, QString());
    QCOMPARE(store()->m_visible, "1");
    const QString path = FakeHost::instance().userFolder + "/plugins/QuickLinkUIPlugin/config.xml";
    QCOMPARE(trace.debugLines.value(2), "File " + path + " is not present");
    QCOMPARE(trace.debugDifference(readerBeginning() << "File .* is not present"), QString());
}

void StoreReaderTest::fileThatCannotBeOpened_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("a folder") << "folder";
    QTest::newRow("no permission") << "permission";
    QTest::newRow("no more files for the process") << "limit";
}

void StoreReaderTest::fileThatCannotBeOpened()
{
    QFETCH(QString, how);
    FakeHost& host = FakeHost::instance();
    if (how == "folder")
        QVERIFY(QDir().mkpath(host.configPath()));
    else
        QVERIFY(host.writeConfig(document("<Visible>0</Visible><menu>" + item("a") + "</menu>")));
    RecordingTrace trace;
    int result = -1;
    if (how == "permission") {
        QVERIFY(setMode(host.userFolder, 0755));
        QVERIFY(setMode(host.configPath(), 0));
        WithoutPrivileges noPrivileges;
        if (!noPrivileges.isBound() || !QFile::exists(host.configPath()))
            QSKIP("cannot become a user whom the file's permissions bind");
        result = store()->ReadXmlInformation();
    } else if (how == "limit") {
        LowerLimit noFiles(RLIMIT_NOFILE, 0);
        QVERIFY(noFiles.isLowered());
        result = store()->ReadXmlInformation();
    } else {
        result = store()->ReadXmlInformation();
    }
    QCOMPARE(result, 25);
    QCOMPARE(names(), QString());
    QCOMPARE(store()->m_visible, "1");
    QCOMPARE(trace.debugDifference(readerBeginning() << "open file gives error: "), QString());
}

void StoreReaderTest::walkWithoutListStopsAtTheFirstItem()
{
    QXmlStreamReader reader(document("<Visible>0</Visible><menu>" + QByteArray(fullItem) + item("b") + "</menu>"));
    RecordingTrace trace;
    store()->parseCallLogConfig(reader);
    QCOMPARE(difference(store()->m_currentRecord, fullRecord()), QString());
    QVERIFY(!store()->m_recordList);
    QCOMPARE(store()->m_visible, "0");
    QVERIFY(!reader.atEnd());
    const QString refusal = tracePattern("Arg is NULL: %T: %F: parseCallLogConfig %L");
    QCOMPARE(trace.debugDifference(QStringList() << walkLines().at(0) << refusal), QString());
}

REGISTER_TEST(StoreReaderTest)
#include "StoreReaderTest.moc"
