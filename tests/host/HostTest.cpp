// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The program put together: what plug-ins meet from the start to the end.

#include <QDesktopServices>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTreeWidget>
#include <QUrl>

#include "ConnectionPanel.h"
#include "FakePlugin.h"
#include "FakeTranslator.h"
#include "Host.h"
#include "HostSurroundings.h"
#include "IDialupUIService.h"
#include "INotifyService.h"
#include "MessageOnScreen.h"
#include "RecordingDesktop.h"
#include "Startup.h"
#include "Test.h"
#include "UserSettings.h"
#include "WhyWindow.h"

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
    void tellsTheStartOfAHiddenWindow();
    void keepsTheWindowsPlace_data();
    void keepsTheWindowsPlace();
    void bringsTheWindowBackOntoTheScreen_data();
    void bringsTheWindowBackOntoTheScreen();
    void tellsWhatTheUserSaysOfTheConnection();
    void tellsTheLanguage();
    void showsTheMenuInTheLanguage();
    void turnsTheWindowWithTheLanguage();
    void servesPluginsThatNotifyTheMenu();
    void asksBeforeItOpensLinksOfOtherSchemes();
    void handsBackTheAnswerOfWhoIsNotified();
    void listsWhatOpenedAndWhy();
    void listsItInOneWindow();
    void namesWhatWasNotLoaded();
    void keepsTheOrderOfFilesNotLoaded();
    void hasItsIcon();
    void namesItsVersion();
    void takesPluginsDownOnceAndAfterTheWindow_data();
    void takesPluginsDownOnceAndAfterTheWindow();
    void takesTheMenuDownBeforeThePlugins();

private:
    bool eventFilter(QObject* object, QEvent* event) override;
    void showWindow();
    static QMainWindow* window();
    static QStringList menuTexts();
    static INotifyService* notifyService();
    void setLinks(int plugin, const QStringList& names) const;
    void saveLinks(const QByteArray& addresses) const;
    static QAction* why() { return window()->menuBar()->actions().constFirst()->menu()->actions().constFirst(); }
    static QMenu* linkMenu() { return window()->menuBar()->actions().at(1)->menu(); }

    std::unique_ptr<HostSurroundings> m_found;
    std::unique_ptr<Host> m_host;
    bool m_isUnpainted = false; ///< keeps the window from being painted
};

void HostTest::init()
{
    m_found = std::make_unique<HostSurroundings>();
    m_host = std::make_unique<Host>(m_found->translator);
    m_host->loadPlugins(m_found->plugins.path());
    QCOMPARE(m_host->container().plugins().size(), 2);
    takeEvents();
}

void HostTest::cleanup()
{
    qApp->removeEventFilter(this);
    m_isUnpainted = false;
    m_host.reset();
}

/** Tells among the events of the plug-ins when the window is painted. */
bool HostTest::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::Paint || object != window())
        return false;
    if (!m_isUnpainted)
        recordEvent("painted");
    return m_isUnpainted;
}

void HostTest::showWindow()
{
    m_host->showWindow(ConnectionKind::Manual);
    QVERIFY(window());
    QVERIFY(QTest::qWaitForWindowExposed(window()));
    QTRY_VERIFY(recordedEvents().contains("FakeSecond Notify 258 0 0"));
}

void HostTest::setLinks(int plugin, const QStringList& names) const
{
    m_host->container().plugins().at(plugin)->setProperty("links", names);
}

