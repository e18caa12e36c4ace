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
    void allTheWay_data();
    void allTheWay();
    void rightsDoNotMatter_data();
    void rightsDoNotMatter();
    void hiddenLinkMoves();
    void editedLinkKeepsItsEmptyId();
    void freesTheOldRecords_data() { rightsDoNotMatter_data(); }
    void freesTheOldRecords();
    void tableGetsTheFocus_data() { rightsDoNotMatter_data(); }
    void tableGetsTheFocus();
    void upNeedsNoButton_data() { addMemberRows(names("m_upBtn m_downBtn")); }
    void upNeedsNoButton();
    void putRecord();

private:
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
            << QByteArray(row.before) << row.row << QString(row.direction) << QString(row.after) << row.currentRow
            << QString(row.enabled);
}

void PageReorderingTest::move()
{
    QFETCH(QByteArray, before);
    QFETCH(int, row);
    QFETCH(QString, direction);
    QFETCH(QString, after);
    QFETCH(int, currentRow);
    QFETCH(QString, enabled);
    const QuickLinkRecordList unmoved = links(before.constData());
    QList<QuickLinkRecord> moved;
    for (const QString& name : after.split(' '))
        moved.append(unmoved.at(name.mid(1).toInt() - 1));
    for (int byKeyboard = 0; byKeyboard < 2; ++byKeyboard) {
        m_page.begin(unmoved);
        m_page.select(row);
        if (byKeyboard)
            QTest::keyClick(m_page.button(buttonOf(direction)), Qt::Key_Space);
        else
            m_page.click(buttonOf(direction));
        QCOMPARE(m_page.linkNames(), after);
        QCOMPARE(m_page.currentRow(), currentRow);
        QCOMPARE(m_page.table()->selectedItems().size(), 2);
        QCOMPARE(m_page.table()->selectedItems().first()->row(), currentRow);
        QCOMPARE(m_page.enabledButtons(), enabled);
        QCOMPARE(m_page.file(), configDocument("1", QString::number(unmoved.size()), moved));
        QCOMPARE(m_page.told(), 0);
        m_page.end();
    }
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
    QCOMPARE(m_page.linkNames(), names);
    QCOMPARE(m_page.file(), m_page.expectedFile("5"));
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
    QCOMPARE(m_page.linkNames(), names);
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
    QCOMPARE(m_page.file(), m_page.expectedFile("2"));
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
    QCOMPARE(m_page.file(), configDocument("1", "3", onDisk.toList()));
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

void PageReorderingTest::upNeedsNoButton()
{
    QFETCH(QString, member);
    m_page.begin(links("a b c"));
    m_page.select(1);
    {
        const NullMember missing(memberOf(m_page.page, member));
        m_page.page->onUpBtnClick();
    }
    QCOMPARE(m_page.linkNames(), "b a c");
    QCOMPARE(m_page.file(), m_page.expectedFile("3"));
    // Without the other button the rules do not run; the move itself has seen to this one.
    QCOMPARE(m_page.button("m_upBtn")->isEnabled(), member == "m_upBtn");
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

void PageReorderingTest::freesTheOldRecords()
{
    QFETCH(QString, direction);
    m_page.begin(links("a b c"));
    m_page.select(1);
    const int neighbour = direction == "Up" ? 0 : 2;
    const RecordProbe probes[] = {RecordProbe(m_page.recordOf(0)), RecordProbe(m_page.recordOf(1)),
                                  RecordProbe(m_page.recordOf(2))};
    m_page.click(buttonOf(direction));
    for (int row = 0; row < 3; ++row)
        QCOMPARE(probes[row].isFreed(), row == 1 || row == neighbour);
}

REGISTER_TEST(PageReorderingTest)
#include "PageReorderingTest.moc"
