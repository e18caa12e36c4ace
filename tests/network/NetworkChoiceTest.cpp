// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <QDBusObjectPath>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QSignalSpy>

#include <limits>

#include "NetworkManagerSource.h"
#include "PlayedNetwork.h"
#include "Test.h"

using Reach = ConnectionState::Reach;

/** Which of NetworkManager's connections is the one, and what is said of it. */
class NetworkChoiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useOwnSystemBus(); }

    void chooses_data();
    void chooses();
    void telephone_data();
    void telephone();
    void anyBesideTheDefault();
    void anyOnTheWay_data();
    void anyOnTheWay();
    void switchIsNoGap();
    void otherDeviceHasTime_data();
    void otherDeviceHasTime();
    void downIsDown();
    void reach_data();
    void reach();
    void reachOfItsDevice_data();
    void reachOfItsDevice();
    void checksForTenSeconds();
    void device_data();
    void device();
    void identity();
    void operatorIsTheModems();
};

void NetworkChoiceTest::chooses_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("expected");
    const QString mobile = PlayedNetwork::mobile, telephone = PlayedNetwork::bluetooth;
    const auto path = [](const QString& text) {
        return QVariant::fromValue(QDBusObjectPath(text));
    };
    const auto row = [](const char* name, ConnectionKind followed, const QString& owner, const char* property,
                        const QVariant& value, const char* expected) {
        QTest::newRow(name) << int(followed) << owner << QString(property) << value << QString(expected);
    };
    const ConnectionKind mobileOnly = ConnectionKind::Mobile, any = ConnectionKind::Any;
    row("that the traffic takes", mobileOnly, PlayedNetwork::manager, "PrimaryConnection", path(telephone),
        "up: Telephone");
    row("the first, where the traffic takes neither", mobileOnly, PlayedNetwork::manager, "PrimaryConnection",
        path("/"), "up: Mobile plan");
    row("cdma", mobileOnly, mobile, "Type", "cdma", "up: Mobile plan");
    row("cable", mobileOnly, mobile, "Type", "802-3-ethernet", "up: Telephone");
    row("cable with a default route", any, mobile, "Type", "802-3-ethernet", "up: Mobile plan");
    row("without a default route", any, mobile, "Default", false, "up: Telephone");
    row("up before coming up", mobileOnly, mobile, "State", 1U, "up: Telephone");
    row("going down", mobileOnly, mobile, "State", 3U, "up: Telephone");
    row("down", mobileOnly, mobile, "State", 4U, "up: Telephone");
    row("of no known state", mobileOnly, mobile, "State", 4000000000U, "up: Telephone");
    row("not the one without a route", any, telephone, "Default6", false, "up: Mobile plan");
    row("on the way without a route", any, mobile, "State", 1U, "up: Telephone");
}

static QString textOf(const ConnectionState& state)
{
    return (state.isUp ? "up: " : state.isComingUp ? "coming up: " : "down: ") + state.name;
}

void NetworkChoiceTest::chooses()
{
    QFETCH(const int, kind);
    QFETCH(const QString, path);
    QFETCH(const QString, property);
    QFETCH(const QVariant, value);
    PlayedNetwork network;
    network.set(path, property, value);
    NetworkManagerSource source{ConnectionKind(kind)};
    QTRY_VERIFY(source.isAvailable());
    QTEST(textOf(source.state()), "expected");
}

void NetworkChoiceTest::telephone_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<uint>("state");
    QTest::addColumn<QString>("expected");
    QTest::newRow("up") << "dun" << 2U << "up: Telephone";
    QTest::newRow("on the way") << "dun" << 1U << "coming up: Telephone";
    QTest::newRow("a local network is no mobile broadband") << "panu" << 2U << "down: ";
    QTest::newRow("of no known type") << "" << 2U << "down: ";
}

void NetworkChoiceTest::telephone()
{
    QFETCH(const QString, type);
    QFETCH(const uint, state);
    PlayedNetwork network;
    network.removeObject(PlayedNetwork::mobile);
    network.set(PlayedNetwork::stored, "type", type);
    network.set(PlayedNetwork::bluetooth, "State", state);
    {
        NetworkManagerSource source(ConnectionKind::Mobile);
        QTRY_VERIFY(source.isAvailable());
        QTEST(textOf(source.state()), "expected");
    }
    // And when it comes later.
    network.removeObject(PlayedNetwork::bluetooth);
    NetworkManagerSource source(ConnectionKind::Mobile);
    QTRY_VERIFY(source.isAvailable());
    QCOMPARE(textOf(source.state()), "down: ");
    network.addTelephone(state);
    network.tellChanges();
    QFETCH(const QString, expected);
    QTRY_COMPARE(network.questions(PlayedNetwork::stored), 2);
    QTRY_COMPARE(textOf(source.state()), expected);
}

