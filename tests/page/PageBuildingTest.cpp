// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Building the page where something is missing, and building it again.

#include <QHBoxLayout>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

#include "ShownPage.h"
#include "Test.h"

class PageBuildingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void initializeWithout_data();
    void initializeWithout();
    void namesWithout_data();
    void namesWithout();
    void layoutWithout_data();
    void layoutWithout();
    void textsWithout_data();
    void textsWithout();
    void textsWithoutTab();
    void membersBeforeTheFirstShow_data();
    void membersBeforeTheFirstShow();
    void secondShowLeavesOnePage();
    void rebuildFreesTheOldPage_data();
    void rebuildFreesTheOldPage();
    void rebuildFreesInOrder();
    void rebuildFreesTheRowRecords();
    void buildingAloneLeavesNoTableParts();
    void laterOperationsRunOnAHalfBuiltPage();

private:
    void buildWidgets();

    ShownPage m_page;
};

void PageBuildingTest::buildWidgets()
{
    m_page.beginHidden(links("One Two"));
    m_page.page->createWidgetMemory(m_page.host);
}

void PageBuildingTest::initializeWithout_data()
{
    addMemberRows(
        names("m_pageWidget m_QLinkTabWidget m_QLinkTab m_QLinkListTblView m_launchOrderLbl m_upBtn m_downBtn "
              "m_newBtn m_editBtn m_deleteBtn m_pageLayout m_tabLayout m_buttonColumnLayout m_orderButtonsLayout"));
}

void PageBuildingTest::initializeWithout()
{
    QFETCH(QString, member);
    buildWidgets();
    {
        const NullMember missing(memberOf(m_page.page, member));
        RecordingTrace trace;
        m_page.page->initializeUI();
        QCOMPARE(trace.countDebug(tracePattern("%F: initializeUI: Cell-Log UI Intialization Failed: ")), 1);
        QCOMPARE(trace.countDebug("Arg is NULL.*"), 0);
        QCOMPARE(trace.countDebug("End of .*"), 0);
        QCOMPARE(trace.warningLines, QStringList());
    }
    const QList<PointerMember> members = membersOf(m_page.page);
    for (const PointerMember& each : members) {
        QCOMPARE(each.object->objectName(), QString());
        QVERIFY(!QObject::disconnect(each.object, nullptr, m_page.page, nullptr));
    }
    QCOMPARE(m_page.page->m_QLinkTabWidget->count(), 0);
    QVERIFY(m_page.page->m_upBtn->isEnabled());
}

void PageBuildingTest::namesWithout_data()
{
    addMemberRows(names("m_QLinkTabWidget m_QLinkTab m_launchOrderLbl m_QLinkListTblView m_upBtn m_downBtn m_newBtn "
                        "m_editBtn m_deleteBtn"));
}

void PageBuildingTest::namesWithout()
{
    QFETCH(QString, member);
    buildWidgets();
    {
        const NullMember missing(memberOf(m_page.page, member));
        RecordingTrace trace;
        m_page.page->setObjectNameDlg();
        QCOMPARE(trace.countDebug(nullTrace("setObjectNameDlg")), 1);
    }
    const QList<PointerMember> members = membersOf(m_page.page);
    for (const PointerMember& each : members)
        QCOMPARE(each.object->objectName(), QString());
}

void PageBuildingTest::layoutWithout_data()
{
    addMemberRows(
        names("m_pageLayout m_tabLayout m_orderButtonsLayout m_buttonColumnLayout m_QLinkTabWidget "
              "m_launchOrderLbl m_QLinkListTblView m_upBtn m_downBtn m_QLinkTab m_newBtn m_editBtn m_deleteBtn "
              "m_pageWidget"));
}

void PageBuildingTest::layoutWithout()
{
    QFETCH(QString, member);
    buildWidgets();
    {
        const NullMember missing(memberOf(m_page.page, member));
        RecordingTrace trace;
        m_page.page->setDisplayLayout();
        QCOMPARE(trace.countDebug(nullTrace("setDisplayLayout")), 1);
    }
    const QLayout* const layouts[] = {m_page.page->m_pageLayout, m_page.page->m_tabLayout,
                                      m_page.page->m_buttonColumnLayout, m_page.page->m_orderButtonsLayout};
    for (const QLayout* layout : layouts) {
        QCOMPARE(layout->count(), 0);
        QVERIFY(!layout->parent());
    }
    QCOMPARE(m_page.page->m_QLinkTabWidget->minimumSize(), QSize(0, 0));
}

void PageBuildingTest::textsWithout_data()
{
    addMemberRows(names("m_launchOrderLbl m_upBtn m_downBtn m_QLinkTabWidget m_newBtn m_editBtn m_deleteBtn"));
}

void PageBuildingTest::textsWithout()
{
    QFETCH(QString, member);
    m_page.begin(links("One"));
    FakeHost::instance().language = "de";
    {
        const NullMember missing(memberOf(m_page.page, member));
        RecordingTrace trace;
        m_page.page->setDisplayString();
        QCOMPARE(trace.countDebug(nullTrace("setDisplayString")), 1);
    }
    const char* const captioned[] = {"m_launchOrderLbl", "m_upBtn",   "m_downBtn",
                                     "m_newBtn",         "m_editBtn", "m_deleteBtn"};
    for (const char* name : captioned) {
        const QString text = memberOf(m_page.page, QLatin1String(name)).object->property("text").toString();
        QVERIFY2(text.startsWith("en:"), name);
    }
    QVERIFY(m_page.page->m_QLinkTabWidget->tabText(0).startsWith("en:"));
}

