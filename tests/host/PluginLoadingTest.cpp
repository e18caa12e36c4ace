// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Which plug-ins the host takes, in which order, and what it says about the others.

#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QRegularExpression>

#include "SampleFolder.h"
#include "ProcessLimits.h"
#include "Test.h"

class PluginLoadingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadsInTheOrderOfNames();
    void refuses_data();
    void refuses();
    void refusesAPluginOfAnotherToolkit();
    void refusesAnUnreadableFile();
    void refusesWhatHasAnIdentifierOfTheHost();
    void refusesAnotherNameOfALoadedFile_data();
    void refusesAnotherNameOfALoadedFile();
    void refusesAFolderThatIsNotThere();
    void refusesALinkThatLeadsNowhere();
    void refusesToWaitForAPipe();
    void passesOverOtherFolders();
    void destroysWhatCouldNotInit();
};

static const char firstId[] = "00000000-0000-0000-0000-00000000000A";

/** Expects exactly one refusal, of this plug-in's file, and its line on the warning channel. */
static void expectWarning(const SampleFolder& folder, const QString& name, const QString& reason)
{
    const QString line = QString("Plug-in refused: %1: %2").arg(folder.file(name), reason);
    const QString pattern = '^' + QRegularExpression::escape(line) + "[^\\n]*$";
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(pattern));
}

void PluginLoadingTest::loadsInTheOrderOfNames()
{
    const SampleFolder folder;
    QVERIFY(folder.add("SampleSecond"));
    QVERIFY(folder.add("SampleFirst"));
    RecordingContainer host;
    host.container.loadFolder(folder.path());
    QCOMPARE(host.loaded(), QStringList() << "SampleFirst" << "SampleSecond");
    QCOMPARE(host.events(), QStringList() << "SampleFirst Init" << "SampleSecond Init");
    QCOMPARE(host.container.refusals().size(), 0);
}

void PluginLoadingTest::refuses_data()
{
    QTest::addColumn<QString>("sample");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const QString notLoadable = "it is not a plug-in that can be loaded: ";
    QTest::newRow("text file") << QString() << QByteArray("not a library\n") << notLoadable;
    QTest::newRow("empty file") << QString() << QByteArray() << notLoadable;
    QTest::newRow("library that is no plug-in") << "SamplePlain" << QByteArray() << notLoadable;
    QTest::newRow("no IBasePlugin") << "SampleBare" << QByteArray()
                                    << "the plug-in has no IBasePlugin";
    QTest::newRow("identifier seen before")
        << "SampleTwin" << QByteArray()
        << "its class identifier is in use already: " + QLatin1String(firstId);
    QTest::newRow("Init fails") << "SampleFailing" << QByteArray() << "its Init failed";
}

void PluginLoadingTest::refuses()
{
    QFETCH(QString, sample);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    const SampleFolder folder;
    const QString name = "SampleMiddle";
    QVERIFY(folder.add("SampleFirst"));
    QVERIFY(sample.isEmpty() ? folder.write(name, bytes) : folder.add(sample, name));
    QVERIFY(folder.add("SampleSecond"));

    RecordingContainer host;
    expectWarning(folder, name, reason);
    host.container.loadFolder(folder.path());

    QCOMPARE(host.loaded(), QStringList() << "SampleFirst" << "SampleSecond");
    const QList<PluginContainer::Refusal> refusals = host.container.refusals();
    QCOMPARE(refusals.size(), 1);
    QCOMPARE(refusals.first().file, folder.file(name));
    QCOMPARE(refusals.first().reason.left(reason.size()), reason);
    QVERIFY(!refusals.first().reason.contains('\n'));
    QVERIFY(!isMapped(folder.file(name)));
    QVERIFY(isMapped(folder.file("SampleFirst")));
}

void PluginLoadingTest::refusesAPluginOfAnotherToolkit()
{
    // The metadata says for which major version the plug-in was built.
    const SampleFolder folder;
    QVERIFY(folder.add("SampleFirst"));
    QFile library(folder.file("SampleFirst"));
    QVERIFY(library.open(QIODevice::ReadWrite));
    QByteArray bytes = library.readAll();
#if QT_VERSION >= 0x060300
    const QByteArray mark("qt-project!", 12);
#else
    const QByteArray mark("QTMETADATA !");
#endif
    const int major = bytes.indexOf(mark) + mark.size() + 1;
    QCOMPARE(int(bytes.at(major)), QT_VERSION_MAJOR);
    bytes[major] = QT_VERSION_MAJOR == 5 ? 6 : 5;
    library.seek(0);
    library.write(bytes);
    library.close();

    RecordingContainer host;
    expectWarning(folder, "SampleFirst", "it is not a plug-in that can be loaded: ");
    host.container.loadFolder(folder.path());
    QCOMPARE(host.container.plugins().size(), 0);
    QCOMPARE(host.container.refusals().size(), 1);
    QVERIFY2(host.container.refusals().first().reason.contains("incompatible Qt library"),
             qPrintable(host.container.refusals().first().reason));
}

