// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Telling the host's menu manager that the links changed, and what is said where that cannot be done.

#include <QAction>

#include "LoadedPlugin.h"
#include "Test.h"

namespace
{
const char start[] = "Start of %F: sendNotifyToMenu: %L: ";
const char end[] = "End of %F: sendNotifyToMenu: %L: ";
} // namespace

class MenuNotificationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_plugin.make(); }
    void cleanup() { m_plugin.unload(); }

    void somethingMissing_data() { missingRows(); }
    void somethingMissing();
    void withoutDebugChannel_data() { missingRows(); }
    void withoutDebugChannel();
    void menuManagerIsTold();
    void successWithoutDebugChannel();
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
    const QString noContainer = tracePattern("%F: sendNotifyToMenu: Plugin container is null ");
    const QString notLoaded = tracePattern("%F: sendNotifyToMenu: plugin is not loaded ");
    QTest::newRow("container") << "container" << noContainer << 0;
    QTest::newRow("plug-in object") << "owner" << notLoaded << 1;
    QTest::newRow("service") << "service" << notLoaded << 1;
}

void MenuNotificationTest::takeAway(const QString& missing)
{
    host().hasContainer = missing != "container";
    host().hasNotifyOwner = missing != "owner";
    host().notifyOwnerHasService = missing != "service";
}

void MenuNotificationTest::somethingMissing()
{
    QFETCH(QString, missing);
    QFETCH(QString, line);
    QFETCH(int, lookups);
    takeAway(missing);
    RecordingTrace trace;
    m_plugin.page->sendNotifyToMenu();
    QCOMPARE(trace.countDebug(line), 1);
    QCOMPARE(trace.countWarnings(line), 1);
    QCOMPARE(trace.warningLines.size(), 1);
    // Apart from the message there is at most the line of the start: an end is not reached.
    QCOMPARE(trace.debugLines.size() - trace.countDebug(tracePattern(start)), 1);
    QCOMPARE(host().lookups.size(), lookups);
    QCOMPARE(host().notifications, QStringList());
    QCOMPARE(host().messages.size(), 0);
}

void MenuNotificationTest::withoutDebugChannel()
{
    QFETCH(QString, missing);
    QFETCH(QString, line);
    if (!DebugChannelOff::isPossible())
        QSKIP("this toolkit cannot tell whether the debug channel is read");
    takeAway(missing);
    const DebugChannelOff off;
    RecordingTrace trace;
    m_plugin.page->sendNotifyToMenu();
    QCOMPARE(trace.debugLines, QStringList());
    QCOMPARE(trace.countWarnings(line), 1);
    QCOMPARE(trace.warningLines.size(), 1);
}

void MenuNotificationTest::menuManagerIsTold()
{
    QVERIFY(!m_plugin.page->m_recordList); // needs no Init()
    for (int call = 1; call <= 3; ++call) {
        RecordingTrace trace;
        m_plugin.page->sendNotifyToMenu();
        QCOMPARE(trace.debugDifference(QStringList() << tracePattern(start) << tracePattern(end)), QString());
        QCOMPARE(trace.warningLines, QStringList());
        QCOMPARE(host().lookups.size(), call);
        QCOMPARE(host().lookups.last().clsid, "8B42D0E5-1C7F-4A93-9E26-5D8F03B7C412");
        QCOMPARE(host().lookups.last().kind, 8209);
        QCOMPARE(host().notifications.size(), call);
        QCOMPARE(host().notifications.last(), "MenuMgrPlugin 2309 0 0");
    }
}

void MenuNotificationTest::successWithoutDebugChannel()
{
    if (!DebugChannelOff::isPossible())
        QSKIP("this toolkit cannot tell whether the debug channel is read");
    const DebugChannelOff off;
    RecordingTrace trace;
    m_plugin.page->sendNotifyToMenu();
    QCOMPARE(trace.debugLines, QStringList());
    QCOMPARE(trace.warningLines, QStringList());
    QCOMPARE(host().notifications.size(), 1);
}

void MenuNotificationTest::hostAsksForTheActionsMeanwhile()
{
    m_plugin.load(QuickLinkRecordList() << makeRecord("Mail", "email", "mailto:")
                                        << makeRecord("News", "internet", "http://n"));
    QStringList texts;
    QuickLinkSettingPluginDlg* const page = m_plugin.page;
    host().duringNotification = [page, &texts] {
        for (int i = 0; i < page->GetQuickLinkRecordSize(); ++i)
            texts.append(page->GetActionFromQuickLink(i)->text());
    };
    page->sendNotifyToMenu();
    QCOMPARE(texts, QStringList() << "Mail"
                                  << "News");
}

void MenuNotificationTest::hostEndsThePluginMeanwhile()
{
    m_plugin.load(QuickLinkRecordList() << makeRecord("Mail", "email", "mailto:"));
    QuickLinkSettingPluginDlg* const page = m_plugin.page;
    host().duringNotification = [page] {
        page->OnDestroy();
    };
    page->sendNotifyToMenu();
    QCOMPARE(host().notifications.size(), 1);
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
    QCOMPARE(host().notifications, QStringList("MenuMgrPlugin 2309 0 0"));
}

REGISTER_TEST(MenuNotificationTest)
#include "MenuNotificationTest.moc"
