// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The host's notifications: which codes do what, what is asked of the host, and what is answered.

#include <climits>

#include <QAction>

#include "LaunchEvents.h"
#include "Test.h"
#include "Trace.h"

class HostNotificationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_plugin.unload(); }

    void connectionState_data();
    void connectionState();
    void containerTraceComesFirst();
    void connectionIsAskedEveryTime();
    void hostStartAsksNobody_data();
    void hostStartAsksNobody();
    void otherCodesAreIgnored_data();
    void otherCodesAreIgnored();
    void parametersDoNotMatter_data();
    void parametersDoNotMatter();
    void throughTheInterface();
    void connectionSlotLaunches();
    void silentWithoutDebugChannel();

private:
    LoadedPlugin m_plugin;
};

namespace
{
const char gotContainer[] = "%T: %F: Notify:Get plugin container success";
} // namespace

void HostNotificationsTest::init()
{
    m_plugin.make();
    m_plugin.load(markedLinks(ConnectionUp, "mailto:connection") + markedLinks(HostStart, "mailto:start"));
}

void HostNotificationsTest::connectionState_data()
{
    QTest::addColumn<QString>("missing");
    QTest::addColumn<bool>("isConnected");
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("lookups");
    QTest::addColumn<int>("traces");
    QTest::addColumn<int>("openings");
    const struct {
        const char *row, *missing;
        bool isConnected;
        int answer, lookups, traces, openings;
    } rows[] = {
        {"connection up", "", true, 0, 1, 1, 1},
        {"connection down", "", false, 0, 1, 1, 0},
        {"no container", "container", true, -1, 0, 0, 0},
        {"no plug-in object", "owner", true, -1, 1, 1, 0},
        {"no service", "service", true, -1, 1, 1, 0},
        {"no container, down", "container", false, -1, 0, 0, 0},
        {"no plug-in object, down", "owner", false, -1, 1, 1, 0},
        {"no service, down", "service", false, -1, 1, 1, 0},
        {"the notify service does not count", "notify", true, 0, 1, 1, 1},
    };
    for (const auto& row : rows)
        QTest::newRow(row.row) << row.missing << row.isConnected << row.answer << row.lookups << row.traces
                               << row.openings;
}

void HostNotificationsTest::connectionState()
{
    QFETCH(QString, missing);
    QFETCH(bool, isConnected);
    QFETCH(int, answer);
    QFETCH(int, lookups);
    QFETCH(int, traces);
    QFETCH(int, openings);
    host().hasContainer = missing != "container";
    host().hasDialupOwner = missing != "owner";
    host().dialupOwnerHasService = missing != "service";
    host().hasNotifyOwner = missing != "notify";
    host().isConnected = isConnected;
    RecordingTrace trace;
    QCOMPARE(m_plugin.page->Notify(1536, 0, 0), answer);
    QCOMPARE(host().lookups.size(), lookups);
    QCOMPARE(trace.countDebug(tracePattern(gotContainer)), traces);
    QCOMPARE(trace.warningLines, QStringList());
    QCOMPARE(host().openings, openings == 1 ? QStringList("desktop mailto:connection") : QStringList());
}

void HostNotificationsTest::containerTraceComesFirst()
{
    host().isConnected = true;
    host().duringOpening = [] {
        qDebug("opened");
    };
    RecordingTrace trace;
    m_plugin.page->Notify(1536, 0, 0);
    const int opened = trace.debugLines.indexOf("opened");
    QVERIFY(opened > 0);
    QCOMPARE(QStringList(trace.debugLines.mid(0, opened)).filter("Get plugin container success").size(), 1);
}

void HostNotificationsTest::connectionIsAskedEveryTime()
{
    const bool states[] = {false, true, false, true, true};
    const int openings[] = {0, 1, 1, 2, 3};
    for (int i = 0; i < 5; ++i) {
        host().isConnected = states[i];
        QCOMPARE(m_plugin.page->Notify(1536, 0, 0), 0);
        QCOMPARE(host().openings.size(), openings[i]);
    }
    QCOMPARE(host().lookups.size(), 5);
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(host().lookups.at(i).clsid, "61D9E3B8-7A04-4C5F-B1E7-2C6A9F08D35E");
        QCOMPARE(host().lookups.at(i).kind, 16401);
    }
}

void HostNotificationsTest::hostStartAsksNobody_data()
{
    QTest::addColumn<bool>("hasContainer");
    QTest::addColumn<bool>("isConnected");
    QTest::newRow("connection down") << true << false;
    QTest::newRow("connection up") << true << true;
    QTest::newRow("no container") << false << false;
}

