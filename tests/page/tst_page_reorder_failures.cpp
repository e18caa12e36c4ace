// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Up and Down where something is missing or there is nothing to change places with.

#include <QtTest>

#include "FailingAllocations.h"
#include "PageFixture.h"

class PageReorderFailures : public QObject
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

void PageReorderFailures::directions()
{
    QTest::addColumn<QString>("direction");
    QTest::newRow("Up") << QString::fromLatin1("Up");
    QTest::newRow("Down") << QString::fromLatin1("Down");
}

void PageReorderFailures::press(const QString& direction)
{
    if (direction == QLatin1String("Up"))
        m_page.page->onUpBtnClick();
    else
        m_page.page->ondownBtnClick();
}

void PageReorderFailures::checkUntouched() const
{
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a b c"));
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(FakeHost::instance().readConfig(), m_file);
    QCOMPARE(FakeHost::instance().notifications, QStringList());
}

void PageReorderFailures::memberMissing_data()
{
    QTest::addColumn<QString>("direction");
    QTest::addColumn<QString>("missing");
    const char* const rows[][2] = {{"Up", "m_QLinkListTblView"},
                                   {"Up", "list"},
                                   {"Down", "m_QLinkListTblView"},
                                   {"Down", "list"},
                                   {"Down", "m_downBtn"}};
    for (const char* const* row : rows)
        QTest::newRow(qPrintable(QString::fromLatin1("%1, no %2").arg(QLatin1String(row[0]), QLatin1String(row[1]))))
            << QString::fromLatin1(row[0]) << QString::fromLatin1(row[1]);
}

void PageReorderFailures::memberMissing()
{
    QFETCH(QString, direction);
    QFETCH(QString, missing);
    m_page.begin(links("a b c"));
    m_page.select(1);
    m_file = FakeHost::instance().readConfig();
    {
        const bool noList = missing == QLatin1String("list");
        const QScopedPointer<NullMember> member(noList ? nullptr : new NullMember(memberOf(m_page.page, missing)));
        const Replaced<QuickLinkRecordList> list(m_page.page->m_recordList,
                                                 noList ? nullptr : m_page.page->m_recordList);
        TraceRecorder trace;
        press(direction);
        QCOMPARE(trace.countDebug(nullTrace(direction == QLatin1String("Up") ? "onUpBtnClick" : "ondownBtnClick")), 1);
    }
    QCOMPARE(m_page.currentRow(), 1);
    checkUntouched();
}

void PageReorderFailures::upNeedsNoUpButton()
{
    m_page.begin(links("a b c"));
    m_page.select(1);
    const NullMember missing(memberOf(m_page.page, QLatin1String("m_upBtn")));
    m_page.page->onUpBtnClick();
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("b a c"));
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("3"));
}

void PageReorderFailures::refused_data()
{
    QTest::addColumn<QString>("direction");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("linksLeft");
    QTest::newRow("Up on the first row") << QString::fromLatin1("Up") << 0 << 3;
    QTest::newRow("Down on the last row") << QString::fromLatin1("Down") << 2 << 3;
    QTest::newRow("Up without a current row") << QString::fromLatin1("Up") << -1 << 3;
    QTest::newRow("Down without a current row") << QString::fromLatin1("Down") << -1 << 3;
    QTest::newRow("Up from beyond the list") << QString::fromLatin1("Up") << 2 << 2;
    QTest::newRow("Down beyond the list") << QString::fromLatin1("Down") << 1 << 2;
    QTest::newRow("Up with an empty list") << QString::fromLatin1("Up") << 1 << 0;
    QTest::newRow("Down with an empty list") << QString::fromLatin1("Down") << 0 << 0;
}

void PageReorderFailures::refused()
{
    QFETCH(QString, direction);
    QFETCH(int, row);
    QFETCH(int, linksLeft);
    m_page.begin(links("a b c"));
    if (row < 0)
        m_page.table()->selectionModel()->clearCurrentIndex();
    else
        m_page.select(row);
    m_file = FakeHost::instance().readConfig();
    const QString buttons = m_page.enabledButtons();
    const QuickLinkRecordList all = *m_page.page->m_recordList;
    m_page.page->m_recordList->resize(linksLeft);
    {
        TraceRecorder trace;
        press(direction);
        QCOMPARE(trace.countDebug(tracePattern("%F: [A-Za-z]*: refused, .*")), 1);
    }
    QCOMPARE(m_page.page->m_recordList->size(), linksLeft);
    *m_page.page->m_recordList = all;
    QCOMPARE(m_page.currentRow(), row);
    QCOMPARE(m_page.enabledButtons(), buttons);
    checkUntouched();
}

