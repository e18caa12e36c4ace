// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The link that is being opened, for messages about it.

#include "OpenedLink.h"
#include "Test.h"

class OpenedLinkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { OpenedLink::setKnown(OpenedLink::Known()); }
    void isCurrentWhileItLives();
    void asksForItsAddress();
    void isPreferredToWhatIsKnown();
    void knowsNothingByItself();
};

void OpenedLinkTest::isCurrentWhileItLives()
{
    QVERIFY(!OpenedLink::current());
    {
        const OpenedLink outer("Outer", 0);
        QCOMPARE(OpenedLink::current()->name(), "Outer");
        {
            const OpenedLink inner("Inner", 0);
            QCOMPARE(OpenedLink::current()->name(), "Inner");
        }
        QCOMPARE(OpenedLink::current()->name(), "Outer");
    }
    QVERIFY(!OpenedLink::current());
}

static QString addressOf(const QString& name, int place)
{
    return QString("%1 %2").arg(name).arg(place);
}

static QString nameOf(const QString& address)
{
    return "name of " + address;
}

void OpenedLinkTest::asksForItsAddress()
{
    OpenedLink::Known known;
    known.addressOf = addressOf;
    OpenedLink::setKnown(known);
    QCOMPARE(OpenedLink("A", 3).address(), "A 3");
}

void OpenedLinkTest::isPreferredToWhatIsKnown()
{
    OpenedLink::Known known;
    known.nameOf = nameOf;
    OpenedLink::setKnown(known);
    QCOMPARE(OpenedLink::nameFor("x:"), "name of x:");
    const OpenedLink link("A", 0);
    QCOMPARE(OpenedLink::nameFor("x:"), "A");
}

void OpenedLinkTest::knowsNothingByItself()
{
    QCOMPARE(OpenedLink::nameFor("x:"), QString());
    QCOMPARE(OpenedLink("A", 0).address(), QString());
}

REGISTER_TEST(OpenedLinkTest)
#include "OpenedLinkTest.moc"
