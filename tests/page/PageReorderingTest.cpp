// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Up and Down: rows and links change places, the file follows, the menu does not.

#include <QAction>

#include "ShownPage.h"
#include "Test.h"

/** Writes down why a widget got the keyboard focus. */
class FocusReasons : public QObject
{
    Q_OBJECT

public:
    explicit FocusReasons(QWidget* widget) { widget->installEventFilter(this); }
    QList<int> reasons;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::FocusIn)
            reasons.append(static_cast<QFocusEvent*>(event)->reason());
        return false;
    }
};

class PageReorderingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void move_data();
    void move();
    void moveByTheKeyboard_data() { move_data(); }
    void moveByTheKeyboard();
    void fileListsTheNewOrder_data() { move_data(); }
    void fileListsTheNewOrder();
    void menuIsNotTold_data() { move_data(); }
    void menuIsNotTold();
    void menuFollowsTheNextChange();
    void allTheWay_data();
    void allTheWay();
    void rightsDoNotMatter_data();
    void rightsDoNotMatter();
    void hiddenLinkMoves();
    void editedLinkKeepsItsEmptyId();
    void oldRecordsAreFreed_data();
    void oldRecordsAreFreed();
    void tableGetsTheFocus_data();
    void tableGetsTheFocus();
    void counterStays();
    void upNeedsNoUpButton();
    void putRecord();

private:
    void begin();
    static const char* buttonOf(const QString& direction);

    ShownPage m_page;
};

const char* PageReorderingTest::buttonOf(const QString& direction)
{
    return direction == "Up" ? "m_upBtn" : "m_downBtn";
}

void PageReorderingTest::move_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("direction");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("currentRow");
    QTest::addColumn<QString>("enabled");
    const struct {
        const char* before;
        int row;
        const char* direction;
        const char* after;
        int currentRow;
        const char* enabled;
    } rows[] = {{"L1 L2 L3", 1, "Up", "L2 L1 L3", 0, "New Edit Delete Down"},
                {"L1 L2 L3", 1, "Down", "L1 L3 L2", 2, "New Edit Delete Up"},
                {"L1 L2 L3", 0, "Down", "L2 L1 L3", 1, "New Edit Delete Up Down"},
                {"L1 L2 L3", 2, "Up", "L1 L3 L2", 1, "New Edit Delete Up Down"},
                {"L1 L2", 0, "Down", "L2 L1", 1, "New Edit Delete Up"},
                {"L1 L2", 1, "Up", "L2 L1", 0, "New Edit Delete Down"},
                {"L1 L2 L3 L4 L5", 2, "Up", "L1 L3 L2 L4 L5", 1, "New Edit Delete Up Down"},
                {"L1 L2 L3 L4 L5", 2, "Down", "L1 L2 L4 L3 L5", 3, "New Edit Delete Up Down"}};
    for (const auto& row : rows)
        QTest::newRow(qPrintable(QString("%1 of %2 %3")
                                     .arg(row.row)
                                     .arg(QByteArray(row.before).count('L'))
                                     .arg(QLatin1String(row.direction))))
            << QByteArray(row.before) << row.row << QString::fromLatin1(row.direction) << QString::fromLatin1(row.after)
            << row.currentRow << QString::fromLatin1(row.enabled);
}

void PageReorderingTest::begin()
{
    QFETCH(QByteArray, before);
    QFETCH(int, row);
    m_page.begin(links(before.constData()));
    m_page.select(row);
}

void PageReorderingTest::move()
{
    QFETCH(QString, direction);
    QFETCH(QString, after);
    QFETCH(int, currentRow);
    QFETCH(QString, enabled);
    begin();
    m_page.click(buttonOf(direction));
    QCOMPARE(m_page.shownNames(), after);
    QCOMPARE(m_page.listNames(), after);
    QCOMPARE(m_page.currentRow(), currentRow);
    QCOMPARE(m_page.table()->selectedItems().size(), 2);
    QCOMPARE(m_page.table()->selectedItems().first()->row(), currentRow);
    QCOMPARE(m_page.enabledButtons(), enabled);
    QCOMPARE(m_page.disorder(), QString());
}

