// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The attributes of an item reach their fields in whatever order they stand, and equal texts are kept once.

#include "StoreFixture.h"
#include "Test.h"

using namespace StoreFixture;

namespace
{
const char* const names10[] = {"id",           "name",        "type",   "url",  "para",
                               "startconnect", "startmobile", "delete", "edit", "visible"};

QuickLinkRecordList& list()
{
    return *QuickLinkXmlParse::GetInstance()->m_recordList;
}

/** The record that item() stands for. */
QuickLinkRecord expectedRecord()
{
    QuickLinkRecord record = makeRecord("name-value", "type-value", "url-value");
    record.id = "id-value";
    record.para = "para-value";
    record.startconnect = "startconnect-value";
    record.startmobile = "startmobile-value";
    record.delete_ = "delete-value";
    record.edit = "edit-value";
    return record;
}

/** An item of all attributes, in the given order and with something before each of them. */
QByteArray item(const QList<int>& order, const QByteArray& between)
{
    QByteArray text = "<item";
    for (int index : order) {
        const QByteArray name = names10[index];
        text += between + " " + name + "='" + (name == "visible" ? QByteArray("1") : name + "-value") + "'";
    }
    return text + "/>";
}

QByteArray link(const char* name, const char* type, const char* flag)
{
    return QByteArray("<item name='") + name + "' type='" + type + "' para='' startconnect='" + flag +
           "' startmobile='" + flag + "' delete='1' edit='1' visible='1'/>";
}

/** Whether two texts lie in the same memory. */
bool isShared(const QString& first, const QString& second)
{
    return first.constData() == second.constData();
}
} // namespace

class StoreReaderAttributesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup() { end(); }

    void anyOrder_data();
    void anyOrder();
    void strangersAreIgnored();
    void orderMayChangeFromItemToItem();
    void equalTextsAreKeptOnce();
    void sharedTextsAreStillEachTheirOwn();
};

void StoreReaderAttributesTest::anyOrder_data()
{
    QTest::addColumn<QList<int>>("order");
    QList<int> order = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    for (int turn = 0; turn < 10; ++turn) {
        QTest::newRow(qPrintable(QString("begins with %1").arg(QLatin1String(names10[order.first()])))) << order;
        order.append(order.takeFirst());
    }
    QTest::newRow("backwards") << QList<int>({9, 8, 7, 6, 5, 4, 3, 2, 1, 0});
}

void StoreReaderAttributesTest::anyOrder()
{
    QFETCH(QList<int>, order);
    QCOMPARE(readBytes(document("<menu>" + item(order, QByteArray()) + "</menu>")), 0);
    QCOMPARE(list().size(), 1);
    QCOMPARE(difference(list().at(0), expectedRecord()), QString());
}

void StoreReaderAttributesTest::strangersAreIgnored()
{
    // Names that begin like, end like or are spelt like one of ours, and more attributes than an item has.
    const QByteArray strangers = " ID='x' names='x' typ='x' p:id='x' p:name='x' p:visible='0' Visible='0' x='1' y='2' "
                                 "z='3'";
    const QByteArray inFileOrder = item({0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, QByteArray());
    QByteArray before = inFileOrder;
    before.replace("<item", "<item" + strangers);
    QByteArray behind = inFileOrder;
    behind.replace("/>", strangers + "/>");
    QCOMPARE(readBytes(document("<menu xmlns:p='urn:p'>" + before + behind + "</menu>")), 0);
    QCOMPARE(list().size(), 2);
    QCOMPARE(difference(list().at(0), expectedRecord()), QString());
    QCOMPARE(difference(list().at(1), expectedRecord()), QString());
}

void StoreReaderAttributesTest::orderMayChangeFromItemToItem()
{
    QCOMPARE(readBytes(document("<menu>" + item({0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, QByteArray()) +
                                item({3, 2, 1, 0, 9, 8, 7, 6, 5, 4}, QByteArray()) + "</menu>")),
             0);
    QCOMPARE(list().size(), 2);
    QCOMPARE(difference(list().at(1), list().at(0)), QString());
}

void StoreReaderAttributesTest::equalTextsAreKeptOnce()
{
    // Types and flags that change from item to item, as they do in a user's file.
    const QByteArray web = link("a", "IDS_LINK_TYPE_INTERNET", "0");
    const QByteArray mail = link("b", "IDS_LINK_TYPE_E-MAIL", "1");
    const QByteArray program = link("c", "IDS_LINK_TYPE_APPLICATION", "0");
    QCOMPARE(readBytes(document("<menu>" + web + mail + program + web + mail + program + "</menu>")), 0);
    QCOMPARE(list().size(), 6);
    for (int i = 0; i < 3; ++i) {
        const QuickLinkRecord& first = list().at(i);
        const QuickLinkRecord& again = list().at(i + 3);
        QCOMPARE(difference(first, again), QString());
        QVERIFY(isShared(first.type, again.type));
        QVERIFY(isShared(first.startconnect, again.startconnect));
        QVERIFY(isShared(first.startconnect, first.startmobile));
        QVERIFY(isShared(first.delete_, again.edit));
        QVERIFY(isShared(first.para, again.para));
    }
    QVERIFY(!isShared(list().at(0).startconnect, list().at(1).startconnect));
}

void StoreReaderAttributesTest::sharedTextsAreStillEachTheirOwn()
{
    const QByteArray web = link("a", "IDS_LINK_TYPE_INTERNET", "0");
    QCOMPARE(readBytes(document("<menu>" + web + web + "</menu>")), 0);
    list()[0].type.append('x');
    list()[0].edit[0] = '0';
    QCOMPARE(list().at(1).type, LinkType::internet());
    QCOMPARE(list().at(1).edit, "1");
    QCOMPARE(list().at(0).delete_, "1");
}

REGISTER_TEST(StoreReaderAttributesTest)
#include "StoreReaderAttributesTest.moc"
