// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Up and Down where something is missing or there is nothing to change places with.


#include "FailingAllocation.h"
#include "ShownPage.h"
#include "Test.h"

class PageReorderingFailuresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void memberMissing_data();
    void memberMissing();
    void upNeedsNoUpButton();
    void refused_data();
    void refused();
    void missingItem_data();
    void missingItem();
    void noStore_data();
    void noStore();
    void noMemory_data();
    void noMemory();
    void putRecordWithout_data();
    void putRecordWithout();
    void putRecordIntoNoRow_data();
    void putRecordIntoNoRow();
    void putRecord();
    void pageNotShown_data();
    void pageNotShown();

private:
    static void directions();
    void press(const QString& direction);
    void checkUntouched() const;

    ShownPage m_page;
    QByteArray m_file;
};

void PageReorderingFailuresTest::directions()
{
    QTest::addColumn<QString>("direction");
    QTest::newRow("Up") << "Up";
    QTest::newRow("Down") << "Down";
}

void PageReorderingFailuresTest::press(const QString& direction)
{
    if (direction == "Up")
        m_page.page->onUpBtnClick();
    else
        m_page.page->ondownBtnClick();
}

void PageReorderingFailuresTest::checkUntouched() const
{
    QCOMPARE(m_page.shownNames(), "a b c");
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(FakeHost::instance().readConfig(), m_file);
    QCOMPARE(FakeHost::instance().notifications, QStringList());
}

void PageReorderingFailuresTest::memberMissing_data()
{
    QTest::addColumn<QString>("direction");
    QTest::addColumn<QString>("missing");
    const char* const rows[][2] = {{"Up", "m_QLinkListTblView"},
                                   {"Up", "list"},
                                   {"Down", "m_QLinkListTblView"},
                                   {"Down", "list"},
                                   {"Down", "m_downBtn"}};
    for (const char* const* row : rows)
        QTest::newRow(qPrintable(QString("%1, no %2").arg(QLatin1String(row[0]), QLatin1String(row[1]))))
            << QString::fromLatin1(row[0]) << QString::fromLatin1(row[1]);
}

void PageReorderingFailuresTest::memberMissing()
{
    QFETCH(QString, direction);
    QFETCH(QString, missing);
    m_page.begin(links("a b c"));
    m_page.select(1);
    m_file = FakeHost::instance().readConfig();
    {
        const bool noList = missing == "list";
        const QScopedPointer<NullMember> member(noList ? nullptr : new NullMember(memberOf(m_page.page, missing)));
        const Replaced<QuickLinkRecordList> list(m_page.page->m_recordList,
                                                 noList ? nullptr : m_page.page->m_recordList);
        RecordingTrace trace;
        press(direction);
        QCOMPARE(trace.countDebug(nullTrace(direction == "Up" ? "onUpBtnClick" : "ondownBtnClick")), 1);
    }
    QCOMPARE(m_page.currentRow(), 1);
    checkUntouched();
}

void PageReorderingFailuresTest::upNeedsNoUpButton()
{
    m_page.begin(links("a b c"));
    m_page.select(1);
    const NullMember missing(memberOf(m_page.page, "m_upBtn"));
    m_page.page->onUpBtnClick();
    QCOMPARE(m_page.shownNames(), "b a c");
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("3"));
}

void PageReorderingFailuresTest::refused_data()
{
    QTest::addColumn<QString>("direction");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("linksLeft");
    QTest::newRow("Up on the first row") << "Up" << 0 << 3;
    QTest::newRow("Down on the last row") << "Down" << 2 << 3;
    QTest::newRow("Up without a current row") << "Up" << -1 << 3;
    QTest::newRow("Down without a current row") << "Down" << -1 << 3;
    QTest::newRow("Up from beyond the list") << "Up" << 2 << 2;
    QTest::newRow("Down beyond the list") << "Down" << 1 << 2;
    QTest::newRow("Up with an empty list") << "Up" << 1 << 0;
    QTest::newRow("Down with an empty list") << "Down" << 0 << 0;
}

void PageReorderingFailuresTest::refused()
{
    QFETCH(QString, direction);
    QFETCH(int, row);
    QFETCH(int, linksLeft);
    m_page.begin(links("a b c"));
    if (row < 0)
        m_page.table()->selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
    else
        m_page.select(row);
    m_file = FakeHost::instance().readConfig();
    const QString buttons = m_page.enabledButtons();
    const QuickLinkRecordList all = *m_page.page->m_recordList;
    m_page.page->m_recordList->resize(linksLeft);
    {
        RecordingTrace trace;
        press(direction);
        QCOMPARE(trace.countDebug(tracePattern("%F: [A-Za-z]*: refused, .*")), 1);
    }
    QCOMPARE(m_page.page->m_recordList->size(), linksLeft);
    *m_page.page->m_recordList = all;
    QCOMPARE(m_page.currentRow(), row);
    QCOMPARE(m_page.enabledButtons(), buttons);
    checkUntouched();
}

