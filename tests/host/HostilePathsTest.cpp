// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What becomes of the paths of application links, whatever lies there, and whatever is typed.

#include <QDesktopServices>
#include <QUrl>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "LinkOpener.h"
#include "OpeningOutcome.h"
#include "ProcessLimits.h"
#include "Test.h"

static const char locked[] = "You are not allowed to open this:";
static const char broken[] = "This program could not be started:";
static const char starts[] = "starts";

class HostilePathsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void opens_data();
    void opens();

private:
    QString at(const QString& name) const { return m_folder.filePath(name); }
    void makeProgram(const QString& name) const;
    void makeDeepFolder();

    QTemporaryDir m_folder;
    QString m_deep; ///< a program whose path is nearly as long as a path may be
    const QString m_former = QDir::currentPath();
};

/** A program that says that it was started, wherever it lies. */
void HostilePathsTest::makeProgram(const QString& name) const
{
    writeScript(at(name), ": >'" + QFile::encodeName(at("started")) + "'\n");
}

void HostilePathsTest::makeDeepFolder()
{
    QString folder = "deep";
    while (at(folder).size() < 3800)
        folder += '/' + QString(200, 'd');
    QVERIFY(QDir().mkpath(at(folder)));
    m_deep = folder + "/program";
    makeProgram(m_deep);
}

