// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Plug-ins that crash or hang, and what the next start does.

#include <QDir>

#include <fcntl.h>
#include <sys/stat.h>

#include "PlacedFiles.h"

class HostilePluginCallsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void leavesOutWhatCrashed_data();
    void leavesOutWhatCrashed();
    void loadsWhatEndedWell_data();
    void loadsWhatEndedWell();
    void leavesOutWhatHung_data();
    void leavesOutWhatHung();
    void blamesNobodyForACallThatCameBack_data();
    void blamesNobodyForACallThatCameBack();
    void blamesNobodyForAKillBetweenCalls();
    void blamesNobodyInALivingProcess();
    void leavesOutOneAfterTheOther();
    void passesOverOtherRecords_data();
    void passesOverOtherRecords();
    void loadsWhereNothingCanBeNoted_data();
    void loadsWhereNothingCanBeNoted();

private:
    void deed(const QString& what) { m_runs->setVariable("DEED", what); }
    void compareNextRun(const QString& objection) const;

    QScopedPointer<LoadRuns> m_runs;
};

static const QStringList allLoaded = {"loaded Bad FakeSilent", "done"};

void HostilePluginCallsTest::init()
{
    m_runs.reset(new LoadRuns);
    m_runs->add("HostilePlugin");
}

/** The next run leaves the bad plug-in out for this reason, whatever else runs; with another file it loads it. */
void HostilePluginCallsTest::compareNextRun(const QString& objection) const
{
    const QStringList leftOut = {"Bad/libBad.so: it is left out, because it " + objection + " in an earlier run",
                                 "loaded FakeSilent", "done"};
    QCOMPARE(m_runs->run(), leftOut);
    QCOMPARE(m_runs->run(), leftOut);
    const timespec times[] = {{1000000000, 0}, {1000000000, 0}};
    QCOMPARE(utimensat(AT_FDCWD, local(m_runs->file()).constData(), times, 0), 0);
    QCOMPARE(m_runs->run(), allLoaded);
    QCOMPARE(m_runs->notes(), "");
}

void HostilePluginCallsTest::leavesOutWhatCrashed_data()
{
    QTest::addColumn<QString>("deed");
    QTest::addColumn<QString>("place");
    QTest::newRow("crash when the library starts") << "library:segfault"
                                                   << "its constructor";
    QTest::newRow("crash in the constructor") << "constructor:segfault"
                                              << "its constructor";
    QTest::newRow("crash when it says who it is") << "GetCLSID:segfault"
                                                  << "its constructor";
    QTest::newRow("crash in Init") << "Init:segfault"
                                   << "Init";
    QTest::newRow("crash in OnDestroy") << "OnDestroy:segfault"
                                        << "OnDestroy";
    QTest::newRow("crash in the destructor") << "destructor:segfault"
                                             << "its destructor";
    QTest::newRow("abort in the constructor") << "constructor:abort"
                                              << "its constructor";
    QTest::newRow("abort in Init") << "Init:abort"
                                   << "Init";
    QTest::newRow("abort in OnDestroy") << "OnDestroy:abort"
                                        << "OnDestroy";
    QTest::newRow("overflow of the stack in the constructor") << "constructor:recursion"
                                                              << "its constructor";
    QTest::newRow("overflow of the stack in Init") << "Init:recursion"
                                                   << "Init";
    QTest::newRow("exit in the constructor") << "constructor:exit"
                                             << "its constructor";
    QTest::newRow("exit in Init") << "Init:exit"
                                  << "Init";
    QTest::newRow("exit in OnDestroy") << "OnDestroy:exit"
                                       << "OnDestroy";
    QTest::newRow("exit without a word in Init") << "Init:_exit"
                                                 << "Init";
    QTest::newRow("kill of its own process in Init") << "Init:kill"
                                                     << "Init";
    QTest::newRow("exception out of a destructor") << "destructor:throw"
                                                   << "its destructor";
}

void HostilePluginCallsTest::leavesOutWhatCrashed()
{
    QFETCH(QString, deed);
    QFETCH(QString, place);
    this->deed(deed);
    QVERIFY(!m_runs->run().contains("done"));
    this->deed(QString());
    compareNextRun("did not come back in " + place);
}

