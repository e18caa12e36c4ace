// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Who may have put a plug-in there for the host to load it.

#include <sys/xattr.h>

#include "PlacedFiles.h"
#include "PrivateGroup.h"

namespace
{
/** The library of "Bad" in a folder outside of all plug-ins, to which a link may lead. */
QString moveOut(const LoadRuns& runs, mode_t mode = 0755)
{
    const QString target = makeFolder(runs.base() + "/outside", mode) + "/library";
    need(QFile::rename(runs.file(), target));
    return target;
}

/** Lets one more user write, by an access list of the path. */
bool addToAccessList(const QString& path, uid_t user)
{
    const quint32 version = 2, none = 0xffffffff;
    QByteArray list(reinterpret_cast<const char*>(&version), sizeof version);
    const auto add = [&list](quint16 tag, quint16 allowed, quint32 id) {
        list.append(reinterpret_cast<const char*>(&tag), sizeof tag);
        list.append(reinterpret_cast<const char*>(&allowed), sizeof allowed);
        list.append(reinterpret_cast<const char*>(&id), sizeof id);
    };
    add(0x01, 6, none); // the owner
    add(0x02, 6, user);
    add(0x04, 4, none); // the group
    add(0x10, 6, none); // what group and list have at most
    add(0x20, 4, none); // all others
    return setxattr(local(path).constData(), "system.posix_acl_access", list.constData(), size_t(list.size()), 0) == 0;
}
} // namespace

class PluginTrustTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void trusts_data();
    void trusts();
    void refusesAllOfAFolderThatOthersMayWriteTo_data();
    void refusesAllOfAFolderThatOthersMayWriteTo();
    void knowsPrivateGroups();
};

void PluginTrustTest::trusts_data()
{
    addColumns();
    const QString write = "other users may write to ";
    const QString owns = "another user owns ";
    const QString file = "Bad/libBad.so", folder = "Bad", outside = "BASE/outside";

    addRow(
        "own", Anyone, [](LoadRuns&) {}, fine);
    addRow(
        "file for all", Anyone, [](LoadRuns& runs) { allow(runs.file(), 0666); }, write + file);
    addRow(
        "file for all to write only", Anyone, [](LoadRuns& runs) { allow(runs.file(), 0646); }, write + file);
    addRow(
        "file for a group", Root,
        [](LoadRuns& runs) {
            give(runs.file(), 0, otherUser);
            allow(runs.file(), 0664);
        },
        write + file);
    addRow(
        "file for the user's private group", Root, [](LoadRuns& runs) { allow(runs.file(), 0664); }, fine);
    addRow(
        "file of another user", Root, [](LoadRuns& runs) { give(runs.file(), otherUser, otherUser); }, owns + file);
    addRow(
        "file of another user, who may only read", Root,
        [](LoadRuns& runs) {
            give(runs.file(), otherUser, otherUser);
            allow(runs.file(), 0444);
        },
        owns + file);
    addRow(
        "file for one more user by an access list", Root,
        [](LoadRuns& runs) {
            if (!addToAccessList(runs.file(), otherUser))
                allow(runs.file(), 0666); // a file system without lists
        },
        write + file);
    addRow(
        "file that starts as another user", Root, [](LoadRuns& runs) { allow(runs.file(), 06755); }, fine);
    addRow(
        "folder for all", Anyone, [](LoadRuns& runs) { allow(runs.folder(), 0777); }, write + folder);
    addRow(
        "folder for all, sticky", Anyone, [](LoadRuns& runs) { allow(runs.folder(), 01777); }, write + folder);
    addRow(
        "folder for a group", Root,
        [](LoadRuns& runs) {
            give(runs.folder(), 0, otherUser);
            allow(runs.folder(), 0775);
        },
        write + folder);
    addRow(
        "folder for the user's private group", Root, [](LoadRuns& runs) { allow(runs.folder(), 0775); }, fine);
    addRow(
        "folder of another user", Root, [](LoadRuns& runs) { give(runs.folder(), otherUser, otherUser); },
        owns + folder);

    addRow(
        "user: all is root's", Nobody, [](LoadRuns&) {}, fine);
    addRow(
        "user: file is the user's", Nobody, [](LoadRuns& runs) { give(runs.file(), nobody, nobody); }, fine);
    addRow(
        "user: folder is the user's", Nobody, [](LoadRuns& runs) { give(runs.folder(), nobody, nobody); }, fine);
    addRow(
        "user: file is another user's", Nobody, [](LoadRuns& runs) { give(runs.file(), otherUser, 0); }, owns + file);
    addRow(
        "user: file for root's group", Nobody, [](LoadRuns& runs) { allow(runs.file(), 0664); }, write + file);

    addRow(
        "above, for all and sticky", Anyone, [](LoadRuns& runs) { allow(runs.base(), 01777); }, fine);
    addRow(
        "above, for a group", Anyone, [](LoadRuns& runs) { allow(runs.base(), 0775); }, fine);
    addRow(
        "above, of another user", Root, [](LoadRuns& runs) { give(runs.base(), otherUser, otherUser); }, fine);

    addRow(
        "link to a good file", Anyone, [](LoadRuns& runs) { lead(runs.file(), moveOut(runs)); }, fine);
    addRow(
        "link by a winding path", Anyone,
        [](LoadRuns& runs) {
            moveOut(runs);
            lead(runs.file(), "..//./../outside/../outside/library");
        },
        fine);
    addRow(
        "link to a file for all", Anyone,
        [](LoadRuns& runs) {
            const QString target = moveOut(runs);
            allow(target, 0666);
            lead(runs.file(), target);
        },
        write + outside + "/library");
    addRow(
        "link to a file of another user", Root,
        [](LoadRuns& runs) {
            const QString target = moveOut(runs);
            give(target, otherUser, otherUser);
            lead(runs.file(), target);
        },
        owns + outside + "/library");
    addRow(
        "link into a folder for all", Anyone, [](LoadRuns& runs) { lead(runs.file(), moveOut(runs, 0777)); },
        write + outside);
    addRow(
        "link into a folder for all, sticky", Anyone, [](LoadRuns& runs) { lead(runs.file(), moveOut(runs, 01777)); },
        write + outside);
    addRow(
        "link by a link in a folder for all", Anyone,
        [](LoadRuns& runs) {
            const QString between = makeFolder(runs.base() + "/between", 01777) + "/link";
            lead(between, moveOut(runs));
            lead(runs.file(), between);
        },
        write + "BASE/between");
    addRow(
        "link in a folder for all", Anyone,
        [](LoadRuns& runs) {
            lead(runs.file(), moveOut(runs));
            allow(runs.folder(), 01777);
        },
        write + folder);
    addRow(
        "folder that is a link", Anyone,
        [](LoadRuns& runs) {
            const QString target = runs.base() + "/elsewhere";
            need(QFile::rename(runs.folder(), target));
            lead(runs.folder(), target);
        },
        fine);
    addRow(
        "folder that is a link to a folder for all", Anyone,
        [](LoadRuns& runs) {
            const QString target = runs.base() + "/elsewhere";
            need(QFile::rename(runs.folder(), target));
            allow(target, 01777);
            lead(runs.folder(), target);
        },
        write + "BASE/elsewhere");
    addRow(
        "root that is a link", Anyone,
        [](LoadRuns& runs) {
            const QString target = runs.base() + "/elsewhere";
            need(QFile::rename(runs.plugins(), target));
            lead(runs.plugins(), target);
        },
        fine);
}

