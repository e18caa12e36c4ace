// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Applications that are started by their desktop entries.

#include <QPointer>
#include <QRegularExpression>
#include <QStandardPaths>

#include "ChildProcesses.h"
#include "DesktopPrograms.h"
#include "EntryRun.h"
#include "RecordingDesktop.h"
#include "Test.h"

class EntryRunTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsTheProgramAsTheEntrySays();
    void runsCutOff();
    void tellsFailures_data();
    void tellsFailures();
    void startsNothingThatIsNoEntry_data();
    void startsNothingThatIsNoEntry();
    void mayBeDeletedBeforeTheEnd();
    void knowsEntriesByTheirNames();
    void knowsIcons_data();
    void knowsIcons();

private:
    QString makeEntry(const QByteArray& lines) const;
    QString failureOf(const QString& entry);
    QByteArray record() const;

    QTemporaryDir m_folder;
};

/** A desktop entry of an application, with these lines. */
QString EntryRunTest::makeEntry(const QByteArray& lines) const
{
    const QString path = m_folder.filePath("org.example.Program.desktop");
    writeFile(path, "[Desktop Entry]\nType=Application\nName=My Program\n" + lines + '\n', QFile::Permissions(0x6644));
    return path;
}

/** Runs an entry to its end; the reasons of its failures. */
QString EntryRunTest::failureOf(const QString& entry)
{
    QStringList reasons;
    const QPointer<EntryRun> run = new EntryRun(entry, this);
    connect(run.data(), &EntryRun::failed, this, [&reasons](const QString& reason) { reasons.append(reason); });
    run->start();
    return QTest::qWaitFor([&] { return !run; }, 30000) ? reasons.join('\n') : "it does not delete itself";
}

QByteArray EntryRunTest::record() const
{
    QFile file(m_folder.filePath("record"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void EntryRunTest::startsTheProgramAsTheEntrySays()
{
    const QString program = m_folder.filePath("my program");
    QVERIFY(QDir().mkpath(m_folder.filePath("work")));
    writeScript(program, "{ pwd; printf '%s\\n' \"$@\"; } >'" + QFile::encodeName(m_folder.filePath("record")) + "'\n");
    const QString entry = makeEntry("Exec=\"" + QFile::encodeName(program) + "\" --name %c \"a b\" %F %u 100%%\nPath=" +
                                    QFile::encodeName(m_folder.filePath("work")));
    QCOMPARE(failureOf(entry), QString());
    QCOMPARE(QString(record()), m_folder.filePath("work") + "\n--name\nMy Program\na b\n100%\n");
    QVERIFY(!hasChildProcesses());
}

void EntryRunTest::runsCutOff()
{
    const QByteArray file = QFile::encodeName(m_folder.filePath("record"));
    const QString program = m_folder.filePath("program");
    writeScript(program, "{ readlink /proc/$$/fd/0 /proc/$$/fd/1 /proc/$$/fd/2\n"
                         "echo $(($(cut -d' ' -f6 /proc/$$/stat) - $$)); } 3>&1 >'" +
                             file + "'\n");
    QCOMPARE(failureOf(makeEntry("Exec=" + QFile::encodeName(program))), QString());
    // A session of its own; its second stream is the record here.
    QCOMPARE(QString(record()), "/dev/null\n" + QString(file) + "\n/dev/null\n0\n");
}

void EntryRunTest::tellsFailures_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QString>("failure");
    QTest::newRow("error") << QByteArray("exit 3") << "This program ended at once, with the error code 3:";
    QTest::newRow("crash") << QByteArray("kill -SEGV $$")
                           << "This program crashed (signal 11, it used memory that it does not have):";
}

void EntryRunTest::tellsFailures()
{
    QFETCH(QByteArray, command);
    const QString program = m_folder.filePath("program");
    writeScript(program, command + '\n');
    QTEST(failureOf(makeEntry("Exec=" + QFile::encodeName(program))), "failure");
    QVERIFY(!hasChildProcesses());
}

void EntryRunTest::startsNothingThatIsNoEntry_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::newRow("no program") << QByteArray();
    QTest::newRow("a program that is missing") << QByteArray("Exec=/no/such/program");
    QTest::newRow("a link") << QByteArray("Type=Link\nURL=http://example.org/");
    QTest::newRow("broken") << QByteArray("[");
}

void EntryRunTest::startsNothingThatIsNoEntry()
{
    QFETCH(QByteArray, lines);
    QCOMPARE(failureOf(makeEntry(lines)), "The application of this could not be started:");
    QVERIFY(!hasChildProcesses());
}

void EntryRunTest::mayBeDeletedBeforeTheEnd()
{
    const QString program = m_folder.filePath("program");
    const QByteArray file = QFile::encodeName(m_folder.filePath("record"));
    QFile::remove(m_folder.filePath("record"));
    writeScript(program, "until [ -e '" + file + ".go' ]; do sleep 0.01; done\necho done >'" + file + "'\n");
    EntryRun* const run = new EntryRun(makeEntry("Exec=" + QFile::encodeName(program)), nullptr);
    run->start();
    delete run;
    writeFile(m_folder.filePath("record.go"), "", QFile::Permissions(0x6644));
    QTRY_COMPARE(record(), QByteArray("done\n"));
    // Nobody else takes notice of its end.
    bool isTaken = false;
    QTRY_VERIFY(isTaken = isTaken || ::waitpid(-1, nullptr, WNOHANG) > 0);
}

void EntryRunTest::knowsEntriesByTheirNames()
{
    QVERIFY(DesktopPrograms::isEntry(QFileInfo(makeEntry(QByteArray()))));
    QVERIFY(QDir().mkpath(m_folder.filePath("folder.desktop")));
    QVERIFY(!DesktopPrograms::isEntry(QFileInfo(m_folder.filePath("folder.desktop"))));
    writeFile(m_folder.filePath("desktop"), "", QFile::Permissions(0x6644));
    QVERIFY(!DesktopPrograms::isEntry(QFileInfo(m_folder.filePath("desktop"))));
}

void EntryRunTest::knowsIcons_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("icon");
    QTest::newRow("none") << QByteArray("Exec=true") << QString();
    QTest::newRow("name") << QByteArray("Exec=true\nIcon=some-program") << "some-program";
    QTest::newRow("file") << QByteArray("Exec=true\nIcon=/usr/share/my icon.png") << "/usr/share/my icon.png";
    QTest::newRow("no application") << QByteArray("Type=Link\nURL=x:\nIcon=some-program") << QString();
}

void EntryRunTest::knowsIcons()
{
    QFETCH(QByteArray, lines);
    QTEST(DesktopPrograms::iconOfEntry(makeEntry(lines)), "icon");
}

REGISTER_TEST(EntryRunTest)
#include "EntryRunTest.moc"
