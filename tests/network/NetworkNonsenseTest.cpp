// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QPoint>
#include <QSignalSpy>

#include "NetworkManagerSource.h"
#include "PlayedNetwork.h"
#include "SourceText.h"
#include "Test.h"

/** A service that says something else than it should: what is no good was not said, and nothing else suffers. */
class NetworkNonsenseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { useOwnSystemBus(); }

    void wrongType_data();
    void wrongType();
    void changeToWrongType();
    void wrongAnswer_data();
    void wrongAnswer();
    void wrongSettings_data();
    void wrongSettings();
    void wrongSignal_data();
    void wrongSignal();
    void manyConnections();
    void manyObjects();
};

namespace
{
using Paths = QList<QDBusObjectPath>;

/** Values of every kind that the bus has. */
QList<QPair<QByteArray, QVariant>> values()
{
    const QVariant number = 4000000000U;
    return {
        {"text", QString("text")},
        {"huge text", QString(100000, 'x')},
        {"number", number},
        {"negative number", -1},
        {"64-bit number", Q_UINT64_C(18446744073709551615)},
        {"byte", QVariant::fromValue<uchar>(2)},
        {"double", 2.0},
        {"flag", true},
        {"bytes", QByteArray(1000, '\2')},
        {"texts", QStringList({"one", "two"})},
        {"structure", QPoint(2, 2)},
        {"map", QVariantMap({{"State", 2U}})},
        {"path", QVariant::fromValue(QDBusObjectPath("/nowhere"))},
        {"root path", QVariant::fromValue(QDBusObjectPath("/"))},
        {"paths", QVariant::fromValue(Paths({QDBusObjectPath("/"), QDBusObjectPath("/nowhere")}))},
        {"no paths", QVariant::fromValue(Paths())},
        {"variant in variant", QVariant::fromValue(QDBusVariant(number))},
        {"path in variant", QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusObjectPath("/"))))},
        {"list of anything", QVariantList({number, "text", true})},
    };
}

struct Property {
    const char* owner;
    QString path;
    const char* name;
    QList<QByteArray> fitting; ///< values above that this property may have
};

QList<Property> properties()
{
    const QList<QByteArray> texts = {"text", "huge text"};
    const QList<QByteArray> lists = {"paths", "no paths"};
    const QList<QByteArray> paths = {"path", "root path"};
    return {
        {"manager", PlayedNetwork::manager, "ActiveConnections", lists},
        {"manager", PlayedNetwork::manager, "PrimaryConnection", paths},
        {"manager", PlayedNetwork::manager, "ActivatingConnection", paths},
        {"manager", PlayedNetwork::manager, "Connectivity", {"number"}},
        {"connection", PlayedNetwork::mobile, "Type", texts},
        {"connection", PlayedNetwork::mobile, "Id", texts},
        {"connection", PlayedNetwork::mobile, "Uuid", texts},
        {"connection", PlayedNetwork::mobile, "State", {"number"}},
        {"connection", PlayedNetwork::mobile, "Default", {"flag"}},
        {"connection", PlayedNetwork::mobile, "Devices", lists},
        {"telephone", PlayedNetwork::bluetooth, "Default6", {"flag"}},
        {"telephone", PlayedNetwork::bluetooth, "Connection", paths},
        {"telephone", PlayedNetwork::stored, "type", texts},
        {"device", PlayedNetwork::modem, "Interface", texts},
        {"device", PlayedNetwork::modem, "IpInterface", texts},
        {"device", PlayedNetwork::modem, "Udi", texts},
        {"device", PlayedNetwork::modem, "Ip4Connectivity", {"number"}},
    };
}

/** What the source says of both kinds, with the mobile connection, and with only the one by telephone. */
QStringList heard(PlayedNetwork& network)
{
    QStringList all;
    for (const bool isMobileUp : {true, false}) {
        if (!isMobileUp)
            network.removeObject(PlayedNetwork::mobile);
        for (const ConnectionKind kind : {ConnectionKind::Mobile, ConnectionKind::Any}) {
            NetworkManagerSource source(kind);
            QSignalSpy known(&source, &ConnectionSource::availabilityChanged);
            if (!known.wait(20000) || !source.isAvailable())
                return {"nothing was heard"};
            all.append(SourceText::of(source.state()));
        }
    }
    return all;
}
} // namespace

void NetworkNonsenseTest::wrongType_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("fits");
    QTest::addColumn<QVariant>("value");
    for (const Property& property : properties()) {
        for (const auto& value : values())
            QTest::addRow("%s of %s is %s", property.name, property.owner, value.first.constData())
                << property.path << property.name << property.fitting.contains(value.first) << value.second;
    }
}

void NetworkNonsenseTest::wrongType()
{
    QFETCH(const QString, path);
    QFETCH(const QString, name);
    QFETCH(const bool, fits);
    QFETCH(const QVariant, value);
    static QHash<QString, QStringList> unsaid;
    if (!unsaid.contains(path + name)) {
        PlayedNetwork network;
        network.remove(path, name);
        unsaid.insert(path + name, heard(network));
    }
    PlayedNetwork network;
    network.set(path, name, value);
    const QStringList said = heard(network);
    QVERIFY(!said.contains("nothing was heard"));
    // One that fits may be one that the network could not have; it must only do no harm.
    if (!fits)
        QCOMPARE(said, unsaid.value(path + name));
}

