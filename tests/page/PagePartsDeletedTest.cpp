// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Single parts of the page go, by whoever deletes them: each is forgotten at once and freed once.

#include "ShownPage.h"
#include "Test.h"

namespace
{
/** Counts how often it is destroyed. */
class CountedItem : public QTableWidgetItem
{
public:
    explicit CountedItem(int* destructions)
        : m_destructions(destructions)
    {
    }
    ~CountedItem() override { ++*m_destructions; }

private:
    int* m_destructions;
};

void addRows(const QStringList& ways)
{
    QTest::addColumn<QString>("way");
    for (const QString& way : ways)
        QTest::newRow(qPrintable(way)) << way;
}
} // namespace

class PagePartsDeletedTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void partIsForgotten_data();
    void partIsForgotten();
    void tablePartGoesOnce_data();
    void tablePartGoesOnce();
    void headerItemWithoutTableIsKept_data() { addRows(names("rebuild fillTable OnDestroy")); }
    void headerItemWithoutTableIsKept();
    void layoutWithoutWidgetIsKept_data() { addRows(names("rebuild OnDestroy")); }
    void layoutWithoutWidgetIsKept();

private:
    /** Deletes what is named, or lets the plug-in do it. */
    void remove(const QString& way);

    ShownPage m_page;
};

void PagePartsDeletedTest::partIsForgotten_data()
{
    addMemberRows(names("m_QLinkTabWidget m_QLinkTab m_launchOrderLbl m_QLinkListTblView m_upBtn m_downBtn m_newBtn "
                        "m_editBtn m_deleteBtn"));
}

void PagePartsDeletedTest::partIsForgotten()
{
    QFETCH(QString, member);
    m_page.begin(links("a b"));
    const QPointer<QObject> page = m_page.page->m_pageWidget;
    delete memberOf(m_page.page, member).object;
    QVERIFY(!memberOf(m_page.page, member).object);
    QVERIFY(page);
    QCOMPARE(m_page.page->Notify(1024, 0, 0), -1);
    m_page.show();
    QVERIFY(!page);
    QCOMPARE(m_page.linkNames(), "a b");
    delete memberOf(m_page.page, member).object;
    m_page.page->OnDestroy();
    QVERIFY(m_page.host->children().isEmpty());
}

void PagePartsDeletedTest::remove(const QString& way)
{
    if (way == "host's widget")
        delete m_page.host;
    else if (way == "page")
        delete m_page.page->m_pageWidget;
    else if (way == "tab widget")
        delete m_page.page->m_QLinkTabWidget;
    else if (way == "table")
        delete m_page.page->m_QLinkListTblView;
    else if (way == "rebuild")
        m_page.page->createWidgetMemory(m_page.host);
    else if (way == "fillTable")
        m_page.page->fillTable();
    else
        m_page.page->OnDestroy();
}

void PagePartsDeletedTest::tablePartGoesOnce_data()
{
    addRows(QString("host's widget,page,tab widget,table,rebuild,fillTable,OnDestroy").split(','));
}

void PagePartsDeletedTest::tablePartGoesOnce()
{
    QFETCH(QString, way);
    m_page.begin(links("a b"));
    int names = 0, types = 0;
    // The table frees the items that it had.
    m_page.table()->setHorizontalHeaderItem(0, m_page.page->m_nameHeaderItem = new CountedItem(&names));
    m_page.table()->setHorizontalHeaderItem(1, m_page.page->m_typeHeaderItem = new CountedItem(&types));
    const QPointer<QObject> delegate = m_page.page->m_gridDelegate;
    m_page.page->releaseTable();
    remove(way);
    QCOMPARE(!delegate, way == "rebuild" || way == "fillTable" || way == "OnDestroy");
    QCOMPARE(names, 1);
    QCOMPARE(types, 1);
    const bool isMadeAgain = way == "fillTable";
    QCOMPARE(m_page.page->m_nameHeaderItem != nullptr, isMadeAgain);
    QCOMPARE(m_page.page->m_typeHeaderItem != nullptr, isMadeAgain);
    m_page.page->OnDestroy();
    QCOMPARE(names, 1);
    QCOMPARE(types, 1);
}

void PagePartsDeletedTest::headerItemWithoutTableIsKept()
{
    QFETCH(QString, way);
    m_page.begin(links("a b"));
    {
        // The items are made before it shows that there is nothing to fill the table with.
        const Replaced<QuickLinkRecordList> noList(m_page.page->m_recordList, nullptr);
        m_page.page->fillTable();
    }
    int destructions = 0;
    delete m_page.page->m_nameHeaderItem;
    m_page.page->m_nameHeaderItem = new CountedItem(&destructions);
    delete m_page.host;
    QVERIFY(m_page.page->m_nameHeaderItem && m_page.page->m_typeHeaderItem);
    QCOMPARE(destructions, 0);
    remove(way);
    QCOMPARE(destructions, 1);
    m_page.page->OnDestroy();
    QCOMPARE(destructions, 1);
}

void PagePartsDeletedTest::layoutWithoutWidgetIsKept()
{
    QFETCH(QString, way);
    m_page.beginHidden(links("a b"));
    m_page.page->createWidgetMemory(m_page.host);
    const QStringList layoutNames = names("m_pageLayout m_tabLayout m_buttonColumnLayout m_orderButtonsLayout");
    QList<QPointer<QObject>> layouts;
    for (const QString& name : layoutNames)
        layouts.append(memberOf(m_page.page, name).object);
    delete m_page.host;
    for (int i = 0; i < layouts.size(); ++i)
        QVERIFY2(layouts.at(i), qPrintable(layoutNames.at(i)));
    remove(way);
    for (int i = 0; i < layouts.size(); ++i)
        QVERIFY2(!layouts.at(i), qPrintable(layoutNames.at(i)));
    m_page.page->OnDestroy();
}

REGISTER_TEST(PagePartsDeletedTest)
#include "PagePartsDeletedTest.moc"
