// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Which ends of a program are failures, and how they are worded.

#include <csignal>

#include "ProgramEnd.h"
#include "Test.h"

class ProgramEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isTold_data();
    void isTold();
};

void ProgramEndTest::isTold_data()
{
    QTest::addColumn<bool>("isBySignal");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("lasted");
    QTest::addColumn<QString>("failure");
    const QString none, error = "This program ended at once, with the error code 1:",
                        ended = "This program was ended by the system or by another program (signal %1):",
                        crashed = "This program crashed (signal %1, %2):",
                        memory = crashed.arg(SIGSEGV).arg("it used memory that it does not have");
    QTest::newRow("well") << false << 0 << 0 << none;
    QTest::newRow("error") << false << 1 << 0 << error;
    QTest::newRow("error within five seconds") << false << 1 << 4999 << error;
    QTest::newRow("error later") << false << 1 << 5000 << none;
    QTest::newRow("other code") << false << 255 << 0 << "This program ended at once, with the error code 255:";
    QTest::newRow("crash") << true << SIGSEGV << 0 << memory;
    QTest::newRow("crash later") << true << SIGSEGV << 100000000 << memory;
    QTest::newRow("own mistake") << true << SIGABRT << 0 << crashed.arg(SIGABRT).arg("it noticed a mistake of its own");
    QTest::newRow("killed") << true << SIGKILL << 0 << ended.arg(SIGKILL);
    QTest::newRow("killed within five seconds") << true << SIGKILL << 4999 << ended.arg(SIGKILL);
    QTest::newRow("killed later") << true << SIGKILL << 5000 << none;
    QTest::newRow("asked to end later") << true << SIGTERM << 5000 << none;
}

void ProgramEndTest::isTold()
{
    QFETCH(bool, isBySignal);
    QFETCH(int, code);
    QFETCH(int, lasted);
    QTEST((ProgramEnd{isBySignal, code, lasted}.failure()), "failure");
}

REGISTER_TEST(ProgramEndTest)
#include "ProgramEndTest.moc"
