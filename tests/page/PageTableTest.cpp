// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The table when it is filled: how it is configured, its headers and its rows.

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>

#include "ShownPage.h"
#include "Test.h"

class PageTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void configuration_data();
    void configuration();
    void rowHeight_data();
    void rowHeight();
    void item_data();
    void item();
    void rowsInOrderOfTheList_data();
    void rowsInOrderOfTheList();
    void recordIsACopyOfAllFields();
    void cellsCannotBeEdited_data();
    void cellsCannotBeEdited();
    void rewritingARowReusesItsItems();
    void releaseFreesEveryRecord();
    void releaseStopsEarly_data();
    void releaseStopsEarly();

private:
    ShownPage m_page;
};

void PageTableTest::cleanup()
{
    m_page.end();
    QApplication::setFont(QFont());
}

void PageTableTest::configuration_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("without links") << 0;
    QTest::newRow("with links") << 2;
}

void PageTableTest::configuration()
{
    QFETCH(int, count);
    QuickLinkRecordList records = links("One Two");
    records[0].name = QString(200, 'W');
    records.resize(count);
    m_page.begin(records);
    const QTableWidget* const table = m_page.table();
    const QHeaderView* const columns = table->horizontalHeader();
    QCOMPARE(table->rowCount(), count);
    QVERIFY(!columns->stretchLastSection());
    QVERIFY(!table->showGrid());
    QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(table->selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(table->itemDelegate(), static_cast<QAbstractItemDelegate*>(m_page.page->m_gridDelegate));
    QVERIFY(table->verticalHeader()->isHidden());
    QVERIFY(!columns->isHidden());
    QCOMPARE(table->columnCount(), 2);
    QVERIFY(!table->wordWrap());
    QVERIFY(table->updatesEnabled());
    QVERIFY(!table->isSortingEnabled());
    QCOMPARE(columns->defaultSectionSize(), QTableWidget().horizontalHeader()->defaultSectionSize());

    const QTableWidgetItem* const owned[] = {m_page.page->m_nameHeaderItem, m_page.page->m_typeHeaderItem};
    const char* const texts[] = {"en:IDS_LINK_SETTING_NAME", "en:IDS_LINK_SETTING_TYPE"};
    for (int column = 0; column < 2; ++column) {
        QCOMPARE(table->columnWidth(column), columns->defaultSectionSize());
        const QTableWidgetItem* const item = table->horizontalHeaderItem(column);
        QVERIFY(item);
        QCOMPARE(item, owned[column]);
        QCOMPARE(item->text(), texts[column]);
        QCOMPARE(item->data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignLeft));
        QCOMPARE(item->type(), 0);
    }
}

void PageTableTest::rowHeight_data()
{
    QTest::addColumn<int>("pointSize");
    QTest::newRow("small font") << 6;
    QTest::newRow("usual font") << 10;
    QTest::newRow("very large font") << 48;
}

void PageTableTest::rowHeight()
{
    QFETCH(int, pointSize);
    QFont font;
    font.setPointSize(pointSize);
    QApplication::setFont(font);
    m_page.begin(links("One Two Three"));
    m_page.addLink(1, "Four");
    QCoreApplication::processEvents();
    for (int row = 0; row < 4; ++row)
        QCOMPARE(m_page.table()->rowHeight(row), 14);
}

void PageTableTest::item_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasRecord");
    // Any type is shown as the host translates it.
    const char* const types[] = {"en:IDS_LINK_TYPE_INTERNET",
                                 "en:IDS_LINK_TYPE_E-MAIL",
                                 "en:IDS_LINK_TYPE_APPLICATION",
                                 "en:IDS_LINK_TYPE_E_MAIL",
                                 "en:2",
                                 "en:"};
    const char* const names[] = {"One", "Two", "Three", "Four", "Five", "Six"};
    for (int row = 0; row < 6; ++row) {
        QTest::newRow(names[row]) << row << 0 << QString(names[row]) << true;
        QTest::newRow(types[row]) << row << 1 << QString(types[row]) << false;
    }
}

void PageTableTest::item()
{
    QFETCH(int, row);
    QFETCH(int, column);
    QFETCH(QString, text);
    QFETCH(bool, hasRecord);
    QuickLinkRecordList records = links("One Two Three Four Five Six");
    records[3].type = "IDS_LINK_TYPE_E_MAIL";
    records[4].type = "2";
    records[5].type = "";
    m_page.begin(records);
    const QTableWidgetItem* const item = m_page.table()->item(row, column);
    QVERIFY(item);
    QCOMPARE(item->text(), text);
    QCOMPARE(item->type(), 0);
    QCOMPARE(item->data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignLeft));
    QCOMPARE(int(item->flags()), int(QTableWidgetItem().flags() & ~Qt::ItemIsEditable));
    bool isNumber = false;
    const qulonglong data = item->data(Qt::UserRole).toULongLong(&isNumber);
    QVERIFY(isNumber);
    QCOMPARE(data != 0, hasRecord);
    if (hasRecord)
        QCOMPARE(m_page.recordOf(row)->name, text);
}

void PageTableTest::rowsInOrderOfTheList_data()
{
    QTest::addColumn<QByteArray>("names");
    QTest::newRow("none") << QByteArray();
    QTest::newRow("one") << QByteArray("One");
    QTest::newRow("three") << QByteArray("One Two Three");
    QTest::newRow("not sorted") << QByteArray("c a b");
    QTest::newRow("twice the same") << QByteArray("a a a");
}

