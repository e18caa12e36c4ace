// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Finding a link in the main window by what is typed.

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>

#include "ConnectionMonitor.h"
#include "ConnectionPanel.h"
#include "LinkButtons.h"
#include "MainWindow.h"
#include "Test.h"

class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void findsFromTwelveLinksOn_data();
    void findsFromTwelveLinksOn();
    void lettersFindWhereverTheFocusIs();
    void controlAndFGoesToTheField();
    void escapeShowsAll();
    void returnOpensTheFirst();
    void returnWithoutTextOpensNothing();
    void otherLinksAreFoundAsWell();
    void fewLinksAreAllShown();

private:
    void setLinks(const QStringList& names);
    void setMany();
    QLineEdit* field() const { return m_window->findChild<QLineEdit*>(); }
    QStringList shown() const;

    std::unique_ptr<ConnectionMonitor> m_monitor;
    std::unique_ptr<MainWindow> m_window;
    std::vector<std::unique_ptr<QAction>> m_actions;
    QStringList m_opened;
};

void MainWindowTest::init()
{
    m_monitor = std::make_unique<ConnectionMonitor>();
    m_monitor->start(nullptr);
    m_window = std::make_unique<MainWindow>(new ConnectionPanel(*m_monitor, ConnectionKind::Manual), new QMenu);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_opened.clear();
}

void MainWindowTest::cleanup()
{
    m_window.reset();
    m_actions.clear();
}

void MainWindowTest::setLinks(const QStringList& names)
{
    std::vector<std::unique_ptr<QAction>> actions;
    QList<QAction*> list;
    for (const QString& name : names) {
        actions.push_back(std::make_unique<QAction>());
        actions.back()->setData(name);
        list.append(actions.back().get());
        connect(list.constLast(), &QAction::triggered, this, [this, name] { m_opened.append(name); });
    }
    m_window->setLinks(list);
    m_actions.swap(actions);
}

/** "Link 0" to "Link 9", "News from home" and "Home page". */
void MainWindowTest::setMany()
{
    QStringList names;
    for (int i = 0; i < 10; ++i)
        names.append(QString("Link %1").arg(i));
    setLinks(names << "News from home"
                   << "Home page");
}

/** The names of the buttons that are seen. */
QStringList MainWindowTest::shown() const
{
    QStringList names;
    const QList<QPushButton*> buttons = m_window->findChild<LinkButtons*>()->widget()->findChildren<QPushButton*>();
    for (const QPushButton* button : buttons) {
        if (button->isVisible())
            names.append(button->accessibleName());
    }
    return names;
}

void MainWindowTest::findsFromTwelveLinksOn_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("canFind");
    QTest::newRow("none") << 0 << false;
    QTest::newRow("eleven") << 11 << false;
    QTest::newRow("twelve") << 12 << true;
}

void MainWindowTest::findsFromTwelveLinksOn()
{
    QFETCH(int, count);
    QFETCH(bool, canFind);
    setLinks(QString(count, 'x').split("", Qt::SkipEmptyParts));
    QCOMPARE(shown().size(), count);
    QCOMPARE(field()->isVisible(), canFind);
    const QAction* const find = m_window->menuBar()->actions().at(2)->menu()->actions().constLast();
    QCOMPARE(find->shortcut().toString(), "Ctrl+F");
    QCOMPARE(find->isEnabled(), canFind);
}

void MainWindowTest::lettersFindWhereverTheFocusIs()
{
    setMany();
    m_window->findChild<LinkButtons*>()->findChild<QPushButton*>()->setFocus();
    QTest::keyClicks(m_window->focusWidget(), "H");
    QTest::keyClicks(m_window->focusWidget(), "OME");
    QCOMPARE(field()->text(), "HOME");
    QCOMPARE(shown(), QStringList({"News from home", "Home page"}));
    // Each word, in any order.
    QTest::keyClicks(m_window->focusWidget(), " new");
    QCOMPARE(shown(), QStringList("News from home"));
    QTest::keyClicks(m_window->focusWidget(), "z");
    QCOMPARE(shown(), QStringList());
    const QLabel* const hint = m_window->findChild<LinkButtons*>()->widget()->findChild<QLabel*>();
    QVERIFY(hint->isVisible());
    QCOMPARE(hint->text(), "No quick link has this in its name.");
}

void MainWindowTest::controlAndFGoesToTheField()
{
    setMany();
    m_window->findChild<LinkButtons*>()->findChild<QPushButton*>()->setFocus();
    field()->setText("home");
    QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(field()->hasFocus());
    QTest::keyClicks(field(), "link 7");
    QCOMPARE(shown(), QStringList("Link 7"));
}

void MainWindowTest::escapeShowsAll()
{
    setMany();
    field()->setFocus();
    QTest::keyClicks(field(), "home");
    QCOMPARE(shown().size(), 2);
    QTest::keyClick(field(), Qt::Key_Escape);
    QCOMPARE(field()->text(), QString());
    QCOMPARE(shown().size(), 12);
}

void MainWindowTest::returnOpensTheFirst()
{
    setMany();
    field()->setFocus();
    QTest::keyClicks(field(), "home");
    QTest::keyClick(field(), Qt::Key_Return);
    QCOMPARE(m_opened, QStringList("News from home"));
}

void MainWindowTest::returnWithoutTextOpensNothing()
{
    setMany();
    field()->setFocus();
    QTest::keyClick(field(), Qt::Key_Return);
    QCOMPARE(m_opened, QStringList());
}

void MainWindowTest::otherLinksAreFoundAsWell()
{
    setMany();
    field()->setText("home");
    QStringList names = shown();
    for (int i = 0; i < 10; ++i)
        names.prepend(QString("Other %1").arg(i));
    setLinks(names);
    QCOMPARE(shown(), QStringList({"News from home", "Home page"}));
}

void MainWindowTest::fewLinksAreAllShown()
{
    setMany();
    field()->setText("home");
    setLinks({"a", "b"});
    QCOMPARE(shown(), QStringList({"a", "b"}));
}

REGISTER_TEST(MainWindowTest)
#include "MainWindowTest.moc"
