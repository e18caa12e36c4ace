// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Keys, double click and menu of the table on the quick links' page.

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>

#include "FakeLinkPage.h"
#include "LinkPageKeys.h"
#include "Test.h"

class LinkPageKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void pressButtons_data();
    void pressButtons();
    void keepAKeyOfADisabledButton();
    void leaveOtherKeys_data();
    void leaveOtherKeys();
    void doubleClickEdits();
    void menuOffersTheSame();
    void menuOpensByKey();
    void menuFollowsTheButtons();
    void areOnlyForTheLinks();

private:
    QMenu* openMenu() const;

    QScopedPointer<FakeLinkPage> m_page;
};

void LinkPageKeysTest::init()
{
    m_page.reset(new FakeLinkPage);
    m_page->setLinks("A B C", 1);
    LinkPageKeys::addTo(m_page.data());
    m_page->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_page.data()));
}

void LinkPageKeysTest::pressButtons_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("withControl");
    QTest::addColumn<QString>("pressed");
    QTest::newRow("Return") << int(Qt::Key_Return) << false << "m_editBtn 1";
    QTest::newRow("Enter") << int(Qt::Key_Enter) << false << "m_editBtn 1";
    QTest::newRow("Delete") << int(Qt::Key_Delete) << false << "m_deleteBtn 1";
    QTest::newRow("Ctrl+Up") << int(Qt::Key_Up) << true << "m_upBtn 1";
    QTest::newRow("Ctrl+Down") << int(Qt::Key_Down) << true << "m_downBtn 1";
}

void LinkPageKeysTest::pressButtons()
{
    QFETCH(int, key);
    QFETCH(bool, withControl);
    QTest::keyClick(m_page->table, Qt::Key(key), withControl ? Qt::ControlModifier : Qt::NoModifier);
    QTEST(m_page->pressed.join(' '), "pressed");
}

void LinkPageKeysTest::keepAKeyOfADisabledButton()
{
    m_page->findChild<QPushButton*>("m_editBtn")->setEnabled(false);
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    event.ignore();
    // Else the dialog around would close.
    QVERIFY(QCoreApplication::sendEvent(m_page->table, &event));
    QCOMPARE(m_page->pressed, QStringList());
}

void LinkPageKeysTest::leaveOtherKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("row");
    QTest::newRow("Up") << int(Qt::Key_Up) << 0;
    QTest::newRow("Down") << int(Qt::Key_Down) << 2;
    QTest::newRow("Tab") << int(Qt::Key_Tab) << 1;
}

void LinkPageKeysTest::leaveOtherKeys()
{
    QFETCH(int, key);
    m_page->table->setFocus();
    QTest::keyClick(m_page->table, Qt::Key(key));
    QTEST(m_page->table->currentRow(), "row");
    QCOMPARE(m_page->table->currentColumn(), 0);
    QCOMPARE(m_page->pressed, QStringList());
}

void LinkPageKeysTest::doubleClickEdits()
{
    QTableWidget* const table = m_page->table;
    const QPoint cell = table->visualItemRect(table->item(2, 0)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, cell);
    QCOMPARE(m_page->pressed, QStringList());
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, cell);
    QCOMPARE(m_page->pressed, QStringList("m_editBtn 2"));
    // Below the links there is nothing to edit.
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(5, table->viewport()->height() - 3));
    QCOMPARE(m_page->pressed, QStringList("m_editBtn 2"));
}

QMenu* LinkPageKeysTest::openMenu() const
{
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), m_page->mapToGlobal(QPoint(1, 1)));
    QCoreApplication::sendEvent(m_page->table, &event);
    return m_page->table->findChild<QMenu*>();
}

void LinkPageKeysTest::menuOffersTheSame()
{
    m_page->findChild<QPushButton*>("m_newBtn")->setText("&New…");
    const QMenu* const menu = openMenu();
    QVERIFY(menu && menu->isVisible());
    QStringList shortcuts;
    const QList<QAction*> actions = menu->actions();
    for (const QAction* action : actions)
        shortcuts.append(action->shortcut().toString());
    QCOMPARE(shortcuts, QStringList({"", "Return", "Del", "Ctrl+Up", "Ctrl+Down"}));
    QCOMPARE(actions.constFirst()->text(), "&New…");
    for (QAction* action : actions)
        action->trigger();
    QCOMPARE(m_page->pressed, QStringList({"m_newBtn 1", "m_editBtn 1", "m_deleteBtn 1", "m_upBtn 1", "m_downBtn 1"}));
}

void LinkPageKeysTest::menuOpensByKey()
{
    QTest::keyClick(m_page->table, Qt::Key_F10, Qt::ShiftModifier);
    const QMenu* const menu = m_page->table->findChild<QMenu*>();
    QVERIFY(menu && menu->isVisible());
    QCOMPARE(m_page->pressed, QStringList());
}

void LinkPageKeysTest::menuFollowsTheButtons()
{
    m_page->findChild<QPushButton*>("m_upBtn")->setEnabled(false);
    const QList<QAction*> actions = openMenu()->actions();
    QVERIFY(!actions.at(3)->isEnabled());
    QVERIFY(actions.at(4)->isEnabled());
}

void LinkPageKeysTest::areOnlyForTheLinks()
{
    QWidget other;
    QTableWidget table(&other);
    LinkPageKeys::addTo(&other);
    LinkPageKeys::addTo(nullptr);
    QVERIFY(table.tabKeyNavigation());
    QVERIFY(!m_page->table->tabKeyNavigation());
}

REGISTER_TEST(LinkPageKeysTest)
#include "LinkPageKeysTest.moc"
