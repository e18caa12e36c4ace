// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// A plug-in that is taken down and started again while the others run.

#include "PluginFixture.h"
#include "RecordedEvents.h"
#include "RecordingTrace.h"
#include "Test.h"

class PluginReloadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void comesBackInItsPlace_data();
    void comesBackInItsPlace();
    void isGoneWhereItsFileIsRefused();
    void othersAreNotReloaded();

private:
    QScopedPointer<PluginFixture> m_host;
};

static QStringList both()
{
    return QStringList() << "RecordingFirst"
                         << "RecordingSecond";
}

void PluginReloadTest::init()
{
    m_host.reset(new PluginFixture(both()));
    QCOMPARE(m_host->load(), both());
    takeEvents();
}

void PluginReloadTest::cleanup()
{
    m_host.reset();
}

void PluginReloadTest::comesBackInItsPlace_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("first") << 0;
    QTest::newRow("last") << 1;
}

void PluginReloadTest::comesBackInItsPlace()
{
    QFETCH(int, index);
    const QString name = both().at(index);
    QVERIFY(m_host->container.reload(m_host->container.plugins().at(index)));
    QCOMPARE(takeEvents(), QStringList() << name + " OnDestroy" << name + " late" << name + " gone" << name + " Init");
    QCOMPARE(m_host->load(), both());
    QCOMPARE(m_host->container.plugins().size(), 2);
    QVERIFY(isMapped(m_host->folder.file(name)));
    // Found and told as before.
    takeEvents();
    QCOMPARE(m_host->container.notify(name, 1, 2, 3), 7);
    QCOMPARE(takeEvents(), QStringList(name + " Notify 1 2 3"));
}

void PluginReloadTest::isGoneWhereItsFileIsRefused()
{
    const RecordingTrace trace;
    QVERIFY(QFile::remove(m_host->folder.file("RecordingFirst")));
    QVERIFY(!m_host->container.reload(m_host->container.plugins().first()));
    QCOMPARE(takeEvents().last(), "RecordingFirst gone");
    QCOMPARE(m_host->container.plugins().size(), 1);
    QCOMPARE(m_host->container.refusals().size(), 1);
    QCOMPARE(m_host->container.notify("RecordingFirst", 1, 2, 3), -1);
    QCOMPARE(m_host->container.notify("RecordingSecond", 1, 2, 3), 7);
}

void PluginReloadTest::othersAreNotReloaded()
{
    const QObject other;
    QVERIFY(!m_host->container.reload(&other));
    QVERIFY(!m_host->container.reload(nullptr));
    QCOMPARE(takeEvents(), QStringList());
    QCOMPARE(m_host->container.plugins().size(), 2);
}

REGISTER_TEST(PluginReloadTest)
#include "PluginReloadTest.moc"
