// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <QDBusObjectPath>

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
    void reach_data();
    void reach();
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
    // What is a local network by Bluetooth is no mobile broadband, and what is nothing is down.
    network.removeObject(PlayedNetwork::mobile);
    network.set(PlayedNetwork::stored, "type", "panu");
    network.set(PlayedNetwork::bluetooth, "Default6", false);
    network.tellChange();
    QTRY_COMPARE(textOf(source.state()), "down: ");
    network.set(PlayedNetwork::stored, "type", "dun");
    network.set(PlayedNetwork::bluetooth, "Default6", true);
    network.set(PlayedNetwork::bluetooth, "State", 1U);
    network.tellChange();
    QTRY_COMPARE(textOf(source.state()), "coming up: Telephone");
}

void NetworkChoiceTest::reach_data()
{
    QTest::addColumn<QVariant>("connectivity");
    QTest::addColumn<int>("reach");
    QTest::newRow("unknown") << QVariant(0U) << int(Reach::Unknown);
    QTest::newRow("none") << QVariant(1U) << int(Reach::Limited);
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
    network.tellChange();
    QTRY_COMPARE(source.state().id, "one");
    network.set(PlayedNetwork::mobile, "State", 1U);
    network.tellChange();
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
    network.tellChange();
    QTRY_COMPARE(source.state().name, "Telephone");
    QCOMPARE(source.state().operatorName, QString());
}

REGISTER_TEST(NetworkChoiceTest)
#include "NetworkChoiceTest.moc"
