// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What may lie in the place of a plug-in, and what the host does with it.

#include <sys/socket.h>
#include <sys/un.h>

#include "PlacedFiles.h"

namespace
{
/** A built library with some of its bytes exchanged. */
QByteArray changed(int offset, const QByteArray& bytes)
{
    QFile library(QString(FAKE_PLUGINS) + "/FakeSilent/libFakeSilent.so");
    need(library.open(QIODevice::ReadOnly));
    return library.readAll().replace(offset, bytes.size(), bytes);
}
} // namespace

class HostilePluginFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takes_data();
    void takes();
    void takesANameWithALineFeed();
    void keepsTheQuickLinksName_data();
    void keepsTheQuickLinksName();
};

void HostilePluginFilesTest::takes_data()
{
    addColumns();
    const QString bad = "Bad/libBad.so: ";
    const QString unreadable = bad + "the file cannot be read", irregular = bad + "it is not a regular file";
    const QString onlyGood = "loaded FakeSilent";
    const QString notLoadable = bad + "it is not a plug-in that can be loaded: ";

    addRow(
        "link that leads nowhere", Anyone,
        [](LoadRuns& runs) {
            runs.makeFolder();
            lead(runs.file(), "nowhere");
        },
        unreadable);
    addRow(
        "link to itself", Anyone,
        [](LoadRuns& runs) {
            runs.makeFolder();
            lead(runs.file(), "libBad.so");
        },
        unreadable);
    addRow(
        "pipe", Anyone,
        [](LoadRuns& runs) {
            runs.makeFolder();
            need(mkfifo(local(runs.file()).constData(), 0600) == 0);
        },
        irregular);
    addRow(
        "device that never ends", Anyone,
        [](LoadRuns& runs) {
            runs.makeFolder();
            lead(runs.file(), "/dev/zero");
        },
        irregular);
    addRow(
        "socket", Anyone,
        [](LoadRuns& runs) {
            runs.makeFolder();
            sockaddr_un address = {};
            address.sun_family = AF_UNIX;
            qstrncpy(address.sun_path, local(runs.file()).constData(), sizeof address.sun_path);
            const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
            need(bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0);
            close(descriptor);
        },
        irregular);
    addRow(
        "folder", Anyone, [](LoadRuns& runs) { makeFolder(runs.file()); }, irregular);
    addRow(
        "file without permission", Nobody,
        [](LoadRuns& runs) {
            runs.add("FakeSilent");
            allow(runs.file(), 0);
        },
        unreadable);
    addRow(
        "folder without permission", Nobody,
        [](LoadRuns& runs) {
            runs.add("FakeSilent");
            allow(runs.folder(), 0);
        },
        unreadable);
    addRow(
        "empty file", Anyone, [](LoadRuns& runs) { runs.write(QByteArray()); }, notLoadable);
    addRow(
        "text", Anyone, [](LoadRuns& runs) { runs.write("not a library\n"); }, notLoadable);
    addRow(
        "zeroes", Anyone, [](LoadRuns& runs) { runs.write(QByteArray(100000, '\0')); }, notLoadable);
    addRow(
        "head of a library", Anyone, [](LoadRuns& runs) { runs.write(changed(0, "").left(64)); }, notLoadable);
    // Less than what is loaded: the second half of a library may be for debuggers only.
    addRow(
        "beginning of a library", Anyone, [](LoadRuns& runs) { runs.write(changed(0, "").left(1000)); }, notLoadable);
    addRow(
        "library of another processor", Anyone,
        [](LoadRuns& runs) { runs.write(changed(18, QByteArray("\x16\0", 2))); }, notLoadable);
    addRow(
        "library of another word size", Anyone, [](LoadRuns& runs) { runs.write(changed(4, "\3")); }, notLoadable);
    addRow(
        "program", Anyone,
        [](LoadRuns& runs) {
            runs.makeFolder();
            need(QFile::copy(LOAD_DRIVER, runs.file()));
            allow(runs.file(), 0755);
        },
        notLoadable);
    addRow(
        "library that is no plug-in", Anyone, [](LoadRuns& runs) { runs.add("FakeLibrary"); }, notLoadable);
    addRow(
        "plug-in of another interface", Anyone, [](LoadRuns& runs) { runs.add("FakeForeign"); },
        bad + "the plug-in has no IBasePlugin");
    addRow(
        "plug-in that makes nothing", Anyone, [](LoadRuns& runs) { runs.add("FakeNull"); }, notLoadable);
    addRow(
        "plug-in that cannot start", Anyone, [](LoadRuns& runs) { runs.add("RecordingFailing"); },
        bad + "its Init failed");
    addRow(
        "same plug-in again", Anyone, [](LoadRuns& runs) { runs.add("FakeSilent", "Later"); },
        "Later/libLater.so: its class identifier is in use already: FakeSilent");
    addRow(
        "other name of a plug-in", Anyone,
        [](LoadRuns& runs) {
            runs.makeFolder("Later");
            lead(runs.file("Later"), "../Good/libGood.so");
        },
        "Later/libLater.so: this file is loaded already");
    addRow(
        "name with a blank", Anyone, [](LoadRuns& runs) { runs.write("text", "Bad one"); },
        "Bad one/libBad one.so: it is not a plug-in that can be loaded: ");
    addRow(
        "hidden folder", Anyone, [](LoadRuns& runs) { runs.add("HostilePlugin", ".Bad"); }, onlyGood);
    addRow(
        "hidden file", Anyone,
        [](LoadRuns& runs) {
            runs.add("HostilePlugin");
            need(QFile::rename(runs.file(), runs.folder() + "/.libBad.so"));
        },
        onlyGood);
    addRow(
        "file beside the folders", Anyone,
        [](LoadRuns& runs) {
            runs.add("HostilePlugin");
            need(QFile::rename(runs.file(), runs.plugins() + "/libBad.so"));
        },
        onlyGood);
    addRow(
        "name that is no text", Anyone,
        [](LoadRuns& runs) {
            const QByteArray folder = local(runs.plugins()) + "/B\xff";
            need(mkdir(folder.constData(), 0755) == 0);
            runs.add("HostilePlugin");
            need(rename(local(runs.file()).constData(), (folder + "/libB\xff.so").constData()) == 0);
        },
        onlyGood);
    addRow(
        "name that looks like markup", Anyone, [](LoadRuns& runs) { runs.write("text", "Bad<b>&"); },
        "Bad<b>&/libBad<b>&.so: it is not a plug-in that can be loaded: ");
}