void PageTableTest::rowsInOrderOfTheList()
{
    QFETCH(QByteArray, names);
    m_page.begin(links(names.constData()));
    QCOMPARE(m_page.linkNames(), QString(names));
    QCOMPARE(m_page.currentRow(), names.isEmpty() ? -1 : 0);
    QCOMPARE(m_page.table()->selectedItems().size(), names.isEmpty() ? 0 : 2);

    // The list may have come by more, hidden ones too, until the page is shown again.
    QuickLinkRecord hidden = makeRecord("hidden", "email", "mailto:");
    hidden.visible = "0";
    m_page.page->m_recordList->append(hidden);
    QCOMPARE(m_page.shownNames(), QString(names));
    m_page.show();
    QCOMPARE(m_page.linkNames(), QString(names + " hidden").trimmed());
}

void PageTableTest::recordIsACopyOfAllFields()
{
    QuickLinkRecord record;
    record.id = "17";
    record.name = "name";
    record.url = "url";
    record.startconnect = "sc";
    record.startmobile = "sm";
    record.type = "type";
    record.para = "para";
    record.delete_ = "d";
    record.edit = "e";
    record.visible = "1";
    m_page.begin(QuickLinkRecordList() << record);
    QCOMPARE(difference(*m_page.recordOf(0), record), QString());
    QVERIFY(m_page.recordOf(0) != &m_page.page->m_recordList->at(0));
}

void PageTableTest::cellsCannotBeEdited_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("name") << 0;
    QTest::newRow("type") << 1;
}

void PageTableTest::cellsCannotBeEdited()
{
    QFETCH(int, column);
    m_page.begin(links("One Two"));
    QTableWidget* const table = m_page.table();
    table->setCurrentCell(1, column);
    const QPoint place = table->visualItemRect(table->item(1, column)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::keyClick(table, Qt::Key_F2);
    QTest::keyClicks(table->viewport(), "x");
    QVERIFY(table->findChildren<QLineEdit*>().isEmpty());
    QCOMPARE(m_page.shownNames(), "One Two");
}

void PageTableTest::rewritingARowReusesItsItems()
{
    m_page.begin(links("One Two"));
    const RecordProbe probe(m_page.recordOf(1));
    const QTableWidgetItem* const name = m_page.table()->item(1, 0);
    const QTableWidgetItem* const type = m_page.table()->item(1, 1);
    QuickLinkRecord* const old = m_page.recordOf(1);
    QuickLinkRecord* const record = new QuickLinkRecord(makeRecord("Other", "application", "/x"));
    RecordingTrace trace;
    m_page.page->populateTableRow(record, 1);
    QCOMPARE(m_page.table()->item(1, 0), name);
    QCOMPARE(m_page.table()->item(1, 1), type);
    QCOMPARE(name->text(), "Other");
    QCOMPARE(type->text(), shown("IDS_LINK_TYPE_APPLICATION"));
    QCOMPARE(m_page.recordOf(1), record);
    QVERIFY(!(name->flags() & Qt::ItemIsEditable));
    QCOMPARE(trace.warningLines, QStringList());
    QCOMPARE(trace.debugDifference(QStringList() << tracePattern("%F: populateTableRow: %T : Entered ")), QString());
    QVERIFY(!probe.isFreed());
    delete old;
}

void PageTableTest::releaseFreesEveryRecord()
{
    m_page.begin(links("a b c"));
    const QVariant before = m_page.table()->item(1, 0)->data(Qt::UserRole);
    const RecordProbe first(m_page.recordOf(0));
    const RecordProbe second(m_page.recordOf(1));
    const RecordProbe third(m_page.recordOf(2));
    m_page.page->releaseTable();
    QVERIFY(first.isFreed());
    QVERIFY(second.isFreed());
    QVERIFY(third.isFreed());
    // The rows stay as they are.
    QCOMPARE(m_page.shownNames(), "a b c");
    QCOMPARE(m_page.table()->item(1, 0)->data(Qt::UserRole), before);
}

void PageTableTest::releaseStopsEarly_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QVariant>("data");
    QTest::newRow("0 in the first row") << 0 << QVariant(0);
    QTest::newRow("0 in the second row") << 1 << QVariant(0);
    QTest::newRow("nothing in the second row") << 1 << QVariant();
    QTest::newRow("no number in the second row") << 1 << QVariant("record");
    QTest::newRow("0 in the last row") << 2 << QVariant(0);
}

void PageTableTest::releaseStopsEarly()
{
    QFETCH(int, row);
    QFETCH(QVariant, data);
    m_page.begin(links("a b c"));
    QList<QuickLinkRecord*> records;
    QList<RecordProbe> probes;
    for (int each = 0; each < 3; ++each) {
        records.append(m_page.recordOf(each));
        probes.append(RecordProbe(records.last()));
    }
    m_page.table()->item(row, 0)->setData(Qt::UserRole, data);
    m_page.page->releaseTable();
    for (int each = 0; each < 3; ++each) {
        QCOMPARE(probes.at(each).isFreed(), each < row);
        if (each >= row)
            delete records.at(each);
    }
}

REGISTER_TEST(PageTableTest)
#include "PageTableTest.moc"