void NetworkNonsenseTest::changeToWrongType()
{
    for (const Property& property : properties()) {
        // What is stored is asked for once.
        if (property.path == PlayedNetwork::stored)
            continue;
        PlayedNetwork network;
        network.remove(property.path, property.name);
        NetworkManagerSource source(ConnectionKind::Mobile);
        QTRY_VERIFY(source.isAvailable());
        const QString unsaid = SourceText::of(source.state());
        for (const auto& value : values()) {
            network.set(property.path, property.name, value.second);
            network.tellChanges();
        }
        // The last one fits none.
        QTRY_COMPARE(SourceText::of(source.state()), unsaid);
    }
}

void NetworkNonsenseTest::wrongAnswer_data()
{
    QTest::addColumn<QVariant>("answer");
    for (const auto& value : values())
        QTest::newRow(value.first) << value.second;
}

void NetworkNonsenseTest::wrongAnswer()
{
    QFETCH(const QVariant, answer);
    PlayedNetwork network;
    network.setAnswer(PlayedNetwork::objects, answer);
    NetworkManagerSource source(ConnectionKind::Mobile);
    QTRY_VERIFY(source.isKnown());
    QVERIFY(!source.isAvailable());
}

void NetworkNonsenseTest::wrongSettings_data()
{
    wrongAnswer_data();
}

void NetworkNonsenseTest::wrongSettings()
{
    QFETCH(const QVariant, answer);
    PlayedNetwork network;
    network.setAnswer(PlayedNetwork::stored, answer);
    network.removeObject(PlayedNetwork::mobile);
    NetworkManagerSource source(ConnectionKind::Mobile);
    QTRY_VERIFY(source.isAvailable());
    QCOMPARE(source.state().name, QString());
}

void NetworkNonsenseTest::wrongSignal_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("interface");
    QTest::addColumn<QString>("signal");
    QTest::addColumn<QVariantList>("before");
    const QString properties = "org.freedesktop.DBus.Properties", objects = "org.freedesktop.DBus.ObjectManager";
    const auto path = QVariant::fromValue(QDBusObjectPath(PlayedNetwork::mobile));
    const QVariant connection = "org.freedesktop.NetworkManager.Connection.Active";
    QTest::newRow("changed") << PlayedNetwork::mobile << properties << "PropertiesChanged"
                             << QVariantList({connection});
    QTest::newRow("changed what nobody has")
        << "/nowhere" << properties << "PropertiesChanged" << QVariantList({connection});
    QTest::newRow("withdrawn") << PlayedNetwork::mobile << properties << "PropertiesChanged"
                               << QVariantList({connection, QVariantMap()});
    QTest::newRow("added") << PlayedNetwork::objects << objects << "InterfacesAdded" << QVariantList();
    QTest::newRow("added what") << PlayedNetwork::objects << objects << "InterfacesAdded" << QVariantList({path});
    QTest::newRow("added in the manager's place")
        << PlayedNetwork::objects << objects << "InterfacesAdded"
        << QVariantList({path, QVariant::fromValue(QMap<QString, QVariantMap>({{PlayedNetwork::name, {}}}))});
    QTest::newRow("removed") << PlayedNetwork::objects << objects << "InterfacesRemoved" << QVariantList();
    QTest::newRow("removed what") << PlayedNetwork::objects << objects << "InterfacesRemoved" << QVariantList({path});
}

void NetworkNonsenseTest::wrongSignal()
{
    QFETCH(const QString, path);
    QFETCH(const QString, interface);
    QFETCH(const QString, signal);
    QFETCH(const QVariantList, before);
    PlayedNetwork network;
    NetworkManagerSource source(ConnectionKind::Mobile);
    QTRY_VERIFY(source.isAvailable());
    QString expected = SourceText::of(source.state());
    network.tellAnything(path, interface, signal, before);
    for (const auto& value : values())
        network.tellAnything(path, interface, signal, before + QVariantList({value.second}));
    // What is right is heard after it, and nothing else has changed.
    network.set(PlayedNetwork::mobile, "Id", "Other");
    network.tellChanges();
    QTRY_COMPARE(SourceText::of(source.state()), expected.replace("Mobile plan", "Other"));
}

void NetworkNonsenseTest::manyConnections()
{
    PlayedNetwork network;
    Paths paths;
    for (int i = 0; i < 10000; ++i)
        paths.append(QDBusObjectPath(QString("/connection/%1").arg(i)));
    paths.insert(50, QDBusObjectPath(PlayedNetwork::mobile));
    paths.insert(150, QDBusObjectPath(PlayedNetwork::bluetooth));
    network.set(PlayedNetwork::manager, "ActiveConnections", QVariant::fromValue(paths));
    NetworkManagerSource source(ConnectionKind::Mobile);
    QTRY_VERIFY(source.isAvailable());
    QCOMPARE(source.state().name, "Mobile plan");
    network.removeObject(PlayedNetwork::mobile);
    network.tellChanges();
    QTRY_COMPARE(source.state().name, QString());
    QCOMPARE(network.questions(PlayedNetwork::stored), 0);
}

void NetworkNonsenseTest::manyObjects()
{
    NetworkFacts facts;
    for (int i = 0; i < 20000; ++i)
        facts.set(QString::number(i), {{"State", 2U}});
    QVERIFY(facts.isUp("0"));
    QVERIFY(!facts.isUp("19999"));
    // There is room for what is known, and for others when something goes.
    facts.set("0", {{"State", 1U}});
    QVERIFY(!facts.isUp("0"));
    facts.remove("0");
    facts.set("19999", {{"State", 2U}});
    QVERIFY(facts.isUp("19999"));
}

REGISTER_TEST(NetworkNonsenseTest)
#include "NetworkNonsenseTest.moc"
