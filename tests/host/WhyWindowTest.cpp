// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The window that lists the decisions.

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QTreeWidget>

#include "Decisions.h"
#include "FakeTranslator.h"
#include "Test.h"
#include "WhyWindow.h"

class WhyWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void listsNewestFirst();
    void followsTheListWhileItIsOpen();
    void fitsTheScreen();
    void makesRoomForNewRows();
    void showsNamesAsTheyStand();
    void keepsTheDirectionOfNames();
    void copiesAll();
    void copiesTheRowsThatAreChosen();
    void copiesByTheKeyboard();
    void hasNothingToCopyAtFirst();
    void closes_data();
    void closes();
    void followsTheLanguage();

private:
    void add(const QString& what, const QString& outcome = "Opened");
    QTreeWidget& list() const { return *m_window->findChild<QTreeWidget*>(); }
    QPushButton& button(int number) const { return *m_window->findChildren<QPushButton*>().at(number); }
    QStringList names() const;

    std::unique_ptr<Decisions> m_decisions;
    std::unique_ptr<WhyWindow> m_window;
    const QDateTime m_time{QDate(2026, 11, 22), QTime(18, 5)};
};

void WhyWindowTest::init()
{
    m_decisions = std::make_unique<Decisions>();
    m_window = std::make_unique<WhyWindow>(*m_decisions, nullptr);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QApplication::clipboard()->clear();
}

void WhyWindowTest::cleanup()
{
    m_window.reset();
}

void WhyWindowTest::add(const QString& what, const QString& outcome)
{
    m_decisions->add({m_time, what, "You picked it", outcome});
}

QStringList WhyWindowTest::names() const
{
    QStringList names;
    for (int i = 0; i < list().topLevelItemCount(); ++i)
        names.append(list().topLevelItem(i)->text(1));
    return names;
}

void WhyWindowTest::listsNewestFirst()
{
    add("A");
    add("B", "Not opened: because");
    m_window = std::make_unique<WhyWindow>(*m_decisions, nullptr);
    QCOMPARE(names(), QStringList({"B", "A"}));
    const QTreeWidgetItem* const row = list().topLevelItem(0);
    QCOMPARE(row->text(0), QLocale().toString(m_time, QLocale::ShortFormat));
    QCOMPARE(row->text(2), "You picked it");
    QCOMPARE(row->text(3), "Not opened: because");
}

void WhyWindowTest::followsTheListWhileItIsOpen()
{
    for (int i = 1; i <= 200; ++i)
        add(QString::number(i));
    list().topLevelItem(0)->setSelected(true);
    add("201");
    QCOMPARE(names().size(), 200);
    QCOMPARE(names().constFirst(), "201");
    QCOMPARE(names().constLast(), "2");
    QCOMPARE(list().selectedItems().size(), 1);
    QCOMPARE(list().selectedItems().constFirst()->text(1), "200");
}

void WhyWindowTest::fitsTheScreen()
{
    // The screen of the tests is smaller than what the window would like.
    const QSize screen = screenArea(m_window.get()).size();
    QVERIFY(screen.width() < 920);
    QVERIFY(m_window->width() < screen.width());
}

void WhyWindowTest::makesRoomForNewRows()
{
    add("A");
    const int narrow = list().columnWidth(1);
    add(QString(30, 'm'));
    const int wide = list().columnWidth(1);
    QVERIFY(wide > narrow);
    // But not for any.
    add(QString(100, 'm'));
    QVERIFY(list().columnWidth(1) < 3 * wide);
    list().setColumnWidth(1, 500);
    add("B");
    QCOMPARE(list().columnWidth(1), 500);
}

void WhyWindowTest::showsNamesAsTheyStand()
{
    add("<b>News</b>\n&more");
    QCOMPARE(names(), QStringList("<b>News</b> &more"));
    const QString tip = list().topLevelItem(0)->toolTip(1);
    QVERIFY2(tip.contains("&lt;b&gt;News"), qPrintable(tip));
}

void WhyWindowTest::keepsTheDirectionOfNames()
{
    const QString arabic = codePoint(0x0627);
    add(arabic);
    QCOMPARE(names(), QStringList(codePoint(0x2068) + arabic + codePoint(0x2069)));
    button(0).click();
    const QString copied = QApplication::clipboard()->text();
    QVERIFY2(copied.contains('\t' + arabic + '\t'), qPrintable(copied));
}

void WhyWindowTest::copiesAll()
{
    add("A");
    add("B");
    button(0).click();
    QCOMPARE(QApplication::clipboard()->text(), Decisions::text(m_decisions->newestFirst()));
}

void WhyWindowTest::copiesTheRowsThatAreChosen()
{
    for (const char* name : {"A", "B", "C"})
        add(name);
    list().topLevelItem(2)->setSelected(true);
    list().topLevelItem(0)->setSelected(true);
    button(0).click();
    const QList<Decision>& all = m_decisions->newestFirst();
    QCOMPARE(QApplication::clipboard()->text(), Decisions::text({all.at(0), all.at(2)}));
}

void WhyWindowTest::copiesByTheKeyboard()
{
    add("A");
    add("B");
    QTRY_VERIFY(list().hasFocus());
    QTest::keyClick(&list(), Qt::Key_Home);
    QTest::keyClick(&list(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_C, Qt::ControlModifier);
    // A row, not a cell.
    QTRY_COMPARE(QApplication::clipboard()->text(), Decisions::text({m_decisions->newestFirst().at(1)}));
}

void WhyWindowTest::hasNothingToCopyAtFirst()
{
    QVERIFY(!button(0).isEnabled());
    add("A");
    QVERIFY(button(0).isEnabled());
}

void WhyWindowTest::closes_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Escape") << true;
    QTest::newRow("button") << false;
}

void WhyWindowTest::closes()
{
    QFETCH(const bool, byKey);
    if (byKey)
        QTest::keyClick(&list(), Qt::Key_Escape);
    else
        button(1).click();
    QVERIFY(!m_window->isVisible());
}

void WhyWindowTest::followsTheLanguage()
{
    add("A");
    const QStringList before{button(0).text(), button(1).text(), list().headerItem()->text(1), m_window->windowTitle(),
                             list().accessibleName()};
    const FakeTranslator translator;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
    const QStringList after{button(0).text(), button(1).text(), list().headerItem()->text(1), m_window->windowTitle(),
                            list().accessibleName()};
    for (int i = 0; i < before.size(); ++i)
        QCOMPARE(after.at(i), '*' + before.at(i));
    QCOMPARE(names(), QStringList("A"));
}

REGISTER_TEST(WhyWindowTest)
#include "WhyWindowTest.moc"
