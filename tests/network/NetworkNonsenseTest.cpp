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
    void wrongAnswer_data();
    void wrongAnswer();
    void wrongSignal_data();
    void wrongSignal();
    void manyConnections();
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

void NetworkNonsenseTest::wrongAnswer_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QVariant>("answer");
    const QList<QPair<const char*, QString>> objects = {{"connection", PlayedNetwork::mobile},
                                                        {"device", PlayedNetwork::modem},
                                                        {"telephone", PlayedNetwork::telephone},
                                                        {"stored", PlayedNetwork::stored}};
    for (const auto& object : objects) {
        for (const auto& value : values()) {
            if (value.first != "map")
                QTest::addRow("%s is %s", object.first, value.first.constData()) << object.second << value.second;
        }
    }
}

void NetworkNonsenseTest::wrongAnswer()
{
    QFETCH(const QString, path);
    QFETCH(const QVariant, answer);
    static QHash<QString, QStringList> gone;
    if (!gone.contains(path)) {
        PlayedNetwork network;
        network.removeObject(path);
        gone.insert(path, heard(network));
    }
    PlayedNetwork network;
    network.setAnswer(path, answer);
    // heard() takes the mobile connection away, but not this answer of it.
    QCOMPARE(heard(network), gone.value(path));
}

void NetworkNonsenseTest::wrongSignal_data()
{
    QTest::addColumn<QString>("interface");
    QTest::addColumn<QVariantList>("arguments");
    for (const char* const interface :
         {"org.freedesktop.NetworkManager", "org.freedesktop.NetworkManager.Connection.Active"}) {
        QTest::addRow("%s: only the interface", interface) << interface << QVariantList();
        for (const auto& value : values())
            QTest::addRow("%s: %s", interface, value.first.constData()) << interface << QVariantList({value.second});
    }
}

void NetworkNonsenseTest::wrongSignal()
{
    QFETCH(const QString, interface);
    QFETCH(const QVariantList, arguments);
    PlayedNetwork network;
    NetworkManagerSource source(ConnectionKind::Mobile);
    QTRY_VERIFY(source.isAvailable());
    network.set(PlayedNetwork::mobile, "Id", "Other");
    // Whatever it says of the change, it says that there is one.
    network.tellAnything(interface, arguments);
    QTRY_COMPARE(source.state().name, "Other");
}

void NetworkNonsenseTest::manyConnections()
{
    PlayedNetwork network;
    Paths paths;
    for (int i = 0; i < 10000; ++i)
        paths.append(QDBusObjectPath(QString("/connection/%1").arg(i)));
    paths.insert(50, QDBusObjectPath(PlayedNetwork::mobile));
    network.set(PlayedNetwork::manager, "ActiveConnections", QVariant::fromValue(paths));
    NetworkManagerSource source(ConnectionKind::Mobile);
    QTRY_VERIFY(source.isAvailable());
    QCOMPARE(source.state().name, "Mobile plan");
    QCOMPARE(network.questions("/connection/98"), 1);
    QCOMPARE(network.questions("/connection/99"), 0);
}

REGISTER_TEST(NetworkNonsenseTest)
#include "NetworkNonsenseTest.moc"
