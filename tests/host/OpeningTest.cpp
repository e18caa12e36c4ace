// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What is said of the openings of links, and of their causes.

#include "Opening.h"
#include "OpenedLink.h"
#include "OpeningCause.h"
#include "Test.h"

class OpeningTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void causeIsCurrentWhileItLives();
    void namesWhatIsOpened_data();
    void namesWhatIsOpened();
    void saysWhatCameOfIt();
    void endsReasonsWithoutColon_data();
    void endsReasonsWithoutColon();
    void keepsLinkAndCauseForLater();
    void speaksToNobody();

private:
    QList<Decision> m_told;
};

void OpeningTest::init()
{
    m_told.clear();
    Opening::setListener([this](const Decision& decision) { m_told.append(decision); });
}

void OpeningTest::cleanup()
{
    Opening::setListener(Opening::Listener());
    OpenedLink::setKnown(OpenedLink::Known());
}

void OpeningTest::causeIsCurrentWhileItLives()
{
    const QString none = "A plug-in asked for it";
    QCOMPARE(OpeningCause::current(), none);
    {
        const OpeningCause outer("outer");
        QCOMPARE(OpeningCause::current(), "outer");
        {
            const OpeningCause inner("inner");
            QCOMPARE(OpeningCause::current(), "inner");
        }
        QCOMPARE(OpeningCause::current(), "outer");
    }
    QCOMPARE(OpeningCause::current(), none);
}

void OpeningTest::namesWhatIsOpened_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("what");
    QTest::newRow("link") << "News"
                          << "http://example.org/"
                          << "News";
    QTest::newRow("no link") << ""
                             << "http://example.org/"
                             << "http://example.org/";
    QTest::newRow("neither") << ""
                             << ""
                             << "Unknown link";
}

void OpeningTest::namesWhatIsOpened()
{
    QFETCH(QString, link);
    QFETCH(QString, target);
    OpenedLink::Known known;
    known.nameOf = [&link](const QString&) {
        return link;
    };
    OpenedLink::setKnown(known);
    const Opening opening(target);
    QCOMPARE(opening.link(), link);
    opening.succeed();
    QCOMPARE(int(m_told.size()), 1);
    QTEST(m_told.first().what, "what");
}

void OpeningTest::saysWhatCameOfIt()
{
    const OpeningCause cause("because");
    const Opening opening("x:");
    const QDateTime before = QDateTime::currentDateTime();
    opening.succeed();
    opening.wait();
    opening.decline();
    opening.refuse("No:");
    opening.fail("Broken:");
    QStringList outcomes;
    for (int i = 0; i < m_told.size(); ++i) {
        outcomes.append(m_told.at(i).outcome);
        QCOMPARE(m_told.at(i).what, "x:");
        QCOMPARE(m_told.at(i).cause, "because");
        QVERIFY(m_told.at(i).time >= before && m_told.at(i).time <= QDateTime::currentDateTime());
    }
    QCOMPARE(outcomes.join("|"),
             "Opened|You were asked first|Not opened: you did not agree|Not opened: No|Failed: Broken");
}

void OpeningTest::endsReasonsWithoutColon_data()
{
    QTest::addColumn<QString>("reason");
    QTest::addColumn<QString>("shown");
    QTest::newRow("colon") << "No program:"
                           << "No program";
    QTest::newRow("colon after a blank") << "No program" + codePoint(0xa0) + ":"
                                         << "No program";
    QTest::newRow("wide colon") << "No program" + codePoint(0xff1a) << "No program";
    QTest::newRow("sentence") << "It has no path."
                              << "It has no path.";
    QTest::newRow("colon within") << "a: b"
                                  << "a: b";
}

void OpeningTest::endsReasonsWithoutColon()
{
    QFETCH(QString, reason);
    QFETCH(QString, shown);
    Opening("x:").refuse(reason);
    QCOMPARE(int(m_told.size()), 1);
    QCOMPARE(m_told.first().outcome, "Not opened: " + shown);
}

void OpeningTest::keepsLinkAndCauseForLater()
{
    QScopedPointer<Opening> opening;
    {
        const OpenedLink link("News", 0);
        const OpeningCause cause("because");
        opening.reset(new Opening("x:"));
    }
    opening->fail("Broken");
    QCOMPARE(int(m_told.size()), 1);
    QCOMPARE(m_told.first().what, "News");
    QCOMPARE(m_told.first().cause, "because");
}

void OpeningTest::speaksToNobody()
{
    Opening::setListener(Opening::Listener());
    Opening("x:").succeed();
    QVERIFY(m_told.isEmpty());
}

REGISTER_TEST(OpeningTest)
#include "OpeningTest.moc"
