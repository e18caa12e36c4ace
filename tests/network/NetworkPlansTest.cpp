// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <QDBusObjectPath>
#include <QEventLoop>
#include <QSignalSpy>
#include <QTimer>

#include "ConnectionMonitor.h"
#include "MobilePlans.h"
#include "NetworkManagerSource.h"
#include "PlayedNetwork.h"
#include "Test.h"

using InItsPlace = ConnectionState::InItsPlace;
using Plans = ConnectionChoice::Plans;
Q_DECLARE_METATYPE(ConnectionState::InItsPlace)
Q_DECLARE_METATYPE(ConnectionKind)

/** Which mobile plans there are, which of them count, when they roam, and what is up in their place. */
class NetworkPlansTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useOwnSystemBus(); }
    void init();
    void cleanup();

    void onlyChosenPlansCount_data();
    void onlyChosenPlansCount();
    void inItsPlace_data();
    void inItsPlace();
    void roaming_data();
    void roaming();
    void roamingBegins();
    void waitsUntilRoamingIsKnown();
    void modemIsAskedOnce();
    void silentModemManagerIsAskedAgain();
    void downBeforeRoamingIsKnown();
    void upBeforeIsNoNewsWhileRoamingIsUnknown();
    void findsPlans();
    void findsNoneWithoutService();
    void findsNoneWhereServiceIsSilent_data();
    void findsNoneWhereServiceIsSilent();
    void skipsAPlanThatIsGone();
    void findsManyOneAfterTheOther();

private:
    void start(const ConnectionChoice& choice);
    QString heard() const;

    std::unique_ptr<PlayedNetwork> m_network;
    std::unique_ptr<PlayedModems> m_modems;
    std::unique_ptr<NetworkManagerSource> m_source;
};

namespace
{
ConnectionChoice withPlans(const Plans& plans)
{
    ConnectionChoice choice;
    choice.plans = plans;
    return choice;
}

ConnectionChoice notWhileRoaming()
{
    ConnectionChoice choice;
    choice.isNotWhileRoaming = true;
    return choice;
}

/** The answer of plans to one question; "none" where nobody answers. */
QString found(MobilePlans& plans)
{
    QString text = "nothing said";
    QEventLoop loop;
    QTimer::singleShot(30000, &loop, &QEventLoop::quit);
    QObject::connect(&plans, &MobilePlans::found, &loop, [&text, &loop](const Plans& all, bool isAnswered) {
        text = isAnswered ? "there are" : "none";
        for (auto plan = all.begin(); plan != all.end(); ++plan)
            text += ' ' + plan.key() + '=' + plan.value();
        loop.quit();
    });
    plans.ask();
    loop.exec();
    return text;
}
} // namespace

void NetworkPlansTest::init()
{
    m_network = std::make_unique<PlayedNetwork>();
    m_modems = std::make_unique<PlayedModems>();
}

void NetworkPlansTest::cleanup()
{
    m_source.reset();
    m_modems.reset();
    m_network.reset();
}

void NetworkPlansTest::start(const ConnectionChoice& choice)
{
    m_source = std::make_unique<NetworkManagerSource>(choice);
    QTRY_VERIFY(m_source->isAvailable());
}

QString NetworkPlansTest::heard() const
{
    const ConnectionState state = m_source->state();
    return (state.isUp ? "up: " : state.isComingUp ? "coming up: " : "down: ") + state.name;
}

void NetworkPlansTest::onlyChosenPlansCount_data()
{
    QTest::addColumn<Plans>("plans");
    QTest::addColumn<QString>("expected");
    QTest::newRow("any") << Plans() << "up: Mobile plan";
    QTest::newRow("both") << Plans{{"one", ""}, {"two", ""}} << "up: Mobile plan";
    QTest::newRow("the first") << Plans{{"one", ""}} << "up: Mobile plan";
    QTest::newRow("the telephone") << Plans{{"two", ""}} << "up: Telephone";
    QTest::newRow("another of the same name") << Plans{{"three", "Mobile plan"}} << "down: ";
}

