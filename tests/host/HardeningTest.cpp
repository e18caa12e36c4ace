// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The built files: what makes a mistake in them harder to exploit.

#include <QProcess>

#include "Test.h"

class HardeningTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void isHardened_data();
    void isHardened();
    void programLiesAnywhere_data();
    void programLiesAnywhere();
};

/** What is said of a file about its head, segments, dynamic section and symbols. */
static QString structureOf(const QString& file)
{
    QProcess process;
    process.start(READELF, {"-hldsW", file});
    const bool isDone = process.waitForFinished(60000) && process.exitCode() == 0;
    return isDone ? QString::fromLocal8Bit(process.readAllStandardOutput()) : QString();
}

/** The lines of a structure in which all the words are. */
static int countLines(const QString& structure, const QStringList& words)
{
    QStringList lines = structure.split('\n');
    for (const QString& word : words)
        lines = lines.filter(word);
    return int(lines.size());
}

void HardeningTest::init()
{
    QVERIFY(!structureOf(PROGRAM).isEmpty());
}

void HardeningTest::isHardened_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("program") << PROGRAM;
    QTest::newRow("tool for links") << LINKS_TOOL;
    QTest::newRow("libcore") << LIBCORE;
    QTest::newRow("libsdk") << LIBSDK;
    QTest::newRow("quick links") << QUICK_LINKS;
}

void HardeningTest::isHardened()
{
    QFETCH(QString, file);
    const QString structure = structureOf(file);
    QVERIFY2(countLines(structure, {"GNU_RELRO"}) > 0, "tables that can be written to");
    QVERIFY2(countLines(structure, {"FLAGS_1", "NOW"}) == 1, "symbols that are looked up late");
    QVERIFY2(countLines(structure, {"__stack_chk_fail"}) > 0, "no guard of the stack");
    QVERIFY2(countLines(structure, {"GNU_STACK", "RW "}) == 1, "a stack that can be executed");
}

void HardeningTest::programLiesAnywhere_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("program") << PROGRAM;
    QTest::newRow("tool for links") << LINKS_TOOL;
}

void HardeningTest::programLiesAnywhere()
{
    QFETCH(QString, file);
    QVERIFY(countLines(structureOf(file), {"FLAGS_1", "PIE"}) == 1);
}

REGISTER_TEST(HardeningTest)
#include "HardeningTest.moc"
