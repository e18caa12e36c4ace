// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Files of links that mean harm, or that harm has come to: what the guard finds at the start, what it tells, and what
// the plug-in loads then. Each with links kept from before, and without.

#include <functional>

#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "../store/StoreFixture.h"
#include "GuardedFolder.h"
#include "HostileContents.h"
#include "LinkGuard.h"
#include "ProcessLimits.h"
#include "Test.h"

using Event = LinkGuard::Event;

Q_DECLARE_METATYPE(std::function<bool()>)

class HostileFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void content_data();
    void content();
    void place_data();
    void place();
    void placeWithoutRights_data();
    void placeWithoutRights();

private:
    /** What happened at a start. */
    struct Start {
        Event event;
        int links; ///< that the plug-in loaded; notLoaded where it must not try
    };

    static Start start();
    static void keepHistory();
    static void compare(const Start& found, int kind, int links, bool isSetAside);
    static QString file() { return FakeHost::instance().configPath(); }
    static QByteArray fileName() { return QFile::encodeName(file()); }
    static QString outside() { return FakeHost::instance().userFolder + "/outside.xml"; }
};

static const int linksBefore = 3;
static const int notLoaded = -1; // the plug-in would wait for ever
static const QByteArray linksNow = GuardedFolder::links({"A", "B"});

void HostileFilesTest::init()
{
    StoreFixture::begin();
    QFile::setPermissions(FakeHost::instance().userFolder, QFile::Permissions(0x7055));
}

void HostileFilesTest::cleanup()
{
    StoreFixture::end();
}

/** A run of the program before, which ended well and kept three links. */
void HostileFilesTest::keepHistory()
{
    QVERIFY(FakeHost::instance().writeConfig(GuardedFolder::links({"X", "Y", "Z"})));
    LinkGuard guard(FakeHost::instance().userFolder);
    guard.start(false);
    guard.watch();
    QVERIFY(QFile::remove(file()));
}

/** As the program does it: the guard looks first, and the plug-in reads only what keeps nobody waiting. */
HostileFilesTest::Start HostileFilesTest::start()
{
    LinkGuard guard(FakeHost::instance().userFolder);
    Start found = {guard.start(false), notLoaded};
    if (!guard.isSafeToRead())
        return found;
    StoreFixture::store()->ReadXmlInformation();
    found.links = int(StoreFixture::store()->m_recordList->size());
    return found;
}

void HostileFilesTest::compare(const Start& found, int kind, int links, bool isSetAside)
{
    QCOMPARE(int(found.event.kind), kind);
    QCOMPARE(found.links, links);
    QCOMPARE(!found.event.setAside.isEmpty(), isSetAside);
    // A pipe or a link that leads nowhere is there as well.
    struct stat status = {};
    QCOMPARE(lstat(QFile::encodeName(found.event.setAside).constData(), &status) == 0, isSetAside);
}

void HostileFilesTest::content_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("condition");
    QTest::addColumn<int>("links");
    for (const auto& contents :
         {HostileContent::encodings(), HostileContent::cuts(), HostileContent::bombs(), HostileContent::oddities()}) {
        for (const HostileContent& row : contents)
            QTest::newRow(row.name.constData()) << row.content << int(row.condition) << row.links;
    }
}

/** What a file is told as where nothing was kept before. */
static Event::Kind kindWithoutHistory(int condition)
{
    switch (condition) {
    case LinkFile::Missing:
        return Event::FirstStart;
    case LinkFile::Good:
    case LinkFile::Empty:
        return Event::Nothing;
    default:
        return Event::NothingKept;
    }
}

void HostileFilesTest::content()
{
    QFETCH(QByteArray, content);
    QFETCH(int, condition);
    QFETCH(int, links);
    rusage before = {};
    getrusage(RUSAGE_SELF, &before);
    QVERIFY(FakeHost::instance().writeConfig(content));
    QCOMPARE(int(LinkFile::look(file()).condition), condition);

    // Without a state to put back, what is in front of the damage is read, and a copy of the whole is kept.
    const bool isBad = condition != LinkFile::Good && condition != LinkFile::Empty;
    const bool isRead = condition != LinkFile::TooLarge;
    compare(start(), kindWithoutHistory(condition), isRead ? links : 0, isBad);

    keepHistory();
    QVERIFY(FakeHost::instance().writeConfig(content));
    const bool isGood = condition == LinkFile::Good;
    compare(start(), isGood ? Event::Nothing : Event::PutBack, isGood ? links : linksBefore, !isGood);

    rusage after = {};
    getrusage(RUSAGE_SELF, &after);
    QVERIFY(after.ru_utime.tv_sec - before.ru_utime.tv_sec < 30);
    QVERIFY2(after.ru_maxrss - before.ru_maxrss < 400 * 1024, qPrintable(QString::number(after.ru_maxrss))); // KiB
}

