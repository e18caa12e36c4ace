// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// One run of xdg-open, and what it means when it fails.

#include <QPointer>
#include <QSignalSpy>

#include "DesktopOpener.h"
#include "RecordingDesktop.h"
#include "Test.h"

class DesktopOpenerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handsOverTheTarget_data();
    void handsOverTheTarget();
    void saysWhyItFailed_data();
    void saysWhyItFailed();
    void takesALateEndForNoFailure();
    void saysThatItWasEndedFromOutside();
    void saysWhatIsMissing();
    void runsCutOff();
};

namespace
{
/** While it lives, PATH is this one folder, which is empty at first. */
class OnlyPath
{
public:
    OnlyPath()
        : m_path(qgetenv("PATH"))
    {
        qputenv("PATH", QFile::encodeName(m_folder.path()));
    }
    ~OnlyPath() { qputenv("PATH", m_path); }

    QString file(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
    const QByteArray m_path;
};
} // namespace

/** Runs an opener, which is given away, to its end. The reason why it failed; empty where it did not. */
static QString reasonOf(const QPointer<DesktopOpener>& opener)
{
    QStringList reasons;
    QObject::connect(opener.data(), &DesktopOpener::failed, QCoreApplication::instance(),
                     [&reasons](const QString& reason) { reasons.append(reason); });
    opener->start();
    return QTest::qWaitFor([&] { return !opener; }, 30000) ? reasons.join('\n') : "it does not delete itself";
}

static QString reasonOfRun(const QString& target)
{
    return reasonOf(new DesktopOpener(target));
}

void DesktopOpenerTest::handsOverTheTarget_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("address") << "http://example.org/?a=1&b=$HOME";
    QTest::newRow("path") << "/home/someone/My \"files\"; x";
}

void DesktopOpenerTest::handsOverTheTarget()
{
    QFETCH(QString, target);
    const RecordingDesktop desktop;
    QCOMPARE(reasonOfRun(target), QString());
    QCOMPARE(desktop.opened(), QStringList(target));
}

void DesktopOpenerTest::saysWhyItFailed_data()
{
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("reason");
    const QString other = "The desktop could not open this:";
    QTest::newRow("0") << 0 << QString();
    QTest::newRow("1") << 1 << other;
    QTest::newRow("2") << 2 << "There is no such file or folder:";
    QTest::newRow("3") << 3 << "No program was found that opens this:";
    QTest::newRow("4") << 4 << "The program that opens this reported a failure:";
    QTest::newRow("5") << 5 << other;
    QTest::newRow("255") << 255 << other;
}

void DesktopOpenerTest::saysWhyItFailed()
{
    QFETCH(int, exitCode);
    const RecordingDesktop desktop;
    desktop.answer(exitCode);
    QTEST(reasonOfRun("/x"), "reason");
    QCOMPARE(desktop.opened().size(), 1);
}

void DesktopOpenerTest::takesALateEndForNoFailure()
{
    const RecordingDesktop desktop;
    desktop.answer(4);
    QCOMPARE(reasonOf(new DesktopOpener("/x", 0)), QString());
    QCOMPARE(desktop.opened().size(), 1);
}

void DesktopOpenerTest::saysThatItWasEndedFromOutside()
{
    const OnlyPath path;
    writeScript(path.file("xdg-open"), "kill -9 $$\n");
    QCOMPARE(reasonOfRun("/x"), "The desktop could not open this:");
}

void DesktopOpenerTest::saysWhatIsMissing()
{
    const OnlyPath path;
    QCOMPARE(reasonOfRun("/x"), "Opening this needs the program \"xdg-open\", which could not be started:");
}

void DesktopOpenerTest::runsCutOff()
{
    // Neither this program's terminal nor its end may reach what was opened.
    const QByteArray tools = qgetenv("PATH");
    const OnlyPath path;
    const QString record = path.file("record");
    writeScript(path.file("xdg-open"), "PATH='" + tools +
                                           "'\nfiles=$(readlink /proc/$$/fd/0 /proc/$$/fd/1 /proc/$$/fd/2)\n"
                                           "session=$(cut -d' ' -f6 /proc/$$/stat)\n"
                                           "printf '%s\\n' \"$files\" $((session - $$)) >'" +
                                           QFile::encodeName(record) + "'\n");
    QCOMPARE(reasonOfRun("/x"), QString());
    QFile file(record);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("/dev/null\n/dev/null\n/dev/null\n0\n"));
}

REGISTER_TEST(DesktopOpenerTest)
#include "DesktopOpenerTest.moc"