/** Of all that was shown. */
static QStringList notUp(const QStringList& shown)
{
    return shown.filter(QRegularExpression("^(?!up)"));
}

/** The service takes a second connection for the default before that is up. */
void NetworkChoiceTest::anyBesideTheDefault()
{
    PlayedNetwork network;
    network.set(PlayedNetwork::bluetooth, "Default6", false);
    network.set(PlayedNetwork::bluetooth, "State", 1U);
    NetworkManagerSource source(ConnectionKind::Any);
    QTRY_COMPARE(textOf(source.state()), "up: Mobile plan");
    QStringList shown;
    connect(&source, &ConnectionSource::changed, this, [&] { shown.append(textOf(source.state())); });
    network.set(PlayedNetwork::mobile, "Default", false);
    network.set(PlayedNetwork::bluetooth, "Default6", true);
    network.tellChanges();
    network.set(PlayedNetwork::mobile, "Id", "Renamed");
    network.tellChanges();
    QTRY_COMPARE(textOf(source.state()), "up: Renamed");
    network.set(PlayedNetwork::bluetooth, "State", 2U);
    network.tellChanges();
    QTRY_COMPARE(textOf(source.state()), "up: Telephone");
    QCOMPARE(notUp(shown), QStringList());
    // Nor does it go on for ever.
    network.set(PlayedNetwork::bluetooth, "State", 1U);
    network.set(PlayedNetwork::mobile, "State", 3U);
    network.tellChanges();
    QTRY_COMPARE(textOf(source.state()), "coming up: Telephone");
    network.set(PlayedNetwork::mobile, "State", 2U);
    network.tellChanges();
    network.set(PlayedNetwork::bluetooth, "Id", "Renamed");
    network.tellChanges();
    QTRY_COMPARE(textOf(source.state()), "coming up: Renamed");
}

void NetworkChoiceTest::anyOnTheWay_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("expected");
    for (const char* const type : {"802-3-ethernet", "802-11-wireless", "gsm", "cdma", "bluetooth", "pppoe", "adsl"})
        QTest::newRow(type) << type << "coming up: Mobile plan";
    for (const char* const type : {"bridge", "tun", "loopback", "dummy", "vpn", ""})
        QTest::addRow("nowhere: %s", type) << type << "down: ";
}

void NetworkChoiceTest::anyOnTheWay()
{
    QFETCH(const QString, type);
    QFETCH(const QString, expected);
    PlayedNetwork network;
    network.removeObject(PlayedNetwork::bluetooth);
    network.set(PlayedNetwork::mobile, "Type", type);
    network.set(PlayedNetwork::mobile, "State", 1U);
    network.set(PlayedNetwork::mobile, "Default", false);
    NetworkManagerSource source(ConnectionKind::Any);
    QTRY_VERIFY(source.isAvailable());
    QCOMPARE(textOf(source.state()), "down: ");
    QSignalSpy changed(&source, &ConnectionSource::changed);
    network.set(PlayedNetwork::manager, "ActivatingConnection",
                QVariant::fromValue(QDBusObjectPath(PlayedNetwork::mobile)));
    network.tellChanges();
    QTRY_VERIFY(!changed.isEmpty());
    QTRY_COMPARE(textOf(source.state()), expected);
}

void NetworkChoiceTest::switchIsNoGap()
{
    PlayedNetwork network;
    network.set(PlayedNetwork::bluetooth, "State", 1U);
    NetworkManagerSource source(ConnectionKind::Mobile);
    QTRY_VERIFY(source.isAvailable());
    QStringList shown;
    connect(&source, &ConnectionSource::changed, this, [&] { shown.append(textOf(source.state())); });
    network.set(PlayedNetwork::mobile, "State", 3U);
    network.tellChanges();
    network.set(PlayedNetwork::bluetooth, "State", 2U);
    network.tellChanges();
    QTRY_COMPARE(textOf(source.state()), "up: Telephone");
    QCOMPARE(notUp(shown), QStringList());
}

