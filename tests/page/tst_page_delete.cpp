// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The Delete button: the question, and what each answer does.

#include <QtTest>

#include "PageFixture.h"

class PageDelete : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void question_data();
    void question();
    void questionComesFirst();
    void answer_data();
    void answer();
    void row_data();
    void row();
    void arrowsAfterTheFirstRowWent();
    void arrowsAfterTheLastRowWent();
    void lastLink();
    void lastLinkThenNew();
    void twoRowsBecomeOne_data();
    void twoRowsBecomeOne();
    void idsStay();
    void recordIsFreed();
    void recordOfTheCurrentRowGoes();
    void fileIsWrittenBeforeTheMenuIsTold();
    void fileIsNotReadBack();
    void cancelInAnEmptyTable();

private:
    ShownPage m_page;
};

void PageDelete::question_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QVariant>("expected");
    QTest::newRow("icon") << QString::fromLatin1("icon") << QVariant(int(QMessageBox::Question));
    QTest::newRow("parent") << QString::fromLatin1("parent") << QVariant(true);
    QTest::newRow("title") << QString::fromLatin1("title") << QVariant(QString::fromLatin1("en:IDS_LINK_PROMPT"));
    QTest::newRow("text") << QString::fromLatin1("text")
                          << QVariant(QString::fromLatin1("en:IDS_LINK_SETTING_DELETE_CONFORM"));
    QTest::newRow("first button") << QString::fromLatin1("first") << QVariant(QString::fromLatin1("IDS_OK"));
    QTest::newRow("second button") << QString::fromLatin1("second") << QVariant(QString::fromLatin1("IDS_CANCEL"));
    QTest::newRow("third button") << QString::fromLatin1("third") << QVariant(QString());
    QTest::newRow("first truth value") << QString::fromLatin1("beep") << QVariant(true);
    QTest::newRow("flags") << QString::fromLatin1("flags") << QVariant(int(Qt::WindowCloseButtonHint));
    QTest::newRow("dialog") << QString::fromLatin1("dialog") << QVariant(true);
    QTest::newRow("string") << QString::fromLatin1("details") << QVariant(QString());
    QTest::newRow("second truth value") << QString::fromLatin1("closable") << QVariant(true);
}

void PageDelete::question()
{
    QFETCH(QString, argument);
    QFETCH(QVariant, expected);
    m_page.begin(links("a b"));
    FakeHost::instance().messageAnswer = QMessageBox::Cancel;
    m_page.click("m_deleteBtn");
    QCOMPARE(FakeHost::instance().messages.size(), 1);
    const ShownMessage& message = FakeHost::instance().messages.first();
    QVariantMap arguments;
    arguments.insert(QLatin1String("icon"), int(message.icon));
    arguments.insert(QLatin1String("parent"), message.parent == m_page.page->m_pageWidget);
    arguments.insert(QLatin1String("title"), message.title);
    arguments.insert(QLatin1String("text"), message.text);
    arguments.insert(QLatin1String("first"), message.firstButton);
    arguments.insert(QLatin1String("second"), message.secondButton);
    arguments.insert(QLatin1String("third"), message.thirdButton);
    arguments.insert(QLatin1String("beep"), message.beep);
    arguments.insert(QLatin1String("flags"), int(message.flags));
    arguments.insert(QLatin1String("dialog"), message.dialogOut == nullptr);
    arguments.insert(QLatin1String("details"), message.details);
    arguments.insert(QLatin1String("closable"), message.closable);
    QCOMPARE(arguments.value(argument), expected);
}

void PageDelete::questionComesFirst()
{
    m_page.begin(links("a b"));
    const ShownPage* const page = &m_page;
    QString meanwhile;
    FakeHost::instance().duringMessage = [page, &meanwhile] {
        meanwhile = page->shownNames();
    };
    m_page.click("m_deleteBtn");
    QCOMPARE(meanwhile, QString::fromLatin1("a b"));
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("b"));
}

void PageDelete::answer_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("names");
    QTest::newRow("OK") << int(QMessageBox::Ok) << QString::fromLatin1("a c");
    QTest::newRow("Cancel") << int(QMessageBox::Cancel) << QString::fromLatin1("a b c");
    QTest::newRow("Yes") << int(QMessageBox::Yes) << QString::fromLatin1("a b c");
    QTest::newRow("Close") << int(QMessageBox::Close) << QString::fromLatin1("a b c");
    QTest::newRow("0") << 0 << QString::fromLatin1("a b c");
    QTest::newRow("1") << 1 << QString::fromLatin1("a b c");
    QTest::newRow("-1") << -1 << QString::fromLatin1("a b c");
}