void NetworkPlansTest::onlyChosenPlansCount()
{
    QFETCH(const Plans, plans);
    start(withPlans(plans));
    QTEST(heard(), "expected");
}

void NetworkPlansTest::inItsPlace_data()
{
    QTest::addColumn<ConnectionKind>("kind");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<InItsPlace>("expected");
    const auto row = [](const char* name, const char* property, const QVariant& value, InItsPlace expected) {
        QTest::newRow(name) << ConnectionKind::Mobile << QString(property) << value << expected;
    };
    row("cable", "Type", "802-3-ethernet", InItsPlace::Ethernet);
    row("Wi-Fi", "Type", "802-11-wireless", InItsPlace::Wireless);
    row("something else", "Type", "bridge", InItsPlace::Other);
    row("a plan that does not count", "Type", "gsm", InItsPlace::Other);
    row("no default route", "Default", false, InItsPlace::Nothing);
    row("not up yet", "State", 1U, InItsPlace::Nothing);
    row("no longer up", "State", 4U, InItsPlace::Nothing);
    QTest::newRow("with any it would count itself")
        << ConnectionKind::Any << QString("State") << QVariant(4U) << InItsPlace::Nothing;
}

void NetworkPlansTest::inItsPlace()
{
    QFETCH(const ConnectionKind, kind);
    QFETCH(const QString, property);
    QFETCH(const QVariant, value);
    m_network->set(PlayedNetwork::bluetooth, "State", 4U);
    m_network->set(PlayedNetwork::mobile, "Type", "802-3-ethernet");
    m_network->set(PlayedNetwork::mobile, property, value);
    ConnectionChoice choice(kind);
    choice.plans = {{"another", "plan"}};
    start(choice);
    QCOMPARE(heard(), "down: ");
    QTEST(m_source->state().inItsPlace, "expected");
    // Who is not in the Internet is not online.
    m_network->set(PlayedNetwork::manager, "Connectivity", 3U);
    m_network->tellChanges();
    QTRY_COMPARE(m_source->state().inItsPlace, InItsPlace::Nothing);
}

void NetworkPlansTest::roaming_data()
{
    QTest::addColumn<QVariant>("registration");
    QTest::addColumn<bool>("isForbidden");
    QTest::addColumn<QString>("expected");
    const QString up = "up: Mobile plan", down = "down: Mobile plan";
    for (const uint registration : {0U, 1U, 2U, 3U, 4U, 6U, 8U, 9U, 11U, 4000000000U})
        QTest::addRow("not roaming, %u", registration) << QVariant(registration) << true << up;
    for (const uint registration : {5U, 7U, 10U}) {
        QTest::addRow("roaming, %u", registration) << QVariant(registration) << true << down;
        QTest::addRow("roaming is no matter, %u", registration) << QVariant(registration) << false << up;
    }
    QTest::newRow("not said") << QVariant() << true << up;
    QTest::newRow("nonsense") << QVariant("5") << true << up;
}

void NetworkPlansTest::roaming()
{
    QFETCH(const QVariant, registration);
    QFETCH(const bool, isForbidden);
    QFETCH(const QString, expected);
    if (registration.isValid())
        m_modems->set(PlayedModems::modem, "RegistrationState", registration);
    else
        m_modems->remove(PlayedModems::modem, "RegistrationState");
    start(isForbidden ? notWhileRoaming() : ConnectionChoice());
    QTRY_COMPARE(m_source->state().operatorName, "Northern Mobile");
    QCOMPARE(heard(), expected);
    const bool isDown = expected.startsWith("down");
    QCOMPARE(m_source->state().inItsPlace, isDown ? InItsPlace::Roaming : InItsPlace::Nothing);
    QCOMPARE(m_source->state().id, QString(isDown ? "" : "one"));
}

