// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Saving where the disk does not play along.

#include <sys/mount.h>

#include "ProcessLimits.h"
#include "StoreFixture.h"
#include "Test.h"

using namespace StoreFixture;

namespace
{
const char oldBytes[] = "old bytes";

/** Links whose document is longer than a megabyte. */
QuickLinkRecordList manyLinks()
{
    QuickLinkRecord record = makeRecord("name", "internet", "www.example.org");
    record.id = "0";
    record.para = QString(1000, 'p');
    return QuickLinkRecordList(1000, record);
}

/** The writer's trace where something could not be written. */
QStringList writeErrorLines()
{
    QStringList lines = writerLines();
    lines.insert(1, "Error write file: .+");
    return lines;
}

/** A file system of one megabyte over a folder while it lives. */
class SmallDisk
{
public:
    explicit SmallDisk(const QString& folder)
        : m_folder(QFile::encodeName(folder))
        , m_isMounted(mount("tmpfs", m_folder.constData(), "tmpfs", 0, "size=1m,mode=755") == 0)
    {
    }

    ~SmallDisk()
    {
        if (m_isMounted)
            umount2(m_folder.constData(), MNT_DETACH);
    }

    bool isMounted() const { return m_isMounted; }

private:
    SmallDisk(const SmallDisk&);
    SmallDisk& operator=(const SmallDisk&);

    QByteArray m_folder;
    bool m_isMounted;
};
} // namespace

class StoreWriterDiskTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { begin(); }
    void cleanup()
    {
        setMode(FakeHost::instance().configFolder(), 0755);
        end();
    }

    void fileThatCannotBeOpened_data();
    void fileThatCannotBeOpened();
    void oldFileIsGoneAfterFailedOpen();
    void fileThatCannotBeRemovedKeepsItsTail();
    void writeErrorsAreOnlyTraced_data();
    void writeErrorsAreOnlyTraced();
    void deviceThatIsAlwaysFull();
    void fullDiskIsOnlyTraced();
};

void StoreWriterDiskTest::fileThatCannotBeOpened_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("folder gone") << "gone";
    QTest::newRow("a file in the folder's place") << "file";
    QTest::newRow("config.xml is an empty folder") << "empty folder";
    QTest::newRow("config.xml is a folder with something in it") << "full folder";
    QTest::newRow("read-only folder") << "read-only";
}

void StoreWriterDiskTest::fileThatCannotBeOpened()
{
    QFETCH(QString, how);
    FakeHost& host = FakeHost::instance();
    const QString folder = host.configFolder();
    if (how == "gone" || how == "file")
        QVERIFY(QDir().rmdir(folder));
    if (how == "file") {
        QFile file(folder);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    if (how == "empty folder")
        QVERIFY(QDir().mkpath(host.configPath()));
    if (how == "full folder")
        QVERIFY(QDir().mkpath(host.configPath() + "/inner"));

    store()->m_currentId = "7";
    store()->m_recordList = new QuickLinkRecordList(1, makeRecord("a", "internet", "u"));
    QuickLinkRecordList* const list = store()->m_recordList;
    RecordingTrace trace;
    int result = -1;
    if (how == "read-only") {
        QVERIFY(setMode(host.userFolder, 0755) && setMode(folder, 0555));
        WithoutPrivileges noPrivileges;
        if (!noPrivileges.isBound() || !QFile::exists(folder))
            QSKIP("cannot become a user whom the folder's permissions bind");
        result = store()->SaveToConfigFile(list, 0);
    } else {
        result = store()->SaveToConfigFile(list, 0);
    }
    QCOMPARE(result, 25);
    QCOMPARE(store()->m_currentId, "7");
    QCOMPARE(store()->m_recordList, list);
    QCOMPARE(list->size(), 1);
    QVERIFY(!QFileInfo(host.configPath()).isFile());
    if (how.endsWith(" folder"))
        QVERIFY(QFileInfo(host.configPath()).isDir());
    if (how == "gone")
        QVERIFY(!QFile::exists(folder));
    QCOMPARE(trace.debugDifference(writerLines("Error open file: ")), QString());
}

void StoreWriterDiskTest::oldFileIsGoneAfterFailedOpen()
{
    FakeHost& host = FakeHost::instance();
    QVERIFY(host.writeConfig(oldBytes));
    store()->m_currentId = "7";
    QuickLinkRecordList records(1, makeRecord("a", "internet", "u"));
    RecordingTrace trace;
    {
        LowerLimit noFiles(RLIMIT_NOFILE, 0);
        QVERIFY(noFiles.isLowered());
        QCOMPARE(store()->SaveToConfigFile(&records, 0), 25);
    }
    QVERIFY(!QFile::exists(host.configPath()));
    QCOMPARE(store()->m_currentId, "7");
    QCOMPARE(records.size(), 1);
    QCOMPARE(trace.countDebug("Error open file: "), 1);

    // The links are in memory still, so the next save brings the file back.
    QCOMPARE(store()->SaveToConfigFile(&records, 0), 0);
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QCOMPARE(names(), "a");
}

void StoreWriterDiskTest::fileThatCannotBeRemovedKeepsItsTail()
{
    FakeHost& host = FakeHost::instance();
    const QByteArray tail(5000, 'x');
    QVERIFY(host.writeConfig(tail));
    QVERIFY(setMode(host.userFolder, 0755));
    QVERIFY(setMode(host.configPath(), 0666));
    QVERIFY(setMode(host.configFolder(), 0555));
    QuickLinkRecordList records;
    {
        WithoutPrivileges noPrivileges;
        if (!noPrivileges.isBound() || !QFile::exists(host.configPath()))
            QSKIP("cannot become a user whom the folder's permissions bind");
        QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    }
    const QByteArray written = configDocument("1", QString(), {});
    QCOMPARE(host.readConfig(), written + tail.mid(written.size()));
}

void StoreWriterDiskTest::writeErrorsAreOnlyTraced_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("limit"); // bytes
    QTest::newRow("while text is written") << 1000 << 100000;
    QTest::newRow("when the file is closed") << 1 << 100;
}