void HostilePathsTest::initTestCase()
{
    QVERIFY(setMode(m_folder.path(), 0755));
    QVERIFY(QDir().mkpath(at("folder/inner")));
    QVERIFY(QDir().mkpath(at("folder.desktop")));
    QVERIFY(QDir().mkpath(at("closed")));
    for (const char* name : {"program", "a b", "a%20b c", "C#", "who?", "100%", "$(touch x)", "; exit 1", "quote'\"",
                             "two\nlines", "-x", "~", "folder/program", "closed/program"})
        makeProgram(name);
    makeProgram(QString::fromUtf8("gr\303\266\303\237e"));
    makeProgram("x" + codePoint(0x202e) + "y");
    const QFile::Permissions all(0x7755), readable(0x6644);
    writeFile(at("document"), "text", readable);
    writeFile(at("empty"), "", readable);
    writeFile(at("script without permission"), "#!/bin/sh\n", readable);
    writeFile(at("locked"), "secret", QFile::Permissions());
    writeFile(at("no interpreter named"), ": nothing\n", all);
    writeFile(at("empty program"), "", all);
    writeFile(at("no such interpreter"), "#!/nonexistent/interpreter\n", all);
    writeFile(at("interpreter is a folder"), "#!/\n", all);
    writeFile(at("only a mark"), "#!", all);
    writeFile(at("no machine code"), QByteArray("\177ELF and nothing more\0", 22), all);
    writeFile(at("text"), "no program at all \001\002\n", all);
    writeFile(at("closed/document"), "text", readable);
    QVERIFY(setMode(at("closed"), 0));
    const QByteArray folder = QFile::encodeName(m_folder.path()) + '/';
    QCOMPARE(::symlink("loop", (folder + "loop").constData()), 0);
    QCOMPARE(::symlink("nothing", (folder + "dead link").constData()), 0);
    QCOMPARE(::symlink("program", (folder + "link").constData()), 0);
    QCOMPARE(::symlink("folder/inner", (folder + "link to folder").constData()), 0);
    QCOMPARE(::mkfifo((folder + "pipe").constData(), 0644), 0);
    // A name that is no text.
    QCOMPARE(::symlink("program", (folder + "n\377me").constData()), 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, (folder + "socket").constData(), sizeof address.sun_path);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    QCOMPARE(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ::close(socket);
    makeDeepFolder();
    // What lies in the current folder is what a relative path must not start.
    QVERIFY(QDir::setCurrent(m_folder.path()));
}

void HostilePathsTest::cleanupTestCase()
{
    QVERIFY(QDir::setCurrent(m_former));
    // What would leave the folder behind: one that is closed, and a name that the toolkit does not see.
    QVERIFY(setMode(at("closed"), 0700));
    QCOMPARE(::unlink((QFile::encodeName(m_folder.path()) + "/n\377me").constData()), 0);
}

void HostilePathsTest::opens_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<bool>("bindsPermissions");
    const auto add = [](const char* name, const QString& address, const QString& outcome,
                        bool bindsPermissions = false) {
        QTest::newRow(name) << address << outcome << bindsPermissions;
    };
    const auto opensFile = [this](const QString& name) {
        return "opens " + at(name);
    };

    // Not from the root: the current folder has a program of each of these names.
    add("name", "program", Told::relative);
    add("dot", "./program", Told::relative);
    add("parent folder", "folder/../program", Told::relative);
    add("home", "~/program", Told::relative);
    add("home itself", "~", Told::relative);
    add("home of another", "~root/program", Told::relative);
    add("option", "-x", Told::relative);
    add("variable", "$HOME/program", Told::relative);
    add("blank before", " " + at("program"), Told::relative);
    add("tab before", "\t" + at("program"), Told::relative);
    add("blank", " ", Told::relative);
    add("this folder", ".", Told::relative);
    add("folder above", "..", Told::relative);
    add("query only", "?program", Told::relative);
    add("fragment only", "#program", Told::relative);
    add("backslash", "\\program", Told::relative);
    add("quoted", "'" + at("program") + "'", Told::relative);
    add("empty", QString(), Told::nowhere);
    add("file: without a root", "file:program", Told::relative);
    add("file: and nothing", "file:", Told::nowhere);

    // Programs, however their path is spelt.
    add("program", at("program"), starts);
    add("encoded slash", QString(at("program")).replace('/', "%2F"), starts);
    add("two slashes at the beginning", '/' + at("program"), starts);
    add("two slashes within", m_folder.path() + "//program", starts);
    add("slash at the end", at("program/"), starts);
    add("dot within", at("./program"), starts);
    add("back and forth", at("folder/../program"), starts);
    add("above the root", "/../../.." + at("program"), starts);
    add("link", at("link"), starts);
    add("in a folder", at("folder/program"), starts);
    add("blank in the name", at("a b"), starts);
    add("blank encoded", at("a%20b"), starts);
    add("name that looks encoded", at("a%20b c"), starts);
    add("fragment sign", at("C#"), starts);
    add("query sign", at("who?"), starts);
    add("per cent", at("100%"), starts);
    add("shell command", at("$(touch x)"), starts);
    add("semicolon", at("; exit 1"), starts);
    add("quotes", at("quote'\""), starts);
    add("line feed", at("two\nlines"), starts);
    add("hyphen", at("-x"), starts);
    add("tilde", at("~"), starts);
    add("letters", at(QString::fromUtf8("gr\303\266\303\237e")), starts);
    add("right-to-left override", at("x" + codePoint(0x202e) + "y"), starts);
    add("nearly too long", at(m_deep), starts);
    add("file:", "file://" + at("program"), starts);
    add("FILE:", "FILE://" + at("program"), starts);

    // Files and folders for the desktop.
    add("document", at("document"), opensFile("document"));
    add("empty file", at("empty"), opensFile("empty"));
    add("script without permission", at("script without permission"), opensFile("script without permission"));
    add("folder", at("folder"), opensFile("folder"));
    add("folder with a slash", at("folder/"), opensFile("folder"));
    add("folder named like a file", at("folder.desktop"), opensFile("folder.desktop"));
    add("link to a folder", at("link to folder"), opensFile("link to folder"));
    add("pipe", at("pipe"), opensFile("pipe"));
    add("device", "/dev/null", "opens /dev/null");
    add("root", "/", "opens /");

    // Nothing there, or nothing that can be opened.
    add("missing", at("nothing"), Told::missing);
    add("arguments", at("program") + " --help", Told::missing);
    add("below a file", at("document/program"), Told::missing);
    add("dead link", at("dead link"), Told::missing);
    add("link to itself", at("loop"), Told::missing);
    add("name that is no text", at("n%FFme"), Told::missing);
    add("replacement for what is no text", at("n") + codePoint(0xfffd) + "me", Told::missing);
    add("zero", at("program%00x"), Told::missing);
    add("half a character", at("program") + QChar(0xd800), Told::missing);
    add("name too long", at(QString(300, 'x')), Told::missing);
    add("path too long", at(QString(4000, 'x')), Told::missing);
    add("path much too long", '/' + QString("x/").repeated(50000), Told::missing);
    add("on another computer", "file://evil.example" + at("program"), Told::missing);
    add("two slashes and blanks", "//two words/x", Told::invalid);
    add("locked file", at("locked"), locked, true);
    add("in a closed folder", at("closed/program"), Told::missing, true);
    add("document in a closed folder", at("closed/document"), Told::missing, true);

    // Programs that the system does not run.
    add("no interpreter named", at("no interpreter named"), broken);
    add("empty program", at("empty program"), broken);
    add("no such interpreter", at("no such interpreter"), broken);
    add("interpreter is a folder", at("interpreter is a folder"), broken);
    add("only a mark", at("only a mark"), broken);
    add("no machine code", at("no machine code"), broken);
    add("text", at("text"), broken);
    add("socket", at("socket"), opensFile("socket"));
}

void HostilePathsTest::opens()
{
    QFETCH(QString, address);
    QFETCH(bool, bindsPermissions);
    QFile::remove(at("started"));
    const RecordingDesktop desktop;
    const LinkOpener opener;
    QString outcome = outcomeOf(desktop, [&] {
        const std::unique_ptr<WithoutPrivileges> user(bindsPermissions ? new WithoutPrivileges : nullptr);
        QVERIFY(QDesktopServices::openUrl(QUrl(address)));
    });
    if (QFile::exists(at("started")))
        outcome = outcome.isEmpty() ? QString(starts) : "starts, and " + outcome;
    QTEST(outcome, "outcome");
}

REGISTER_TEST(HostilePathsTest)
#include "HostilePathsTest.moc"
