// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What plug-ins are told, in which order, and the line that says so.

#include <QLoggingCategory>

#include "PlayedContainer.h"
#include "PluginNotifications.h"
#include "RecordingTrace.h"
#include "Test.h"

class PluginNotificationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tells_data();
    void tells();
    void tellsTheLanguageFirst();
    void writesOneLine_data();
    void writesOneLine();
    void writesALineWithoutPlugins();
    void keepsTheConnectionsLogToTheConnection();
};

static void tell(const QString& what, const PluginContainer& container)
{
    if (what == "started")
        PluginNotifications::tellStarted(container);
    else if (what == "language")
        PluginNotifications::tellLanguageChanged(container, "pt_BR");
    else
        PluginNotifications::tellConnectionChanged(container, what == "up", "because");
}

void PluginNotificationsTest::tells_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("code");
    QTest::newRow("started") << "started" << "258 0 0";
    QTest::newRow("up") << "up" << "1536 0 0";
    QTest::newRow("down") << "down" << "1536 0 0";
}

void PluginNotificationsTest::tells()
{
    QFETCH(QString, what);
    QFETCH(QString, code);
    PlayedContainer plugins;
    tell(what, plugins.container());
    QCOMPARE(PlayedPlugin::takeEvents(), QStringList({"PlayedFirst Notify " + code,
                                                      "PlayedSecond Notify " + code}));
    QCOMPARE(plugins.eventsOfThird().constLast(), "SampleFirst " + code);
}

void PluginNotificationsTest::tellsTheLanguageFirst()
{
    PlayedContainer plugins;
    tell("language", plugins.container());
    QCOMPARE(
        PlayedPlugin::takeEvents(),
        QStringList({"PlayedFirst ChangeLang pt_BR", "PlayedSecond ChangeLang pt_BR",
                     "PlayedFirst Notify 1024 0 0", "PlayedSecond Notify 1024 0 0"}));
    QCOMPARE(plugins.eventsOfThird().constLast(), "SampleFirst 1024 0 0");
}

void PluginNotificationsTest::writesOneLine_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("beginning");
    QTest::newRow("started") << "started"
                             << "notification 258 sent (the program has started)";
    QTest::newRow("up") << "up" << "notification 1536 sent (connection up: because)";
    QTest::newRow("down") << "down"
                          << "notification 1536 sent (connection down: because)";
    QTest::newRow("language") << "language"
                              << "notification 1024 sent (language pt_BR)";
}

void PluginNotificationsTest::writesOneLine()
{
    QFETCH(QString, what);
    QFETCH(QString, beginning);
    PlayedContainer plugins;
    plugins.first()->setProperty("answer", -1);
    const RecordingTrace trace;
    tell(what, plugins.container());
    QCOMPARE(trace.infoLines,
             QStringList(beginning + "; answers: PlayedFirst -1, PlayedSecond 0, SampleFirst 7"));
}

void PluginNotificationsTest::writesALineWithoutPlugins()
{
    const PluginContainer none;
    const RecordingTrace trace;
    PluginNotifications::tellStarted(none);
    QCOMPARE(trace.infoLines,
             QStringList("notification 258 sent (the program has started); answers: none"));
}

void PluginNotificationsTest::keepsTheConnectionsLogToTheConnection()
{
    const PluginContainer none;
    const RecordingTrace trace;
    for (const char* const log : {"connection", "plugins"}) {
        QLoggingCategory::setFilterRules(QString("vellum.*=false\nvellum.%1=true").arg(QLatin1String(log)));
        for (const char* const what : {"started", "language", "up"})
            tell(QLatin1String(what), none);
    }
    QLoggingCategory::setFilterRules(QString());
    QStringList codes;
    for (const QString& line : trace.infoLines)
        codes.append(line.section(' ', 1, 1));
    QCOMPARE(codes, QStringList({"1536", "258", "1024"}));
}

REGISTER_TEST(PluginNotificationsTest)
#include "PluginNotificationsTest.moc"