/** A file of which only the end is on the disk, if that. */
static bool makeTenGigabytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.resize(qint64(10) * 1024 * 1024 * 1024);
}

static bool makeSocket(const QByteArray& path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
    const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
    const bool isBound = bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    close(descriptor);
    return isBound;
}

void HostileFilesTest::place_data()
{
    QTest::addColumn<std::function<bool()>>("make");
    QTest::addColumn<int>("condition");
    QTest::addColumn<int>("links");
    using Make = std::function<bool()>;
    const auto add = [](const char* name, const Make& make, LinkFile::Condition condition, int links) {
        QTest::newRow(name) << make << int(condition) << links;
    };
    const auto linkTo = [](const QString& target) {
        return [target] {
            return QFile::link(target, file());
        };
    };
    const auto written = [](const QString& path, const QByteArray& content) {
        return GuardedFolder::writeTo(path, content);
    };
    add(
        "nothing", [] { return true; }, LinkFile::Missing, 0);
    add(
        "link to a file beside it",
        [=] { return written(file() + ".real", linksNow) && QFile::link("config.xml.real", file()); }, LinkFile::Good,
        2);
    add(
        "link to a damaged file",
        [=] { return written(file() + ".real", "<a>") && QFile::link("config.xml.real", file()); }, LinkFile::Damaged,
        0);
    add(
        "link out of the folder", [=] { return written(outside(), linksNow) && QFile::link(outside(), file()); },
        LinkFile::Good, 2);
    add("link to itself", linkTo("config.xml"), LinkFile::Missing, 0);
    add(
        "two links to each other",
        [] { return QFile::link("config.xml", file() + ".b") && QFile::link("config.xml.b", file()); },
        LinkFile::Missing, 0);
    add("link to nothing", linkTo("/no/such/file"), LinkFile::Missing, 0);
    add("link to /dev/zero", linkTo("/dev/zero"), LinkFile::NotRegular, 0);
    add("link to /dev/null", linkTo("/dev/null"), LinkFile::NotRegular, 0);
    add("link to /dev/random", linkTo("/dev/random"), LinkFile::NotRegular, 0);
    add("link to a terminal", linkTo("/dev/ptmx"), LinkFile::NotRegular, 0);
    add("link to what a process is given", linkTo("/proc/self/environ"), LinkFile::Damaged, 0);
    add("link to memory", linkTo("/proc/self/mem"), LinkFile::Unreadable, 0);
    add("link to a folder", linkTo("/"), LinkFile::NotRegular, 0);
    add("link to its own folder", linkTo("."), LinkFile::NotRegular, 0);
    add(
        "pipe", [] { return mkfifo(fileName().constData(), 0600) == 0; }, LinkFile::NotRegular, 0);
    add(
        "link to a pipe",
        [] { return mkfifo((fileName() + ".pipe").constData(), 0600) == 0 && QFile::link("config.xml.pipe", file()); },
        LinkFile::NotRegular, 0);
    add(
        "socket", [] { return makeSocket(fileName()); }, LinkFile::NotRegular, 0);
    add(
        "folder", [] { return QDir().mkdir(file()); }, LinkFile::NotRegular, 0);
    add(
        "folder with something in it", [] { return QDir().mkpath(file() + "/config.xml"); }, LinkFile::NotRegular, 0);
    add(
        "one of two names",
        [=] {
            return written(outside(), linksNow) &&
                   link(QFile::encodeName(outside()).constData(), fileName().constData()) == 0;
        },
        LinkFile::Good, 2);
    add(
        "ten gigabytes of nothing", [] { return makeTenGigabytes(file()); }, LinkFile::TooLarge, 0);
    add(
        "two links and 10 MiB of blanks", [=] { return written(file(), linksNow + QByteArray(10 * 1024 * 1024, ' ')); },
        LinkFile::Good, 2);
    add(
        "file that nobody may write", [=] { return written(file(), linksNow) && setMode(file(), 0400); },
        LinkFile::Good, 2);
    add(
        "program", [=] { return written(file(), "#!/bin/sh\n") && setMode(file(), 0700); }, LinkFile::Damaged, 0);
}

