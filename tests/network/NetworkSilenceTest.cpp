// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <QDBusError>
#include <QDBusObjectPath>
#include <QSignalSpy>

#include <memory>

#include "NetworkManagerSource.h"
#include "PlayedNetwork.h"
#include "SourceText.h"
#include "Test.h"

/** A service that comes and goes, gives no answer, or errors: nothing waits, and nothing is asked twice that was told.
 */
class NetworkSilenceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useOwnSystemBus(); }
    void init();
    void cleanup();

    void heardAtStart();
    void knowsNothingBeforeTheFirstAnswer();
    void noService();
    void serviceComesAndGoes();
    void silentFromTheStart();
    void errorIsAskedAgain();
    void nothingIsAskedAgain();
    void goneObjects_data();
    void goneObjects();
    void newObjects();
    void withdrawnIsUnsaid();
    void answersWhatWasTold_data();
    void answersWhatWasTold();
    void endsWhileItAsks();

private:
    void start();

    std::unique_ptr<PlayedNetwork> m_network;
    std::unique_ptr<NetworkManagerSource> m_source;
};

void NetworkSilenceTest::init()
{
    m_network = std::make_unique<PlayedNetwork>();
}

void NetworkSilenceTest::cleanup()
{
    m_source.reset();
    m_network.reset();
}

void NetworkSilenceTest::start()
{
    m_source = std::make_unique<NetworkManagerSource>(ConnectionKind::Mobile);
    QTRY_VERIFY(m_source->isKnown());
}

void NetworkSilenceTest::heardAtStart()
{
    start();
    QVERIFY(m_source->isAvailable());
    QCOMPARE(SourceText::of(m_source->state()), "up 1, coming 0, reach 4, id \"one\", name \"Mobile plan\", "
                                                "device \"wwan0\", operator \"\", in its place 0");
}

void NetworkSilenceTest::knowsNothingBeforeTheFirstAnswer()
{
    const NetworkManagerSource source(ConnectionKind::Mobile);
    QVERIFY(!source.isKnown());
    QVERIFY(!source.isAvailable());
    QVERIFY(!source.state().isUp);
}

void NetworkSilenceTest::noService()
{
    m_network.reset();
    start();
    QVERIFY(!m_source->isAvailable());
    QVERIFY(!m_source->isSilent());
    // One that comes later is new, however long it says nothing.
    m_network = std::make_unique<PlayedNetwork>();
    m_network->setSilent(PlayedNetwork::objects, true);
    QTRY_VERIFY(m_network->questions(PlayedNetwork::objects) > 1);
    QVERIFY(!m_source->isSilent());
}

void NetworkSilenceTest::serviceComesAndGoes()
{
    m_network.reset();
    start();
    for (int i = 0; i < 3; ++i) {
        m_network = std::make_unique<PlayedNetwork>();
        QTRY_VERIFY(m_source->isAvailable());
        QVERIFY(m_source->state().isUp);
        m_network.reset();
        QTRY_VERIFY(!m_source->isAvailable());
        QVERIFY(!m_source->state().isUp);
    }
}

void NetworkSilenceTest::silentFromTheStart()
{
    m_network->setSilent(PlayedNetwork::objects, true);
    start();
    QVERIFY(!m_source->isAvailable());
    QVERIFY(m_source->isSilent());
    QTRY_VERIFY(m_network->questions(PlayedNetwork::objects) > 1);
    const int asked = m_network->questions(PlayedNetwork::objects);
    // Late answers count, so that a service that goes on is known at once.
    m_network->setSilent(PlayedNetwork::objects, false);
    QTRY_VERIFY(m_source->isAvailable());
    QCOMPARE(m_network->questions(PlayedNetwork::objects), asked);
    QVERIFY(m_source->state().isUp);
}

void NetworkSilenceTest::errorIsAskedAgain()
{
    m_network->setError(PlayedNetwork::objects, "org.freedesktop.DBus.Error.Failed");
    start();
    QVERIFY(!m_source->isAvailable());
    m_network->setError(PlayedNetwork::objects, QString());
    QTRY_VERIFY_WITH_TIMEOUT(m_source->isAvailable(), 30000);
    QVERIFY(m_source->state().isUp);
}

