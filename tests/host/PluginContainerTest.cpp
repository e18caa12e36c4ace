// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Finding and notifying what is there, and taking it down.


#include "IBasePlugin.h"
#include "INotify.h"
#include "SampleFolder.h"
#include "Startup.h"
#include "StartupContainer.h"
#include "Test.h"

class Listener : public QObject, public INotify
{
    Q_OBJECT
    Q_INTERFACES(INotify)

public:
    explicit Listener(int answer)
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

class PluginContainerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
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
    void notifiesNobody();
    void destroysAllBeforeAnyIsUnloaded();
    void shutsDownOnce();
    void destructorShutsDown();

private:
    bool load(RecordingContainer& host);

    QScopedPointer<SampleFolder> m_folder;
};

static const char firstId[] = "00000000-0000-0000-0000-00000000000A";
static const char secondId[] = "00000000-0000-0000-0000-00000000000B";

void PluginContainerTest::init()
{
    m_folder.reset(new SampleFolder);
    QVERIFY(m_folder->add("SampleFirst"));
    QVERIFY(m_folder->add("SampleSecond"));
}

bool PluginContainerTest::load(RecordingContainer& host)
{
    host.container.loadFolder(m_folder->path());
    return host.container.plugins().size() == 2;
}

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
    QTest::newRow("first") << QString::fromLatin1(firstId) << 0 << 0;
    QTest::newRow("second") << QString::fromLatin1(secondId) << 16401 << 1;
    QTest::newRow("first, of another kind") << QString::fromLatin1(firstId) << 16401 << -1;
    QTest::newRow("second, of another kind") << QString::fromLatin1(secondId) << 0 << -1;
    QTest::newRow("unknown") << "00000000-0000-0000-0000-00000000000F" << 0 << -1;
    QTest::newRow("empty") << QString() << 0 << -1;
    QTest::newRow("lower case") << QString::fromLatin1(firstId).toLower() << 0 << -1;
}

void PluginContainerTest::findsPlugins()
{
    QFETCH(QString, clsid);
    QFETCH(int, kind);
    QFETCH(int, position);
    RecordingContainer host;
    QVERIFY(load(host));
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
    QVERIFY(m_folder->add(QStringLiteral("SampleQuiet")));
    RecordingContainer host;
    Listener component(0);
    host.container.registerComponent(QStringLiteral("a"), 1, QStringLiteral("a"), &component);
    host.container.loadFolder(m_folder->path());
    QStringList names;
    for (const PluginWith<IBasePlugin>& plugin : host.container.all<IBasePlugin>())
        names << plugin.name;
    QCOMPARE(names, QStringList() << QStringLiteral("SampleFirst") << QStringLiteral("SampleQuiet")
                                  << QStringLiteral("SampleSecond"));
    const QList<PluginWith<INotify>> listeners = host.container.all<INotify>();
    QCOMPARE(listeners.size(), 2);
    QCOMPARE(listeners.at(1).name, QStringLiteral("SampleSecond"));
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
        Listener listener(3);
        container.registerComponent(name, 1, name, &listener);
        QCOMPARE(container.notify(name, 1, 2, 3), 3);
    }
    QVERIFY(!container.GetPlugin(name, 1));
    QCOMPARE(container.notify(name, 1, 2, 3), -1);
    Listener successor(4);
    container.registerComponent(name, 1, name, &successor);
    QCOMPARE(container.GetPlugin(name, 1), static_cast<QObject*>(&successor));
    QCOMPARE(container.notify(name, 1, 2, 3), 4);
}

void PluginContainerTest::notifiesPlugins()
{
    RecordingContainer host;
    QVERIFY(load(host));
    QCOMPARE(host.container.notify("SampleSecond", 2309, 4294967295U, 5), 7);
    QCOMPARE(host.events().mid(2), QStringList() << "SampleSecond 2309 4294967295 5");
}

void PluginContainerTest::notifiesComponents()
{
    PluginContainer container;
    Listener listener(0);
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
    RecordingContainer host;
    QVERIFY(load(host));
    Listener listener(0);
    host.container.registerComponent("a", 1, "SampleFirst", &listener);
    QCOMPARE(host.container.notify("SampleFirst", 1, 2, 3), 0);
    QCOMPARE(listener.received.size(), 1);
    QCOMPARE(host.events().size(), 2);
}

void PluginContainerTest::notifiesNobody()
{
    RecordingContainer host;
    QVERIFY(load(host));
    QCOMPARE(host.container.notify("samplefirst", 1, 2, 3), -1);
    QCOMPARE(host.container.notify("Recorder", 1, 2, 3), -1); // it has no INotify
    QCOMPARE(host.container.notify(QString(), 1, 2, 3), -1);
    QCOMPARE(host.events().size(), 2);
}

void PluginContainerTest::destroysAllBeforeAnyIsUnloaded()
{
    RecordingContainer host;
    QVERIFY(load(host));
    host.container.shutdown();
    QCOMPARE(host.events().mid(2),
             QStringList() << "SampleSecond OnDestroy" << "SampleFirst OnDestroy"
                           << "SampleSecond late" << "SampleFirst late"
                           << "SampleSecond gone" << "SampleFirst gone");
    QVERIFY(!isMapped(m_folder->file("SampleFirst")));
    QVERIFY(!isMapped(m_folder->file("SampleSecond")));
}

void PluginContainerTest::shutsDownOnce()
{
    RecordingContainer host;
    QVERIFY(load(host));
    host.container.shutdown();
    const QStringList events = host.events();
    host.container.shutdown();
    QCOMPARE(host.events(), events);
    QCOMPARE(host.container.plugins().size(), 0);
    QVERIFY(!host.container.GetPlugin(QLatin1String(firstId), 0));
    QCOMPARE(host.container.notify("SampleFirst", 1, 2, 3), -1);
    QCOMPARE(host.container.GetPlugin("recorder", 1) != nullptr, true);
}

void PluginContainerTest::destructorShutsDown()
{
    QObject recorder;
    {
        PluginContainer container;
        installPluginContainer(&container);
        container.registerComponent("recorder", 1, QString(), &recorder);
        container.loadFolder(m_folder->path());
    }
    const QStringList events = recorder.property("events").toStringList();
    QCOMPARE(events.size(), 8);
    QCOMPARE(events.last(), "SampleFirst gone");
}

REGISTER_TEST(PluginContainerTest)
#include "PluginContainerTest.moc"