void PluginLoadingTest::refusesAnUnreadableFile()
{
    const SampleFolder folder;
    QVERIFY(folder.add("SampleFirst"));
    QVERIFY(folder.add("SampleSecond"));
    QVERIFY(folder.write("SampleLocked", QByteArray()));
    QVERIFY(QFile::setPermissions(folder.file("SampleFirst"), QFile::Permissions()));
    const QString locked = folder.path() + "/SampleLocked";
    QVERIFY(QFile::setPermissions(locked, QFile::Permissions()));

    RecordingContainer host;
    const QString reason = "the file cannot be read";
    expectWarning(folder, "SampleFirst", reason);
    expectWarning(folder, "SampleLocked", reason);
    {
        const WithoutPrivileges user;
        QVERIFY(user.isBound());
        host.container.loadFolder(folder.path());
    }
    QFile::setPermissions(locked, QFile::Permissions(0x7700)); // so that it can be cleared away
    QCOMPARE(host.loaded(), QStringList() << "SampleSecond");
    QCOMPARE(host.container.refusals().size(), 2);
    QCOMPARE(host.container.refusals().first().reason, reason);
}

void PluginLoadingTest::refusesWhatHasAnIdentifierOfTheHost()
{
    const SampleFolder folder;
    QVERIFY(folder.add("SampleFirst"));
    RecordingContainer host;
    QObject component;
    host.container.registerComponent(QLatin1String(firstId), 8209, "Service", &component);
    expectWarning(folder, "SampleFirst", "its class identifier is in use already: ");
    host.container.loadFolder(folder.path());
    QCOMPARE(host.container.plugins().size(), 0);
    QCOMPARE(host.events(), QStringList() << "SampleFirst gone");
}

void PluginLoadingTest::refusesAnotherNameOfALoadedFile_data()
{
    QTest::addColumn<bool>("isHardLink");
    QTest::newRow("symbolic link") << false;
    QTest::newRow("hard link") << true;
}

void PluginLoadingTest::refusesAnotherNameOfALoadedFile()
{
    QFETCH(bool, isHardLink);
    const SampleFolder folder;
    QVERIFY(folder.add("SampleFirst"));
    QVERIFY(QDir(folder.path()).mkdir("SampleLink"));
    const QByteArray from = folder.file("SampleFirst").toLocal8Bit();
    const QByteArray to = folder.file("SampleLink").toLocal8Bit();
    QCOMPARE(isHardLink ? link(from.constData(), to.constData()) : symlink(from.constData(), to.constData()), 0);
    RecordingContainer host;
    expectWarning(folder, "SampleLink", "this file is loaded already");
    host.container.loadFolder(folder.path());
    QCOMPARE(host.loaded(), QStringList() << "SampleFirst");
    host.container.shutdown();
    QCOMPARE(host.events().last(), "SampleFirst gone");
    QVERIFY(isHardLink || !isMapped(folder.file("SampleFirst")));
}

void PluginLoadingTest::refusesAFolderThatIsNotThere()
{
    RecordingContainer host;
    const QString folder = "/nonexistent/plugins";
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Plug-in refused: /nonexistent/plugins: "));
    host.container.loadFolder(folder);
    QCOMPARE(host.container.refusals().size(), 1);
    QCOMPARE(host.container.refusals().first().file, folder);
}

void PluginLoadingTest::refusesALinkThatLeadsNowhere()
{
    const SampleFolder folder;
    const QString name = "SampleLink";
    QVERIFY(QDir(folder.path()).mkdir(name));
    QCOMPARE(symlink("nonexistent", folder.file(name).toLocal8Bit().constData()), 0);
    RecordingContainer host;
    expectWarning(folder, name, "the file cannot be read");
    host.container.loadFolder(folder.path());
    QCOMPARE(host.container.refusals().size(), 1);
}

void PluginLoadingTest::refusesToWaitForAPipe()
{
    const SampleFolder folder;
    const QString name = "SamplePipe";
    QVERIFY(QDir(folder.path()).mkdir(name));
    QCOMPARE(mkfifo(folder.file(name).toLocal8Bit().constData(), 0600), 0);
    RecordingContainer host;
    expectWarning(folder, name, "it is not a regular file");
    host.container.loadFolder(folder.path());
    QCOMPARE(host.container.refusals().size(), 1);
}

void PluginLoadingTest::passesOverOtherFolders()
{
    // Neither a folder without a library of its name nor a library outside such a folder is a plug-in.
    const SampleFolder folder;
    QVERIFY(QDir(folder.path()).mkdir("Pictures"));
    QVERIFY(folder.add("SampleFirst"));
    QVERIFY(
        QFile::copy(folder.file("SampleFirst"), folder.path() + "/libSampleOne.so"));
    QVERIFY(QFile::rename(folder.file("SampleFirst"),
                          folder.path() + "/SampleFirst/libOther.so"));
    RecordingContainer host;
    host.container.loadFolder(folder.path());
    QCOMPARE(host.container.plugins().size(), 0);
    QCOMPARE(host.container.refusals().size(), 0);
}

void PluginLoadingTest::destroysWhatCouldNotInit()
{
    const SampleFolder folder;
    QVERIFY(folder.add("SampleFailing"));
    RecordingContainer host;
    expectWarning(folder, "SampleFailing", "its Init failed");
    host.container.loadFolder(folder.path());
    QCOMPARE(host.events(), QStringList()
                                << "SampleFailing Init" << "SampleFailing OnDestroy"
                                << "SampleFailing late" << "SampleFailing gone");
}

REGISTER_TEST(PluginLoadingTest)
#include "PluginLoadingTest.moc"
