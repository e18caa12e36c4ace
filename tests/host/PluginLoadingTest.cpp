// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Which plug-ins the host takes, in which order, and what it says about the others.

#include <sys/stat.h>
#include <unistd.h>

#include <QDir>

#include "PluginFixture.h"
#include "ProcessLimits.h"
#include "RecordedEvents.h"
#include "RecordingTrace.h"
#include "Test.h"

class PluginLoadingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void loadsInTheOrderOfNames();
    void refuses_data();
    void refuses();
    void refusesAPluginOfAnotherToolkit();
    void refusesWhatCannotBeRead();
    void refusesWhatHasAnIdentifierOfTheHost();
    void refusesAnotherNameOfALoadedFile_data();
    void refusesAnotherNameOfALoadedFile();
    void refusesAFolderThatIsNotThere();
    void refusesALinkThatLeadsNowhere();
    void refusesToWaitForAPipe();
    void passesOverOtherFolders();
    void destroysWhatCouldNotInit();

private:
    void compareRefusals(const QStringList& files, const QString& reason) const;
    void compareRefusal(const QString& plugin, const QString& reason) const;
    QByteArray makeFolder(const QString& plugin) const;

    QScopedPointer<PluginFixture> m_host;
    QScopedPointer<RecordingTrace> m_trace;
};

static const char recordingFirstId[] = "00000000-0000-0000-0000-00000000000A";

void PluginLoadingTest::init()
{
    m_trace.reset(new RecordingTrace);
    m_host.reset(new PluginFixture);
}

void PluginLoadingTest::cleanup()
{
    m_host.reset();
    m_trace.reset();
}

/** Exactly these files were refused, in this order, each for a reason that begins so, with a line of warning each. */
void PluginLoadingTest::compareRefusals(const QStringList& files, const QString& reason) const
{
    const QList<PluginContainer::Refusal> refusals = m_host->container.refusals();
    QCOMPARE(refusals.size(), files.size());
    // A toolkit may add lines of its own.
    const QStringList lines = m_trace->warningLines.filter("Plug-in refused: ");
    QCOMPARE(lines.size(), files.size());
    for (int i = 0; i < files.size(); ++i) {
        QCOMPARE(refusals.at(i).file, files.at(i));
        QCOMPARE(refusals.at(i).reason.left(reason.size()), reason);
        QVERIFY(!refusals.at(i).reason.contains('\n'));
        QCOMPARE(lines.at(i), "Plug-in refused: " + files.at(i) + ": " + refusals.at(i).reason);
    }
}

void PluginLoadingTest::compareRefusal(const QString& plugin, const QString& reason) const
{
    compareRefusals(QStringList() << m_host->folder.file(plugin), reason);
}

/** Makes the folder of a plug-in, and answers where its library belongs. */
QByteArray PluginLoadingTest::makeFolder(const QString& plugin) const
{
    QDir(m_host->folder.path()).mkdir(plugin);
    return QFile::encodeName(m_host->folder.file(plugin));
}

void PluginLoadingTest::loadsInTheOrderOfNames()
{
    m_host->folder.add("RecordingSecond");
    m_host->folder.add("RecordingFirst");
    QCOMPARE(m_host->load(), QStringList() << "RecordingFirst"
                                           << "RecordingSecond");
    QCOMPARE(takeEvents(), QStringList() << "RecordingFirst Init"
                                         << "RecordingSecond Init");
    compareRefusals(QStringList(), QString());
}

void PluginLoadingTest::refuses_data()
{
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const QByteArray none;
    const QString notLoadable = "it is not a plug-in that can be loaded: ";
    const QString used = "its class identifier is in use already: ";
    QTest::newRow("text file") << QString() << QByteArray("not a library\n") << notLoadable;
    QTest::newRow("empty file") << QString() << none << notLoadable;
    QTest::newRow("library that is no plug-in") << "FakeLibrary" << none << notLoadable;
    QTest::newRow("no IBasePlugin") << "FakeForeign" << none << "the plug-in has no IBasePlugin";
    QTest::newRow("identifier seen before") << "RecordingTwin" << none << used + recordingFirstId;
    QTest::newRow("Init fails") << "RecordingFailing" << none << "its Init failed";
}

void PluginLoadingTest::refuses()
{
    QFETCH(QString, plugin);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    const PluginFolder& folder = m_host->folder;
    const QString name = "RecordingMiddle";
    folder.add("RecordingFirst");
    if (plugin.isEmpty())
        folder.write(name, bytes);
    else
        folder.add(plugin, name);
    folder.add("RecordingSecond");

    QCOMPARE(m_host->load(), QStringList() << "RecordingFirst"
                                           << "RecordingSecond");
    compareRefusal(name, reason);
    QVERIFY(!isMapped(folder.file(name)));
    QVERIFY(isMapped(folder.file("RecordingFirst")));
}

