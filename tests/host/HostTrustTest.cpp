// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the program does with plug-ins that must not be loaded, from the start to the user's answer.

#include <QAbstractButton>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QStatusBar>

#include <algorithm>

#include "Host.h"
#include "HostSurroundings.h"
#include "MainWindow.h"
#include "MessageOnScreen.h"
#include "ProcessLimits.h"
#include "RecordedEvents.h"
#include "Test.h"

class HostTrustTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void tellsWhatOthersMayWriteTo();
    void asksAboutWhatCrashed_data();
    void asksAboutWhatCrashed();
    void asksAgainWhereNobodyAnswered();
    void loadsAgainFromTheMenu();

private:
    void start();
    void expectLeftOut();
    void crash() const;
    static void press(const QString& button);
    static MainWindow* window();
    static QAction* menuEntry();
    bool isLoaded(int count) const { return int(m_host->container().plugins().size()) == count; }

    std::unique_ptr<HostSurroundings> m_found;
    std::unique_ptr<Host> m_host;
};

void HostTrustTest::init()
{
    m_found = std::make_unique<HostSurroundings>();
}

void HostTrustTest::cleanup()
{
    m_host.reset();
    takeEvents();
}

/** A start of the program, up to its word that it is complete. */
void HostTrustTest::start()
{
    m_host.reset();
    takeEvents();
    m_host = std::make_unique<Host>(m_found->translator);
    m_host->loadPlugins(m_found->plugins.path());
    m_host->showWindow(ConnectionKind::Manual);
    QVERIFY(QTest::qWaitForWindowExposed(window()));
    QTRY_VERIFY(recordedEvents().contains("FakeSecond Notify 258 0 0"));
}

/** A start without the first plug-in. */
void HostTrustTest::expectLeftOut()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Plug-in refused: .*/libFakeFirst.so: it is left out"));
    start();
    QVERIFY(isLoaded(1));
}

/** What a process leaves behind that ended in Init of the first plug-in. */
void HostTrustTest::crash() const
{
    const QFileInfo file(m_found->plugins.file("FakeFirst"));
    QVERIFY(QDir(m_found->user.path()).mkpath("calls"));
    QFile note(m_found->user.path() + "/calls/1");
    QVERIFY(note.open(QIODevice::WriteOnly));
    const QString line = QString("c 1 %1 %2 %3").arg(file.size()).arg(file.lastModified().toMSecsSinceEpoch());
    note.write(line.arg(file.canonicalFilePath()).toLocal8Bit() + '\0');
}

void HostTrustTest::press(const QString& button)
{
    QTRY_VERIFY(notice());
    QVERIFY(QTest::qWaitForWindowExposed(notice()));
    const QList<QAbstractButton*> buttons = notice()->buttons();
    const auto isIt = [&button](QAbstractButton* candidate) {
        return candidate->text().remove('&') == button;
    };
    const auto found = std::find_if(buttons.begin(), buttons.end(), isIt);
    QVERIFY(found != buttons.end());
    clickThroughWindow(*found);
    QTRY_COMPARE(messageCount(), 0);
}

MainWindow* HostTrustTest::window()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* widget : windows) {
        if (MainWindow* const found = qobject_cast<MainWindow*>(widget))
            return found;
    }
    return nullptr;
}

/** The entry about plug-ins that are left out, whether it is offered or not. */
QAction* HostTrustTest::menuEntry()
{
    const QList<QMenu*> menus = window()->menuBar()->findChildren<QMenu*>();
    for (const QMenu* menu : menus) {
        const QList<QAction*> entries = menu->actions();
        for (QAction* entry : entries) {
            if (entry->text() == "&Plug-ins Left Out…")
                return entry;
        }
    }
    return nullptr;
}

void HostTrustTest::tellsWhatOthersMayWriteTo()
{
    const QString file = m_found->plugins.file("FakeFirst");
    QVERIFY(setMode(file, 0666));
    QTest::ignoreMessage(QtWarningMsg,
                         qPrintable(QString("Plug-in refused: %1: other users may write to %1").arg(file)));
    start();
    QVERIFY(isLoaded(1));
    QTRY_VERIFY(notice());
    QCOMPARE(messageCount(), 1);
    QVERIFY2(notice()->text().endsWith(":\n\n" + file), qPrintable(notice()->text()));
    QCOMPARE(window()->statusBar()->currentMessage(), "Plug-ins not loaded: libFakeFirst.so");
    QVERIFY(!menuEntry()->isVisible());
}

void HostTrustTest::asksAboutWhatCrashed_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("isLoadedAgain");
    QTest::newRow("load again") << "Load at the Next Start" << true;
    QTest::newRow("leave out") << "Leave Out" << false;
}

void HostTrustTest::asksAboutWhatCrashed()
{
    QFETCH(QString, button);
    QFETCH(bool, isLoadedAgain);
    crash();
    expectLeftOut();
    QTRY_VERIFY(notice());
    QVERIFY2(notice()->text().startsWith("The plug-in FakeFirst did not finish starting"),
             qPrintable(notice()->text()));
    QVERIFY(menuEntry()->isVisible());
    press(button);
    QCOMPARE(menuEntry()->isVisible(), !isLoadedAgain);
    if (isLoadedAgain)
        start();
    else
        expectLeftOut();
    // The answer holds, and nothing is asked again.
    QCOMPARE(messageCount(), 0);
    QVERIFY(isLoaded(isLoadedAgain ? 2 : 1));
    QCOMPARE(menuEntry()->isVisible(), !isLoadedAgain);
}

void HostTrustTest::asksAgainWhereNobodyAnswered()
{
    crash();
    expectLeftOut();
    QTRY_VERIFY(notice());
    expectLeftOut();
    QTRY_VERIFY(notice());
}

void HostTrustTest::loadsAgainFromTheMenu()
{
    crash();
    expectLeftOut();
    press("Leave Out");
    menuEntry()->trigger();
    press("Load at the Next Start");
    QVERIFY(!menuEntry()->isVisible());
    start();
    QVERIFY(isLoaded(2));
}

REGISTER_TEST(HostTrustTest)
#include "HostTrustTest.moc"
