// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "ConnectionChoice.h"
#include "Test.h"

/** The choice of connections, and what becomes of it in a file of settings. */
class ConnectionChoiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void byDefault();
    void staysAsItIs_data();
    void staysAsItIs();
    void brokenIsByDefault_data();
    void brokenIsByDefault();
    void brokenLeavesTheRest();
    void countsPlans_data();
    void countsPlans();
    void forbidsRoaming_data();
    void forbidsRoaming();
};

using Plans = ConnectionChoice::Plans;

static ConnectionChoice choice(ConnectionKind kind, const Plans& plans = {}, bool isNotWhileRoaming = false)
{
    ConnectionChoice choice(kind);
    choice.plans = plans;
    choice.isNotWhileRoaming = isNotWhileRoaming;
    return choice;
}
Q_DECLARE_METATYPE(ConnectionChoice)

void ConnectionChoiceTest::byDefault()
{
    const ConnectionChoice made = ConnectionChoice::of({});
    QCOMPARE(made.kind, ConnectionKind::Mobile);
    QCOMPARE(made.plans, Plans());
    QVERIFY(!made.isNotWhileRoaming);
    QVERIFY(made == ConnectionChoice());
}

void ConnectionChoiceTest::staysAsItIs_data()
{
    QTest::addColumn<ConnectionChoice>("chosen");
    QTest::newRow("mobile") << choice(ConnectionKind::Mobile);
    QTest::newRow("any") << choice(ConnectionKind::Any);
    QTest::newRow("manual") << choice(ConnectionKind::Manual);
    QTest::newRow("not while roaming") << choice(ConnectionKind::Mobile, {}, true);
    QTest::newRow("plans") << choice(ConnectionKind::Mobile, {{"one", "Home"}, {"two", "Work"}});
    QTest::newRow("plans of odd names") << choice(ConnectionKind::Any, {{"a, b", ""}, {"\"=;%", "x\n\\@,"}}, true);
}

void ConnectionChoiceTest::staysAsItIs()
{
    QFETCH(const ConnectionChoice, chosen);
    const ConnectionChoice again = ConnectionChoice::of(chosen.values());
    QCOMPARE(again.kind, chosen.kind);
    QCOMPARE(again.plans, chosen.plans);
    QCOMPARE(again.isNotWhileRoaming, chosen.isNotWhileRoaming);
    QVERIFY(again == chosen);
}

void ConnectionChoiceTest::brokenIsByDefault_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    const QVariant number = 7;
    QTest::newRow("no such kind") << "kind" << QVariant("satellite");
    QTest::newRow("kind in capitals") << "kind" << QVariant("Any");
    QTest::newRow("empty kind") << "kind" << QVariant("");
    QTest::newRow("kind is a number") << "kind" << number;
    QTest::newRow("a plan without name") << "plans" << QVariant(QStringList{"one", "Home", "two"});
    QTest::newRow("a plan without UUID") << "plans" << QVariant(QStringList{"one", "Home", "", "Work"});
    QTest::newRow("plans are a text") << "plans" << QVariant("one");
    QTest::newRow("roaming is a word") << "notWhileRoaming" << QVariant("yes");
    QTest::newRow("roaming is a number") << "notWhileRoaming" << number;
}

void ConnectionChoiceTest::brokenIsByDefault()
{
    QFETCH(const QString, name);
    QFETCH(const QVariant, value);
    const QString told = "The choice of connections has no good value for \"%1\"; it is as by default";
    QTest::ignoreMessage(QtWarningMsg, qPrintable(told.arg(name)));
    QVERIFY(ConnectionChoice::of({{name, value}}) == ConnectionChoice());
}

void ConnectionChoiceTest::brokenLeavesTheRest()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("\"kind\""));
    const ConnectionChoice made =
        ConnectionChoice::of({{"kind", "none"}, {"plans", QStringList{"one", "Home"}}, {"notWhileRoaming", "true"}});
    QVERIFY(made == choice(ConnectionKind::Mobile, {{"one", "Home"}}, true));
}

void ConnectionChoiceTest::countsPlans_data()
{
    QTest::addColumn<Plans>("plans");
    QTest::addColumn<bool>("counts");
    QTest::newRow("any") << Plans() << true;
    QTest::newRow("this") << Plans{{"one", "Home"}} << true;
    QTest::newRow("this and another") << Plans{{"one", "Home"}, {"two", "Work"}} << true;
    QTest::newRow("another") << Plans{{"two", "Work"}} << false;
    QTest::newRow("one of this name") << Plans{{"two", "one"}} << false;
}

void ConnectionChoiceTest::countsPlans()
{
    QFETCH(const Plans, plans);
    QTEST(choice(ConnectionKind::Mobile, plans).countsPlan("one"), "counts");
}

void ConnectionChoiceTest::forbidsRoaming_data()
{
    QTest::addColumn<ConnectionChoice>("chosen");
    QTest::addColumn<bool>("forbids");
    QTest::newRow("mobile") << choice(ConnectionKind::Mobile) << false;
    QTest::newRow("mobile, not while roaming") << choice(ConnectionKind::Mobile, {}, true) << true;
    QTest::newRow("any") << choice(ConnectionKind::Any, {}, true) << false;
}

void ConnectionChoiceTest::forbidsRoaming()
{
    QFETCH(const ConnectionChoice, chosen);
    QTEST(chosen.forbidsRoaming(), "forbids");
}

REGISTER_TEST(ConnectionChoiceTest)
#include "ConnectionChoiceTest.moc"