/** Saves a file of links with these addresses, one between two blanks each. */
void HostTest::saveLinks(const QByteArray& addresses) const
{
    const QString folder = m_found->user.path() + "/plugins/QuickLinkUIPlugin";
    QVERIFY(QDir().mkpath(folder));
    QByteArray items;
    for (const QByteArray& address : addresses.split(' '))
        items += "<item url='" + address + "'/>";
    writeFile(folder + "/config.xml", "<tovadoc><menu>" + items + "</menu></tovadoc>", QFile::Permissions(0x6644));
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

INotifyService* HostTest::notifyService()
{
    return qobject_cast<INotifyService*>(
        Startup::GetPluginContainer()->GetPlugin("8B42D0E5-1C7F-4A93-9E26-5D8F03B7C412", 0x2011));
}

void HostTest::preparesThePluginsFolders()
{
    const QDir folder(m_found->user.path() + "/plugins");
    QCOMPARE(folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList({"FakeFirst", "FakeSecond"}));
}

void HostTest::showsLinksInTheMenu()
{
    setLinks(0, {"a", "b"});
    setLinks(1, {"c"});
    showWindow();
    QCOMPARE(menuTexts(), QStringList({"a", "b", "c"}));
    takeEvents();
    linkMenu()->actions().at(2)->trigger();
    QCOMPARE(takeEvents(), QStringList("FakeSecond launched c"));
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
    QStringList events = takeEvents();
    window()->repaint();
    QTRY_VERIFY(recordedEvents().contains("painted"));
    QCoreApplication::processEvents();
    events += takeEvents();
    const int painted = int(events.indexOf("painted"));
    const int told = int(events.indexOf("FakeFirst Notify 258 0 0"));
    QVERIFY(painted >= 0);
    QVERIFY2(painted < told, qPrintable(events.join('\n')));
    QCOMPARE(int(events.count("FakeFirst Notify 258 0 0")), 1);
    QCOMPARE(int(events.count("FakeSecond Notify 258 0 0")), 1);
}

void HostTest::tellsTheStartOfAWindowThatIsPutAway()
{
    const QString told = "FakeFirst Notify 258 0 0";
    m_isUnpainted = true;
    qApp->installEventFilter(this);
    m_host->showWindow(ConnectionKind::Manual);
    QVERIFY(QTest::qWaitForWindowExposed(window()));
    QCOMPARE(int(takeEvents().count(told)), 0);
    window()->showMinimized();
    QTRY_VERIFY(recordedEvents().contains(told));
    m_isUnpainted = false;
    window()->showNormal();
    window()->repaint();
    QTRY_VERIFY(recordedEvents().contains("painted"));
    QCoreApplication::processEvents();
    QCOMPARE(int(takeEvents().count(told)), 1);
}

void HostTest::tellsTheStartOfAHiddenWindow()
{
    const QString told = "FakeFirst Notify 258 0 0";
    m_host->showWindow(ConnectionKind::Manual, true);
    QTRY_VERIFY(recordedEvents().contains(told));
    QVERIFY(window()->isHidden());
    window()->show();
    QVERIFY(QTest::qWaitForWindowExposed(window()));
    window()->repaint();
    QCoreApplication::processEvents();
    QCOMPARE(int(takeEvents().count(told)), 1);
}

void HostTest::keepsTheWindowsPlace_data()
{
    QTest::addColumn<bool>("isHidden");
    QTest::newRow("at the end") << false;
    QTest::newRow("when it is hidden") << true;
}

void HostTest::keepsTheWindowsPlace()
{
    QFETCH(bool, isHidden);
    showWindow();
    const QRect place(window()->x() + 31, window()->y() + 47, window()->minimumWidth() + 40, 400);
    window()->setGeometry(place);
    QTRY_COMPARE(window()->geometry(), place);
    if (isHidden)
        window()->hide();
    else
        m_host.reset();
    QVERIFY(!UserSettings::windowPlace().isEmpty());
    m_host.reset();
    m_host = std::make_unique<Host>(m_found->translator);
    showWindow();
    QCOMPARE(window()->geometry(), place);
}

void HostTest::bringsTheWindowBackOntoTheScreen_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::newRow("right") << QPoint(20000, 100);
    QTest::newRow("left") << QPoint(-20000, 100);
    QTest::newRow("below") << QPoint(100, 20000);
    QTest::newRow("above") << QPoint(100, -20000);
    QTest::newRow("half of it right") << QPoint(500, 100);
    QTest::newRow("half of it below") << QPoint(100, 600);
    QTest::newRow("half of it left") << QPoint(-300, 100);
    QTest::newRow("most of it above") << QPoint(100, -390);
}

void HostTest::bringsTheWindowBackOntoTheScreen()
{
    QFETCH(QPoint, place);
    QWidget elsewhere;
    elsewhere.setGeometry(QRect(place, QSize(600, 400)));
    elsewhere.show();
    UserSettings::setWindowPlace(elsewhere.saveGeometry());
    showWindow();
    QVERIFY(screenArea(window()).contains(window()->geometry()));
    QCOMPARE(window()->size(), QSize(600, 400));
}