void NetworkSilenceTest::nothingIsAskedAgain()
{
    start();
    QTRY_VERIFY(m_network->questions(PlayedNetwork::stored) == 1);
    const int asked = m_network->questions(PlayedNetwork::objects);
    for (const QVariant& state : {QVariant(3U), QVariant(4U), QVariant(1U), QVariant(2U)}) {
        m_network->set(PlayedNetwork::mobile, "State", state);
        m_network->set(PlayedNetwork::manager, "Connectivity", state);
        m_network->tellChanges();
    }
    QTRY_COMPARE(m_source->state().reach, ConnectionState::Reach::Portal);
    QCOMPARE(m_network->questions(PlayedNetwork::objects), asked);
    QCOMPARE(m_network->questions(PlayedNetwork::stored), 1);
    QCOMPARE(m_network->questions(PlayedNetwork::mobile), 0);
    QCOMPARE(m_network->questions(PlayedNetwork::manager), 0);
}

void NetworkSilenceTest::goneObjects_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("device");
    QTest::newRow("connection") << PlayedNetwork::mobile << "Telephone"
                                << "bnep0";
    QTest::newRow("device") << PlayedNetwork::modem << "Mobile plan" << QString();
    QTest::newRow("another") << PlayedNetwork::telephone << "Mobile plan"
                             << "wwan0";
}

void NetworkSilenceTest::goneObjects()
{
    QFETCH(const QString, path);
    QFETCH(const QString, name);
    QFETCH(const QString, device);
    start();
    const QString before = SourceText::of(m_source->state());
    m_network->removeObject(path);
    m_network->tellChanges();
    QTRY_COMPARE(m_source->state().device, device);
    QCOMPARE(m_source->state().name, name);
    // And there again.
    m_network.reset();
    m_network = std::make_unique<PlayedNetwork>();
    QTRY_COMPARE(SourceText::of(m_source->state()), before);
}

void NetworkSilenceTest::newObjects()
{
    m_network->removeObject(PlayedNetwork::mobile);
    m_network->removeObject(PlayedNetwork::modem);
    m_network->removeObject(PlayedNetwork::bluetooth);
    start();
    QVERIFY(!m_source->state().isUp);
    m_network->set(PlayedNetwork::modem, "Interface", "wwan1");
    m_network->set(PlayedNetwork::mobile, "Type", "gsm");
    m_network->set(PlayedNetwork::mobile, "Id", "New plan");
    m_network->set(PlayedNetwork::mobile, "State", 2U);
    m_network->tellChanges();
    QTRY_COMPARE(m_source->state().name, "New plan");
    QVERIFY(m_source->state().isUp);
}

void NetworkSilenceTest::withdrawnIsUnsaid()
{
    start();
    m_network->tellAnything(PlayedNetwork::mobile, "org.freedesktop.DBus.Properties", "PropertiesChanged",
                            {"org.freedesktop.NetworkManager.Connection.Active", QVariantMap(), QStringList("Id")});
    QTRY_COMPARE(m_source->state().name, QString());
    QVERIFY(m_source->state().isUp);
}

void NetworkSilenceTest::answersWhatWasTold_data()
{
    QTest::addColumn<QVariant>("state");
    QTest::addColumn<bool>("isUp");
    QTest::newRow("up") << QVariant(2U) << true;
    QTest::newRow("on the way") << QVariant(1U) << false;
    QTest::newRow("down") << QVariant(4U) << false;
    QTest::newRow("text") << QVariant("2") << false;
    QTest::newRow("negative") << QVariant(-1) << false;
    QTest::newRow("variant in variant") << QVariant::fromValue(QDBusVariant(2U)) << false;
}

void NetworkSilenceTest::answersWhatWasTold()
{
    QFETCH(const QVariant, state);
    QFETCH(const bool, isUp);
    m_network->removeObject(PlayedNetwork::bluetooth);
    start();
    m_network->set(PlayedNetwork::mobile, "State", state);
    m_network->tellChanges();
    // It is on its way to the source, which is asked as soon as it is there.
    QSignalSpy answered(m_source.get(), &ConnectionSource::answered);
    const auto isAnswered = [&] {
        m_source->askWhetherUp();
        QCoreApplication::processEvents();
        return !answered.isEmpty() && answered.takeFirst().first().toBool() == isUp;
    };
    m_source->askWhetherUp();
    QCOMPARE(int(answered.size()), 0);
    QTRY_VERIFY(isAnswered());
    QCOMPARE(m_network->questions(PlayedNetwork::mobile), 0);
}

void NetworkSilenceTest::endsWhileItAsks()
{
    m_network->setSilent(PlayedNetwork::objects, true);
    m_source = std::make_unique<NetworkManagerSource>(ConnectionKind::Mobile);
    QTRY_VERIFY(m_network->questions(PlayedNetwork::objects) > 0);
    m_source->askWhetherUp();
    m_source.reset();
    m_network.reset();
    // What was on its way to the source comes now.
    start();
    QVERIFY(!m_source->isAvailable());
}

REGISTER_TEST(NetworkSilenceTest)
#include "NetworkSilenceTest.moc"