void PageReorderingTest::moveByTheKeyboard()
{
    QFETCH(QString, direction);
    QFETCH(QString, after);
    QFETCH(QString, enabled);
    begin();
    QTest::keyClick(m_page.button(buttonOf(direction)), Qt::Key_Space);
    QCOMPARE(m_page.shownNames(), after);
    QCOMPARE(m_page.enabledButtons(), enabled);
}

void PageReorderingTest::fileListsTheNewOrder()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, direction);
    QFETCH(QString, after);
    begin();
    m_page.click(buttonOf(direction));

    const QuickLinkRecordList unmoved = links(before.constData());
    QList<QuickLinkRecord> moved;
    const QStringList names = after.split(' ');
    for (const QString& name : names) {
        for (const QuickLinkRecord& record : unmoved) {
            if (record.name == name)
                moved.append(record);
        }
    }
    QCOMPARE(FakeHost::instance().readConfig(), configDocument("1", QString::number(unmoved.size()), moved));
}

void PageReorderingTest::menuIsNotTold()
{
    QFETCH(QString, direction);
    begin();
    RecordingTrace trace;
    m_page.click(buttonOf(direction));
    QCOMPARE(FakeHost::instance().notifications, QStringList());
    QCOMPARE(FakeHost::instance().lookups.size(), 0);
    QCOMPARE(trace.countDebug(".*ReadXmlInformation.*"), 0);
}

void PageReorderingTest::menuFollowsTheNextChange()
{
    m_page.begin(links("a b c"));
    QStringList menu;
    QuickLinkSettingPluginDlg* const page = m_page.page;
    FakeHost::instance().duringNotification = [page, &menu] {
        for (int i = 0; i < page->GetQuickLinkRecordSize(); ++i)
            menu.append(page->GetActionFromQuickLink(i)->text());
    };
    m_page.click("m_downBtn");
    QCOMPARE(menu, QStringList());
    m_page.addLink(1, "d");
    QCOMPARE(menu.join(" "), "b a c d");
}

void PageReorderingTest::allTheWay_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("direction");
    QTest::addColumn<QString>("names");
    QTest::newRow("to the end") << 0 << "Down"
                                << "b c d e a";
    QTest::newRow("to the start") << 4 << "Up"
                                  << "e a b c d";
}

void PageReorderingTest::allTheWay()
{
    QFETCH(int, row);
    QFETCH(QString, direction);
    QFETCH(QString, names);
    m_page.begin(links("a b c d e"));
    m_page.select(row);
    int presses = 0;
    for (; m_page.button(buttonOf(direction))->isEnabled() && presses < 10; ++presses)
        m_page.click(buttonOf(direction));
    QCOMPARE(presses, 4);
    QCOMPARE(m_page.shownNames(), names);
    QCOMPARE(m_page.disorder(), QString());
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("5"));
}

void PageReorderingTest::rightsDoNotMatter_data()
{
    QTest::addColumn<QString>("direction");
    QTest::addColumn<QString>("names");
    QTest::newRow("Up") << "Up"
                        << "b a c";
    QTest::newRow("Down") << "Down"
                          << "a c b";
}

void PageReorderingTest::rightsDoNotMatter()
{
    QFETCH(QString, direction);
    QFETCH(QString, names);
    QuickLinkRecordList records = links("a b c");
    records[1].delete_ = records[1].edit = "0";
    m_page.begin(records);
    m_page.select(1);
    m_page.click(buttonOf(direction));
    QCOMPARE(m_page.shownNames(), names);
    QCOMPARE(m_page.disorder(), QString());
    QVERIFY(!m_page.button("m_editBtn")->isEnabled());
    QVERIFY(!m_page.button("m_deleteBtn")->isEnabled());
}