void HostilePluginCallsTest::loadsWhatEndedWell_data()
{
    QTest::addColumn<QString>("deed");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("next");
    const QString all = allLoaded.first();
    const QString thrown = "Bad/libBad.so: an exception came out of its constructor";
    QTest::newRow("nothing") << "" << all << all;
    QTest::newRow("exception out of the constructor") << "constructor:throw" << thrown << all;
    QTest::newRow("exception when it says who it is") << "GetCLSID:throw" << thrown << all;
    QTest::newRow("exception out of Init") << "Init:throw"
                                           << "Bad/libBad.so: its Init failed" << all;
    QTest::newRow("exception out of OnDestroy") << "OnDestroy:throw" << all << all;
    QTest::newRow("removes its own file") << "Init:remove" << all << "loaded FakeSilent";
}

void HostilePluginCallsTest::loadsWhatEndedWell()
{
    QFETCH(QString, deed);
    this->deed(deed);
    const QStringList said = m_runs->run();
    QTEST(said.first(), "first");
    QCOMPARE(said.last(), "done");
    this->deed(QString());
    QTEST(m_runs->run().first(), "next");
}

void HostilePluginCallsTest::leavesOutWhatHung_data()
{
    QTest::addColumn<QString>("deed");
    QTest::addColumn<QString>("place");
    QTest::newRow("constructor") << "constructor:hang"
                                 << "its constructor";
    QTest::newRow("Init") << "Init:hang"
                          << "Init";
    QTest::newRow("Init, busy") << "Init:spin"
                                << "Init";
    QTest::newRow("OnDestroy") << "OnDestroy:hang"
                               << "OnDestroy";
    QTest::newRow("destructor") << "destructor:hang"
                                << "its destructor";
}

void HostilePluginCallsTest::leavesOutWhatHung()
{
    QFETCH(QString, deed);
    QFETCH(QString, place);
    this->deed(deed);
    m_runs->setLimit(50);
    QProcess process;
    m_runs->start(process);
    process.closeWriteChannel();
    QTRY_VERIFY(m_runs->notes().startsWith("h "));
    process.kill();
    process.waitForFinished();
    this->deed(QString());
    m_runs->setLimit(3600000);
    compareNextRun("hung in " + place);
}

void HostilePluginCallsTest::blamesNobodyForACallThatCameBack_data()
{
    QTest::addColumn<int>("limit");
    QTest::addColumn<QByteArray>("note");
    QTest::newRow("in time") << 3600000 << QByteArray("c 1 ");
    QTest::newRow("late") << 50 << QByteArray("h 1 ");
}

void HostilePluginCallsTest::blamesNobodyForACallThatCameBack()
{
    QFETCH(int, limit);
    QFETCH(QByteArray, note);
    m_runs->setVariable("SEEN", m_runs->base() + "/seen");
    deed("Init:late");
    m_runs->setLimit(limit);
    QProcess process;
    m_runs->start(process);
    QTRY_VERIFY(m_runs->notes().startsWith(note));
    makeFolder(m_runs->base() + "/seen");
    QTRY_VERIFY(process.bytesAvailable() > 0);
    QVERIFY(m_runs->notes().startsWith("- "));
    process.closeWriteChannel();
    QCOMPARE(m_runs->linesOf(process), allLoaded);
    QCOMPARE(m_runs->run(), allLoaded);
}

void HostilePluginCallsTest::blamesNobodyForAKillBetweenCalls()
{
    QProcess process;
    m_runs->start(process);
    QTRY_VERIFY(process.bytesAvailable() > 0);
    process.kill();
    process.waitForFinished();
    QVERIFY(m_runs->notes().startsWith("- "));
    QCOMPARE(m_runs->run(), allLoaded);
    QCOMPARE(m_runs->notes(), "");
}

void HostilePluginCallsTest::blamesNobodyInALivingProcess()
{
    m_runs->setVariable("SEEN", m_runs->base() + "/seen");
    deed("Init:late");
    QProcess process;
    m_runs->start(process);
    QTRY_VERIFY(m_runs->notes().startsWith("c 1 "));
    deed(QString());
    QCOMPARE(m_runs->run(), allLoaded);
    QVERIFY(m_runs->notes().startsWith("c 1 "));
    makeFolder(m_runs->base() + "/seen");
    process.closeWriteChannel();
    QCOMPARE(m_runs->linesOf(process), allLoaded);
}

