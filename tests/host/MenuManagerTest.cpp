// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The host's actions for the links of all plug-ins.

#include <QSignalSpy>

#include "FakePlugins.h"
#include "FakeTranslator.h"
#include "MenuManager.h"
#include "Test.h"

class MenuManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void hasOneActionALinkInOrder();
    void rebuildsWhenLinksChanged_data();
    void rebuildsWhenLinksChanged();
    void passesOverWhatIsNotThere_data();
    void passesOverWhatIsNotThere();
    void showsTheNameAsItStands_data();
    void showsTheNameAsItStands();
    void handsBackThePluginsOwnAction();
    void launchesTheActionAskedForLast();
    void doesNothingWithoutThePlugin();
    void doesNothingWithoutThePluginsAction();
    void keepsATriggeredActionUntilLater();
    void retranslatesWithoutAsking();
    void letsGoOfEverything();

private:
    void build(const QString& namesOfFirst, const QString& namesOfSecond = QString());
    QAction* action(const QString& name) const;
    QStringList shownNames() const;

    std::unique_ptr<FakePlugins> m_plugins;
    std::unique_ptr<MenuManager> m_manager;
    QList<QAction*> m_actions; ///< as told last
    int m_rebuilt = 0;
    int m_keptWhenTold = 0; ///< how many actions of the manager there were
};

void MenuManagerTest::init()
{
    m_plugins = std::make_unique<FakePlugins>();
    m_manager = std::make_unique<MenuManager>(m_plugins->container);
    m_actions.clear();
    m_rebuilt = 0;
    connect(m_manager.get(), &MenuManager::rebuilt, this, [this](const QList<QAction*>& actions) {
        m_actions = actions;
        ++m_rebuilt;
        m_keptWhenTold = int(m_manager->findChildren<QAction*>().size());
    });
}

void MenuManagerTest::cleanup()
{
    m_manager.reset();
    m_plugins.reset();
}

/** Rebuilds with plug-ins that have links of these names, which blanks separate, and forgets that they were asked. */
void MenuManagerTest::build(const QString& namesOfFirst, const QString& namesOfSecond)
{
    m_plugins->first()->setProperty("links", namesOfFirst.split(' '));
    m_plugins->second()->setProperty("links", namesOfSecond.split(' '));
    m_manager->rebuild();
    takeEvents();
}

QAction* MenuManagerTest::action(const QString& name) const
{
    for (QAction* action : m_actions) {
        if (action->data().toString() == name)
            return action;
    }
    return nullptr;
}

QStringList MenuManagerTest::shownNames() const
{
    QStringList names;
    for (const QAction* action : m_actions)
        names.append(action->data().toString());
    return names;
}

void MenuManagerTest::hasOneActionALinkInOrder()
{
    m_plugins->first()->setProperty("links", QStringList{"b", "a"});
    m_plugins->second()->setProperty("links", QStringList{"c", "a"});
    m_manager->rebuild();
    QCOMPARE(m_rebuilt, 1);
    QCOMPARE(shownNames(), QStringList({"b", "a", "c", "a"}));
    QCOMPARE(takeEvents(), QStringList({"FakeFirst asked", "FakeSecond asked"}));
}

void MenuManagerTest::rebuildsWhenLinksChanged_data()
{
    QTest::addColumn<unsigned int>("code");
    QTest::addColumn<int>("rebuilt");
    QTest::newRow("links changed") << 2309U << 1;
    QTest::newRow("one less") << 2308U << 0;
    QTest::newRow("one more") << 2310U << 0;
    QTest::newRow("start") << 258U << 0;
    QTest::newRow("language") << 1024U << 0;
    QTest::newRow("connection") << 1536U << 0;
    QTest::newRow("zero") << 0U << 0;
}

void MenuManagerTest::rebuildsWhenLinksChanged()
{
    QFETCH(unsigned int, code);
    QFETCH(int, rebuilt);
    m_plugins->first()->setProperty("links", QStringList{"a"});
    QCOMPARE(m_manager->Notify(code, 0, 0), 0);
    QCOMPARE(m_rebuilt, rebuilt);
    QCOMPARE(takeEvents().size(), 2 * rebuilt);
    QCOMPARE(m_actions.size(), rebuilt);
    QCOMPARE(m_manager->Notify(code, 1, 2), 0);
    QCOMPARE(m_rebuilt, 2 * rebuilt);
}

void MenuManagerTest::passesOverWhatIsNotThere_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("none loaded") << -1 << QStringList{"c"};
    QTest::newRow("no links") << 0 << QStringList{"c"};
    QTest::newRow("null between") << 3 << QStringList{"a", "b", "c"};
    QTest::newRow("fewer than claimed") << 5 << QStringList{"a", "b", "c"};
}

void MenuManagerTest::passesOverWhatIsNotThere()
{
    QFETCH(int, count);
    m_plugins->first()->setProperty("linkCount", count);
    build("a  b", "c");
    QTEST(shownNames(), "names");
}

