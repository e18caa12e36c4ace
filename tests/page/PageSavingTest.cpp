// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the five changes have in common: each is saved at once, and then the menu is told of those that it shows.

#include <QAction>

#include "ShownPage.h"
#include "Test.h"

class PageSavingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void change_data();
    void change();
    void menuShowsAMoveAfterTheNextChange();
    void idsStay_data();
    void idsStay();

private:
    ShownPage m_page;
};

void PageSavingTest::change_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("names");
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("isTold");
    QTest::newRow("New") << "New"
                         << "a b c d" << 3 << true;
    QTest::newRow("Edit") << "Edit"
                          << "a x c" << 1 << true;
    QTest::newRow("Delete") << "Delete"
                            << "a c" << 1 << true;
    QTest::newRow("Up") << "Up"
                        << "b a c" << 0 << false;
    QTest::newRow("Down") << "Down"
                          << "a c b" << 2 << false;
}

void PageSavingTest::change()
{
    QFETCH(QString, what);
    QFETCH(QString, names);
    QFETCH(int, row);
    QFETCH(bool, isTold);
    m_page.begin(links("a b c"));
    m_page.select(1);
    QByteArray fileWhenTold;
    QStringList menu;
    int rowWhenTold = -1;
    FakeHost::instance().duringNotification = [this, &fileWhenTold, &menu, &rowWhenTold] {
        fileWhenTold = m_page.file();
        for (int i = 0; i < m_page.page->GetQuickLinkRecordSize(); ++i)
            menu.append(m_page.page->GetActionFromQuickLink(i)->text());
        rowWhenTold = m_page.currentRow();
    };
    const QuickLinkRecordList* const list = m_page.page->m_recordList;
    const bool isNew = what == "New";
    {
        RecordingTrace trace;
        m_page.change(what);
        QCOMPARE(trace.countDebug(tracePattern("%T : %F: SaveToConfigFile: Exit")), 1);
        // Only a new link needs its id from the file.
        QCOMPARE(trace.countDebug(".*ReadXmlInformation.*") > 0, isNew);
    }
    QVERIFY(isNew || m_page.page->m_recordList == list);
    QCOMPARE(m_page.page->m_recordList, QuickLinkXmlParse::GetInstance()->m_recordList);
    QCOMPARE(m_page.page->GetQuickLinkRecordSize(), int(m_page.page->m_recordList->size()));
    QCOMPARE(QuickLinkXmlParse::GetInstance()->m_currentId, isNew ? "4" : "3");
    QCOMPARE(m_page.linkNames(), names);
    QCOMPARE(m_page.currentRow(), row);
    QuickLinkRecordList onDisk = *m_page.page->m_recordList;
    if (what == "Edit")
        onDisk[1].id = "2"; // the writer numbers it
    QCOMPARE(m_page.file(), configDocument("1", isNew ? "4" : "3", onDisk.toList()));

    QCOMPARE(FakeHost::instance().notifications, isTold ? QStringList() << "MenuMgrPlugin 2309 0 0" : QStringList());
    QCOMPARE(FakeHost::instance().lookups.size(), isTold ? 1 : 0);
    QCOMPARE(fileWhenTold, isTold ? m_page.file() : QByteArray());
    QCOMPARE(menu.join(" "), isTold ? names : QString());
    QCOMPARE(rowWhenTold, isTold ? row : -1);
    if (what != "Delete")
        QTRY_COMPARE(m_page.host->focusWidget(), static_cast<QWidget*>(m_page.table()));
}

void PageSavingTest::menuShowsAMoveAfterTheNextChange()
{
    m_page.begin(links("a b c"));
    QStringList menu;
    FakeHost::instance().duringNotification = [this, &menu] {
        for (int i = 0; i < m_page.page->GetQuickLinkRecordSize(); ++i)
            menu.append(m_page.page->GetActionFromQuickLink(i)->text());
    };
    m_page.change("Down");
    QCOMPARE(menu, QStringList());
    m_page.change("New");
    QCOMPARE(menu.join(" "), "b a c d");
}

void PageSavingTest::idsStay_data()
{
    QTest::addColumn<QString>("changes");
    QTest::addColumn<QString>("ids");
    QTest::addColumn<QString>("counter");
    QTest::newRow("links added") << "New"
                                 << "0 1 2 3"
                                 << "4";
    QTest::newRow("a link deleted") << "Delete New"
                                    << "0 2 3"
                                    << "4";
    QTest::newRow("links moved to and fro") << "Down Up Down Up"
                                            << "0 1 2"
                                            << "3";
    // The edited one and the new one get the same.
    QTest::newRow("a link edited") << "Edit New"
                                   << "0 3 2 3"
                                   << "4";
}

void PageSavingTest::idsStay()
{
    QFETCH(QString, changes);
    QFETCH(QString, ids);
    QFETCH(QString, counter);
    m_page.begin(links("a b c"));
    m_page.select(1);
    for (const QString& change : changes.split(' '))
        m_page.change(change);
    QStringList shown;
    for (const QuickLinkRecord& record : *m_page.page->m_recordList)
        shown.append(record.id);
    QCOMPARE(shown.join(" "), ids);
    QCOMPARE(QuickLinkXmlParse::GetInstance()->m_currentId, counter);
    QCOMPARE(m_page.file(), m_page.expectedFile(counter.toLatin1().constData()));
}

REGISTER_TEST(PageSavingTest)
#include "PageSavingTest.moc"