void PageReorderingFailuresTest::missingItem_data()
{
    QTest::addColumn<QString>("direction");
    QTest::addColumn<int>("row");
    QTest::newRow("Up from it") << "Up" << 1;
    QTest::newRow("Up to it") << "Up" << 0;
    QTest::newRow("Down from it") << "Down" << 1;
    QTest::newRow("Down to it") << "Down" << 2;
}

void PageReorderingFailuresTest::missingItem()
{
    QFETCH(QString, direction);
    QFETCH(int, row);
    m_page.begin(links("a b c"));
    m_page.select(1);
    m_file = FakeHost::instance().readConfig();
    QTableWidgetItem* const item = m_page.table()->takeItem(row, 0);
    {
        RecordingTrace trace;
        press(direction);
        QCOMPARE(trace.countDebug(tracePattern("Arg is NULL: %T: %F: .* %L")), 1);
    }
    m_page.table()->setItem(row, 0, item);
    checkUntouched();
}

void PageReorderingFailuresTest::noStore_data()
{
    directions();
}

void PageReorderingFailuresTest::noStore()
{
    QFETCH(QString, direction);
    m_page.begin(links("a b c"));
    m_page.select(1);
    m_file = FakeHost::instance().readConfig();
    {
        const Replaced<QuickLinkXmlParse> store(m_page.page->m_store, nullptr);
        RecordingTrace trace;
        press(direction);
        QCOMPARE(trace.countDebug(tracePattern("Arg is NULL: %T: %F: .* %L")), 1);
    }
    const bool isUp = direction == "Up";
    QCOMPARE(m_page.shownNames(), isUp ? "b a c" : "a c b");
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(m_page.currentRow(), isUp ? 0 : 2);
    QCOMPARE(FakeHost::instance().readConfig(), m_file);
}

void PageReorderingFailuresTest::noMemory_data()
{
    QTest::addColumn<QString>("direction");
    QTest::addColumn<int>("which");
    QTest::newRow("Up, first record") << "Up" << 0;
    QTest::newRow("Up, second record") << "Up" << 1;
    QTest::newRow("Down, first record") << "Down" << 0;
    QTest::newRow("Down, second record") << "Down" << 1;
}

void PageReorderingFailuresTest::noMemory()
{
    QFETCH(QString, direction);
    QFETCH(int, which);
    m_page.begin(links("a b c"));
    m_page.select(1);
    m_file = FakeHost::instance().readConfig();
    {
        const FailingAllocation failing(which);
        press(direction);
        QVERIFY(failing.hasFailed());
    }
    checkUntouched();
}

void PageReorderingFailuresTest::putRecordWithout_data()
{
    QTest::addColumn<QString>("missing");
    QTest::newRow("no record") << "record";
    QTest::newRow("no table") << "table";
    QTest::newRow("no list") << "list";
}

void PageReorderingFailuresTest::putRecordWithout()
{
    QFETCH(QString, missing);
    m_page.begin(links("a b c"));
    m_file = FakeHost::instance().readConfig();
    QuickLinkRecord record = makeRecord("other", "email", "mailto:");
    {
        const Replaced<QTableWidget> table(m_page.page->m_QLinkListTblView,
                                           missing == "table" ? nullptr : m_page.table());
        const Replaced<QuickLinkRecordList> list(
            m_page.page->m_recordList, missing == "list" ? nullptr : m_page.page->m_recordList);
        RecordingTrace trace;
        m_page.page->addRecordOnUpButtonClick(missing == "record" ? nullptr : &record, 1);
        QCOMPARE(trace.countDebug(nullTrace("addRecordOnUpButtonClick")), 1);
    }
    checkUntouched();
}

void PageReorderingFailuresTest::putRecordIntoNoRow_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("-1") << -1;
    QTest::newRow("3") << 3;
}

void PageReorderingFailuresTest::putRecordIntoNoRow()
{
    QFETCH(int, row);
    m_page.begin(links("a b c"));
    m_file = FakeHost::instance().readConfig();
    QuickLinkRecord record = makeRecord("other", "email", "mailto:");
    m_page.page->addRecordOnUpButtonClick(&record, row);
    checkUntouched();
}

void PageReorderingFailuresTest::putRecord()
{
    m_page.begin(links("a b c"));
    const RecordProbe old(m_page.recordOf(1));
    QuickLinkRecord* const record = new QuickLinkRecord(makeRecord("other", "application", "/x"));
    m_page.page->addRecordOnUpButtonClick(record, 1);
    QVERIFY(old.isFreed());
    QCOMPARE(m_page.recordOf(1), record);
    QCOMPARE(m_page.shownNames(), "a other c");
    QCOMPARE(m_page.disorder(), QString());
}

void PageReorderingFailuresTest::pageNotShown_data()
{
    directions();
}

void PageReorderingFailuresTest::pageNotShown()
{
    QFETCH(QString, direction);
    m_page.beginHidden(links("a b c"));
    m_file = FakeHost::instance().readConfig();
    press(direction);
    QCOMPARE(m_page.listNames(), "a b c");
    QCOMPARE(FakeHost::instance().readConfig(), m_file);
}

REGISTER_TEST(PageReorderingFailuresTest)
#include "PageReorderingFailuresTest.moc"