void HostTest::tellsWhatTheUserSaysOfTheConnection()
{
    showWindow();
    takeEvents();
    QPushButton* const button = window()->findChild<ConnectionPanel*>()->findChild<QPushButton*>();
    QVERIFY(button->isVisible());
    IDialupUIService* const service = qobject_cast<IDialupUIService*>(
        Startup::GetPluginContainer()->GetPlugin("61D9E3B8-7A04-4C5F-B1E7-2C6A9F08D35E", 0x4011));
    QVERIFY(service);
    QCOMPARE(service->IsConnected(), 0);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(takeEvents(), QStringList({"FakeFirst Notify 1536 0 0", "FakeSecond Notify 1536 0 0"}));
    QCOMPARE(service->IsConnected(), 1);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(service->IsConnected(), 0);
}

void HostTest::tellsTheLanguage()
{
    showWindow();
    takeEvents();
    // There are no catalogues beside this program, so every language ends as English.
    QTest::ignoreMessage(QtWarningMsg, "There are no texts in the language \"de\"; they are shown in English");
    m_host->setLanguage("de");
    QCOMPARE(takeEvents(), QStringList({"FakeFirst ChangeLang en", "FakeSecond ChangeLang en",
                                        "FakeFirst Notify 1024 0 0", "FakeSecond Notify 1024 0 0"}));
}

void HostTest::showsTheMenuInTheLanguage()
{
    setLinks(0, {"a"});
    showWindow();
    const FakeTranslator other;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("shown in English$"));
    m_host->setLanguage("de");
    QCOMPARE(linkMenu()->actions().constFirst()->statusTip(), "*Open a");
}

void HostTest::turnsTheWindowWithTheLanguage()
{
    showWindow();
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("shown in English$"));
    m_host->setLanguage("de");
    QCOMPARE(window()->layoutDirection(), Qt::LeftToRight);
}

void HostTest::servesPluginsThatNotifyTheMenu()
{
    showWindow();
    QCOMPARE(menuTexts(), QStringList("No quick links"));
    setLinks(0, {"new"});
    QVERIFY(notifyService());
    QCOMPARE(notifyService()->Notify("MenuMgrPlugin", 2309, 0, 0), 0);
    QCOMPARE(menuTexts(), QStringList("new"));
}

void HostTest::asksBeforeItOpensLinksOfOtherSchemes()
{
    const RecordingDesktop desktop;
    saveLinks("sms:1 mailto:");
    showWindow();
    QVERIFY(QDesktopServices::openUrl(QUrl("sms:1")));
    QVERIFY(notice());
    clickButton(notice(), QMessageBox::Yes);
    QTRY_COMPARE(desktop.opened(), QStringList("sms:1"));
    QVERIFY(UserSettings::isAgreed("sms:1"));
    QTRY_VERIFY(!notice());
    // Only once.
    QVERIFY(QDesktopServices::openUrl(QUrl("sms:1")));
    QVERIFY(!notice());
    QTRY_COMPARE(int(desktop.opened().size()), 2);

    // A link that came later.
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("does not support"));
    QVERIFY(!QDesktopServices::openUrl(QUrl("geo:1,2")));
    saveLinks("geo:1,2");
    QCOMPARE(notifyService()->Notify("MenuMgrPlugin", 2309, 0, 0), 0);
    QVERIFY(QDesktopServices::openUrl(QUrl("geo:1,2")));
    QVERIFY(notice());
    QVERIFY(notice()->text().endsWith("geo:1,2"));
}

void HostTest::handsBackTheAnswerOfWhoIsNotified()
{
    m_host->container().plugins().at(1)->setProperty("answer", 5);
    QVERIFY(notifyService());
    QCOMPARE(notifyService()->Notify("FakeSecond", 1, 2, 3), 5);
    QCOMPARE(takeEvents(), QStringList("FakeSecond Notify 1 2 3"));
}

