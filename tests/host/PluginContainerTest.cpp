// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Finding and notifying what is there, and taking it down.

#include "IBasePlugin.h"
#include "INotify.h"
#include "PluginFixture.h"
#include "RecordedEvents.h"
#include "Startup.h"
#include "StartupContainer.h"
#include "Test.h"

class RecordingComponent : public QObject, public INotify
{
    Q_OBJECT
    Q_INTERFACES(INotify)

public:
    explicit RecordingComponent(int answer)
        : m_answer(answer)
    {
    }
    int Notify(unsigned int code, unsigned int param1, unsigned int param2) override
    {
        received << QString("%1 %2 %3").arg(code).arg(param1).arg(param2);
        return m_answer;
    }
    QStringList received;

private:
    int m_answer;
};

namespace
{
/** The plug-ins RecordingFirst and RecordingSecond, loaded; their start is forgotten. */
class TwoPlugins : public PluginFixture
{
public:
    TwoPlugins()
        : PluginFixture(QStringList() << "RecordingFirst"
                                      << "RecordingSecond")
    {
        if (load().size() != 2)
            qFatal("Not every plug-in was loaded");
        takeEvents();
    }
};
} // namespace

class PluginContainerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isKnownToStartupWhileInstalled();
    void uninstallsItselfOnly();
    void findsPlugins_data();
    void findsPlugins();
    void findsComponentsByKind();
    void listsPluginsWithAnInterface();
    void forgetsDeletedComponents();
    void notifiesPlugins();
    void notifiesComponents();
    void notifiesTheComponentFirst();
    void notifiesNobody_data();
    void notifiesNobody();
    void destroysAllBeforeAnyIsUnloaded_data();
    void destroysAllBeforeAnyIsUnloaded();
    void findsOnlyComponentsAfterShutdown();
};

static const char firstId[] = "00000000-0000-0000-0000-00000000000A";
static const char secondId[] = "00000000-0000-0000-0000-00000000000B";

void PluginContainerTest::isKnownToStartupWhileInstalled()
{
    QVERIFY(!Startup::GetPluginContainer());
    {
        PluginContainer container;
        QVERIFY(!Startup::GetPluginContainer());
        installPluginContainer(&container);
        QCOMPARE(Startup::GetPluginContainer(), static_cast<IPluginContainer*>(&container));
        installPluginContainer(nullptr);
        QVERIFY(!Startup::GetPluginContainer());
        installPluginContainer(&container);
    }
    QVERIFY(!Startup::GetPluginContainer());
}

void PluginContainerTest::uninstallsItselfOnly()
{
    PluginContainer installed;
    installPluginContainer(&installed);
    {
        PluginContainer other;
    }
    QCOMPARE(Startup::GetPluginContainer(), static_cast<IPluginContainer*>(&installed));
}

void PluginContainerTest::findsPlugins_data()
{
    QTest::addColumn<QString>("clsid");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("position");
    QTest::newRow("first") << firstId << 0 << 0;
    QTest::newRow("second") << secondId << 16401 << 1;
    QTest::newRow("first, of another kind") << firstId << 16401 << -1;
    QTest::newRow("second, of another kind") << secondId << 0 << -1;
    QTest::newRow("unknown") << "00000000-0000-0000-0000-00000000000F" << 0 << -1;
    QTest::newRow("empty") << QString() << 0 << -1;
    QTest::newRow("lower case") << QString(firstId).toLower() << 0 << -1;
}

void PluginContainerTest::findsPlugins()
{
    QFETCH(QString, clsid);
    QFETCH(int, kind);
    QFETCH(int, position);
    TwoPlugins host;
    QCOMPARE(host.container.GetPlugin(clsid, kind), host.container.plugins().value(position));
}

void PluginContainerTest::findsComponentsByKind()
{
    PluginContainer container;
    QObject one, two, unreachable;
    const QString id = "8B42D0E5-1C7F-4A93-9E26-5D8F03B7C412";
    container.registerComponent(id, 1, "One", &one);
    container.registerComponent(id, 2, "Two", &two);
    container.registerComponent(id, 2, "Two", &unreachable);
    QCOMPARE(container.GetPlugin(id, 1), &one);
    QCOMPARE(container.GetPlugin(id, 2), &two);
    QVERIFY(!container.GetPlugin(id, 3));
    QVERIFY(!container.GetPlugin("other", 1));
    QCOMPARE(container.plugins().size(), 0);
}