void NetworkPlansTest::roamingBegins()
{
    start(notWhileRoaming());
    QCOMPARE(heard(), "up: Mobile plan");
    QSignalSpy changed(m_source.get(), &ConnectionSource::changed);
    m_modems->tellRegistration(5U);
    QVERIFY(changed.wait());
    QCOMPARE(heard(), "down: Mobile plan");
    // What changed is not said of the rest.
    QCOMPARE(m_source->state().operatorName, "Northern Mobile");
    m_modems->tellOperator("Southern Mobile");
    QTRY_COMPARE(m_source->state().operatorName, "Southern Mobile");
    QCOMPARE(heard(), "down: Mobile plan");
    m_modems->tellRegistration(1U);
    QTRY_COMPARE(heard(), "up: Mobile plan");
    // A telephone has no modem that could say it.
    m_modems->tellRegistration(5U);
    m_network->set(PlayedNetwork::mobile, "State", 4U);
    m_network->tellChanges();
    QTRY_COMPARE(heard(), "up: Telephone");
}

void NetworkPlansTest::waitsUntilRoamingIsKnown()
{
    m_network->set(PlayedNetwork::mobile, "State", 1U);
    m_network->set(PlayedNetwork::bluetooth, "State", 4U);
    m_modems->setSilent(PlayedModems::modem, true);
    start(notWhileRoaming());
    QCOMPARE(heard(), "coming up: Mobile plan");
    m_network->set(PlayedNetwork::mobile, "State", 2U);
    m_network->tellChanges();
    QTRY_VERIFY(m_modems->questions(PlayedModems::modem) > 0);
    QCOMPARE(heard(), "coming up: Mobile plan");
    m_modems->setSilent(PlayedModems::modem, false);
    QTRY_COMPARE(heard(), "up: Mobile plan");
}

void NetworkPlansTest::modemIsAskedOnce()
{
    m_network->set(PlayedNetwork::mobile, "State", 4U);
    m_network->set(PlayedNetwork::bluetooth, "State", 4U);
    start(notWhileRoaming());
    QTRY_COMPARE(m_modems->questions(PlayedModems::modem), 1);
    QCOMPARE(m_source->state().operatorName, QString());
    for (int i = 0; i < 2; ++i) {
        m_network->set(PlayedNetwork::mobile, "State", 2U);
        m_network->tellChanges();
        QTRY_COMPARE(heard(), "up: Mobile plan");
        QTRY_COMPARE(m_source->state().operatorName, "Northern Mobile");
        m_network->set(PlayedNetwork::mobile, "State", 4U);
        m_network->tellChanges();
        QTRY_COMPARE(heard(), "down: ");
    }
    QCOMPARE(m_modems->questions(PlayedModems::modem), 1);
}

void NetworkPlansTest::silentModemManagerIsAskedAgain()
{
    m_modems->setSilent(PlayedModems::modem, true);
    m_source = std::make_unique<NetworkManagerSource>(notWhileRoaming());
    QTRY_VERIFY_WITH_TIMEOUT(m_modems->questions(PlayedModems::modem) > 1, 30000);
    QVERIFY(!m_source->isKnown());
    m_modems->setSilent(PlayedModems::modem, false);
    QTRY_COMPARE(heard(), "up: Mobile plan");
}

void NetworkPlansTest::downBeforeRoamingIsKnown()
{
    m_modems->setSilent(PlayedModems::modem, true);
    m_network->removeObject(PlayedNetwork::bluetooth);
    m_source = std::make_unique<NetworkManagerSource>(notWhileRoaming());
    QTRY_VERIFY(m_modems->questions(PlayedModems::modem) > 0);
    QVERIFY(!m_source->isKnown());
    m_network->set(PlayedNetwork::mobile, "State", 4U);
    m_network->tellChanges();
    QTRY_VERIFY(m_source->isAvailable());
    QCOMPARE(heard(), "down: ");
}