void PageBuildingTest::textsWithoutTab()
{
    // The tab page is not among what is checked: the other texts are set all the same.
    m_page.begin(links("One"));
    FakeHost::instance().language = "de";
    const NullMember missing(memberOf(m_page.page, "m_QLinkTab"));
    m_page.page->setDisplayString();
    QCOMPARE(m_page.page->m_deleteBtn->text(), shown("IDS_LINK_SETTING_DEL"));
    QCOMPARE(m_page.page->m_QLinkTabWidget->tabText(0), "en:IDS_LINK_SETTING_TAB");
}

void PageBuildingTest::membersBeforeTheFirstShow_data()
{
    initializeWithout_data();
}

void PageBuildingTest::membersBeforeTheFirstShow()
{
    QFETCH(QString, member);
    m_page.beginHidden(links("One"));
    QVERIFY(!memberOf(m_page.page, member).object);
    QVERIFY(!m_page.page->m_nameHeaderItem && !m_page.page->m_typeHeaderItem && !m_page.page->m_gridDelegate);
    QVERIFY(!m_page.page->m_newDlg && !m_page.page->m_editDlg && !m_page.page->m_isEditing);
    QVERIFY(!m_page.page->m_parentWidget);
}

void PageBuildingTest::secondShowLeavesOnePage()
{
    m_page.begin(links("One Two"));
    m_page.show();
    QCOMPARE(m_page.host->children().size(), 1);
    QCOMPARE(m_page.host->children().first(), static_cast<QObject*>(m_page.page->m_pageWidget));
    QCOMPARE(m_page.host->findChildren<QTableWidget*>().size(), 1);
    QCOMPARE(m_page.host->findChildren<QPushButton*>().size(), 5);
    QCOMPARE(m_page.table()->horizontalHeaderItem(0), m_page.page->m_nameHeaderItem);
    QCOMPARE(m_page.table()->horizontalHeaderItem(1), m_page.page->m_typeHeaderItem);
    QCOMPARE(m_page.disorder(), QString());
}

void PageBuildingTest::rebuildFreesTheOldPage_data()
{
    initializeWithout_data();
}

void PageBuildingTest::rebuildFreesTheOldPage()
{
    QFETCH(QString, member);
    m_page.begin(links("One Two"));
    const QPointer<QObject> old = memberOf(m_page.page, member).object;
    m_page.show();
    QVERIFY(!old);
    QVERIFY(memberOf(m_page.page, member).object);
}

/** Writes down the names of what is destroyed. */
class Obituary : public QObject
{
    Q_OBJECT

public:
    void follow(QObject* object, const char* name)
    {
        object->setProperty("name", QLatin1String(name));
        connect(object, SIGNAL(destroyed(QObject*)), this, SLOT(note(QObject*)));
        m_names.insert(object, QLatin1String(name));
    }

    QStringList gone;

private Q_SLOTS:
    void note(QObject* object) { gone.append(m_names.value(object)); }

private:
    QHash<QObject*, QString> m_names;
};

void PageBuildingTest::rebuildFreesInOrder()
{
    m_page.begin(links("One Two"));
    Obituary obituary;
    obituary.follow(m_page.page->m_gridDelegate, "delegate");
    obituary.follow(m_page.page->m_QLinkListTblView, "table");
    obituary.follow(m_page.page->m_pageWidget, "page");
    obituary.follow(m_page.page->m_upBtn, "a child");
    m_page.show();
    QCOMPARE(obituary.gone.join(", "), "delegate, table, page, a child");
}

void PageBuildingTest::rebuildFreesTheRowRecords()
{
    m_page.begin(links("One Two Three"));
    const RecordProbe first(m_page.recordOf(0));
    const RecordProbe last(m_page.recordOf(2));
    m_page.show();
    QVERIFY(first.isFreed());
    QVERIFY(last.isFreed());
    QCOMPARE(m_page.disorder(), QString());
}

void PageBuildingTest::buildingAloneLeavesNoTableParts()
{
    m_page.begin(links("One"));
    m_page.page->createWidgetMemory(m_page.host);
    QVERIFY(!m_page.page->m_nameHeaderItem);
    QVERIFY(!m_page.page->m_typeHeaderItem);
    QVERIFY(!m_page.page->m_gridDelegate);
}

void PageBuildingTest::laterOperationsRunOnAHalfBuiltPage()
{
    buildWidgets();
    {
        const NullMember missing(memberOf(m_page.page, "m_orderButtonsLayout"));
        m_page.page->initializeUI();
    }
    m_page.page->fillTable();
    QCOMPARE(m_page.page->m_QLinkListTblView->rowCount(), 2);
    QCOMPARE(m_page.page->m_QLinkListTblView->item(1, 0)->text(), "Two");
}

REGISTER_TEST(PageBuildingTest)
#include "PageBuildingTest.moc"