void NetworkChoiceTest::otherDeviceHasTime_data()
{
    QTest::addColumn<bool>("isAny");
    QTest::addColumn<QString>("type");
    QTest::addColumn<uint>("state");
    QTest::addColumn<int>("atLeast");
    QTest::addColumn<int>("lessThan");
    const int ever = std::numeric_limits<int>::max();
    const int settling = NetworkManagerSource::settlingTime, takeOver = NetworkManagerSource::takeOverTime;
    QTest::newRow("up") << true << "802-11-wireless" << 2U << takeOver << ever;
    QTest::newRow("does not count") << false << "802-11-wireless" << 2U << settling << takeOver;
    QTest::newRow("not up") << true << "802-11-wireless" << 4U << settling << takeOver;
    QTest::newRow("leads nowhere") << true << "bridge" << 2U << settling << takeOver;
}

void NetworkChoiceTest::otherDeviceHasTime()
{
    QFETCH(const bool, isAny);
    QFETCH(const QString, type);
    QFETCH(const uint, state);
    QFETCH(const int, atLeast);
    QFETCH(const int, lessThan);
    PlayedNetwork network;
    network.set(PlayedNetwork::bluetooth, "Type", type);
    network.set(PlayedNetwork::bluetooth, "State", state);
    network.set(PlayedNetwork::bluetooth, "Default6", false);
    NetworkManagerSource source(isAny ? ConnectionKind::Any : ConnectionKind::Mobile);
    QTRY_COMPARE(textOf(source.state()), "up: Mobile plan");
    QElapsedTimer clock;
    clock.start();
    network.set(PlayedNetwork::mobile, "State", 4U);
    network.tellChanges();
    QTRY_COMPARE(textOf(source.state()), "down: ");
    // Qt's timers may be a twentieth early.
    QVERIFY2(clock.elapsed() >= atLeast * 19 / 20 && clock.elapsed() < lessThan,
             qPrintable(QString::number(clock.elapsed())));
}

void NetworkChoiceTest::downIsDown()
{
    PlayedNetwork network;
    network.removeObject(PlayedNetwork::bluetooth);
    NetworkManagerSource source(ConnectionKind::Mobile);
    QTRY_VERIFY(source.isAvailable());
    QStringList shown;
    connect(&source, &ConnectionSource::changed, this, [&] { shown.append(textOf(source.state())); });
    network.set(PlayedNetwork::mobile, "State", 3U);
    network.tellChanges();
    // As on the way down it says more than that.
    for (int i = 0; i < 5; ++i) {
        network.set(PlayedNetwork::mobile, "Id", QString::number(i));
        network.tellChanges();
    }
    QTRY_COMPARE(textOf(source.state()), "down: ");
    // It was up until then, whatever it was called.
    QCOMPARE(shown.last(), "down: ");
    QVERIFY2(shown.filter("4").isEmpty(), qPrintable(shown.join(", ")));
}

void NetworkChoiceTest::reach_data()
{
    QTest::addColumn<QVariant>("connectivity");
    QTest::addColumn<int>("reach");
    QTest::newRow("unknown") << QVariant(0U) << int(Reach::Unknown);
    QTest::newRow("none") << QVariant(1U) << int(Reach::Checking);
    QTest::newRow("portal") << QVariant(2U) << int(Reach::Portal);
    QTest::newRow("limited") << QVariant(3U) << int(Reach::Limited);
    QTest::newRow("full") << QVariant(4U) << int(Reach::Full);
    QTest::newRow("of no known state") << QVariant(5U) << int(Reach::Unknown);
}

void NetworkChoiceTest::reach()
{
    QFETCH(const QVariant, connectivity);
    PlayedNetwork network;
    network.set(PlayedNetwork::manager, "Connectivity", connectivity);
    NetworkManagerSource source(ConnectionKind::Mobile);
    QTRY_VERIFY(source.isAvailable());
    QTEST(int(source.state().reach), "reach");
}

