// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The program from outside: what it prints, what it ends with, and what it leaves in the file.

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScopedPointer>

#include <unistd.h>

#include "FolderLock.h"
#include "LinkFileCheck.h"
#include "LinkHistory.h"
#include "LinksTool.h"
#include "Test.h"

class CommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void wrongUsage_data();
    void wrongUsage();
    void helpNamesEveryCommand();
    void checkEndsWithWhatItFound();
    void lists();
    void listsNothingOfANewUser();
    void tellsThatOutputIsLost();
    void changes_data();
    void changes();
    void refuses_data();
    void refuses();
    void nameComesBeforeNumber();
    void newLinkHasAFreeId();
    void editKeepsTheRest();
    void tellsOfHiddenLinks();
    void staysAwayFromARunningProgram();
    void leavesTheLockOfACrash();
    void keepsPermissionsAndSymbolicLinks();
    void makesANewFile();
    void leavesOthersFilesAlone();
    void keepsTheStateBefore();
    void makesNoHistoryElsewhere();
    void doesNotReplaceARemovedFile();
    void startsWithPreparedLinks();
    void tellsWhereAFileEnds();
    void takesNoEndlessFile();
    void opens_data();
    void opens();
    void opensNothingThatIsAskedAbout();

private:
    QScopedPointer<LinksTool> m_tool;
};

void CommandsTest::init()
{
    m_tool.reset(new LinksTool);
    QVERIFY(m_tool->write(m_tool->ownFile(), goodFile()));
}

void CommandsTest::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QList<QStringList> all{{},
                                 {"frobnicate"},
                                 {"check"},
                                 {"check", "--format", "yaml", "a"},
                                 {"check", "--colour", "a"},
                                 {"list", "--format", "html"},
                                 {"list", "a", "b"},
                                 {"list", ""},
                                 {"remove", "Root", ""},
                                 {"export", "--format", "text"},
                                 {"import"},
                                 {"edit"},
                                 {"edit", "Root", "--edit", "yes"},
                                 {"edit", "Root", "--visible", "0"},
                                 {"add", "--startconnect", ""},
                                 {"remove"},
                                 {"move", "Root"},
                                 {"open"}};
    for (const QStringList& arguments : all)
        QTest::newRow(qUtf8Printable(arguments.join(' '))) << arguments;
}

void CommandsTest::wrongUsage()
{
    QFETCH(QStringList, arguments);
    const LinksTool::Answer answer = m_tool->run(arguments);
    QCOMPARE(answer.code, 2);
    QCOMPARE(answer.out, "");
    QCOMPARE(answer.error.count('\n'), 1);
    QVERIFY(answer.error.startsWith("vellumconnect-links: "));
    QCOMPARE(m_tool->read(m_tool->ownFile()), goodFile());
}

void CommandsTest::helpNamesEveryCommand()
{
    const LinksTool::Answer answer = m_tool->run({"--help"});
    QCOMPARE(answer.code, 0);
    for (const QString command : {"check", "list", "export", "import", "add", "edit", "remove", "move", "open"}) {
        QVERIFY2(answer.out.contains("\n  " + command + ' '), qUtf8Printable(command));
        QVERIFY(!m_tool->run({command, "--no-such-option"}).error.contains("No such command"));
    }
    QVERIFY(m_tool->run({"--version"}).out.contains(VELLUM_VERSION));
}

void CommandsTest::checkEndsWithWhatItFound()
{
    const QString bad = m_tool->path("bad.xml");
    QVERIFY(m_tool->write(bad, goodFile().replace("Root", "Write")));
    const LinksTool::Answer good = m_tool->run({"check", m_tool->ownFile()});
    QCOMPARE(good.code, 0);
    QCOMPARE(good.out + good.error, "");
    const LinksTool::Answer found = m_tool->run({"check", m_tool->ownFile(), "bad.xml", m_tool->path("missing.xml")});
    QCOMPARE(found.code, 1);
    const QStringList lines = found.out.split('\n');
    QCOMPARE(lines.size(), 3);
    QVERIFY(lines.at(0).startsWith("bad.xml:15:22: "));
    QVERIFY(lines.at(0).endsWith(" [duplicate-name]"));
    QVERIFY(lines.at(1).endsWith(" [unreadable]"));
    const LinksTool::Answer sarif = m_tool->run({"check", "--format", "sarif", bad});
    QCOMPARE(sarif.code, 1);
    QVERIFY(QJsonDocument::fromJson(sarif.out.toUtf8()).object().contains("runs"));
}