void PageDelete::answer()
{
    QFETCH(int, answer);
    QFETCH(QString, names);
    m_page.begin(links("a b c"));
    m_page.select(1);
    FakeHost::instance().messageAnswer = answer;
    m_page.click("m_deleteBtn");
    QCOMPARE(m_page.shownNames(), names);
    QCOMPARE(m_page.listNames(), names);
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("3"));
    QCOMPARE(m_page.disorder(), QString());
    // The menu is told either way.
    QCOMPARE(FakeHost::instance().notifications, QStringList() << QLatin1String("MenuMgrPlugin 2309 0 0"));
}

void PageDelete::row_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("currentRow");
    QTest::addColumn<QString>("enabled");
    // The selection moves before the row goes, so the arrows are those of the place that it had then.
    const struct {
        const char* before;
        int row;
        const char* after;
        int currentRow;
        const char* enabled;
    } rows[] = {{"a", 0, "", -1, "New"},
                {"a b", 0, "b", 0, "New Edit Delete"},
                {"a b", 1, "a", 0, "New Edit Delete"},
                {"a b c", 0, "b c", 0, "New Edit Delete Up Down"},
                {"a b c", 1, "a c", 1, "New Edit Delete Up"},
                {"a b c", 2, "a b", 1, "New Edit Delete Up Down"},
                {"a b c d", 1, "a c d", 1, "New Edit Delete Up Down"},
                {"a b c d", 3, "a b c", 2, "New Edit Delete Up Down"}};
    for (const auto& row : rows)
        QTest::newRow(qPrintable(QString::fromLatin1("%1: %2").arg(QLatin1String(row.before)).arg(row.row)))
            << QByteArray(row.before) << row.row << QString::fromLatin1(row.after) << row.currentRow
            << QString::fromLatin1(row.enabled);
}

void PageDelete::row()
{
    QFETCH(QByteArray, before);
    QFETCH(int, row);
    QFETCH(QString, after);
    QFETCH(int, currentRow);
    QFETCH(QString, enabled);
    const QuickLinkRecordList all = links(before.constData());
    m_page.begin(all);
    m_page.select(row);
    m_page.click("m_deleteBtn");
    QCOMPARE(m_page.shownNames(), after);
    QCOMPARE(m_page.listNames(), after);
    QCOMPARE(m_page.currentRow(), currentRow);
    QCOMPARE(m_page.enabledButtons(), enabled);
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile(QByteArray::number(all.size()).constData()));
}

void PageDelete::arrowsAfterTheFirstRowWent()
{
    m_page.begin(links("a b c"));
    m_page.click("m_deleteBtn");
    const QByteArray before = FakeHost::instance().readConfig();
    QVERIFY(m_page.button("m_upBtn")->isEnabled());
    m_page.click("m_upBtn");
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("b c"));
    QCOMPARE(FakeHost::instance().readConfig(), before);
    m_page.click("m_downBtn");
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("c b"));
    QCOMPARE(m_page.enabledButtons(), QString::fromLatin1("New Edit Delete Up"));
    QCOMPARE(m_page.disorder(), QString());
}

void PageDelete::arrowsAfterTheLastRowWent()
{
    m_page.begin(links("a b c"));
    m_page.select(2);
    m_page.click("m_deleteBtn");
    const QByteArray before = FakeHost::instance().readConfig();
    QVERIFY(m_page.button("m_downBtn")->isEnabled());
    m_page.click("m_downBtn");
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a b"));
    QCOMPARE(FakeHost::instance().readConfig(), before);
    m_page.click("m_upBtn");
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("b a"));
    QCOMPARE(m_page.disorder(), QString());
}

void PageDelete::lastLink()
{
    m_page.begin(links("a"));
    m_page.click("m_deleteBtn");
    QCOMPARE(m_page.table()->rowCount(), 0);
    QCOMPARE(m_page.table()->columnCount(), 2);
    QCOMPARE(m_page.enabledButtons(), QString::fromLatin1("New"));
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("1"));
    QCOMPARE(m_page.page->GetQuickLinkRecordSize(), 0);
}

