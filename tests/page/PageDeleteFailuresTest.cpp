// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Delete where something is missing: the question is asked all the same, and whatever returns early tells nobody.


#include "ShownPage.h"
#include "Test.h"

class PageDeleteFailuresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void memberMissing_data();
    void memberMissing();
    void noList_data();
    void noList();
    void nothingSelected();
    void rowWithoutRecord_data();
    void rowWithoutRecord();
    void noCurrentRow();
    void rowBeyondTheList();
    void recordMissingInTheCurrentRow();
    void noStore();
    void noMenuManager();
    void pageNotShown();

private:
    void checkUntouched() const;

    ShownPage m_page;
    QByteArray m_file;
};

void PageDeleteFailuresTest::checkUntouched() const
{
    QCOMPARE(FakeHost::instance().messages.size(), 1);
    QCOMPARE(FakeHost::instance().notifications, QStringList());
    QCOMPARE(FakeHost::instance().lookups.size(), 0);
    QCOMPARE(FakeHost::instance().readConfig(), m_file);
    QCOMPARE(m_page.shownNames(), "a b");
    QCOMPARE(m_page.listNames(), "a b");
}

void PageDeleteFailuresTest::memberMissing_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("isUntouched");
    const struct {
        const char* member;
        bool isAlwaysNeeded;
    } rows[] = {{"m_QLinkListTblView", true},
                {"m_editBtn", true},
                {"m_deleteBtn", true},
                {"m_upBtn", false},
                {"m_downBtn", false}};
    for (const auto& row : rows) {
        QTest::newRow(qPrintable(QString("no %1, OK").arg(QLatin1String(row.member))))
            << QString::fromLatin1(row.member) << int(QMessageBox::Ok) << true;
        QTest::newRow(qPrintable(QString("no %1, Cancel").arg(QLatin1String(row.member))))
            << QString::fromLatin1(row.member) << int(QMessageBox::Cancel) << row.isAlwaysNeeded;
    }
}

void PageDeleteFailuresTest::memberMissing()
{
    QFETCH(QString, member);
    QFETCH(int, answer);
    QFETCH(bool, isUntouched);
    m_page.begin(links("a b"));
    m_file = FakeHost::instance().readConfig();
    FakeHost::instance().messageAnswer = answer;
    {
        const NullMember missing(memberOf(m_page.page, member));
        RecordingTrace trace;
        m_page.page->onDeleteBtnClick();
        QCOMPARE(trace.countDebug(tracePattern("Arg is NULL: %T: %F: .* %L")), isUntouched ? 1 : 0);
    }
    if (isUntouched)
        checkUntouched();
    else
        QCOMPARE(FakeHost::instance().notifications.size(), 1);
}

void PageDeleteFailuresTest::noList_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("OK") << int(QMessageBox::Ok);
    QTest::newRow("Cancel") << int(QMessageBox::Cancel);
}

void PageDeleteFailuresTest::noList()
{
    QFETCH(int, answer);
    m_page.begin(links("a b"));
    m_file = FakeHost::instance().readConfig();
    FakeHost::instance().messageAnswer = answer;
    {
        const Replaced<QuickLinkRecordList> list(m_page.page->m_recordList, nullptr);
        RecordingTrace trace;
        m_page.click("m_deleteBtn");
        QCOMPARE(trace.countDebug(tracePattern("Arg is NULL: %T: %F: .* %L")), answer == QMessageBox::Ok ? 1 : 0);
    }
    if (answer == QMessageBox::Ok)
        checkUntouched();
    else
        QCOMPARE(FakeHost::instance().notifications.size(), 1);
}

void PageDeleteFailuresTest::nothingSelected()
{
    m_page.begin(links("a b"));
    m_file = FakeHost::instance().readConfig();
    m_page.table()->clearSelection();
    {
        RecordingTrace trace;
        m_page.click("m_deleteBtn");
        QCOMPARE(trace.countDebug(tracePattern("Arg is NULL: %T: %F: .* %L")), 1);
    }
    checkUntouched();
}

void PageDeleteFailuresTest::rowWithoutRecord_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::newRow("0") << QVariant(0);
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("no number") << QVariant("record");
}

