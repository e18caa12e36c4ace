// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The program put together: what plug-ins meet from the start to the end.

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

#include "ConnectionPanel.h"
#include "Host.h"
#include "IDialupUIService.h"
#include "INotifyService.h"
#include "PlayedPlugin.h"
#include "SampleFolder.h"
#include "Startup.h"
#include "Translator.h"
#include "UserFolder.h"
#include "Test.h"

class HostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void preparesThePluginsFolders();
    void showsLinksInTheMenu();
    void tellsTheStartOnceAndAfterTheFirstPaint();
    void tellsTheStartOfAWindowThatIsPutAway();
    void tellsWhatTheUserSaysOfTheConnection();
    void tellsTheLanguage();
    void servesPluginsThatNotifyTheMenu();
    void namesWhatWasNotLoaded();
    void takesTheWindowDownBeforeThePlugins();
    void takesPluginsDownOnceWithoutAWindow();

private:
    bool eventFilter(QObject* object, QEvent* event) override;
    void showWindow();
    static QMainWindow* window();
    static QStringList menuTexts();
    static QMenu* linkMenu() { return window()->menuBar()->actions().at(1)->menu(); }

    SampleFolder m_plugins;
    std::unique_ptr<QTemporaryDir> m_userFolder;
    std::unique_ptr<Translator> m_translator;
    std::unique_ptr<Host> m_host;
    bool m_isUnpainted = false; ///< keeps the window from being painted
};

void HostTest::init()
{
    QVERIFY(m_plugins.add("PlayedFirst"));
    QVERIFY(m_plugins.add("PlayedSecond"));
    m_userFolder = std::make_unique<QTemporaryDir>();
    UserFolder::setPath(m_userFolder->path());
    m_translator = std::make_unique<Translator>();
    m_host = std::make_unique<Host>(*m_translator);
    m_host->loadPlugins(m_plugins.path());
    QCOMPARE(m_host->container().plugins().size(), 2);
    PlayedPlugin::takeEvents();
}

void HostTest::cleanup()
{
    qApp->removeEventFilter(this);
    m_isUnpainted = false;
    m_host.reset();
    for (const char* name : {"PlayedFirst", "PlayedSecond"})
        QFile::remove(m_plugins.file(QString::fromLatin1(name)));
}

/** Tells among the events of the plug-ins when the window is painted. */
bool HostTest::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::Paint || object != window())
        return false;
    if (!m_isUnpainted)
        qApp->setProperty("events", qApp->property("events").toStringList() << "painted");
    return m_isUnpainted;
}

void HostTest::showWindow()
{
    m_host->showWindow(ConnectionKind::Manual);
    QVERIFY(window());
    QVERIFY(QTest::qWaitForWindowExposed(window()));
    QTRY_VERIFY(qApp->property("events").toStringList().contains("PlayedSecond Notify 258 0 0"));
}

QMainWindow* HostTest::window()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* widget : windows) {
        if (QMainWindow* const found = qobject_cast<QMainWindow*>(widget))
            return found;
    }
    return nullptr;
}

QStringList HostTest::menuTexts()
{
    QStringList texts;
    const QList<QAction*> entries = linkMenu()->actions();
    for (const QAction* entry : entries)
        texts.append(entry->text());
    return texts;
}

void HostTest::preparesThePluginsFolders()
{
    const QDir folder(m_userFolder->path() + "/plugins");
    QCOMPARE(folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList({"PlayedFirst", "PlayedSecond"}));
}

void HostTest::showsLinksInTheMenu()
{
    m_host->container().plugins().at(0)->setProperty("links", QStringList{"a", "b"});
    m_host->container().plugins().at(1)->setProperty("links", QStringList{"c"});
    showWindow();
    QCOMPARE(menuTexts(), QStringList({"a", "b", "c"}));
    PlayedPlugin::takeEvents();
    linkMenu()->actions().at(2)->trigger();
    QCOMPARE(PlayedPlugin::takeEvents(), QStringList("PlayedSecond launched c"));
}

void HostTest::tellsTheStartOnceAndAfterTheFirstPaint()
{
    qApp->installEventFilter(this);
    showWindow();
    // Painted again, and shown again.
    window()->repaint();
    window()->hide();
    window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(window()));
    QStringList events = PlayedPlugin::takeEvents();
    window()->repaint();
    QTRY_VERIFY(qApp->property("events").toStringList().contains("painted"));
    QCoreApplication::processEvents();
    events += PlayedPlugin::takeEvents();
    const int painted = int(events.indexOf("painted"));
    const int told = int(events.indexOf("PlayedFirst Notify 258 0 0"));
    QVERIFY(painted >= 0);
    QVERIFY2(painted < told, qPrintable(events.join('\n')));
    QCOMPARE(int(events.count("PlayedFirst Notify 258 0 0")), 1);
    QCOMPARE(int(events.count("PlayedSecond Notify 258 0 0")), 1);
}

