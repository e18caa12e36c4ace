// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Undo and redo over the states of the links.

#include "LinkSteps.h"
#include "Test.h"

class LinkStepsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void goBackAndForth();
    void oneThatFails();
    void isNoStepOfItsOwn();
    void amendsTheLast();
    void amendsNoOther_data();
    void amendsNoOther();

private:
    QByteArray m_content;
    bool m_isPossible = true;
    QScopedPointer<LinkSteps> m_steps;
};

void LinkStepsTest::init()
{
    m_isPossible = true;
    m_content = "c";
    m_steps.reset(new LinkSteps([this](const QByteArray& content) {
        // Whoever watches the links hears of it.
        if (m_isPossible)
            m_steps->add(m_content, content);
        if (m_isPossible)
            m_content = content;
        return m_isPossible;
    }));
    m_steps->add("a", "b");
    m_steps->add("b", "c");
}

void LinkStepsTest::goBackAndForth()
{
    m_steps->stack().undo();
    QCOMPARE(m_content, "b");
    m_steps->stack().undo();
    QCOMPARE(m_content, "a");
    QVERIFY(!m_steps->stack().canUndo());
    m_steps->stack().redo();
    m_steps->stack().redo();
    QCOMPARE(m_content, "c");
    QVERIFY(!m_steps->stack().canRedo());
}

void LinkStepsTest::oneThatFails()
{
    m_isPossible = false;
    m_steps->stack().undo();
    QCOMPARE(m_content, "c");
    QTRY_COMPARE(m_steps->stack().count(), 0);
}

void LinkStepsTest::isNoStepOfItsOwn()
{
    QVERIFY(m_steps->goQuietly("d"));
    QCOMPARE(m_content, "d");
    QCOMPARE(m_steps->stack().count(), 2);
    m_isPossible = false;
    QVERIFY(!m_steps->goQuietly("e"));
}

void LinkStepsTest::amendsTheLast()
{
    m_steps->amend("c", "C");
    m_steps->stack().undo();
    QCOMPARE(m_content, "b");
    m_steps->stack().redo();
    QCOMPARE(m_content, "C");
}

void LinkStepsTest::amendsNoOther_data()
{
    QTest::addColumn<int>("undone");
    QTest::addColumn<QByteArray>("to");
    QTest::newRow("another target") << 0 << QByteArray("x");
    QTest::newRow("undone") << 1 << QByteArray("c");
    QTest::newRow("an earlier one") << 1 << QByteArray("b");
    QTest::newRow("all undone") << 2 << QByteArray("c");
}

void LinkStepsTest::amendsNoOther()
{
    QFETCH(int, undone);
    QFETCH(QByteArray, to);
    m_steps->stack().setIndex(2 - undone);
    m_steps->amend(to, "X");
    m_steps->stack().setIndex(0);
    m_steps->stack().setIndex(1);
    QCOMPARE(m_content, "b");
    m_steps->stack().setIndex(2);
    QCOMPARE(m_content, "c");
}

REGISTER_TEST(LinkStepsTest)
#include "LinkStepsTest.moc"