void StoreWriterDiskTest::writeErrorsAreOnlyTraced()
{
    QFETCH(int, count);
    QFETCH(int, limit);
    FakeHost& host = FakeHost::instance();
    QuickLinkRecordList records = manyLinks().mid(0, count);
    store()->m_currentId = "7";
    RecordingTrace trace;
    {
        LowerLimit smallFiles(RLIMIT_FSIZE, limit);
        QVERIFY(smallFiles.isLowered());
        QCOMPARE(store()->SaveToConfigFile(&records, 0), 0);
    }
    QVERIFY(host.readConfig().size() <= limit);
    QCOMPARE(store()->m_currentId, "8");
    QCOMPARE(records.size(), count);
    QCOMPARE(trace.debugDifference(writeErrorLines()), QString());
    QCOMPARE(trace.warningLines, QStringList());
}

void StoreWriterDiskTest::deviceThatIsAlwaysFull()
{
    FakeHost& host = FakeHost::instance();
    QVERIFY(QFile::link("/dev/full", host.configPath()));
    QVERIFY(setMode(host.userFolder, 0755));
    QVERIFY(setMode(host.configFolder(), 0555));
    QuickLinkRecordList records(1, numbered("0", "a"));
    RecordingTrace trace;
    {
        WithoutPrivileges noPrivileges;
        if (!noPrivileges.isBound() || !QFile::exists(host.configPath()))
            QSKIP("cannot become a user whom the folder's permissions bind");
        QCOMPARE(store()->SaveToConfigFile(&records, 1), 0);
    }
    QVERIFY(QFileInfo(host.configPath()).isSymLink());
    QCOMPARE(trace.debugDifference(writeErrorLines()), QString());
}

void StoreWriterDiskTest::fullDiskIsOnlyTraced()
{
    FakeHost& host = FakeHost::instance();
    SmallDisk disk(host.configFolder());
    if (!disk.isMounted())
        QSKIP("not allowed to mount a small file system");
    QuickLinkRecordList records = manyLinks();
    store()->m_currentId = "7";
    RecordingTrace trace;
    QCOMPARE(store()->SaveToConfigFile(&records, 0), 0);
    QCOMPARE(trace.debugDifference(writeErrorLines()), QString());
    QVERIFY(host.readConfig().size() <= (1 << 20));
    QCOMPARE(store()->m_currentId, "8");
    QCOMPARE(records.size(), 1000);

    // What did arrive is read up to where it breaks off.
    QCOMPARE(store()->ReadXmlInformation(), 0);
    QVERIFY(store()->m_recordList->size() > 0);
    QVERIFY(store()->m_recordList->size() < 1000);

    // With room again the next save is whole.
    QuickLinkRecordList few(2, records.at(0));
    QCOMPARE(store()->SaveToConfigFile(&few, 1), 0);
    QCOMPARE(host.readConfig(), configDocument("1", "8", {few.at(0), few.at(1)}));
}

REGISTER_TEST(StoreWriterDiskTest)
#include "StoreWriterDiskTest.moc"