void HostTest::tellsTheStartOfAWindowThatIsPutAway()
{
    const QString told = "PlayedFirst Notify 258 0 0";
    m_isUnpainted = true;
    qApp->installEventFilter(this);
    m_host->showWindow(ConnectionKind::Manual);
    QVERIFY(QTest::qWaitForWindowExposed(window()));
    QCOMPARE(int(PlayedPlugin::takeEvents().count(told)), 0);
    window()->showMinimized();
    QTRY_VERIFY(qApp->property("events").toStringList().contains(told));
    m_isUnpainted = false;
    window()->showNormal();
    window()->repaint();
    QTRY_VERIFY(qApp->property("events").toStringList().contains("painted"));
    QCoreApplication::processEvents();
    QCOMPARE(int(PlayedPlugin::takeEvents().count(told)), 1);
}

void HostTest::tellsWhatTheUserSaysOfTheConnection()
{
    showWindow();
    PlayedPlugin::takeEvents();
    QPushButton* const button = window()->findChild<ConnectionPanel*>()->findChild<QPushButton*>();
    QVERIFY(button->isVisible());
    IDialupUIService* const service = qobject_cast<IDialupUIService*>(
        Startup::GetPluginContainer()->GetPlugin("61D9E3B8-7A04-4C5F-B1E7-2C6A9F08D35E", 0x4011));
    QVERIFY(service);
    QCOMPARE(service->IsConnected(), 0);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(PlayedPlugin::takeEvents(), QStringList({"PlayedFirst Notify 1536 0 0",
                                                      "PlayedSecond Notify 1536 0 0"}));
    QCOMPARE(service->IsConnected(), 1);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(service->IsConnected(), 0);
}

void HostTest::tellsTheLanguage()
{
    showWindow();
    PlayedPlugin::takeEvents();
    // There are no catalogues beside this program, so every language ends as English.
    QTest::ignoreMessage(QtWarningMsg, "There are no texts in the language \"de\"; they are shown in English");
    m_host->setLanguage("de");
    QCOMPARE(
        PlayedPlugin::takeEvents(),
        QStringList({"PlayedFirst ChangeLang en", "PlayedSecond ChangeLang en",
                     "PlayedFirst Notify 1024 0 0", "PlayedSecond Notify 1024 0 0"}));
}

void HostTest::servesPluginsThatNotifyTheMenu()
{
    showWindow();
    QCOMPARE(menuTexts(), QStringList("No quick links"));
    m_host->container().plugins().at(0)->setProperty("links", QStringList{"new"});
    INotifyService* const service = qobject_cast<INotifyService*>(
        Startup::GetPluginContainer()->GetPlugin("8B42D0E5-1C7F-4A93-9E26-5D8F03B7C412", 0x2011));
    QVERIFY(service);
    QCOMPARE(service->Notify("MenuMgrPlugin", 2309, 0, 0), 0);
    QCOMPARE(menuTexts(), QStringList("new"));
}

void HostTest::namesWhatWasNotLoaded()
{
    const SampleFolder broken;
    for (const char* name : {"BrokenOne", "BrokenTwo"})
        QVERIFY(broken.write(QString::fromLatin1(name), "no library"));
    for (int i = 0; i < 2; ++i)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^Plug-in refused: ")));
    m_host->loadPlugins(broken.path());
    showWindow();
    QCOMPARE(window()->statusBar()->currentMessage(), QStringLiteral("Not loaded: libBrokenOne.so, libBrokenTwo.so"));
}

void HostTest::takesTheWindowDownBeforeThePlugins()
{
    m_host->container().plugins().at(0)->setProperty("links", QStringList{"a"});
    showWindow();
    PlayedPlugin::takeEvents();
    m_host.reset();
    QCOMPARE(PlayedPlugin::takeEvents(), QStringList({"PlayedSecond OnDestroy, 0 windows",
                                                      "PlayedFirst OnDestroy, 0 windows"}));
    QVERIFY(!Startup::GetPluginContainer());
}

void HostTest::takesPluginsDownOnceWithoutAWindow()
{
    m_host.reset();
    QCOMPARE(PlayedPlugin::takeEvents(), QStringList({"PlayedSecond OnDestroy, 0 windows",
                                                      "PlayedFirst OnDestroy, 0 windows"}));
}

REGISTER_TEST(HostTest)
#include "HostTest.moc"