void CommandsTest::lists()
{
    const LinksTool::Answer own = m_tool->run({"list"});
    QCOMPARE(own.code, 0);
    QCOMPARE(own.out, "1\tPortal\tinternet\thttps://a.example/\n2\tWrite\te-mail\tmailto:\n3\tRoot\tapplication\t/\n");
    const QJsonArray links =
        QJsonDocument::fromJson(m_tool->run({"list", "--format", "json", m_tool->ownFile()}).out.toUtf8())
            .object()
            .value("links")
            .toArray();
    QCOMPARE(links.size(), 3);
    QCOMPARE(links.at(1).toObject().value("startmobile").toString(), "1");
}

void CommandsTest::listsNothingOfANewUser()
{
    QVERIFY(QDir(m_tool->path("data")).removeRecursively());
    const LinksTool::Answer answer = m_tool->run({"list"});
    QCOMPARE(answer.code, 0);
    QCOMPARE(answer.out, "");
    QVERIFY(!QFileInfo::exists(m_tool->path("data")));
}

void CommandsTest::tellsThatOutputIsLost()
{
    const LinksTool shell("sh");
    QVERIFY(shell.write(shell.ownFile(), goodFile()));
    const LinksTool::Answer answer = shell.run({"-c", PROGRAM " export >/dev/full"});
    QCOMPARE(answer.code, 1);
    QCOMPARE(answer.error.count('\n'), 1);
}

void CommandsTest::changes_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("said");
    QTest::addColumn<QStringList>("names");
    const QStringList add{"add", "--name", "News", "--type", "internet", "--url", "www.b.example"};
    QTest::newRow("add") << add << "Added \"News\" as link 4" << QStringList{"Portal", "Write", "Root", "News"};
    QTest::newRow("edit by name") << QStringList{"edit", "Write", "--name", "Mail"} << "Changed \"Write\", link 2"
                                  << QStringList{"Portal", "Mail", "Root"};
    QTest::newRow("edit by number") << QStringList{"edit", "3", "--name", "Files"} << "Changed \"Root\", link 3"
                                    << QStringList{"Portal", "Write", "Files"};
    QTest::newRow("edit nothing") << QStringList{"edit", "3", "--name", "Root"} << "Nothing to change"
                                  << QStringList{"Portal", "Write", "Root"};
    QTest::newRow("remove") << QStringList{"remove", "Portal"} << "Removed \"Portal\", link 1"
                            << QStringList{"Write", "Root"};
    QTest::newRow("move up") << QStringList{"move", "Root", "1"} << "Moved \"Root\", link 3"
                             << QStringList{"Root", "Portal", "Write"};
    QTest::newRow("move down") << QStringList{"move", "1", "3"} << "to place 3."
                               << QStringList{"Write", "Root", "Portal"};
    QTest::newRow("move nowhere") << QStringList{"move", "2", "2"} << "to place 2."
                                  << QStringList{"Portal", "Write", "Root"};
}

void CommandsTest::changes()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, said);
    QFETCH(QStringList, names);
    const QString file = m_tool->path("links.xml");
    QVERIFY(m_tool->write(file, goodFile()));
    const QList<QStringList> calls{arguments, arguments + QStringList{file}};
    for (const QStringList& call : calls) {
        const QString changed = call.size() > arguments.size() ? file : m_tool->ownFile();
        const LinksTool::Answer answer = m_tool->run(call);
        QCOMPARE(answer.error, "");
        QCOMPARE(answer.code, 0);
        QVERIFY2(answer.out.contains(said), qUtf8Printable(answer.out));
        QVERIFY(answer.out.contains(changed));
        QCOMPARE(LinksTool::fields(changed), names);
        QCOMPARE(int(LinkFileCheck::of(changed).size()), 0);
    }
    QVERIFY(!QFileInfo::exists(m_tool->userFolder() + "/lock"));
}