void PageReorderingTest::hiddenLinkMoves()
{
    m_page.beginHidden(links("a b"));
    (*m_page.page->m_recordList)[0].visible = "0";
    m_page.show();
    m_page.click("m_downBtn");
    QCOMPARE(m_page.listNames(), "b a");
    QCOMPARE(m_page.page->m_recordList->at(1).visible, "0");
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("2"));
}

void PageReorderingTest::editedLinkKeepsItsEmptyId()
{
    m_page.begin(links("a b c"));
    m_page.click("m_editBtn");
    m_page.enter("m_appNameEdit", "x");
    m_page.pressOk();
    m_page.click("m_downBtn");
    QCOMPARE(m_page.listNames(), "b x c");
    QCOMPARE(m_page.page->m_recordList->at(1).id, QString());
    QuickLinkRecordList onDisk = *m_page.page->m_recordList;
    onDisk[1].id = "2";
    QCOMPARE(FakeHost::instance().readConfig(), configDocument("1", "3", onDisk.toList()));
}

void PageReorderingTest::oldRecordsAreFreed_data()
{
    rightsDoNotMatter_data();
}

void PageReorderingTest::oldRecordsAreFreed()
{
    QFETCH(QString, direction);
    m_page.begin(links("a b c"));
    m_page.select(1);
    const bool isUp = direction == "Up";
    const RecordProbe moved(m_page.recordOf(1));
    const RecordProbe neighbour(m_page.recordOf(isUp ? 0 : 2));
    const RecordProbe other(m_page.recordOf(isUp ? 2 : 0));
    m_page.click(buttonOf(direction));
    QVERIFY(moved.isFreed());
    QVERIFY(neighbour.isFreed());
    QVERIFY(!other.isFreed());
}

void PageReorderingTest::tableGetsTheFocus_data()
{
    rightsDoNotMatter_data();
}

void PageReorderingTest::tableGetsTheFocus()
{
    QFETCH(QString, direction);
    m_page.begin(links("a b c"));
    m_page.host->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_page.host));
    m_page.select(1);
    m_page.button("m_newBtn")->setFocus(Qt::TabFocusReason);
    const FocusReasons focus(m_page.table());
    m_page.click(buttonOf(direction));
    QCOMPARE(m_page.host->focusWidget(), static_cast<QWidget*>(m_page.table()));
    QCOMPARE(focus.reasons, QList<int>() << int(Qt::OtherFocusReason));
}

void PageReorderingTest::counterStays()
{
    m_page.begin(links("a b c"));
    for (int i = 0; i < 2; ++i) {
        m_page.click("m_downBtn");
        m_page.click("m_upBtn");
    }
    QCOMPARE(QuickLinkXmlParse::GetInstance()->m_currentId, "3");
    QCOMPARE(FakeHost::instance().readConfig(), m_page.expectedFile("3"));
    QCOMPARE(m_page.shownNames(), "a b c");
}

void PageReorderingTest::upNeedsNoUpButton()
{
    m_page.begin(links("a b c"));
    m_page.select(1);
    const NullMember missing(memberOf(m_page.page, "m_upBtn"));
    m_page.page->onUpBtnClick();
    QCOMPARE(m_page.linkNames(), "b a c");
    QCOMPARE(m_page.file(), m_page.expectedFile("3"));
}

void PageReorderingTest::putRecord()
{
    m_page.begin(links("a b c"));
    const RecordProbe old(m_page.recordOf(1));
    QuickLinkRecord* const record = new QuickLinkRecord(makeRecord("other", "application", "/x"));
    m_page.page->addRecordOnUpButtonClick(record, 1);
    QVERIFY(old.isFreed());
    QCOMPARE(m_page.recordOf(1), record);
    QCOMPARE(m_page.linkNames(), "a other c");
}

REGISTER_TEST(PageReorderingTest)
#include "PageReorderingTest.moc"
