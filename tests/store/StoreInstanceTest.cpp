// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "StoreFixture.h"
#include "Test.h"

using namespace StoreFixture;

class StoreInstanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void instanceStartsWithInitialValues();
    void instanceIsOneUntilDestroyed();
    void destroyLeavesTheList();
};

void StoreInstanceTest::instanceStartsWithInitialValues()
{
    QCOMPARE(difference(store()->m_currentRecord, QuickLinkRecord()), QString());
    QCOMPARE(store()->m_currentId, QString());
    QVERIFY(!store()->m_recordList);
    QCOMPARE(store()->m_visible, "1");
}

void StoreInstanceTest::instanceIsOneUntilDestroyed()
{
    QVERIFY(!QuickLinkXmlParse::m_spInstance);
    QuickLinkXmlParse* const first = QuickLinkXmlParse::GetInstance();
    QVERIFY(first);
    QCOMPARE(QuickLinkXmlParse::m_spInstance, first);
    QCOMPARE(QuickLinkXmlParse::GetInstance(), first);
    first->m_currentId = "7";
    first->m_visible = "0";

    QuickLinkXmlParse::Destroy();
    QVERIFY(!QuickLinkXmlParse::m_spInstance);
    QuickLinkXmlParse::Destroy();
    QVERIFY(!QuickLinkXmlParse::m_spInstance);
    instanceStartsWithInitialValues();
}

void StoreInstanceTest::destroyLeavesTheList()
{
    readBytes(document("<menu><item name='a' visible='1'/></menu>"));
    QuickLinkRecordList* const list = store()->m_recordList;
    QuickLinkXmlParse::Destroy();
    QCOMPARE(list->size(), 1);
    QCOMPARE(list->at(0).name, "a");
    delete list;
}

REGISTER_TEST(StoreInstanceTest)
#include "StoreInstanceTest.moc"