void CommandsTest::refuses_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("arguments");
    const QByteArray good = goodFile();
    const QStringList add{"add", "--type", "internet", "--name"};
    QTest::newRow("a name that is there") << good << add + QStringList{"Root", "--url", "www.b.example"};
    QTest::newRow("no name") << good << QStringList{"add", "--type", "internet", "--url", "www.b.example"};
    QTest::newRow("a name that is too long") << good << add + QStringList{QString(50, 'a'), "--url", "www.b.example"};
    QTest::newRow("an address that a click refuses") << good << add + QStringList{"News", "--url", "b.example"};
    QTest::newRow("no type") << good << QStringList{"add", "--name", "News", "--url", "www.b.example"};
    QTest::newRow("a program that is not there") << good << QStringList{"edit", "Root", "--url", "/no/such/program"};
    QTest::newRow("another link's name") << good << QStringList{"edit", "Root", "--name", "Write"};
    QTest::newRow("no such link") << good << QStringList{"remove", "root"};
    QTest::newRow("link 0") << good << QStringList{"remove", "0"};
    QTest::newRow("link 4") << good << QStringList{"remove", "4"};
    QTest::newRow("no such place") << good << QStringList{"move", "Root", "4"};
    QTest::newRow("place 0") << good << QStringList{"move", "Root", "0"};
    QTest::newRow("which of two") << QByteArray(good).replace("Root", "Write") << QStringList{"remove", "Write"};
    QTest::newRow("damaged") << QByteArray(good).replace("</menu>", "") << QStringList{"remove", "Write"};
    QTest::newRow("empty") << QByteArray() << QStringList{"remove", "Write"};
}

void CommandsTest::refuses()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, arguments);
    QVERIFY(m_tool->write(m_tool->ownFile(), content));
    const LinksTool::Answer answer = m_tool->run(arguments);
    QCOMPARE(answer.code, 1);
    QCOMPARE(answer.out, "");
    QCOMPARE(answer.error.count('\n'), 1);
    QCOMPARE(m_tool->read(m_tool->ownFile()), content);
}

void CommandsTest::nameComesBeforeNumber()
{
    QVERIFY(m_tool->write(m_tool->ownFile(), goodFile().replace("Root", "1")));
    QCOMPARE(m_tool->run({"remove", "1"}).code, 0);
    QCOMPARE(LinksTool::fields(m_tool->ownFile()), (QStringList{"Portal", "Write"}));
}

void CommandsTest::newLinkHasAFreeId()
{
    QVERIFY(m_tool->write(m_tool->ownFile(), goodFile().replace("id=\"1\"", "id=\"40\"")));
    for (const QString name : {"A", "B"})
        QCOMPARE(m_tool->run({"add", "--name", name, "--type", "e-mail", "--url", "mailto:"}).code, 0);
    QCOMPARE(LinksTool::fields(m_tool->ownFile(), &QuickLinkRecord::id), (QStringList{"0", "40", "2", "41", "42"}));
    QCOMPARE(int(LinkFileCheck::of(m_tool->ownFile()).size()), 0);
}

void CommandsTest::editKeepsTheRest()
{
    QCOMPARE(m_tool->run({"edit", "Root", "--startconnect", "1", "--para", "-y"}).code, 0);
    QByteArray expected = goodFile().replace("para=\"-x\" startconnect=\"0\"", "para=\"-y\" startconnect=\"1\"");
    QCOMPARE(m_tool->read(m_tool->ownFile()), expected);
}

void CommandsTest::tellsOfHiddenLinks()
{
    QVERIFY(
        m_tool->write(m_tool->ownFile(), goodFile().replace("edit=\"0\" visible=\"1\"", "edit=\"0\" visible=\"0\"")));
    const LinksTool::Answer answer = m_tool->run({"move", "1", "2"});
    QVERIFY2(answer.out.contains("Hidden links that are gone now, as at every save: 1."), qUtf8Printable(answer.out));
    QCOMPARE(LinksTool::fields(m_tool->ownFile()), (QStringList{"Write", "Portal"}));
}

void CommandsTest::staysAwayFromARunningProgram()
{
    FolderLock lock(m_tool->userFolder());
    QCOMPARE(int(lock.take()), int(FolderLock::Taken));
    const LinksTool::Answer answer = m_tool->run({"remove", "Root"});
    QCOMPARE(answer.code, 1);
    QVERIFY(answer.error.contains(QString::number(QCoreApplication::applicationPid())));
    QCOMPARE(m_tool->read(m_tool->ownFile()), goodFile());
    QCOMPARE(m_tool->run({"list"}).code, 0);
}