void NetworkChoiceTest::reachOfItsDevice_data()
{
    QTest::addColumn<uint>("ip4");
    QTest::addColumn<uint>("ip6");
    QTest::addColumn<int>("reach");
    QTest::newRow("not told") << 0U << 0U << int(Reach::Full);
    QTest::newRow("by one") << 4U << 1U << int(Reach::Full);
    QTest::newRow("by the other") << 1U << 4U << int(Reach::Full);
    QTest::newRow("limited") << 3U << 1U << int(Reach::Limited);
    QTest::newRow("portal") << 1U << 2U << int(Reach::Portal);
    QTest::newRow("portal and limited") << 2U << 3U << int(Reach::Portal);
    QTest::newRow("not yet known") << 0U << 1U << int(Reach::Checking);
}

void NetworkChoiceTest::reachOfItsDevice()
{
    QFETCH(const uint, ip4);
    QFETCH(const uint, ip6);
    PlayedNetwork network;
    network.set(PlayedNetwork::modem, "Ip4Connectivity", ip4);
    network.set(PlayedNetwork::modem, "Ip6Connectivity", ip6);
    NetworkManagerSource source(ConnectionKind::Mobile);
    QTRY_VERIFY(source.isAvailable());
    QTEST(int(source.state().reach), "reach");
}

void NetworkChoiceTest::checksForTenSeconds()
{
    PlayedNetwork network;
    network.set(PlayedNetwork::manager, "Connectivity", 1U);
    NetworkManagerSource source(ConnectionKind::Mobile);
    QElapsedTimer clock;
    QTRY_COMPARE(source.state().reach, Reach::Checking);
    clock.start();
    bool isTold = false;
    connect(&source, &ConnectionSource::changed, this, [&] { isTold = source.state().reach == Reach::Limited; });
    QTRY_VERIFY_WITH_TIMEOUT(isTold, 60000);
    QVERIFY2(clock.elapsed() > NetworkManagerSource::checkingTime / 2, qPrintable(QString::number(clock.elapsed())));
    // It is the same connection still, so this is no first look.
    network.set(PlayedNetwork::manager, "Connectivity", 4U);
    network.tellChanges();
    QTRY_COMPARE(source.state().reach, Reach::Full);
    network.set(PlayedNetwork::manager, "Connectivity", 1U);
    network.tellChanges();
    QTRY_COMPARE(source.state().reach, Reach::Limited);
}

void NetworkChoiceTest::device_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("device");
    QTest::newRow("both names") << QString() << "wwan0";
    QTest::newRow("no name on the network") << "IpInterface"
                                            << "cdc-wdm0";
    QTest::newRow("no name of its own") << "Interface"
                                        << "wwan0";
}

void NetworkChoiceTest::device()
{
    QFETCH(const QString, property);
    PlayedNetwork network;
    network.remove(PlayedNetwork::modem, property);
    NetworkManagerSource source(ConnectionKind::Mobile);
    QTRY_VERIFY(source.isAvailable());
    QTEST(source.state().device, "device");
}

void NetworkChoiceTest::identity()
{
    PlayedNetwork network;
    network.remove(PlayedNetwork::mobile, "Uuid");
    NetworkManagerSource source(ConnectionKind::Mobile);
    QTRY_VERIFY(source.isAvailable());
    QCOMPARE(source.state().id, PlayedNetwork::mobile);
    network.set(PlayedNetwork::mobile, "Uuid", "one");
    network.set(PlayedNetwork::bluetooth, "State", 4U);
    network.tellChanges();
    QTRY_COMPARE(source.state().id, "one");
    network.set(PlayedNetwork::mobile, "State", 1U);
    network.tellChanges();
    QTRY_VERIFY(source.state().isComingUp);
    QCOMPARE(source.state().id, QString());
}

void NetworkChoiceTest::operatorIsTheModems()
{
    PlayedNetwork network;
    PlayedModems modems;
    NetworkManagerSource source(ConnectionKind::Mobile);
    QTRY_COMPARE(source.state().operatorName, "Northern Mobile");
    modems.tellOperator("Southern Mobile");
    QTRY_COMPARE(source.state().operatorName, "Southern Mobile");
    // A telephone has no modem.
    network.set(PlayedNetwork::mobile, "State", 4U);
    network.tellChanges();
    QTRY_COMPARE(source.state().name, "Telephone");
    QCOMPARE(source.state().operatorName, QString());
}

REGISTER_TEST(NetworkChoiceTest)
#include "NetworkChoiceTest.moc"