void HostileFilesTest::place()
{
    QFETCH(std::function<bool()>, make);
    QFETCH(int, condition);
    QFETCH(int, links);
    QVERIFY(make());
    QCOMPARE(int(LinkFile::look(file()).condition), condition);
    const bool isBad = condition != LinkFile::Good && condition != LinkFile::Missing;
    compare(start(), kindWithoutHistory(condition), links, isBad);

    cleanup();
    init();
    keepHistory();
    QVERIFY(make());
    if (condition == LinkFile::Missing)
        compare(start(), Event::Gone, 0, false);
    else
        compare(start(), isBad ? Event::PutBack : Event::Nothing, isBad ? linksBefore : links, isBad);
    // What a link led to is what it was.
    QCOMPARE(GuardedFolder::readFrom(outside()), QFile::exists(outside()) ? linksNow : QByteArray("no file"));
}

void HostileFilesTest::placeWithoutRights_data()
{
    QTest::addColumn<int>("fileMode");
    QTest::addColumn<int>("folderMode");
    QTest::addColumn<QByteArray>("content"); ///< empty for a pipe
    QTest::addColumn<bool>("hasHistory");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("links");
    QTest::addColumn<bool>("isSetAside");
    const QByteArray half = linksNow.left(linksNow.indexOf("</menu>"));
    QTest::newRow("unreadable") << 0 << 0700 << linksNow << false << int(Event::NothingKept) << 0 << true;
    QTest::newRow("unreadable, with a history")
        << 0 << 0700 << linksNow << true << int(Event::PutBack) << linksBefore << true;
    QTest::newRow("read-only folder") << 0600 << 0500 << linksNow << true << int(Event::Nothing) << 2 << false;
    QTest::newRow("damaged in a read-only folder")
        << 0600 << 0500 << half << false << int(Event::NothingKept) << 2 << false;
    QTest::newRow("damaged in a read-only folder, with a history")
        << 0600 << 0500 << half << true << int(Event::Lost) << 2 << false;
    QTest::newRow("unreadable in a read-only folder, with a history")
        << 0 << 0500 << half << true << int(Event::Lost) << 0 << false;
    QTest::newRow("folder without rights") << 0600 << 0 << linksNow << false << int(Event::NothingKept) << 0 << false;
    QTest::newRow("folder without rights, with a history")
        << 0600 << 0 << linksNow << true << int(Event::Lost) << 0 << false;
    QTest::newRow("pipe in a read-only folder")
        << 0600 << 0500 << QByteArray() << true << int(Event::Lost) << notLoaded << false;
}

void HostileFilesTest::placeWithoutRights()
{
    QFETCH(int, fileMode);
    QFETCH(int, folderMode);
    QFETCH(QByteArray, content);
    QFETCH(bool, hasHistory);
    const QString folder = FakeHost::instance().userFolder;
    const QStringList own = {folder, folder + "/plugins", FakeHost::instance().configFolder()};
    for (const QString& place : own)
        QVERIFY(geteuid() != 0 || chown(QFile::encodeName(place).constData(), 65534, 65534) == 0);
    const WithoutPrivileges without;
    QVERIFY(without.isBound());
    if (hasHistory)
        keepHistory();
    QVERIFY(content.isEmpty() ? mkfifo(fileName().constData(), 0600) == 0 : FakeHost::instance().writeConfig(content));
    QVERIFY(setMode(file(), mode_t(fileMode)));
    QVERIFY(setMode(FakeHost::instance().configFolder(), mode_t(folderMode)));
    const Start found = start();
    QVERIFY(setMode(FakeHost::instance().configFolder(), 0700));
    QTEST(int(found.event.kind), "kind");
    QTEST(found.links, "links");
    QTEST(!found.event.setAside.isEmpty(), "isSetAside");
}

REGISTER_TEST(HostileFilesTest)
#include "HostileFilesTest.moc"
