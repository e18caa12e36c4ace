// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What a started program gets to know of this one: nothing.

#include <QPointer>
#include <QRegularExpression>
#include <QSignalSpy>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

#include "OutlivingProcess.h"
#include "RecordingDesktop.h"
#include "Test.h"

class OutlivingProcessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasTheUsualSignals();
    void holdsNoFileOfThisProgram();
    void runsInASessionOfItsOwn();
    void deletesItselfAfterwards_data();
    void deletesItselfAfterwards();
    void saysThatItDidNotStart_data();
    void saysThatItDidNotStart();

private:
    QByteArray recordOf(const QByteArray& command);

    QTemporaryDir m_folder;
};

namespace
{
/** While it lives, this process ignores broken pipes and holds back SIGUSR1 and SIGTERM, as it might have been started.
 */
class UnusualSignals
{
public:
    UnusualSignals()
        : m_handler(::signal(SIGPIPE, SIG_IGN))
    {
        sigset_t blocked;
        ::sigemptyset(&blocked);
        ::sigaddset(&blocked, SIGUSR1);
        ::sigaddset(&blocked, SIGTERM);
        ::sigprocmask(SIG_BLOCK, &blocked, &m_mask);
    }
    ~UnusualSignals()
    {
        ::sigprocmask(SIG_SETMASK, &m_mask, nullptr);
        ::signal(SIGPIPE, m_handler);
    }

private:
    void (*m_handler)(int);
    sigset_t m_mask;
};
} // namespace

/** Runs a program that consists of this shell command to its end; what it wrote to "$record". */
QByteArray OutlivingProcessTest::recordOf(const QByteArray& command)
{
    const QString program = m_folder.filePath("program"), record = m_folder.filePath("record");
    QFile::remove(record);
    writeScript(program, "record='" + QFile::encodeName(record) + "'\n" + command + '\n');
    const QPointer<OutlivingProcess> process = new OutlivingProcess(program, {});
    process->start();
    QFile file(record);
    if (!QTest::qWaitFor([&] { return !process; }, 30000) || !file.open(QIODevice::ReadOnly))
        return "no record";
    return file.readAll();
}

void OutlivingProcessTest::hasTheUsualSignals()
{
    const UnusualSignals unusual;
    // Not by a shell, which has signals of its own.
    const QString record = m_folder.filePath("status");
    const QPointer<OutlivingProcess> process = new OutlivingProcess("cp", {"/proc/self/status", record});
    process->start();
    QTRY_VERIFY(!process);
    QFile file(record);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QRegularExpressionMatch match =
        QRegularExpression("\nSigBlk:\\s*([0-9a-f]{16})\nSigIgn:\\s*([0-9a-f]{16})\n").match(QString(file.readAll()));
    QVERIFY(match.hasMatch());
    QCOMPARE(match.captured(1).toULongLong(nullptr, 16), 0ULL);
    QCOMPARE(match.captured(2).toULongLong(nullptr, 16) & (1ULL << (SIGPIPE - 1)), 0ULL);
}

void OutlivingProcessTest::holdsNoFileOfThisProgram()
{
    // As a library may open one, or as this process may have been started with.
    const int held = ::open(QFile::encodeName(m_folder.path()).constData(), O_RDONLY | O_DIRECTORY);
    QVERIFY(held > 2);
    const int high = ::fcntl(held, F_DUPFD, 200);
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    // The list of a process's own files is one of them, open while it is read.
    const QByteArray record = recordOf("ls -l /proc/self/fd | grep -v '/proc/[0-9]*/fd$' >\"$record.new\"\n"
                                       "mv \"$record.new\" \"$record\"");
    for (const int file : {held, high, ends[0], ends[1]})
        ::close(file);
    QRegularExpressionMatchIterator matches = QRegularExpression(" (\\d+) -> (.*)\n").globalMatch(QString(record));
    QStringList files;
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        if (match.captured(1) != "1") // what goes into the record
            files.append(match.captured(1) + ' ' + match.captured(2));
    }
    files.sort();
    QCOMPARE(files, QStringList({"0 /dev/null", "2 /dev/null"}));
}

void OutlivingProcessTest::runsInASessionOfItsOwn()
{
    const QByteArray record = recordOf("cut -d' ' -f1,5,6 /proc/$$/stat >\"$record\"");
    const QList<QByteArray> numbers = record.trimmed().split(' '); // process, process group, session
    QCOMPARE(int(numbers.size()), 3);
    QCOMPARE(numbers.at(1), numbers.at(0));
    QCOMPARE(numbers.at(2), numbers.at(0));
    QVERIFY(numbers.at(0).toInt() != ::getpid());
}

void OutlivingProcessTest::deletesItselfAfterwards_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("well") << QByteArray("exit 0");
    QTest::newRow("failed") << QByteArray("exit 1");
    QTest::newRow("killed") << QByteArray("kill -9 $$");
}

void OutlivingProcessTest::deletesItselfAfterwards()
{
    QFETCH(QByteArray, command);
    const QString program = m_folder.filePath("program");
    writeScript(program, command + '\n');
    const QPointer<OutlivingProcess> process = new OutlivingProcess(program, {});
    QSignalSpy notStarted(process.data(), &OutlivingProcess::notStarted);
    process->start();
    QTRY_VERIFY(!process);
    QCOMPARE(int(notStarted.size()), 0);
}

void OutlivingProcessTest::saysThatItDidNotStart_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("missing") << m_folder.filePath("nothing");
    QTest::newRow("folder") << m_folder.path();
    QTest::newRow("not in PATH") << "no-such-program-anywhere";
    QTest::newRow("empty") << QString();
}

void OutlivingProcessTest::saysThatItDidNotStart()
{
    QFETCH(QString, program);
    const QPointer<OutlivingProcess> process = new OutlivingProcess(program, {});
    QSignalSpy notStarted(process.data(), &OutlivingProcess::notStarted);
    process->start();
    QTRY_VERIFY(!process);
    QCOMPARE(int(notStarted.size()), 1);
}

REGISTER_TEST(OutlivingProcessTest)
#include "OutlivingProcessTest.moc"
