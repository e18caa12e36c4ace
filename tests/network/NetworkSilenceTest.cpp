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

/** A service that comes and goes, gives no answer, or errors: the last that was heard counts, and nothing waits. */
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
    void silenceKeepsWhatWasHeard_data();
    void silenceKeepsWhatWasHeard();
    void errorOfTheServiceKeepsWhatWasHeard();
    void goneObjects_data();
    void goneObjects();
    void asksAnew_data();
    void asksAnew();
    void servicesEndEndsTheQuestion();
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
    QCOMPARE(SourceText::of(m_source->state()), "up 1, coming 0, reach 3, id \"one\", name \"Mobile plan\", "
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
    m_network->setSilent(PlayedNetwork::manager, true);
    start();
    QVERIFY(!m_source->isAvailable());
    m_network->setSilent(PlayedNetwork::manager, false);
    // It says nothing by itself.
    QTRY_VERIFY_WITH_TIMEOUT(m_source->isAvailable(), 30000);
    QVERIFY(m_source->state().isUp);
}

void NetworkSilenceTest::silenceKeepsWhatWasHeard_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("manager") << PlayedNetwork::manager;
    QTest::newRow("connection") << PlayedNetwork::mobile;
    QTest::newRow("device") << PlayedNetwork::modem;
    QTest::newRow("telephone") << PlayedNetwork::bluetooth;
    QTest::newRow("stored connection") << PlayedNetwork::stored;
}

void NetworkSilenceTest::silenceKeepsWhatWasHeard()
{
    QFETCH(const QString, path);
    // Both connections are needed, or nothing of the telephone's would be.
    m_network->set(PlayedNetwork::manager, "PrimaryConnection",
                   QVariant::fromValue(QDBusObjectPath(PlayedNetwork::bluetooth)));
    if (path == PlayedNetwork::mobile || path == PlayedNetwork::modem)
        m_network->remove(PlayedNetwork::manager, "PrimaryConnection");
    start();
    const QString before = SourceText::of(m_source->state());
    const int asked = m_network->questions(path);
    const QSignalSpy changed(m_source.get(), &ConnectionSource::changed);
    m_network->setSilent(path, true);
    m_network->tellChange();
    QTRY_VERIFY(m_network->questions(path) > asked);
    QTRY_VERIFY_WITH_TIMEOUT(!changed.isEmpty(), 30000);
    QVERIFY(m_source->isAvailable());
    QCOMPARE(SourceText::of(m_source->state()), before);

    m_network->set(PlayedNetwork::manager, "Connectivity", 2U);
    m_network->setSilent(path, false);
    QTRY_COMPARE_WITH_TIMEOUT(m_source->state().reach, ConnectionState::Reach::Portal, 30000);
}

void NetworkSilenceTest::errorOfTheServiceKeepsWhatWasHeard()
{
    start();
    m_network->setError(PlayedNetwork::manager, "org.freedesktop.DBus.Error.Failed");
    QSignalSpy changed(m_source.get(), &ConnectionSource::changed);
    m_network->tellChange();
    QTRY_VERIFY_WITH_TIMEOUT(!changed.isEmpty(), 30000);
    QVERIFY(m_source->isAvailable());
    QVERIFY(m_source->state().isUp);
    QCOMPARE(m_source->state().device, "wwan0");
}

void NetworkSilenceTest::goneObjects_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("device");
    for (const char* const error :
         {"org.freedesktop.DBus.Error.UnknownObject", "org.freedesktop.DBus.Error.UnknownMethod",
          "org.freedesktop.DBus.Error.AccessDenied", "org.freedesktop.NetworkManager.Something", "odd.Error"}) {
        QTest::addRow("connection, %s", error) << PlayedNetwork::mobile << error << "Telephone"
                                               << "bnep0";
        QTest::addRow("device, %s", error) << PlayedNetwork::modem << error << "Mobile plan" << QString();
    }
}

void NetworkSilenceTest::goneObjects()
{
    QFETCH(const QString, path);
    QFETCH(const QString, error);
    QFETCH(const QString, name);
    QFETCH(const QString, device);
    start();
    m_network->setError(path, error);
    m_network->tellChange();
    QTRY_COMPARE_WITH_TIMEOUT(m_source->state().device, device, 30000);
    QCOMPARE(m_source->state().name, name);
}

void NetworkSilenceTest::asksAnew_data()
{
    QTest::addColumn<QVariant>("state");
    QTest::addColumn<bool>("isUp");
    QTest::newRow("up") << QVariant(2U) << true;
    QTest::newRow("on the way") << QVariant(1U) << false;
    QTest::newRow("down") << QVariant(4U) << false;
    QTest::newRow("text") << QVariant("2") << false;
    QTest::newRow("negative") << QVariant(-1) << false;
    QTest::newRow("variant in variant") << QVariant::fromValue(QDBusVariant(2U)) << false;
    QTest::newRow("no answer") << QVariant() << false;
}

void NetworkSilenceTest::asksAnew()
{
    QFETCH(const QVariant, state);
    QFETCH(const bool, isUp);
    start();
    m_network->set(PlayedNetwork::mobile, "State", state);
    m_network->setSilent(PlayedNetwork::mobile, !state.isValid());
    QSignalSpy answered(m_source.get(), &ConnectionSource::answered);
    m_source->askWhetherUp();
    QCOMPARE(int(answered.size()), 0);
    QTRY_COMPARE_WITH_TIMEOUT(int(answered.size()), 1, 30000);
    QCOMPARE(answered.first().first().toBool(), isUp);
}

void NetworkSilenceTest::servicesEndEndsTheQuestion()
{
    start();
    m_network->setSilent(PlayedNetwork::mobile, true);
    QSignalSpy answered(m_source.get(), &ConnectionSource::answered);
    m_source->askWhetherUp();
    m_network.reset();
    QTRY_COMPARE_WITH_TIMEOUT(int(answered.size()), 1, 30000);
    QCOMPARE(answered.first().first().toBool(), false);
}

void NetworkSilenceTest::endsWhileItAsks()
{
    start();
    m_network->setSilent(PlayedNetwork::mobile, true);
    const int asked = m_network->questions(PlayedNetwork::mobile);
    m_network->tellChange();
    QTRY_VERIFY(m_network->questions(PlayedNetwork::mobile) > asked);
    m_source->askWhetherUp();
    m_source.reset();
    m_network.reset();
    // What was on its way to the source comes now.
    start();
    QVERIFY(!m_source->isAvailable());
}

REGISTER_TEST(NetworkSilenceTest)
#include "NetworkSilenceTest.moc"
