// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The page before it is shown, and when it is built again.

#include "ShownPage.h"
#include "Test.h"

/** Writes down the names of what is destroyed. */
class RecordingObituary : public QObject
{
    Q_OBJECT

public:
    void follow(QObject* object, const char* name)
    {
        connect(object, SIGNAL(destroyed(QObject*)), this, SLOT(note(QObject*)));
        m_names.insert(object, name);
    }

    QStringList gone;

private Q_SLOTS:
    void note(QObject* object) { gone.append(m_names.value(object)); }

private:
    QHash<QObject*, QString> m_names;
};

class PageRebuildTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void membersComeAndGoWithThePage();
    void secondShowLeavesOnePage();
    void rebuildFreesInOrder();
    void rebuildFreesTheRowRecords();
    void buildingAloneLeavesNoTableParts();

private:
    ShownPage m_page;
};

void PageRebuildTest::membersComeAndGoWithThePage()
{
    m_page.beginHidden(links("One Two"));
    for (const PointerMember& member : membersOf(m_page.page))
        QVERIFY2(!member.object, member.name);
    QVERIFY(!m_page.page->m_nameHeaderItem && !m_page.page->m_typeHeaderItem && !m_page.page->m_gridDelegate);
    QVERIFY(!m_page.page->m_newDlg && !m_page.page->m_editDlg && !m_page.page->m_isEditing);
    QVERIFY(!m_page.page->m_parentWidget);

    m_page.show();
    QList<QPointer<QObject>> old;
    for (const PointerMember& member : membersOf(m_page.page))
        old.append(member.object);
    m_page.show();
    const QList<PointerMember> members = membersOf(m_page.page);
    for (int i = 0; i < members.size(); ++i) {
        QVERIFY2(!old.at(i), members.at(i).name);
        QVERIFY2(members.at(i).object, members.at(i).name);
    }
}

void PageRebuildTest::secondShowLeavesOnePage()
{
    m_page.begin(links("One Two"));
    m_page.show();
    QCOMPARE(m_page.host->children().size(), 1);
    QCOMPARE(m_page.host->children().first(), static_cast<QObject*>(m_page.page->m_pageWidget));
    QCOMPARE(m_page.host->findChildren<QTableWidget*>().size(), 1);
    QCOMPARE(m_page.host->findChildren<QPushButton*>().size(), 5);
    QCOMPARE(m_page.table()->horizontalHeaderItem(0), m_page.page->m_nameHeaderItem);
    QCOMPARE(m_page.table()->horizontalHeaderItem(1), m_page.page->m_typeHeaderItem);
    QCOMPARE(m_page.linkNames(), "One Two");
}

void PageRebuildTest::rebuildFreesInOrder()
{
    m_page.begin(links("One Two"));
    RecordingObituary obituary;
    obituary.follow(m_page.page->m_gridDelegate, "delegate");
    obituary.follow(m_page.page->m_QLinkListTblView, "table");
    obituary.follow(m_page.page->m_pageWidget, "page");
    obituary.follow(m_page.page->m_upBtn, "a child");
    m_page.show();
    QCOMPARE(obituary.gone.join(", "),
             saysParentGoneFirst ? "delegate, table, page, a child" : "delegate, table, a child, page");
}

void PageRebuildTest::rebuildFreesTheRowRecords()
{
    m_page.begin(links("One Two Three"));
    const RecordProbe first(m_page.recordOf(0));
    const RecordProbe last(m_page.recordOf(2));
    m_page.show();
    QVERIFY(first.isFreed());
    QVERIFY(last.isFreed());
    QCOMPARE(m_page.linkNames(), "One Two Three");
}

void PageRebuildTest::buildingAloneLeavesNoTableParts()
{
    m_page.begin(links("One"));
    m_page.page->createWidgetMemory(m_page.host);
    QVERIFY(!m_page.page->m_nameHeaderItem);
    QVERIFY(!m_page.page->m_typeHeaderItem);
    QVERIFY(!m_page.page->m_gridDelegate);
}

REGISTER_TEST(PageRebuildTest)
#include "PageRebuildTest.moc"
