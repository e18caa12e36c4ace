// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Telling the host's menu manager that the links changed, and what is said where that cannot be done.

#include <QAction>

#include "LoadedPlugin.h"
#include "Test.h"

namespace
{
const char noContainer[] = "%F: sendNotifyToMenu: Plugin container is null ";
const char notLoaded[] = "%F: sendNotifyToMenu: plugin is not loaded ";
const char start[] = "Start of %F: sendNotifyToMenu: %L: ";
const char end[] = "End of %F: sendNotifyToMenu: %L: ";

} // namespace

class MenuNotificationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_plugin.make(); }
    void cleanup() { m_plugin.unload(); }

    void somethingMissing_data();
    void somethingMissing();
    void withoutDebugChannel_data();
    void withoutDebugChannel();
    void serviceIsLookedUp();
    void menuManagerIsTold();
    void tracesOfSuccess();
    void successWithoutDebugChannel();
    void everyCallTells();
    void worksBeforeInit();
    void hostAsksForTheActionsMeanwhile();
    void hostEndsThePluginMeanwhile();
    void serviceComesBack();

private:
    static void missingRows();
    void takeAway(const QString& missing);

    LoadedPlugin m_plugin;
};

void MenuNotificationTest::missingRows()
{
    QTest::addColumn<QString>("missing");
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("lookups");
    QTest::newRow("container") << QString::fromUtf8("container") << QString::fromUtf8(noContainer) << 0;
    QTest::newRow("plug-in object") << QString::fromUtf8("owner") << QString::fromUtf8(notLoaded) << 1;
    QTest::newRow("service") << QString::fromUtf8("service") << QString::fromUtf8(notLoaded) << 1;
}

void MenuNotificationTest::takeAway(const QString& missing)
{
    FakeHost::instance().hasContainer = missing != "container";
    FakeHost::instance().hasNotifyOwner = missing != "owner";
    FakeHost::instance().notifyOwnerHasService = missing != "service";
}

void MenuNotificationTest::somethingMissing_data()
{
    missingRows();
}

void MenuNotificationTest::somethingMissing()
{
    QFETCH(QString, missing);
    QFETCH(QString, line);
    QFETCH(int, lookups);
    takeAway(missing);
    RecordingTrace trace;
    m_plugin.page->sendNotifyToMenu();
    const QString pattern = tracePattern(line.toLatin1().constData());
    QCOMPARE(trace.countDebug(pattern), 1);
    QCOMPARE(trace.countWarnings(pattern), 1);
    QCOMPARE(trace.warningLines.size(), 1);
    // Apart from the message there is at most the line of the start: an end is not reached.
    QCOMPARE(trace.debugLines.size() - trace.countDebug(tracePattern(start)), 1);
    QCOMPARE(FakeHost::instance().lookups.size(), lookups);
    QCOMPARE(FakeHost::instance().notifications, QStringList());
    QCOMPARE(FakeHost::instance().messages.size(), 0);
}

void MenuNotificationTest::withoutDebugChannel_data()
{
    missingRows();
}

void MenuNotificationTest::withoutDebugChannel()
{
    QFETCH(QString, missing);
    QFETCH(QString, line);
    takeAway(missing);
    const DebugChannelOff off;
    RecordingTrace trace;
    m_plugin.page->sendNotifyToMenu();
    QCOMPARE(trace.debugLines, QStringList());
    QCOMPARE(trace.countWarnings(tracePattern(line.toLatin1().constData())), 1);
    QCOMPARE(trace.warningLines.size(), 1);
}

void MenuNotificationTest::serviceIsLookedUp()
{
    m_plugin.page->sendNotifyToMenu();
    QCOMPARE(FakeHost::instance().lookups.size(), 1);
    QCOMPARE(FakeHost::instance().lookups.at(0).clsid, QString::fromUtf8("8B42D0E5-1C7F-4A93-9E26-5D8F03B7C412"));
    QCOMPARE(FakeHost::instance().lookups.at(0).kind, 8209);
}

void MenuNotificationTest::menuManagerIsTold()
{
    m_plugin.page->sendNotifyToMenu();
    QCOMPARE(FakeHost::instance().notifications, QStringList() << "MenuMgrPlugin 2309 0 0");
}

void MenuNotificationTest::tracesOfSuccess()
{
    RecordingTrace trace;
    m_plugin.page->sendNotifyToMenu();
    QCOMPARE(trace.countDebug(tracePattern(start)), 1);
    QCOMPARE(trace.countDebug(tracePattern(end)), 1);
    QCOMPARE(trace.debugLines.size(), 2);
    QCOMPARE(trace.warningLines, QStringList());
}

void MenuNotificationTest::successWithoutDebugChannel()
{
    const DebugChannelOff off;
    RecordingTrace trace;
    m_plugin.page->sendNotifyToMenu();
    QCOMPARE(trace.debugLines, QStringList());
    QCOMPARE(trace.warningLines, QStringList());
    QCOMPARE(FakeHost::instance().notifications.size(), 1);
}

void MenuNotificationTest::everyCallTells()
{
    for (int i = 0; i < 3; ++i)
        m_plugin.page->sendNotifyToMenu();
    QCOMPARE(FakeHost::instance().lookups.size(), 3);
    QCOMPARE(FakeHost::instance().notifications.size(), 3);
    QCOMPARE(FakeHost::instance().notifications.at(2), QString::fromUtf8("MenuMgrPlugin 2309 0 0"));
}

void MenuNotificationTest::worksBeforeInit()
{
    QVERIFY(!m_plugin.page->m_recordList);
    m_plugin.page->sendNotifyToMenu();
    QCOMPARE(FakeHost::instance().notifications.size(), 1);
}

void MenuNotificationTest::hostAsksForTheActionsMeanwhile()
{
    m_plugin.load(QuickLinkRecordList() << makeRecord("Mail", "email", "mailto:")
                                        << makeRecord("News", "internet", "http://n"));
    QStringList texts;
    QuickLinkSettingPluginDlg* const page = m_plugin.page;
    FakeHost::instance().duringNotification = [page, &texts] {
        for (int i = 0; i < page->GetQuickLinkRecordSize(); ++i)
            texts.append(page->GetActionFromQuickLink(i)->text());
    };
    page->sendNotifyToMenu();
    QCOMPARE(texts, QStringList() << "Mail" << "News");
}

void MenuNotificationTest::hostEndsThePluginMeanwhile()
{
    m_plugin.load(QuickLinkRecordList() << makeRecord("Mail", "email", "mailto:"));
    QuickLinkSettingPluginDlg* const page = m_plugin.page;
    FakeHost::instance().duringNotification = [page] {
        page->OnDestroy();
    };
    page->sendNotifyToMenu();
    QCOMPARE(FakeHost::instance().notifications.size(), 1);
    QCOMPARE(page->GetQuickLinkRecordSize(), -1);
}

void MenuNotificationTest::serviceComesBack()
{
    takeAway("service");
    {
        const RecordingTrace trace;
        m_plugin.page->sendNotifyToMenu();
    }
    takeAway(QString());
    m_plugin.page->sendNotifyToMenu();
    QCOMPARE(FakeHost::instance().notifications, QStringList() << "MenuMgrPlugin 2309 0 0");
}

REGISTER_TEST(MenuNotificationTest)
#include "MenuNotificationTest.moc"
