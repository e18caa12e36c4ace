// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The Delete button: the question, and what each answer does.

#include "ShownPage.h"
#include "Test.h"

class PageDeleteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void question();
    void answer_data();
    void answer();
    void row_data();
    void row();
    void arrowsAfterARowWent_data();
    void arrowsAfterARowWent();
    void lastLink();
    void twoRowsBecomeOne_data();
    void twoRowsBecomeOne();
    void recordIsFreed();
    void recordOfTheCurrentRowGoes();
    void cancelInAnEmptyTable();

private:
    ShownPage m_page;
};

void PageDeleteTest::question()
{
    m_page.begin(links("a b"));
    QString meanwhile;
    FakeHost::instance().duringMessage = [this, &meanwhile] {
        meanwhile = m_page.shownNames();
    };
    m_page.click("m_deleteBtn");
    QCOMPARE(meanwhile, "a b");
    QCOMPARE(m_page.shownNames(), "b");
    QCOMPARE(FakeHost::instance().messages.size(), 1);
    const ShownMessage& message = FakeHost::instance().messages.first();
    QCOMPARE(int(message.icon), int(QMessageBox::Question));
    QCOMPARE(message.parent.data(), m_page.page->m_pageWidget);
    QCOMPARE(message.title, "en:IDS_LINK_PROMPT");
    QCOMPARE(message.text, "en:IDS_LINK_SETTING_DELETE_CONFORM");
    QCOMPARE(message.firstButton, "IDS_OK");
    QCOMPARE(message.secondButton, "IDS_CANCEL");
    QCOMPARE(message.thirdButton, QString());
    QVERIFY(message.beep);
    QCOMPARE(int(message.flags), int(Qt::WindowCloseButtonHint));
    QVERIFY(!message.dialogOut);
    QCOMPARE(message.details, QString());
    QVERIFY(message.closable);
}

void PageDeleteTest::answer_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("names");
    QTest::newRow("OK") << int(QMessageBox::Ok) << "a c";
    QTest::newRow("Cancel") << int(QMessageBox::Cancel) << "a b c";
    QTest::newRow("Yes") << int(QMessageBox::Yes) << "a b c";
    QTest::newRow("Close") << int(QMessageBox::Close) << "a b c";
    QTest::newRow("0") << 0 << "a b c";
    QTest::newRow("1") << 1 << "a b c";
    QTest::newRow("-1") << -1 << "a b c";
}

void PageDeleteTest::answer()
{
    QFETCH(int, answer);
    QFETCH(QString, names);
    m_page.begin(links("a b c"));
    m_page.select(1);
    FakeHost::instance().messageAnswer = answer;
    m_page.click("m_deleteBtn");
    QCOMPARE(m_page.linkNames(), names);
    QCOMPARE(m_page.file(), m_page.expectedFile("3"));
    // The menu is told either way.
    QCOMPARE(FakeHost::instance().notifications, QStringList() << "MenuMgrPlugin 2309 0 0");
}

void PageDeleteTest::row_data()
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
        QTest::newRow(qPrintable(QString("%1: %2").arg(QLatin1String(row.before)).arg(row.row)))
            << QByteArray(row.before) << row.row << QString(row.after) << row.currentRow << QString(row.enabled);
}

void PageDeleteTest::row()
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
    QCOMPARE(m_page.linkNames(), after);
    QCOMPARE(m_page.currentRow(), currentRow);
    QCOMPARE(m_page.enabledButtons(), enabled);
    QCOMPARE(m_page.file(), m_page.expectedFile(QByteArray::number(all.size()).constData()));
}

void PageDeleteTest::arrowsAfterARowWent_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("deadEnd");
    QTest::addColumn<QString>("way");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("moved");
    QTest::addColumn<QString>("enabled");
    QTest::newRow("first") << 0 << "m_upBtn"
                           << "m_downBtn"
                           << "b c"
                           << "c b"
                           << "New Edit Delete Up";
    QTest::newRow("last") << 2 << "m_downBtn"
                          << "m_upBtn"
                          << "a b"
                          << "b a"
                          << "New Edit Delete Down";
}

void PageDeleteTest::arrowsAfterARowWent()
{
    QFETCH(int, row);
    QFETCH(QString, deadEnd);
    QFETCH(QString, way);
    QFETCH(QString, left);
    QFETCH(QString, moved);
    QFETCH(QString, enabled);
    m_page.begin(links("a b c"));
    m_page.select(row);
    m_page.click("m_deleteBtn");
    const QByteArray before = m_page.file();
    QVERIFY(m_page.button(qPrintable(deadEnd))->isEnabled());
    m_page.click(qPrintable(deadEnd));
    QCOMPARE(m_page.linkNames(), left);
    QCOMPARE(m_page.file(), before);
    m_page.click(qPrintable(way));
    QCOMPARE(m_page.linkNames(), moved);
    QCOMPARE(m_page.enabledButtons(), enabled);
}

void PageDeleteTest::lastLink()
{
    m_page.begin(links("a"));
    m_page.click("m_deleteBtn");
    QCOMPARE(m_page.table()->rowCount(), 0);
    QCOMPARE(m_page.table()->columnCount(), 2);
    QCOMPARE(m_page.enabledButtons(), "New");
    QCOMPARE(m_page.file(), m_page.expectedFile("1"));
    QCOMPARE(m_page.page->GetQuickLinkRecordSize(), 0);
    m_page.change("New");
    QCOMPARE(m_page.page->m_recordList->at(0).id, "1");
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete");
}

void PageDeleteTest::twoRowsBecomeOne_data()
{
    QTest::addColumn<int>("row");
    QTest::newRow("first") << 0;
    QTest::newRow("second") << 1;
}

void PageDeleteTest::twoRowsBecomeOne()
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

void PageDeleteTest::recordIsFreed()
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

void PageDeleteTest::recordOfTheCurrentRowGoes()
{
    // Selection and current row apart: the row that goes is the current one, with its own record.
    m_page.begin(links("a b c"));
    const RecordProbe selected(m_page.recordOf(0));
    const RecordProbe current(m_page.recordOf(2));
    m_page.table()->selectionModel()->setCurrentIndex(m_page.table()->model()->index(2, 0),
                                                      QItemSelectionModel::NoUpdate);
    m_page.click("m_deleteBtn");
    QCOMPARE(m_page.shownNames(), "a b");
    QVERIFY(current.isFreed());
    QVERIFY(!selected.isFreed());
    QCOMPARE(m_page.page->m_recordList->size(), 2);
    QCOMPARE(m_page.listNames(), "a b");
}

void PageDeleteTest::cancelInAnEmptyTable()
{
    m_page.begin(QuickLinkRecordList());
    m_page.button("m_editBtn")->setEnabled(true);
    m_page.button("m_deleteBtn")->setEnabled(true);
    FakeHost::instance().messageAnswer = QMessageBox::Cancel;
    m_page.click("m_deleteBtn");
    QCOMPARE(m_page.enabledButtons(), "New");
    QCOMPARE(m_page.told(), 1);
}

REGISTER_TEST(PageDeleteTest)
#include "PageDeleteTest.moc"
