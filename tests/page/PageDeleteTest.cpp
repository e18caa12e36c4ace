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

void PageDeleteTest::question_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QVariant>("expected");
    QTest::newRow("icon") << "icon" << QVariant(int(QMessageBox::Question));
    QTest::newRow("parent") << "parent" << QVariant(true);
    QTest::newRow("title") << "title" << QVariant("en:IDS_LINK_PROMPT");
    QTest::newRow("text") << "text"
                          << QVariant("en:IDS_LINK_SETTING_DELETE_CONFORM");
    QTest::newRow("first button") << "first" << QVariant("IDS_OK");
    QTest::newRow("second button") << "second" << QVariant("IDS_CANCEL");
    QTest::newRow("third button") << "third" << QVariant(QString());
    QTest::newRow("first truth value") << "beep" << QVariant(true);
    QTest::newRow("flags") << "flags" << QVariant(int(Qt::WindowCloseButtonHint));
    QTest::newRow("dialog") << "dialog" << QVariant(true);
    QTest::newRow("string") << "details" << QVariant(QString());
    QTest::newRow("second truth value") << "closable" << QVariant(true);
}

void PageDeleteTest::question()
{
    QFETCH(QString, argument);
    QFETCH(QVariant, expected);
    m_page.begin(links("a b"));
    FakeHost::instance().messageAnswer = QMessageBox::Cancel;
    m_page.click("m_deleteBtn");
    QCOMPARE(FakeHost::instance().messages.size(), 1);
    const ShownMessage& message = FakeHost::instance().messages.first();
    QVariantMap arguments;
    arguments.insert("icon", int(message.icon));
    arguments.insert("parent", message.parent == m_page.page->m_pageWidget);
    arguments.insert("title", message.title);
    arguments.insert("text", message.text);
    arguments.insert("first", message.firstButton);
    arguments.insert("second", message.secondButton);
    arguments.insert("third", message.thirdButton);
    arguments.insert("beep", message.beep);
    arguments.insert("flags", int(message.flags));
    arguments.insert("dialog", message.dialogOut == nullptr);
    arguments.insert("details", message.details);
    arguments.insert("closable", message.closable);
    QCOMPARE(arguments.value(argument), expected);
}

void PageDeleteTest::questionComesFirst()
{
    m_page.begin(links("a b"));
    const ShownPage* const page = &m_page;
    QString meanwhile;
    FakeHost::instance().duringMessage = [page, &meanwhile] {
        meanwhile = page->shownNames();
    };
    m_page.click("m_deleteBtn");
    QCOMPARE(meanwhile, "a b");
    QCOMPARE(m_page.shownNames(), "b");
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
    QCOMPARE(m_page.shownNames(), names);
    QCOMPARE(m_page.listNames(), names);
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("3"));
    QCOMPARE(m_page.disorder(), QString());
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
            << QByteArray(row.before) << row.row << QString::fromLatin1(row.after) << row.currentRow
            << QString::fromLatin1(row.enabled);
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
    QCOMPARE(m_page.shownNames(), after);
    QCOMPARE(m_page.listNames(), after);
    QCOMPARE(m_page.currentRow(), currentRow);
    QCOMPARE(m_page.enabledButtons(), enabled);
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile(QByteArray::number(all.size()).constData()));
}

void PageDeleteTest::arrowsAfterTheFirstRowWent()
{
    m_page.begin(links("a b c"));
    m_page.click("m_deleteBtn");
    const QByteArray before = FakeHost::instance().readConfig();
    QVERIFY(m_page.button("m_upBtn")->isEnabled());
    m_page.click("m_upBtn");
    QCOMPARE(m_page.shownNames(), "b c");
    QCOMPARE(FakeHost::instance().readConfig(), before);
    m_page.click("m_downBtn");
    QCOMPARE(m_page.shownNames(), "c b");
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete Up");
    QCOMPARE(m_page.disorder(), QString());
}

void PageDeleteTest::arrowsAfterTheLastRowWent()
{
    m_page.begin(links("a b c"));
    m_page.select(2);
    m_page.click("m_deleteBtn");
    const QByteArray before = FakeHost::instance().readConfig();
    QVERIFY(m_page.button("m_downBtn")->isEnabled());
    m_page.click("m_downBtn");
    QCOMPARE(m_page.shownNames(), "a b");
    QCOMPARE(FakeHost::instance().readConfig(), before);
    m_page.click("m_upBtn");
    QCOMPARE(m_page.shownNames(), "b a");
    QCOMPARE(m_page.disorder(), QString());
}

void PageDeleteTest::lastLink()
{
    m_page.begin(links("a"));
    m_page.click("m_deleteBtn");
    QCOMPARE(m_page.table()->rowCount(), 0);
    QCOMPARE(m_page.table()->columnCount(), 2);
    QCOMPARE(m_page.enabledButtons(), "New");
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("1"));
    QCOMPARE(m_page.page->GetQuickLinkRecordSize(), 0);
}

void PageDeleteTest::lastLinkThenNew()
{
    m_page.begin(links("a"));
    m_page.click("m_deleteBtn");
    m_page.addLink(1, "b");
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

void PageDeleteTest::idsStay()
{
    m_page.begin(links("a b c"));
    m_page.select(1);
    m_page.click("m_deleteBtn");
    m_page.addLink(1, "d");
    QStringList ids;
    for (const QuickLinkRecord& record : *m_page.page->m_recordList)
        ids.append(record.id);
    QCOMPARE(ids.join(" "), "0 2 3");
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

void PageDeleteTest::fileIsWrittenBeforeTheMenuIsTold()
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

void PageDeleteTest::fileIsNotReadBack()
{
    m_page.begin(links("a b"));
    const QuickLinkRecordList* const list = m_page.page->m_recordList;
    RecordingTrace trace;
    m_page.click("m_deleteBtn");
    QCOMPARE(trace.countDebug(".*ReadXmlInformation.*"), 0);
    QCOMPARE(m_page.page->m_recordList, list);
    QCOMPARE(QuickLinkXmlParse::GetInstance()->m_currentId, "2");
}

void PageDeleteTest::cancelInAnEmptyTable()
{
    m_page.begin(QuickLinkRecordList());
    m_page.button("m_editBtn")->setEnabled(true);
    m_page.button("m_deleteBtn")->setEnabled(true);
    FakeHost::instance().messageAnswer = QMessageBox::Cancel;
    m_page.click("m_deleteBtn");
    QCOMPARE(m_page.enabledButtons(), "New");
    QCOMPARE(FakeHost::instance().notifications.size(), 1);
}

REGISTER_TEST(PageDeleteTest)
#include "PageDeleteTest.moc"