void HostilePluginCallsTest::leavesOutOneAfterTheOther()
{
    m_runs->add("HostilePlugin", "Worse");
    for (const char* crash : {"Bad/Init:abort", "Worse/Init:abort"}) {
        deed(crash);
        QVERIFY(!m_runs->run().contains("done"));
    }
    deed(QString());
    const QStringList said = m_runs->run();
    QCOMPARE(int(said.size()), 4);
    QVERIFY(said.at(0).startsWith("Bad/libBad.so: it is left out"));
    QVERIFY(said.at(1).startsWith("Worse/libWorse.so: it is left out"));
    QCOMPARE(said.at(2), "loaded FakeSilent");
}

void HostilePluginCallsTest::passesOverOtherRecords_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    const QByteArray padding(100, '\0');
    const QByteArray path = "/nonexistent/libBad.so";
    QTest::newRow("empty") << "calls/1" << QByteArray();
    QTest::newRow("zeroes") << "calls/1" << padding;
    QTest::newRow("text") << "calls/1" << QByteArray("some text of another program\n");
    QTest::newRow("no number") << "calls/1"
                               << "c x y z " + path + padding;
    QTest::newRow("no such call") << "calls/1"
                                  << "c 9 1 1 " + path + padding;
    QTest::newRow("no end") << "calls/1"
                            << "c 1 1 1 " + path;
    QTest::newRow("no path") << "calls/1"
                             << "c 1 1 1" + padding;
    QTest::newRow("another file") << "calls/1"
                                  << "c 1 1 1 %BAD" + padding;
    QTest::newRow("nobody called") << "calls/1"
                                   << "- 1 %SIZE %CHANGED %BAD" + padding;
    QTest::newRow("list: empty") << "left-out.json" << QByteArray();
    QTest::newRow("list: text") << "left-out.json" << QByteArray("text");
    QTest::newRow("list: of numbers") << "left-out.json" << QByteArray("[1, 2, [3], {}, {\"file\": 7}]");
    QTest::newRow("list: another file") << "left-out.json" << QByteArray("[{\"file\": \"%BAD\", \"size\": \"1\"}]");
}

void HostilePluginCallsTest::passesOverOtherRecords()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const QFileInfo bad(m_runs->file());
    content.replace("%BAD", local(m_runs->file())).replace("%SIZE", QByteArray::number(bad.size()));
    content.replace("%CHANGED", QByteArray::number(bad.lastModified().toMSecsSinceEpoch()));
    const QString path = m_runs->data() + '/' + name;
    makeFolder(QFileInfo(path).path(), 0700);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();
    QCOMPARE(m_runs->run(), allLoaded);
    QCOMPARE(m_runs->notes(), "");
}

void HostilePluginCallsTest::loadsWhereNothingCanBeNoted_data()
{
    QTest::addColumn<SetUp>("setUp");
    QTest::newRow("file in the place of the folder")
        << SetUp([](LoadRuns& runs) { QVERIFY(QFile::copy(runs.file(), runs.data() + "/calls")); });
    QTest::newRow("no folder") << SetUp([](LoadRuns& runs) { QVERIFY(QDir(runs.data()).removeRecursively()); });
    QTest::newRow("folders and pipes as files") << SetUp([](LoadRuns& runs) {
        makeFolder(runs.data() + "/calls/1");
        QCOMPARE(mkfifo(local(runs.data() + "/calls/2").constData(), 0600), 0);
        QCOMPARE(mkfifo(local(runs.data() + "/left-out.json").constData(), 0600), 0);
    });
    QTest::newRow("folder of another user") << SetUp([](LoadRuns& runs) {
        if (geteuid() == 0)
            runs.becomeNobody();
        allow(runs.data(), 0500);
    });
}

void HostilePluginCallsTest::loadsWhereNothingCanBeNoted()
{
    QFETCH(SetUp, setUp);
    setUp(*m_runs);
    QCOMPARE(m_runs->run(), allLoaded);
}

REGISTER_TEST(HostilePluginCallsTest)
#include "HostilePluginCallsTest.moc"