void CommandsTest::leavesTheLockOfACrash()
{
    QVERIFY(m_tool->write(m_tool->userFolder() + "/lock", "1\n"));
    QCOMPARE(m_tool->run({"remove", "Root"}).code, 0);
    QVERIFY(QFileInfo::exists(m_tool->userFolder() + "/lock"));
}

void CommandsTest::keepsPermissionsAndSymbolicLinks()
{
    const QFile::Permissions forAll = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
    const QString file = m_tool->path("links.xml");
    QVERIFY(m_tool->write(file, goodFile()));
    QVERIFY(QFile::setPermissions(file, forAll));
    const QString link = m_tool->path("link.xml");
    QVERIFY(QFile::link(file, link));
    QCOMPARE(m_tool->run({"remove", "Root", link}).code, 0);
    QCOMPARE(LinksTool::fields(file), (QStringList{"Portal", "Write"}));
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(QFile::permissions(file) & ~(QFile::ReadUser | QFile::WriteUser), forAll);
}

void CommandsTest::makesANewFile()
{
    const QString file = m_tool->path("new.xml");
    QCOMPARE(m_tool->run({"list", file}).code, 1);
    QCOMPARE(m_tool->run({"remove", "A", file}).code, 1);
    QVERIFY(!QFileInfo::exists(file));
    const LinksTool shell("sh");
    QCOMPARE(shell.run({"-c", "umask 027; " PROGRAM " add --name A --type e-mail --url mailto: new.xml"}).code, 0);
    QCOMPARE(LinksTool::fields(shell.path("new.xml")), QStringList{"A"});
    QCOMPARE(int(LinkFileCheck::of(shell.path("new.xml")).size()), 0);
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    QCOMPARE(QFile::permissions(shell.path("new.xml")) & others, QFile::Permissions(QFile::ReadGroup));
}

void CommandsTest::leavesOthersFilesAlone()
{
    if (::geteuid() != 0)
        QSKIP("Only root can give a file away");
    QVERIFY(::chown(QFile::encodeName(m_tool->ownFile()).constData(), 12345, 12345) == 0);
    const LinksTool::Answer answer = m_tool->run({"remove", "Root"});
    QCOMPARE(answer.code, 1);
    QVERIFY(answer.error.contains("belongs to"));
    QCOMPARE(m_tool->read(m_tool->ownFile()), goodFile());
}

void CommandsTest::keepsTheStateBefore()
{
    QCOMPARE(m_tool->run({"remove", "Root"}).code, 0);
    const LinkHistory history(m_tool->userFolder(), m_tool->userFolder() + "/history");
    const QList<LinkHistory::State> states = history.states();
    QCOMPARE(states.size(), 2);
    QCOMPARE(LinkHistory::contentOf(states.at(0)), m_tool->read(m_tool->ownFile()));
    QCOMPARE(LinkHistory::contentOf(states.at(1)), goodFile());
}

void CommandsTest::makesNoHistoryElsewhere()
{
    const QString file = m_tool->path("defaults/plugins/QuickLinkUIPlugin/config.xml");
    QVERIFY(m_tool->write(file, goodFile()));
    QCOMPARE(m_tool->run({"remove", "Root", file}).code, 0);
    QCOMPARE(QDir(m_tool->path("defaults")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"plugins"});
}

void CommandsTest::doesNotReplaceARemovedFile()
{
    QVERIFY(QDir().mkpath(m_tool->userFolder() + "/history"));
    QVERIFY(QFile::remove(m_tool->ownFile()));
    QCOMPARE(m_tool->run({"add", "--name", "A", "--type", "e-mail", "--url", "mailto:"}).code, 1);
    QVERIFY(!QFileInfo::exists(m_tool->ownFile()));
}