void PageReorderFailures::missingItem_data()
{
    QTest::addColumn<QString>("direction");
    QTest::addColumn<int>("row");
    QTest::newRow("Up from it") << QString::fromLatin1("Up") << 1;
    QTest::newRow("Up to it") << QString::fromLatin1("Up") << 0;
    QTest::newRow("Down from it") << QString::fromLatin1("Down") << 1;
    QTest::newRow("Down to it") << QString::fromLatin1("Down") << 2;
}

void PageReorderFailures::missingItem()
{
    QFETCH(QString, direction);
    QFETCH(int, row);
    m_page.begin(links("a b c"));
    m_page.select(1);
    m_file = FakeHost::instance().readConfig();
    QTableWidgetItem* const item = m_page.table()->takeItem(row, 0);
    {
        TraceRecorder trace;
        press(direction);
        QCOMPARE(trace.countDebug(tracePattern("Arg is NULL: %T: %F: .* %L")), 1);
    }
    m_page.table()->setItem(row, 0, item);
    checkUntouched();
}

void PageReorderFailures::noStore_data()
{
    directions();
}

void PageReorderFailures::noStore()
{
    QFETCH(QString, direction);
    m_page.begin(links("a b c"));
    m_page.select(1);
    m_file = FakeHost::instance().readConfig();
    {
        const Replaced<QuickLinkXmlParse> store(m_page.page->m_store, nullptr);
        TraceRecorder trace;
        press(direction);
        QCOMPARE(trace.countDebug(tracePattern("Arg is NULL: %T: %F: .* %L")), 1);
    }
    const bool isUp = direction == QLatin1String("Up");
    QCOMPARE(m_page.shownNames(), isUp ? QString::fromLatin1("b a c") : QString::fromLatin1("a c b"));
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(m_page.currentRow(), isUp ? 0 : 2);
    QCOMPARE(FakeHost::instance().readConfig(), m_file);
}

void PageReorderFailures::noMemory_data()
{
    QTest::addColumn<QString>("direction");
    QTest::addColumn<int>("which");
    QTest::newRow("Up, first record") << QString::fromLatin1("Up") << 0;
    QTest::newRow("Up, second record") << QString::fromLatin1("Up") << 1;
    QTest::newRow("Down, first record") << QString::fromLatin1("Down") << 0;
    QTest::newRow("Down, second record") << QString::fromLatin1("Down") << 1;
}

void PageReorderFailures::noMemory()
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

void PageReorderFailures::putRecordWithout_data()
{
    QTest::addColumn<QString>("missing");
    QTest::newRow("no record") << QString::fromLatin1("record");
    QTest::newRow("no table") << QString::fromLatin1("table");
    QTest::newRow("no list") << QString::fromLatin1("list");
}

void PageReorderFailures::putRecordWithout()
{
    QFETCH(QString, missing);
    m_page.begin(links("a b c"));
    m_file = FakeHost::instance().readConfig();
    QuickLinkRecord record = makeRecord("other", "email", "mailto:");
    {
        const Replaced<QTableWidget> table(m_page.page->m_QLinkListTblView,
                                           missing == QLatin1String("table") ? nullptr : m_page.table());
        const Replaced<QuickLinkRecordList> list(
            m_page.page->m_recordList, missing == QLatin1String("list") ? nullptr : m_page.page->m_recordList);
        TraceRecorder trace;
        m_page.page->addRecordOnUpButtonClick(missing == QLatin1String("record") ? nullptr : &record, 1);
        QCOMPARE(trace.countDebug(nullTrace("addRecordOnUpButtonClick")), 1);
    }
    checkUntouched();
}

void PageReorderFailures::putRecordIntoNoRow_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("-1") << -1;
    QTest::newRow("3") << 3;
}

void PageReorderFailures::putRecordIntoNoRow()
{
    QFETCH(int, row);
    m_page.begin(links("a b c"));
    m_file = FakeHost::instance().readConfig();
    QuickLinkRecord record = makeRecord("other", "email", "mailto:");
    m_page.page->addRecordOnUpButtonClick(&record, row);
    checkUntouched();
}

void PageReorderFailures::putRecord()
{
    m_page.begin(links("a b c"));
    const RecordProbe old(m_page.recordOf(1));
    QuickLinkRecord* const record = new QuickLinkRecord(makeRecord("other", "application", "/x"));
    m_page.page->addRecordOnUpButtonClick(record, 1);
    QVERIFY(old.isFreed());
    QCOMPARE(m_page.recordOf(1), record);
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a other c"));
    QCOMPARE(m_page.disorder(), QString());
}

void PageReorderFailures::pageNotShown_data()
{
    directions();
}

void PageReorderFailures::pageNotShown()
{
    QFETCH(QString, direction);
    m_page.beginHidden(links("a b c"));
    m_file = FakeHost::instance().readConfig();
    press(direction);
    QCOMPARE(m_page.listNames(), QString::fromLatin1("a b c"));
    QCOMPARE(FakeHost::instance().readConfig(), m_file);
}

QTEST_MAIN(PageReorderFailures)
#include "tst_page_reorder_failures.moc"
