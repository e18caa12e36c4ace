// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What plug-ins are told, in which order, and the line that says so.

#include <QLoggingCategory>

#include "FakePlugins.h"
#include "PluginNotifications.h"
#include "RecordingTrace.h"
#include "Test.h"

class PluginNotificationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tells_data();
    void tells();
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
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("reason");
    QTest::newRow("started") << "258"
                             << "the program has started";
    QTest::newRow("up") << "1536"
                        << "connection up: because";
    QTest::newRow("down") << "1536"
                          << "connection down: because";
    QTest::newRow("language") << "1024"
                              << "language pt_BR";
}

/** Everyone in order, the language before its notification, and one line that says so. */
void PluginNotificationsTest::tells()
{
    QFETCH(QString, code);
    QFETCH(QString, reason);
    const QString what = QTest::currentDataTag();
    FakePlugins plugins;
    plugins.first()->setProperty("answer", -1);
    const RecordingTrace trace;
    tell(what, plugins.container);
    QStringList events;
    if (what == "language")
        events << "FakeFirst ChangeLang pt_BR"
               << "FakeSecond ChangeLang pt_BR";
    for (const char* plugin : {"FakeFirst", "FakeSecond", "RecordingFirst"})
        events << QString("%1 Notify %2 0 0").arg(plugin, code);
    QCOMPARE(takeEvents(), events);
    QCOMPARE(trace.infoLines, QStringList("notification " + code + " sent (" + reason +
                                          "); answers: FakeFirst -1, FakeSecond 0, RecordingFirst 7"));
}

void PluginNotificationsTest::writesALineWithoutPlugins()
{
    const PluginContainer none;
    const RecordingTrace trace;
    PluginNotifications::tellStarted(none);
    QCOMPARE(trace.infoLines, QStringList("notification 258 sent (the program has started); answers: none"));
}

void PluginNotificationsTest::keepsTheConnectionsLogToTheConnection()
{
    const PluginContainer none;
    const RecordingTrace trace;
    for (const char* const log : {"connection", "plugins"}) {
        QLoggingCategory::setFilterRules(QString("vellum.*=false\nvellum.%1=true").arg(log));
        for (const char* const what : {"started", "language", "up"})
            tell(what, none);
    }
    QLoggingCategory::setFilterRules(QString());
    QStringList codes;
    for (const QString& line : trace.infoLines)
        codes.append(line.section(' ', 1, 1));
    QCOMPARE(codes, QStringList({"1536", "258", "1024"}));
}

REGISTER_TEST(PluginNotificationsTest)
#include "PluginNotificationsTest.moc"