void PluginTrustTest::trusts()
{
    QFETCH(int, user);
    QFETCH(SetUp, setUp);
    QFETCH(QString, objection);
    LoadRuns runs;
    runs.add("HostilePlugin");
    runs.setVariable("CLSID", "own");
    if (!canBe(User(user), runs))
        QSKIP("Only root can give a file to another user");
    setUp(runs);
    const QStringList said = runs.run();
    if (objection.isEmpty())
        QVERIFY2(said.size() == 2 && said.first().startsWith("loaded ") && said.first().endsWith(" FakeSilent"),
                 qPrintable(said.join('\n')));
    else
        compareWithGood(said, "Bad/libBad.so: " + objection);
}

void PluginTrustTest::refusesAllOfAFolderThatOthersMayWriteTo_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<int>("mode");
    QTest::newRow("all") << "/plugins" << 0777;
    QTest::newRow("all, sticky") << "/plugins" << 01777;
    QTest::newRow("above, for all") << "" << 0777;
}

void PluginTrustTest::refusesAllOfAFolderThatOthersMayWriteTo()
{
    QFETCH(QString, folder);
    QFETCH(int, mode);
    LoadRuns runs;
    runs.add("HostilePlugin");
    allow(runs.base() + folder, mode_t(mode));
    const QString objection = "other users may write to BASE" + folder;
    QCOMPARE(runs.run(),
             QStringList({"Bad/libBad.so: " + objection, "Good/libGood.so: " + objection, "loaded ", "done"}));
}

void PluginTrustTest::knowsPrivateGroups()
{
    // "nobody" has the group "nogroup", which other users have, too.
    QVERIFY(!PrivateGroup::isOf(nobody, nobody));
    QVERIFY(!PrivateGroup::isOf(0, otherUser));
    QVERIFY(!PrivateGroup::isOf(4000000000U, 0));
    QVERIFY(PrivateGroup::isOf(0, 0));
}

REGISTER_TEST(PluginTrustTest)
#include "PluginTrustTest.moc"