void PageDeleteFailuresTest::rowWithoutRecord()
{
    QFETCH(QVariant, data);
    m_page.begin(links("a b"));
    m_file = FakeHost::instance().readConfig();
    const QVariant before = m_page.table()->item(0, 0)->data(Qt::UserRole);
    m_page.table()->item(0, 0)->setData(Qt::UserRole, data);
    {
        RecordingTrace trace;
        m_page.click("m_deleteBtn");
        QCOMPARE(trace.countDebug("Arg is NULL.*"), 0);
    }
    m_page.table()->item(0, 0)->setData(Qt::UserRole, before);
    checkUntouched();
}

void PageDeleteFailuresTest::noCurrentRow()
{
    m_page.begin(links("a b"));
    m_file = FakeHost::instance().readConfig();
    m_page.table()->selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
    {
        RecordingTrace trace;
        m_page.click("m_deleteBtn");
        QCOMPARE(trace.countDebug(tracePattern("%F: [A-Za-z]*: refused, .*")), 1);
    }
    checkUntouched();
}

void PageDeleteFailuresTest::rowBeyondTheList()
{
    m_page.begin(links("a b"));
    m_file = FakeHost::instance().readConfig();
    m_page.select(1);
    const QuickLinkRecord link = m_page.page->m_recordList->last();
    m_page.page->m_recordList->pop_back();
    m_page.click("m_deleteBtn");
    m_page.page->m_recordList->append(link);
    checkUntouched();
}

void PageDeleteFailuresTest::recordMissingInTheCurrentRow()
{
    // The selected row has a record, the current one has lost its own: the row goes, and nothing is freed twice.
    m_page.begin(links("a b"));
    QuickLinkRecord* const lost = m_page.recordOf(1);
    m_page.table()->item(1, 0)->setData(Qt::UserRole, 0);
    m_page.table()->selectionModel()->setCurrentIndex(m_page.table()->model()->index(1, 0),
                                                      QItemSelectionModel::NoUpdate);
    m_page.click("m_deleteBtn");
    QCOMPARE(m_page.shownNames(), "a");
    QCOMPARE(m_page.disorder(), QString());
    m_page.page->freeRecord(lost);
}

void PageDeleteFailuresTest::noStore()
{
    m_page.begin(links("a b"));
    m_file = FakeHost::instance().readConfig();
    {
        const Replaced<QuickLinkXmlParse> store(m_page.page->m_store, nullptr);
        RecordingTrace trace;
        m_page.click("m_deleteBtn");
        QCOMPARE(trace.countDebug(tracePattern("Arg is NULL: %T: %F: .* %L")), 1);
    }
    QCOMPARE(m_page.shownNames(), "b");
    QCOMPARE(m_page.listNames(), "b");
    QCOMPARE(FakeHost::instance().readConfig(), m_file);
    QCOMPARE(FakeHost::instance().notifications.size(), 1);
}

void PageDeleteFailuresTest::noMenuManager()
{
    m_page.begin(links("a b"));
    FakeHost::instance().hasNotifyOwner = false;
    {
        RecordingTrace trace;
        m_page.click("m_deleteBtn");
        QCOMPARE(trace.countWarnings(tracePattern("%F: sendNotifyToMenu: plugin is not loaded ")), 1);
    }
    QCOMPARE(m_page.shownNames(), "b");
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("2"));
}

void PageDeleteFailuresTest::pageNotShown()
{
    m_page.beginHidden(links("a b"));
    m_file = FakeHost::instance().readConfig();
    {
        RecordingTrace trace;
        m_page.page->onDeleteBtnClick();
        QCOMPARE(trace.countDebug(nullTrace("onDeleteBtnClick")), 1);
    }
    QCOMPARE(FakeHost::instance().messages.size(), 1);
    QVERIFY(!FakeHost::instance().messages.first().hasParent);
    QCOMPARE(FakeHost::instance().notifications, QStringList());
    QCOMPARE(m_page.listNames(), "a b");
}

REGISTER_TEST(PageDeleteFailuresTest)
#include "PageDeleteFailuresTest.moc"