void PluginContainerTest::listsPluginsWithAnInterface()
{
    PluginFixture host(QStringList() << "RecordingFirst"
                                     << "FakeSilent"
                                     << "RecordingSecond");
    RecordingComponent component(0);
    host.container.registerComponent("a", 1, "a", &component);
    QCOMPARE(host.load(), QStringList() << "FakeSilent"
                                        << "RecordingFirst"
                                        << "RecordingSecond");
    QStringList names;
    for (const PluginWith<IBasePlugin>& plugin : host.container.all<IBasePlugin>())
        names << plugin.name;
    QCOMPARE(names, QStringList() << "FakeSilent"
                                  << "RecordingFirst"
                                  << "RecordingSecond");
    const QList<PluginWith<INotify>> listeners = host.container.all<INotify>();
    QCOMPARE(listeners.size(), 2);
    QCOMPARE(listeners.at(1).name, "RecordingSecond");
    QCOMPARE(listeners.at(1).object.data(), host.container.plugins().at(2));
    QCOMPARE(listeners.at(1).interface->Notify(1, 2, 3), 7);
    host.container.shutdown();
    QVERIFY(listeners.at(1).object.isNull());
    QCOMPARE(host.container.all<INotify>().size(), 0);
}

void PluginContainerTest::forgetsDeletedComponents()
{
    PluginContainer container;
    const QString name = "Listener";
    {
        RecordingComponent listener(3);
        container.registerComponent(name, 1, name, &listener);
        QCOMPARE(container.notify(name, 1, 2, 3), 3);
    }
    QVERIFY(!container.GetPlugin(name, 1));
    QCOMPARE(container.notify(name, 1, 2, 3), -1);
    RecordingComponent successor(4);
    container.registerComponent(name, 1, name, &successor);
    QCOMPARE(container.GetPlugin(name, 1), static_cast<QObject*>(&successor));
    QCOMPARE(container.notify(name, 1, 2, 3), 4);
}

void PluginContainerTest::notifiesPlugins()
{
    TwoPlugins host;
    QCOMPARE(host.container.notify("RecordingSecond", 2309, 4294967295U, 5), 7);
    QCOMPARE(takeEvents(), QStringList() << "RecordingSecond Notify 2309 4294967295 5");
}

void PluginContainerTest::notifiesComponents()
{
    PluginContainer container;
    RecordingComponent listener(0);
    QObject deaf;
    const QString name = "MenuMgrPlugin";
    container.registerComponent("a", 1, name, &deaf);
    container.registerComponent("b", 1, name, &listener);
    QCOMPARE(container.notify(name, 2309, 1, 2), 0);
    QCOMPARE(listener.received, QStringList() << "2309 1 2");
}

void PluginContainerTest::notifiesTheComponentFirst()
{
    // A plug-in that takes the name of a part of the host gets none of its notifications.
    TwoPlugins host;
    RecordingComponent listener(0);
    host.container.registerComponent("a", 1, "RecordingFirst", &listener);
    QCOMPARE(host.container.notify("RecordingFirst", 1, 2, 3), 0);
    QCOMPARE(listener.received.size(), 1);
    QCOMPARE(takeEvents(), QStringList());
}

void PluginContainerTest::notifiesNobody_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("lower case") << "recordingfirst";
    QTest::newRow("component without INotify") << "Deaf";
    QTest::newRow("empty") << QString();
}

void PluginContainerTest::notifiesNobody()
{
    QFETCH(QString, name);
    TwoPlugins host;
    QObject deaf;
    host.container.registerComponent("deaf", 1, "Deaf", &deaf);
    QCOMPARE(host.container.notify(name, 1, 2, 3), -1);
    QCOMPARE(takeEvents(), QStringList());
}

void PluginContainerTest::destroysAllBeforeAnyIsUnloaded_data()
{
    QTest::addColumn<int>("shutdowns");
    QTest::newRow("by its destructor") << 0;
    QTest::newRow("once") << 1;
    QTest::newRow("asked twice") << 2;
}

void PluginContainerTest::destroysAllBeforeAnyIsUnloaded()
{
    QFETCH(int, shutdowns);
    const PluginFolder folder;
    folder.add("RecordingFirst");
    folder.add("RecordingSecond");
    {
        PluginContainer container;
        installPluginContainer(&container);
        container.loadFolder(folder.path());
        takeEvents();
        QVERIFY(isMapped(folder.file("RecordingFirst")));
        for (int i = 0; i < shutdowns; ++i)
            container.shutdown();
        QCOMPARE(container.plugins().size(), shutdowns ? 0 : 2);
    }
    QCOMPARE(takeEvents(), QStringList() << "RecordingSecond OnDestroy"
                                         << "RecordingFirst OnDestroy"
                                         << "RecordingSecond late"
                                         << "RecordingFirst late"
                                         << "RecordingSecond gone"
                                         << "RecordingFirst gone");
    QVERIFY(!isMapped(folder.file("RecordingFirst")));
    QVERIFY(!isMapped(folder.file("RecordingSecond")));
}

void PluginContainerTest::findsOnlyComponentsAfterShutdown()
{
    TwoPlugins host;
    QObject component;
    host.container.registerComponent("component", 1, "Component", &component);
    host.container.shutdown();
    QVERIFY(!host.container.GetPlugin(firstId, 0));
    QCOMPARE(host.container.notify("RecordingFirst", 1, 2, 3), -1);
    QCOMPARE(host.container.GetPlugin("component", 1), &component);
}

REGISTER_TEST(PluginContainerTest)
#include "PluginContainerTest.moc"