void PluginLoadingTest::refusesAPluginOfAnotherToolkit()
{
    m_host->folder.add("RecordingFirst");
    QFile library(m_host->folder.file("RecordingFirst"));
    QVERIFY(library.open(QIODevice::ReadOnly));
    const QByteArray later = builtForLaterToolkit(library.readAll());
    QVERIFY(!later.isEmpty());
    m_host->folder.write("RecordingFirst", later);

    QCOMPARE(m_host->load(), QStringList());
    compareRefusal("RecordingFirst", "it is not a plug-in that can be loaded: ");
    const QString reason = m_host->container.refusals().first().reason;
    QVERIFY2(reason.contains("incompatible Qt library"), qPrintable(reason));
}

void PluginLoadingTest::refusesWhatCannotBeRead()
{
    const PluginFolder& folder = m_host->folder;
    folder.add("RecordingFirst");
    folder.write("RecordingLocked", QByteArray());
    folder.add("RecordingSecond");
    const QString locked = QFileInfo(folder.file("RecordingLocked")).path();
    QVERIFY(setMode(folder.file("RecordingFirst"), 0));
    QVERIFY(setMode(locked, 0));
    QStringList loaded;
    {
        const WithoutPrivileges user;
        QVERIFY(user.isBound());
        loaded = m_host->load();
    }
    QVERIFY(setMode(locked, 0700)); // so that it can be cleared away
    QCOMPARE(loaded, QStringList() << "RecordingSecond");
    compareRefusals(QStringList() << folder.file("RecordingFirst") << folder.file("RecordingLocked"),
                    "the file cannot be read");
}

void PluginLoadingTest::refusesWhatHasAnIdentifierOfTheHost()
{
    m_host->folder.add("RecordingFirst");
    QObject component;
    m_host->container.registerComponent(recordingFirstId, 8209, "Service", &component);
    QCOMPARE(m_host->load(), QStringList());
    compareRefusal("RecordingFirst", "its class identifier is in use already: ");
    QCOMPARE(takeEvents(), QStringList() << "RecordingFirst gone");
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
    m_host->folder.add("RecordingFirst");
    const QString first = m_host->folder.file("RecordingFirst");
    const QByteArray from = QFile::encodeName(first);
    const QByteArray to = makeFolder("RecordingLink");
    QCOMPARE(isHardLink ? link(from.constData(), to.constData()) : symlink(from.constData(), to.constData()), 0);
    QCOMPARE(m_host->load(), QStringList() << "RecordingFirst");
    compareRefusal("RecordingLink", "this file is loaded already");
    m_host->container.shutdown();
    QCOMPARE(takeEvents().last(), "RecordingFirst gone");
    QVERIFY(isHardLink || !isMapped(first));
}

void PluginLoadingTest::refusesAFolderThatIsNotThere()
{
    const QString folder = "/nonexistent/plugins";
    m_host->container.loadFolder(folder);
    compareRefusals(QStringList() << folder, QString());
}

void PluginLoadingTest::refusesALinkThatLeadsNowhere()
{
    QCOMPARE(symlink("nonexistent", makeFolder("RecordingLink").constData()), 0);
    QCOMPARE(m_host->load(), QStringList());
    compareRefusal("RecordingLink", "the file cannot be read");
}

void PluginLoadingTest::refusesToWaitForAPipe()
{
    QCOMPARE(mkfifo(makeFolder("RecordingPipe").constData(), 0600), 0);
    QCOMPARE(m_host->load(), QStringList());
    compareRefusal("RecordingPipe", "it is not a regular file");
}

void PluginLoadingTest::passesOverOtherFolders()
{
    // Neither a folder without a library of its name nor a library outside such a folder is a plug-in.
    const PluginFolder& folder = m_host->folder;
    makeFolder("Pictures");
    folder.add("RecordingFirst");
    const QString first = folder.file("RecordingFirst");
    QVERIFY(QFile::copy(first, folder.path() + "/libRecordingOne.so"));
    QVERIFY(QFile::rename(first, folder.path() + "/RecordingFirst/libOther.so"));
    QCOMPARE(m_host->load(), QStringList());
    compareRefusals(QStringList(), QString());
}

void PluginLoadingTest::destroysWhatCouldNotInit()
{
    m_host->folder.add("RecordingFailing");
    QCOMPARE(m_host->load(), QStringList());
    compareRefusal("RecordingFailing", "its Init failed");
    QCOMPARE(takeEvents(), QStringList() << "RecordingFailing Init"
                                         << "RecordingFailing OnDestroy"
                                         << "RecordingFailing late"
                                         << "RecordingFailing gone");
}

REGISTER_TEST(PluginLoadingTest)
#include "PluginLoadingTest.moc"
