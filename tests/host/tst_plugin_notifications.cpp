// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What plug-ins are told, in which order, and the line that says so.

#include <QLoggingCategory>
#include <QTest>

#include "PlayedContainer.h"
#include "PluginNotifications.h"
#include "TraceRecorder.h"

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
    if (what == QLatin1String("started"))
        PluginNotifications::tellStarted(container);
    else if (what == QLatin1String("language"))
        PluginNotifications::tellLanguageChanged(container, QStringLiteral("pt_BR"));
    else
        PluginNotifications::tellConnectionChanged(container, what == QLatin1String("up"), QStringLiteral("because"));
}

void PluginNotificationsTest::tells_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("code");
    QTest::newRow("started") << QStringLiteral("started") << QStringLiteral("258 0 0");
    QTest::newRow("up") << QStringLiteral("up") << QStringLiteral("1536 0 0");
    QTest::newRow("down") << QStringLiteral("down") << QStringLiteral("1536 0 0");
}

void PluginNotificationsTest::tells()
{
    QFETCH(QString, what);
    QFETCH(QString, code);
    PlayedContainer plugins;
    tell(what, plugins.container());
    QCOMPARE(PlayedPlugin::takeEvents(), QStringList({QStringLiteral("PlayedFirst Notify ") + code,
                                                      QStringLiteral("PlayedSecond Notify ") + code}));
    QCOMPARE(plugins.eventsOfThird().constLast(), QStringLiteral("SampleFirst ") + code);
}

void PluginNotificationsTest::tellsTheLanguageFirst()
{
    PlayedContainer plugins;
    tell(QStringLiteral("language"), plugins.container());
    QCOMPARE(
        PlayedPlugin::takeEvents(),
        QStringList({QStringLiteral("PlayedFirst ChangeLang pt_BR"), QStringLiteral("PlayedSecond ChangeLang pt_BR"),
                     QStringLiteral("PlayedFirst Notify 1024 0 0"), QStringLiteral("PlayedSecond Notify 1024 0 0")}));
    QCOMPARE(plugins.eventsOfThird().constLast(), QStringLiteral("SampleFirst 1024 0 0"));
}

void PluginNotificationsTest::writesOneLine_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("beginning");
    QTest::newRow("started") << QStringLiteral("started")
                             << QStringLiteral("notification 258 sent (the program has started)");
    QTest::newRow("up") << QStringLiteral("up") << QStringLiteral("notification 1536 sent (connection up: because)");
    QTest::newRow("down") << QStringLiteral("down")
                          << QStringLiteral("notification 1536 sent (connection down: because)");
    QTest::newRow("language") << QStringLiteral("language")
                              << QStringLiteral("notification 1024 sent (language pt_BR)");
}

void PluginNotificationsTest::writesOneLine()
{
    QFETCH(QString, what);
    QFETCH(QString, beginning);
    PlayedContainer plugins;
    plugins.first()->setProperty("answer", -1);
    const TraceRecorder trace;
    tell(what, plugins.container());
    QCOMPARE(trace.infoLines,
             QStringList(beginning + QStringLiteral("; answers: PlayedFirst -1, PlayedSecond 0, SampleFirst 7")));
}

void PluginNotificationsTest::writesALineWithoutPlugins()
{
    const PluginContainer none;
    const TraceRecorder trace;
    PluginNotifications::tellStarted(none);
    QCOMPARE(trace.infoLines,
             QStringList(QStringLiteral("notification 258 sent (the program has started); answers: none")));
}

void PluginNotificationsTest::keepsTheConnectionsLogToTheConnection()
{
    const PluginContainer none;
    const TraceRecorder trace;
    for (const char* const log : {"connection", "plugins"}) {
        QLoggingCategory::setFilterRules(QStringLiteral("vellum.*=false\nvellum.%1=true").arg(QLatin1String(log)));
        for (const char* const what : {"started", "language", "up"})
            tell(QLatin1String(what), none);
    }
    QLoggingCategory::setFilterRules(QString());
    QStringList codes;
    for (const QString& line : trace.infoLines)
        codes.append(line.section(QLatin1Char(' '), 1, 1));
    QCOMPARE(codes, QStringList({QStringLiteral("1536"), QStringLiteral("258"), QStringLiteral("1024")}));
}

QTEST_MAIN(PluginNotificationsTest)
#include "tst_plugin_notifications.moc"