void NetworkPlansTest::upBeforeIsNoNewsWhileRoamingIsUnknown()
{
    m_modems->setSilent(PlayedModems::modem, true);
    ConnectionMonitor monitor;
    QSignalSpy announced(&monitor, &ConnectionMonitor::announced);
    monitor.start(std::make_unique<NetworkManagerSource>(notWhileRoaming()));
    QTRY_VERIFY(m_modems->questions(PlayedModems::modem) > 0);
    QVERIFY(!monitor.state().isUp);
    m_modems->setSilent(PlayedModems::modem, false);
    QTRY_VERIFY(monitor.state().isUp && monitor.wasUpBefore());
    QCOMPARE(announced.size(), 0);
}

void NetworkPlansTest::findsPlans()
{
    const QStringList types = {"gsm", "802-3-ethernet", "cdma", "802-11-wireless", "vpn", "bluetooth"};
    QList<QDBusObjectPath> paths = {QDBusObjectPath(PlayedNetwork::stored)};
    for (const QString& type : types) {
        const QString path = PlayedNetwork::settings + "/new_" + QString::number(paths.size());
        m_network->set(path, "connection.type", type);
        m_network->set(path, "connection.uuid", QString::number(paths.size()));
        m_network->set(path, "connection.id", type + " plan");
        paths.append(QDBusObjectPath(path));
    }
    m_network->set(paths.last().path(), "type", "panu");
    // One that nothing tells from others cannot be chosen.
    const QString nameless = PlayedNetwork::settings + "/nameless";
    m_network->set(nameless, "connection.type", "gsm");
    paths.append(QDBusObjectPath(nameless));
    m_network->set(PlayedNetwork::settings, "Connections", QVariant::fromValue(paths));
    MobilePlans plans;
    QCOMPARE(found(plans), "there are 1=gsm plan 3=cdma plan two=Telephone");
    // Again, and not what there was before.
    m_network->set(PlayedNetwork::settings, "Connections", QVariant::fromValue(paths.mid(0, 1)));
    QCOMPARE(found(plans), "there are two=Telephone");
}

void NetworkPlansTest::findsNoneWithoutService()
{
    m_network.reset();
    MobilePlans plans;
    QCOMPARE(found(plans), "none");
}

void NetworkPlansTest::findsNoneWhereServiceIsSilent_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("from the start") << PlayedNetwork::settings;
    QTest::newRow("at a plan") << PlayedNetwork::stored;
}

void NetworkPlansTest::findsNoneWhereServiceIsSilent()
{
    QFETCH(const QString, path);
    m_network->setSilent(path, true);
    MobilePlans plans;
    QCOMPARE(found(plans), "none");
}

void NetworkPlansTest::skipsAPlanThatIsGone()
{
    const QList<QDBusObjectPath> paths = {QDBusObjectPath(PlayedNetwork::settings + "/gone"),
                                          QDBusObjectPath(PlayedNetwork::stored)};
    m_network->set(PlayedNetwork::settings, "Connections", QVariant::fromValue(paths));
    MobilePlans plans;
    QCOMPARE(found(plans), "there are two=Telephone");
}

void NetworkPlansTest::findsManyOneAfterTheOther()
{
    QList<QDBusObjectPath> paths;
    for (int i = 0; i < 5000; ++i)
        paths.append(QDBusObjectPath(QString("/plan/%1").arg(i)));
    paths.insert(999, QDBusObjectPath(PlayedNetwork::stored));
    m_network->set(PlayedNetwork::settings, "Connections", QVariant::fromValue(paths));
    MobilePlans plans;
    QCOMPARE(found(plans), "there are two=Telephone");
    QCOMPARE(m_network->questions("/plan/998"), 1);
    QCOMPARE(m_network->questions("/plan/999"), 0);
}

REGISTER_TEST(NetworkPlansTest)
#include "NetworkPlansTest.moc"