void PageDelete::lastLinkThenNew()
{
    m_page.begin(links("a"));
    m_page.click("m_deleteBtn");
    m_page.addLink(1, "b");
    QCOMPARE(m_page.page->m_recordList->at(0).id, QString::fromLatin1("1"));
    QCOMPARE(m_page.enabledButtons(), QString::fromLatin1("New Edit Delete"));
}

void PageDelete::twoRowsBecomeOne_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("first") << 0;
    QTest::newRow("second") << 1;
}

void PageDelete::twoRowsBecomeOne()
{
    QFETCH(int, row);
    m_page.begin(links("a b"));
    m_page.select(row);
    m_page.button("m_upBtn")->setEnabled(true);
    m_page.button("m_downBtn")->setEnabled(true);
    m_page.click("m_deleteBtn");
    QVERIFY(!m_page.button("m_upBtn")->isEnabled());
    QVERIFY(!m_page.button("m_downBtn")->isEnabled());
}

void PageDelete::idsStay()
{
    m_page.begin(links("a b c"));
    m_page.select(1);
    m_page.click("m_deleteBtn");
    m_page.addLink(1, "d");
    QStringList ids;
    for (const QuickLinkRecord& record : *m_page.page->m_recordList)
        ids.append(record.id);
    QCOMPARE(ids.join(QLatin1String(" ")), QString::fromLatin1("0 2 3"));
}

void PageDelete::recordIsFreed()
{
    m_page.begin(links("a b c"));
    const RecordProbe first(m_page.recordOf(0));
    const RecordProbe second(m_page.recordOf(1));
    const RecordProbe third(m_page.recordOf(2));
    m_page.select(1);
    m_page.click("m_deleteBtn");
    QVERIFY(!first.isFreed());
    QVERIFY(second.isFreed());
    QVERIFY(!third.isFreed());
}

void PageDelete::recordOfTheCurrentRowGoes()
{
    // Selection and current row apart: the row that goes is the current one, with its own record.
    m_page.begin(links("a b c"));
    const RecordProbe selected(m_page.recordOf(0));
    const RecordProbe current(m_page.recordOf(2));
    m_page.table()->selectionModel()->setCurrentIndex(m_page.table()->model()->index(2, 0),
                                                      QItemSelectionModel::NoUpdate);
    m_page.click("m_deleteBtn");
    QCOMPARE(m_page.shownNames(), QString::fromLatin1("a b"));
    QVERIFY(current.isFreed());
    QVERIFY(!selected.isFreed());
    QCOMPARE(m_page.page->m_recordList->size(), 2);
    QCOMPARE(m_page.listNames(), QString::fromLatin1("a b"));
}

void PageDelete::fileIsWrittenBeforeTheMenuIsTold()
{
    m_page.begin(links("a b"));
    QByteArray file;
    int size = -1;
    QuickLinkSettingPluginDlg* const page = m_page.page;
    FakeHost::instance().duringNotification = [page, &file, &size] {
        file = FakeHost::instance().readConfig();
        size = page->GetQuickLinkRecordSize();
    };
    m_page.click("m_deleteBtn");
    QCOMPARE(file, m_page.expectedFile("2"));
    QCOMPARE(size, 1);
}

void PageDelete::fileIsNotReadBack()
{
    m_page.begin(links("a b"));
    const QuickLinkRecordList* const list = m_page.page->m_recordList;
    TraceRecorder trace;
    m_page.click("m_deleteBtn");
    QCOMPARE(trace.countDebug(QLatin1String(".*ReadXmlInformation.*")), 0);
    QCOMPARE(m_page.page->m_recordList, list);
    QCOMPARE(QuickLinkXmlParse::GetInstance()->m_currentId, QString::fromLatin1("2"));
}

void PageDelete::cancelInAnEmptyTable()
{
    m_page.begin(QuickLinkRecordList());
    m_page.button("m_editBtn")->setEnabled(true);
    m_page.button("m_deleteBtn")->setEnabled(true);
    FakeHost::instance().messageAnswer = QMessageBox::Cancel;
    m_page.click("m_deleteBtn");
    QCOMPARE(m_page.enabledButtons(), QString::fromLatin1("New"));
    QCOMPARE(FakeHost::instance().notifications.size(), 1);
}

QTEST_MAIN(PageDelete)
#include "tst_page_delete.moc"