void HostNotificationsTest::hostStartAsksNobody()
{
    QFETCH(bool, hasContainer);
    QFETCH(bool, isConnected);
    host().hasContainer = hasContainer;
    host().isConnected = isConnected;
    RecordingTrace trace;
    QCOMPARE(m_plugin.page->Notify(258, 0, 0), 0);
    QCOMPARE(host().openings, QStringList("desktop mailto:start"));
    QCOMPARE(host().lookups.size(), 0);
    QCOMPARE(trace.countDebug(tracePattern(gotContainer)), 0);
}

void HostNotificationsTest::otherCodesAreIgnored_data()
{
    QTest::addColumn<unsigned int>("code");
    const unsigned int codes[] = {0,    1,    2,    256,   257,   259,     512,     1023,       1025,    1535,
                                  1537, 2309, 8209, 16401, 65794, 0x10400, 0x10600, 0x80000102, UINT_MAX};
    for (const unsigned int code : codes)
        QTest::newRow(QByteArray::number(code).constData()) << code;
}

void HostNotificationsTest::otherCodesAreIgnored()
{
    QFETCH(unsigned int, code);
    host().isConnected = true;
    RecordingTrace trace;
    QCOMPARE(m_plugin.page->Notify(code, 0, 0), 0);
    QCOMPARE(host().openings, QStringList());
    QCOMPARE(host().lookups.size(), 0);
    QCOMPARE(host().translationContexts, QStringList());
    QCOMPARE(host().notifications, QStringList());
    QCOMPARE(trace.warningLines, QStringList());
}

void HostNotificationsTest::parametersDoNotMatter_data()
{
    QTest::addColumn<unsigned int>("code");
    QTest::addColumn<unsigned int>("first");
    QTest::addColumn<unsigned int>("second");
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("openings");
    const unsigned int parameters[][2] = {{0, 0}, {1, 0}, {0, 1}, {1536, 258}, {UINT_MAX, UINT_MAX}};
    for (const auto& pair : parameters) {
        const QByteArray row = QByteArray::number(pair[0]) + ' ' + QByteArray::number(pair[1]);
        QTest::newRow(("258 " + row).constData()) << 258u << pair[0] << pair[1] << 0 << 1;
        QTest::newRow(("1536 " + row).constData()) << 1536u << pair[0] << pair[1] << 0 << 1;
        QTest::newRow(("1024 " + row).constData()) << 1024u << pair[0] << pair[1] << -1 << 0;
        QTest::newRow(("7 " + row).constData()) << 7u << pair[0] << pair[1] << 0 << 0;
    }
}

void HostNotificationsTest::parametersDoNotMatter()
{
    QFETCH(unsigned int, code);
    QFETCH(unsigned int, first);
    QFETCH(unsigned int, second);
    QFETCH(int, answer);
    QFETCH(int, openings);
    host().isConnected = true;
    QCOMPARE(m_plugin.page->Notify(code, first, second), answer);
    QCOMPARE(host().openings.size(), openings);
}

void HostNotificationsTest::throughTheInterface()
{
    INotify* const receiver = qobject_cast<INotify*>(static_cast<QObject*>(m_plugin.page));
    QVERIFY(receiver);
    QCOMPARE(receiver->Notify(258, 0, 0), 0);
    QCOMPARE(receiver->Notify(1024, 0, 0), -1);
    QCOMPARE(host().openings, QStringList("desktop mailto:start"));
}

void HostNotificationsTest::connectionSlotLaunches()
{
    // The slot launches whatever the state of the connection is: only the notification asks for that.
    QVERIFY(QMetaObject::invokeMethod(m_plugin.page, "launchOnConnection", Qt::DirectConnection));
    QCOMPARE(host().openings, QStringList("desktop mailto:connection"));
    QCOMPARE(host().lookups.size(), 0);
}

void HostNotificationsTest::silentWithoutDebugChannel()
{
    QVERIFY(Trace::isOn());
    if (!DebugChannelOff::isPossible())
        QSKIP("this toolkit cannot tell whether the debug channel is read");
    host().isConnected = true;
    {
        const DebugChannelOff off;
        // Off means that not even the arguments of a line are worked out.
        QVERIFY(!Trace::isOn());
        RecordingTrace trace;
        m_plugin.page->Notify(1536, 0, 0);
        m_plugin.page->Notify(258, 0, 0);
        m_plugin.page->Notify(1024, 0, 0);
        m_plugin.page->LaunchQuickLinkAction(m_plugin.page->GetActionFromQuickLink(0));
        QCOMPARE(trace.debugLines, QStringList());
        QCOMPARE(trace.warningLines, QStringList());
    }
    QCOMPARE(host().openings.size(), 3);
    RecordingTrace trace;
    m_plugin.page->Notify(1536, 0, 0);
    QVERIFY(!trace.debugLines.isEmpty());
}

REGISTER_TEST(HostNotificationsTest)
#include "HostNotificationsTest.moc"
