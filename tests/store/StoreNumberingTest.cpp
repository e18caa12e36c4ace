// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The counter of links, and the ids that a save gives out of it.

#include <climits>

#include "StoreFixture.h"
#include "Test.h"

using namespace StoreFixture;

namespace
{
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

class StoreNumberingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void numbering_data();
    void numbering();
    void counterAtTheEndOfItsRange();
    void onlyEmptyIdsAreNumbered();
    void twoSavesAdvanceTwice();
    void idsOfNewLinks();
    void deletedIdIsNotUsedAgain();
    void editedLinkSharesAnId();
};

void StoreNumberingTest::numbering_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("keepCurrentId");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("id");
    const struct {
        const char *row, *before;
        int keepCurrentId;
        const char *after, *id;
    } rows[] = {
        {"no counter yet", "", 0, "1", "0"},
        {"no counter yet, kept", "", 1, "", "-1"},
        {"0", "0", 0, "1", "0"},
        {"0, kept", "0", 1, "0", "-1"},
        {"7", "7", 0, "8", "7"},
        {"7, kept", "7", 1, "7", "6"},
        {"7, kept by 2", "7", 2, "7", "6"},
        {"7, kept by -1", "7", -1, "7", "6"},
        {"7, kept by the least number", "7", INT_MIN, "7", "6"},
        {"letters", "letters", 0, "1", "0"},
        {"letters, kept", "letters", 1, "letters", "-1"},
        {"number and letters", "12x", 0, "1", "0"},
        {"hexadecimal", "0x10", 0, "1", "0"},
        {"a fraction", "1.5", 0, "1", "0"},
        {"an exponent", "1e3", 0, "1", "0"},
        {"zeros before", "007", 0, "8", "7"},
        {"zeros before, kept", "007", 1, "007", "6"},
        {"negative", "-5", 0, "-4", "-5"},
        {"-1", "-1", 0, "0", "-1"},
        {"end of 32 bits", "2147483647", 0, "2147483648", "2147483647"},
        {"beyond 32 bits", "4294967296", 0, "4294967297", "4294967296"},
        {"beyond 64 bits", "99999999999999999999", 0, "1", "0"},
    };
    for (const auto& row : rows)
        QTest::newRow(row.row) << row.before << row.keepCurrentId << row.after << row.id;
}

void StoreNumberingTest::numbering()
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

void StoreNumberingTest::counterAtTheEndOfItsRange()
{
    store()->m_currentId = QString::number(LLONG_MAX);
    QuickLinkRecordList records(1, makeRecord("a", "internet", "www.example.org"));
    QCOMPARE(store()->SaveToConfigFile(&records, 0), 0);
    QVERIFY(FakeHost::instance().readConfig().contains("<item id=\"9223372036854775807\" name=\"a\""));
}

void StoreNumberingTest::onlyEmptyIdsAreNumbered()
{
    store()->m_currentId = "9";
    QuickLinkRecordList records;
    records << makeRecord("a", "internet", "u") << numbered("4", "b") << makeRecord("c", "internet", "u")
            << numbered(" ", "d");
    QCOMPARE(store()->SaveToConfigFile(&records, 0), 0);
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QCOMPARE(idsInMemory(), "9,4,9, ");
}

void StoreNumberingTest::twoSavesAdvanceTwice()
{
    QuickLinkRecordList records(1, numbered("0", "a"));
    store()->m_currentId = "1";
    store()->SaveToConfigFile(&records, 0);
    store()->SaveToConfigFile(&records, 0);
    QCOMPARE(store()->m_currentId, "3");
    QCOMPARE(FakeHost::instance().readConfig(), configDocument("1", "3", {records.at(0)}));
}

void StoreNumberingTest::idsOfNewLinks()
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

void StoreNumberingTest::deletedIdIsNotUsedAgain()
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

void StoreNumberingTest::editedLinkSharesAnId()
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

REGISTER_TEST(StoreNumberingTest)
#include "StoreNumberingTest.moc"