void MenuManagerTest::showsTheNameAsItStands_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tip");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("usual") << "News"
                           << "News"
                           << "Open News"
                           << "Open News";
    QTest::newRow("ampersand") << "R&D"
                               << "R&&D"
                               << "Open R&D"
                               << "Open R&amp;D";
    QTest::newRow("markup") << "<b>x"
                            << "<b>x"
                            << "Open <b>x"
                            << "Open &lt;b&gt;x";
    QTest::newRow("lines") << "a\nb"
                           << "a b"
                           << "Open a b"
                           << "Open a b";
    QTest::newRow("turned around") << "photo" + codePoint(0x202e) + "gpj.exe"
                                   << "photo gpj.exe"
                                   << "Open photo gpj.exe"
                                   << "Open photo gpj.exe";
    const QString beginning = QString(60, 'x') + QChar(0x2026), part = codePoint(0x200b) + QString(50, 'x');
    QTest::newRow("440 letters") << QString(440, 'x') << beginning << "Open " + beginning
                                 << "Open " + (part.repeated(8) + codePoint(0x200b) + QString(40, 'x')).mid(1);
    QTest::newRow("place marker") << "%1"
                                  << "%1"
                                  << "Open %1"
                                  << "Open %1";
    // In its own direction.
    const QString arabic = codePoint(0x0627) + " (1)";
    const QString isolated = "Open " + codePoint(0x2068) + arabic + codePoint(0x2069);
    QTest::newRow("from right to left") << arabic << arabic << isolated << isolated;
}

void MenuManagerTest::showsTheNameAsItStands()
{
    QFETCH(QString, name);
    m_plugins->first()->setProperty("links", QStringList{name});
    m_manager->rebuild();
    QCOMPARE(m_actions.size(), 1);
    QTEST(m_actions.first()->text(), "text");
    QTEST(m_actions.first()->statusTip(), "tip");
    QString toolTip = m_actions.first()->toolTip();
    QTEST(toolTip.remove("<p>").remove("</p>"), "toolTip");
}

void MenuManagerTest::handsBackThePluginsOwnAction()
{
    build("a b", "c");
    for (const QAction* shown : m_actions)
        QVERIFY(shown->parent() == m_manager.get());
    action("c")->trigger();
    action("b")->trigger();
    QCOMPARE(takeEvents(), QStringList({"FakeSecond launched c", "FakeFirst launched b"}));
}

void MenuManagerTest::launchesTheActionAskedForLast()
{
    build("a");
    build("x y");
    action("y")->trigger();
    QCOMPARE(takeEvents(), QStringList("FakeFirst launched y"));
}

void MenuManagerTest::doesNothingWithoutThePlugin()
{
    build("a", "c");
    // Its action may outlive it.
    m_plugins->first()->findChild<QAction*>()->setParent(m_manager.get());
    delete m_plugins->first();
    action("a")->trigger();
    QCOMPARE(takeEvents(), QStringList());
    action("c")->trigger();
    QCOMPARE(takeEvents().size(), 1);
}

void MenuManagerTest::doesNothingWithoutThePluginsAction()
{
    build("a b");
    const QList<QAction*> theirs = m_plugins->first()->findChildren<QAction*>();
    QCOMPARE(theirs.size(), 2);
    delete theirs.first();
    action("a")->trigger();
    QCOMPARE(takeEvents(), QStringList());
    action("b")->trigger();
    QCOMPARE(takeEvents(), QStringList("FakeFirst launched b"));
}

void MenuManagerTest::keepsATriggeredActionUntilLater()
{
    build("a");
    const QPointer<QAction> triggered = m_actions.first();
    bool wasKept = false;
    connect(triggered.data(), &QAction::triggered, this, [&] {
        m_manager->Notify(2309, 0, 0);
        wasKept = triggered;
    });
    triggered->trigger();
    QVERIFY(wasKept);
    QVERIFY(triggered != m_actions.first());
    QTRY_VERIFY(!triggered);
}

void MenuManagerTest::retranslatesWithoutAsking()
{
    build("a", "c");
    const QList<QAction*> before = m_actions;
    m_rebuilt = 0;
    const FakeTranslator other;
    m_manager->retranslate();
    QCOMPARE(m_actions, before);
    QCOMPARE(m_rebuilt, 1);
    QCOMPARE(m_actions.first()->statusTip(), "*Open a");
    QVERIFY(m_actions.last()->toolTip().contains("*Open c"));
    QCOMPARE(m_actions.first()->text(), "a");
    QCOMPARE(takeEvents(), QStringList());
}

void MenuManagerTest::letsGoOfEverything()
{
    build("a", "c");
    const QList<QPointer<QAction>> before{m_actions.first(), m_actions.last()};
    m_manager->clear();
    // Whoever shows them is told before they go.
    QCOMPARE(m_keptWhenTold, 2);
    QCOMPARE(m_actions, QList<QAction*>());
    QVERIFY(!before.first() && !before.last());
    QCOMPARE(takeEvents(), QStringList());
    m_manager->clear();
    m_manager->retranslate();
    QCOMPARE(m_actions, QList<QAction*>());
}

REGISTER_TEST(MenuManagerTest)
#include "MenuManagerTest.moc"