void HostTest::listsWhatOpenedAndWhy()
{
    setLinks(0, {"News"});
    m_host->container().plugins().at(0)->setProperty("opens", "/no/such/file");
    showWindow();
    QTest::mouseClick(window()->findChild<ConnectionPanel*>()->findChild<QPushButton*>(), Qt::LeftButton);
    linkMenu()->actions().constFirst()->trigger();
    why()->trigger();
    const QTreeWidget* const list = window()->findChild<WhyWindow*>()->findChild<QTreeWidget*>();
    QStringList rows;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* const row = list->topLevelItem(i);
        rows.append(row->text(1) + " | " + row->text(2) + " | " + row->text(3).section(':', 0, 0));
    }
    QCOMPARE(rows,
             QStringList({"News | You picked it | Not opened", "/no/such/file | A connection came up | Not opened",
                          "Connection | Up and in the Internet | Links marked for a connection open",
                          "/no/such/file | The program started | Not opened"}));
}

void HostTest::listsItInOneWindow()
{
    showWindow();
    why()->trigger();
    const QPointer<WhyWindow> first = window()->findChild<WhyWindow*>();
    QVERIFY(first->isVisible());
    why()->trigger();
    QCOMPARE(window()->findChildren<WhyWindow*>(), QList<WhyWindow*>{first});
    first->close();
    QTRY_VERIFY(!first);
    why()->trigger();
    QVERIFY(window()->findChild<WhyWindow*>()->isVisible());
}

void HostTest::namesWhatWasNotLoaded()
{
    const PluginFolder broken;
    for (const char* name : {"BrokenOne", "BrokenTwo"}) {
        broken.write(name, "no library");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Plug-in refused: "));
    }
    m_host->loadPlugins(broken.path());
    showWindow();
    QCOMPARE(window()->statusBar()->currentMessage(), "Plug-ins not loaded: libBrokenOne.so, libBrokenTwo.so");
}

void HostTest::keepsTheOrderOfFilesNotLoaded()
{
    const PluginFolder broken;
    broken.write("Broken", "no library");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Plug-in refused: "));
    QApplication::setLayoutDirection(Qt::RightToLeft);
    m_host->loadPlugins(broken.path());
    showWindow();
    const QString text = window()->statusBar()->currentMessage();
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(text, "Plug-ins not loaded: " + codePoint(0x2066) + "libBroken.so" + codePoint(0x2069));
}

void HostTest::hasItsIcon()
{
    QGuiApplication::setWindowIcon(QIcon());
    showWindow();
    QTRY_VERIFY(!QGuiApplication::windowIcon().isNull());
    QCOMPARE(QGuiApplication::windowIcon().actualSize(QSize(48, 48)), QSize(48, 48));
}

void HostTest::namesItsVersion()
{
    QCoreApplication::setApplicationVersion("1.2.3");
    showWindow();
    QString text;
    whenMessageShows([&text](QMessageBox* box) {
        text = box->text();
        box->close();
    });
    window()->menuBar()->actions().constLast()->menu()->actions().constLast()->trigger();
    QVERIFY2(text.contains("Vellum Connect 1.2.3"), qPrintable(text));
}

void HostTest::takesPluginsDownOnceAndAfterTheWindow_data()
{
    QTest::addColumn<bool>("hasWindow");
    QTest::newRow("window") << true;
    QTest::newRow("no window") << false;
}

void HostTest::takesPluginsDownOnceAndAfterTheWindow()
{
    QFETCH(bool, hasWindow);
    setLinks(0, {"a"});
    if (hasWindow)
        showWindow();
    takeEvents();
    m_host.reset();
    QCOMPARE(takeEvents(), QStringList({"FakeSecond OnDestroy, 0 windows", "FakeFirst OnDestroy, 0 windows"}));
    QVERIFY(!Startup::GetPluginContainer());
}

/** What an entry has from its plug-in may lie in the plug-in's library. */
void HostTest::takesTheMenuDownBeforeThePlugins()
{
    setLinks(0, {"a"});
    showWindow();
    const QPointer<QAction> entry = linkMenu()->actions().constFirst();
    bool isPluginGone = false, wasEntryThere = true;
    connect(m_host->container().plugins().at(0), &QObject::destroyed, this, [&] {
        isPluginGone = true;
        wasEntryThere = entry;
    });
    m_host.reset();
    QVERIFY(isPluginGone);
    QVERIFY(!wasEntryThere);
}

REGISTER_TEST(HostTest)
#include "HostTest.moc"