void CommandsTest::startsWithPreparedLinks()
{
    // An installation of its own, with an operator's defaults.
    const QTemporaryDir place;
    const QString program = place.filePath("bin/vellumconnect-links");
    QVERIFY(QDir().mkpath(place.filePath("bin")));
    QVERIFY(QFile::copy(PROGRAM, program));
    const LinksTool tool(program);
    QVERIFY(
        tool.write(place.filePath("share/vellumconnect/defaults/plugins/QuickLinkUIPlugin/config.xml"), goodFile()));
    QCOMPARE(tool.run({"add", "--name", "A", "--type", "e-mail", "--url", "mailto:"}).code, 0);
    QCOMPARE(LinksTool::fields(tool.ownFile()), (QStringList{"Portal", "Write", "Root", "A"}));
    QCOMPARE(QFile::permissions(tool.userFolder()) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
}

void CommandsTest::tellsWhereAFileEnds()
{
    QByteArray others = "{\"links\":[";
    const QByteArray address = "http://a.example/" + QByteArray(240, 'a');
    for (int i = 0; i < 45000; ++i)
        others += "{\"name\":\"" + QByteArray::number(i) + "\",\"type\":\"IDS_LINK_TYPE_INTERNET\",\"url\":\"" +
                  address + "\"},";
    QVERIFY(m_tool->write(m_tool->path("others.json"), others + "{}]}"));
    const LinksTool::Answer answer = m_tool->run({"import", m_tool->path("others.json")});
    QCOMPARE(answer.code, 1);
    QVERIFY2(answer.error.contains("16777216 bytes"), qUtf8Printable(answer.error));
    QCOMPARE(m_tool->read(m_tool->ownFile()), goodFile());
}

void CommandsTest::takesNoEndlessFile()
{
    const LinksTool::Answer answer = m_tool->run({"import", "/dev/zero"});
    QCOMPARE(answer.code, 1);
    QVERIFY2(answer.error.contains("larger"), qUtf8Printable(answer.error));
}

void CommandsTest::opens_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("opened");
    QTest::newRow("address") << "Portal"
                             << "xdg-open https://a.example/\n";
    QTest::newRow("mail") << "2"
                          << "xdg-open mailto:\n";
    QTest::newRow("folder") << "Root"
                            << "xdg-open /\n";
    QTest::newRow("address that is completed") << "Short"
                                               << "xdg-open http://www.a.example\n";
    QTest::newRow("program") << "Program"
                             << "program \n";
    QTest::newRow("desktop entry") << "Entry"
                                   << "gio launch %1/a.desktop\n";
}

void CommandsTest::opens()
{
    QFETCH(QString, link);
    QFETCH(QString, opened);
    const QByteArray note = "#!/bin/sh\necho \"${0##*/} $*\" >>\"" + m_tool->path("opened").toUtf8() + "\"\n";
    for (const QString program : {"bin/xdg-open", "bin/gio", "program", "a.desktop"}) {
        QVERIFY(m_tool->write(m_tool->path(program), note));
        QVERIFY(QFile::setPermissions(m_tool->path(program), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    QCOMPARE(m_tool->run({"add", "--name", "Short", "--type", "internet", "--url", "www.a.example"}).code, 0);
    QCOMPARE(m_tool->run({"add", "--name", "Program", "--type", "application", "--url", m_tool->path("program")}).code,
             0);
    QCOMPARE(m_tool->run({"add", "--name", "Entry", "--type", "application", "--url", m_tool->path("a.desktop")}).code,
             0);
    const LinksTool::Answer answer = m_tool->run({"open", link});
    QCOMPARE(answer.error, "");
    QCOMPARE(answer.code, 0);
    if (opened.contains("%1"))
        opened = opened.arg(QFileInfo(m_tool->path(".")).canonicalFilePath());
    QTRY_COMPARE(QString::fromUtf8(m_tool->read(m_tool->path("opened"))), opened);
}

void CommandsTest::opensNothingThatIsAskedAbout()
{
    QVERIFY(m_tool->write(m_tool->path("bin/xdg-open"), "#!/bin/sh\n>\"" + m_tool->path("opened").toUtf8() + "\"\n"));
    for (const QByteArray address : {"ssh:a.example", "javascript:alert(1)", "/no/such/program"}) {
        QVERIFY(m_tool->write(m_tool->ownFile(), goodFile().replace("\"/\"", '"' + address + '"')));
        const LinksTool::Answer answer = m_tool->run({"open", "Root"});
        QCOMPARE(answer.code, 1);
        QCOMPARE(answer.out, "");
        QCOMPARE(answer.error.count('\n'), 1);
    }
    QVERIFY(!QFileInfo::exists(m_tool->path("opened")));
}

REGISTER_TEST(CommandsTest)
#include "CommandsTest.moc"