void HostilePluginFilesTest::takes()
{
    QFETCH(int, user);
    QFETCH(SetUp, setUp);
    QFETCH(QString, objection);
    LoadRuns runs;
    if (!canBe(User(user), runs))
        QSKIP("Only root can become another user");
    setUp(runs);
    compareWithGood(runs.run(), objection);
}

/** The log has a line for it all the same; in a name with a line feed it takes two. */
void HostilePluginFilesTest::takesANameWithALineFeed()
{
    LoadRuns runs;
    runs.write("text", "Bad\none");
    const QStringList said = runs.run();
    QCOMPARE(said.mid(0, 2), QStringList({"Bad", "one/libBad"}));
    QVERIFY(said.contains("loaded FakeSilent"));
}

void HostilePluginFilesTest::keepsTheQuickLinksName_data()
{
    addColumns();
    const QString only = ": it has the class identifier of the quick links, which only this may have: ";
    const QString installed = "QuickLinkUIPlugin/libQuickLinkUIPlugin.so";
    addRow(
        "before them", Anyone, [](LoadRuns& runs) { runs.add("HostilePlugin", "Aaa"); },
        "Aaa/libAaa.so" + only + installed);
    addRow(
        "after them", Anyone, [](LoadRuns& runs) { runs.add("HostilePlugin", "Zzz"); },
        "Zzz/libZzz.so: its class identifier is in use already: ");
    addRow(
        "without them", Anyone,
        [](LoadRuns& runs) {
            runs.add("HostilePlugin", "Aaa");
            need(QFile::remove(runs.file("QuickLinkUIPlugin")));
        },
        "Aaa/libAaa.so" + only + installed);
    addRow(
        "another name of their file", Anyone,
        [](LoadRuns& runs) {
            runs.makeFolder("Aaa");
            lead(runs.file("Aaa"), "../QuickLinkUIPlugin/libQuickLinkUIPlugin.so");
        },
        installed + ": this file is loaded already");
}

void HostilePluginFilesTest::keepsTheQuickLinksName()
{
    QFETCH(SetUp, setUp);
    QFETCH(QString, objection);
    LoadRuns runs;
    runs.setVariable("CLSID", "3F1C7A20-5B9E-4D61-A8C4-7E2B90D4F1A6");
    runs.add("HostilePlugin", "QuickLinkUIPlugin");
    setUp(runs);
    const QStringList said = runs.run();
    QCOMPARE(int(said.size()), 3);
    QVERIFY2(said.first().startsWith(objection), qPrintable(said.first()));
    const bool areThere = QFile::exists(runs.file("QuickLinkUIPlugin"));
    QStringList loaded = said.at(1).split(' ');
    loaded.sort();
    QCOMPARE(loaded.join(' '), areThere ? "FakeSilent QuickLinkUIPlugin loaded" : "FakeSilent loaded");
}

REGISTER_TEST(HostilePluginFilesTest)
#include "HostilePluginFilesTest.moc"
