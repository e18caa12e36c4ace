// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What was given, from one start to the next.

#include "SeedRecord.h"
#include "GuardedFolder.h"
#include "ProcessLimits.h"
#include "RecordingTrace.h"
#include "Test.h"

class SeedRecordTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comesBackAsItWas();
    void isNothingAtFirst();
    void isForItsUserAlone();
    void isNothingWhenDamaged_data();
    void isNothingWhenDamaged();
    void stillThereWhenItCannotBeWritten();

private:
    QTemporaryDir m_folder;
    const QString m_file = m_folder.filePath("seeded.xml");
};

static QList<GivenLink> someLinks()
{
    GivenLink first, second, third;
    first.layer = "10-office.xml";
    for (const QString& name : LayerLink::names())
        first.fields.insert(name, "<" + name + "> & \"more\"");
    first.isUsers = true;
    second.layer = "20.xml";
    second.fields = {{"name", ""}, {"url", "u"}};
    return {first, second, third};
}

void SeedRecordTest::comesBackAsItWas()
{
    for (const QList<GivenLink>& links : {someLinks(), QList<GivenLink>(), someLinks().mid(1)}) {
        QVERIFY(SeedRecord::write(m_file, links));
        QVERIFY(SeedRecord::read(m_file) == links);
    }
}

void SeedRecordTest::isNothingAtFirst()
{
    const RecordingTrace trace;
    QVERIFY(SeedRecord::read(m_folder.filePath("nowhere")).isEmpty());
    QCOMPARE(trace.warningLines, QStringList());
}

void SeedRecordTest::isForItsUserAlone()
{
    QVERIFY(SeedRecord::write(m_file, someLinks()));
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QVERIFY(!(QFile::permissions(m_file) & others));
}

void SeedRecordTest::isNothingWhenDamaged_data()
{
    QTest::addColumn<int>("length");
    QTest::newRow("cut") << 300;
    QTest::newRow("empty") << 0;
}

void SeedRecordTest::isNothingWhenDamaged()
{
    QFETCH(const int, length);
    QVERIFY(SeedRecord::write(m_file, someLinks()));
    QVERIFY(QFile::resize(m_file, length));
    const RecordingTrace trace;
    QVERIFY(SeedRecord::read(m_file).isEmpty());
    QCOMPARE(trace.countWarnings(".*seeded.xml is no good; the operator's links count as new"), 1);
}

void SeedRecordTest::stillThereWhenItCannotBeWritten()
{
    QVERIFY(SeedRecord::write(m_file, someLinks().mid(1)));
    {
        const LowerLimit full(RLIMIT_FSIZE, 100);
        QVERIFY(full.isLowered());
        QVERIFY(!SeedRecord::write(m_file, someLinks()));
    }
    QVERIFY(SeedRecord::read(m_file) == someLinks().mid(1));
}

REGISTER_TEST(SeedRecordTest)
#include "SeedRecordTest.moc"
