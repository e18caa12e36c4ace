// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What becomes of what plug-ins open: which goes to the desktop, which is started, and what the user is told.

#include <QDesktopServices>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QUrl>

#include "ChildProcesses.h"
#include "CommonUtils.h"
#include "LinkOpener.h"
#include "MessageOnScreen.h"
#include "OpenedLink.h"
#include "Opening.h"
#include "OpeningCause.h"
#include "ProcessLimits.h"
#include "RecordingDesktop.h"
#include "Test.h"

class LinkOpenerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void handsAddressesToTheDesktop_data();
    void handsAddressesToTheDesktop();
    void handsFilesToTheDesktop_data();
    void handsFilesToTheDesktop();
    void startsPrograms_data();
    void startsPrograms();
    void startsDesktopEntries();
    void namesTheLink_data();
    void namesTheLink();
    void tellsWhatCannotBeOpened_data();
    void tellsWhatCannotBeOpened();
    void tellsWhatTheDesktopCannotOpen();
    void leavesOtherSchemesAlone();
    void takesOverFurtherSchemes();
    void opensOtherSchemesOnlyWithTheUsersConsent();
    void asksOnlyOnceForAnAddress();
    void saysThatItCannotAskMore();
    void neverOpensScripts_data();
    void neverOpensScripts();
    void saysWhatCameOfIt_data();
    void saysWhatCameOfIt();
    void saysWhatTheUserAnswered_data();
    void saysWhatTheUserAnswered();
    void tellsAllFailuresInOneNotice();
    void givesTheSchemesBack();

private:
    QString make(const QString& kind) const;

    QTemporaryDir m_folder;
};

void LinkOpenerTest::cleanup()
{
    Opening::setListener(nullptr);
    while (QMessageBox* const box = notice())
        delete box;
}

/** Makes a file of this kind, or not, and answers where it is. */
QString LinkOpenerTest::make(const QString& kind) const
{
    QString path = m_folder.filePath(kind);
    QFile::remove(path);
    if (kind == "a folder")
        QDir().mkpath(path);
    else if (kind == "a program")
        writeScript(path, "pwd >started.new\nmv started.new started\n");
    else if (kind == "a failing program")
        writeScript(path, "exit 7\n");
    else if (kind == "a crashing program")
        writeScript(path, "kill -SEGV $$\n");
    else if (kind == "entry.desktop")
        writeFile(path,
                  "[Desktop Entry]\nType=Application\nName=x\nExec=touch " +
                      QFile::encodeName(m_folder.filePath("started")) + '\n',
                  QFile::Permissions(0x7755));
    else if (kind == "a broken program")
        writeFile(path, "#!/nonexistent/interpreter\n", QFile::Permissions(0x7755));
    else if (kind == "a locked file")
        writeFile(path, "secret", QFile::Permissions());
    else if (kind != "nothing")
        writeFile(path, "text", QFile::Permissions(0x6644));
    return path;
}

void LinkOpenerTest::handsAddressesToTheDesktop_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("http") << "http://example.org/?a=1&b=%20";
    QTest::newRow("https") << "https://example.org/";
    QTest::newRow("ftp") << "ftp://example.org/file";
    QTest::newRow("mail") << "mailto:";
    QTest::newRow("mail to somebody") << "mailto:someone@example.org?subject=a%20b";
    QTest::newRow("telephone") << "tel:+49301234";
}

void LinkOpenerTest::handsAddressesToTheDesktop()
{
    QFETCH(QString, address);
    const RecordingDesktop desktop;
    const LinkOpener opener;
    QVERIFY(QDesktopServices::openUrl(QUrl(address)));
    QTRY_COMPARE(desktop.opened(), QStringList(address));
    QVERIFY(!notice());
}

void LinkOpenerTest::handsFilesToTheDesktop_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("hasScheme");
    QTest::newRow("document") << "a document" << false;
    QTest::newRow("document as file:") << "a document" << true;
    QTest::newRow("folder, which is executable") << "a folder" << false;
    QTest::newRow("folder as file:") << "a folder" << true;
}

void LinkOpenerTest::handsFilesToTheDesktop()
{
    QFETCH(QString, kind);
    QFETCH(bool, hasScheme);
    const QString path = make(kind);
    const RecordingDesktop desktop;
    const LinkOpener opener;
    QVERIFY(QDesktopServices::openUrl(hasScheme ? QUrl::fromLocalFile(path) : QUrl(path)));
    QTRY_COMPARE(desktop.opened(), QStringList(path));
    QVERIFY(!notice());
}

void LinkOpenerTest::startsPrograms_data()
{
    QTest::addColumn<bool>("hasScheme");
    QTest::newRow("path") << false;
    QTest::newRow("file:") << true;
}

void LinkOpenerTest::startsPrograms()
{
    QFETCH(bool, hasScheme);
    const QString path = make("a program");
    const QString record = m_folder.filePath("started");
    QFile::remove(record);
    const RecordingDesktop desktop;
    const LinkOpener opener;
    QVERIFY(QDesktopServices::openUrl(hasScheme ? QUrl::fromLocalFile(path) : QUrl(path)));
    QTRY_VERIFY(QFile::exists(record));
    QFile file(record);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromUtf8(file.readAll()).trimmed(), m_folder.path());
    QCOMPARE(desktop.opened(), QStringList());
    QVERIFY(!notice());
}

void LinkOpenerTest::startsDesktopEntries()
{
    // Executable, as one that the user trusts may be.
    const QString path = make("entry.desktop"), record = m_folder.filePath("started");
    QFile::remove(record);
    const RecordingDesktop desktop;
    const LinkOpener opener;
    QVERIFY(QDesktopServices::openUrl(QUrl(path)));
    QTRY_VERIFY(QFile::exists(record));
    QTRY_VERIFY(!hasChildProcesses());
    QCOMPARE(desktop.opened(), QStringList());
    QVERIFY(!notice());
}

void LinkOpenerTest::namesTheLink_data()
{
    QTest::addColumn<QString>("kind");
    for (const char* kind : {"nothing", "a failing program", "a broken program"})
        QTest::newRow(kind) << kind;
}

void LinkOpenerTest::namesTheLink()
{
    QFETCH(QString, kind);
    const QString path = make(kind);
    const LinkOpener opener;
    {
        // It is told later.
        const OpenedLink link("My Link", 0);
        QVERIFY(QDesktopServices::openUrl(QUrl(path)));
    }
    QTRY_VERIFY(notice());
    QVERIFY2(notice()->text().endsWith("\n\nMy Link: " + path), qPrintable(notice()->text()));
    QTRY_VERIFY(!hasChildProcesses());
}

void LinkOpenerTest::tellsWhatCannotBeOpened_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << "nothing"
                             << "There is no such file or folder, or you are not allowed to see it:";
    QTest::newRow("locked") << "a locked file"
                            << "You are not allowed to open this:";
    QTest::newRow("broken") << "a broken program"
                            << "This program could not be started:";
    QTest::newRow("failing") << "a failing program"
                             << "This program ended at once, with the error code 7:";
    QTest::newRow("crashing") << "a crashing program"
                              << "This program crashed (signal 11, it used memory that it does not have):";
}

void LinkOpenerTest::tellsWhatCannotBeOpened()
{
    QFETCH(QString, kind);
    QFETCH(QString, reason);
    const QString path = make(kind);
    QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755));
    const RecordingDesktop desktop;
    const LinkOpener opener;
    {
        const WithoutPrivileges user;
        QVERIFY(user.isBound());
        QVERIFY(QDesktopServices::openUrl(QUrl(path)));
    }
    QTRY_VERIFY(notice());
    QCOMPARE(notice()->text(), reason + "\n\n" + path);
    QCOMPARE(notice()->windowTitle(), "Not opened");
    QCOMPARE(desktop.opened(), QStringList());
}

void LinkOpenerTest::tellsWhatTheDesktopCannotOpen()
{
    const RecordingDesktop desktop;
    desktop.answer(3);
    const LinkOpener opener;
    QVERIFY(QDesktopServices::openUrl(QUrl("ftp://example.org/")));
    QTRY_VERIFY(notice());
    QCOMPARE(notice()->text(), "No program was found that opens this:\n\nftp://example.org/");
}

void LinkOpenerTest::leavesOtherSchemesAlone()
{
    const RecordingDesktop desktop;
    const LinkOpener opener;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("does not support"));
    QVERIFY(!QDesktopServices::openUrl(QUrl("sms:1")));
    QVERIFY(!notice());
}

void LinkOpenerTest::takesOverFurtherSchemes()
{
    const RecordingDesktop desktop;
    LinkOpener opener;
    opener.takeOver({"sms", "geo", "sms", "http"});
    opener.takeOver({"sms"});
    for (const char* address : {"sms:1", "SMS:2", "geo:1,2"}) {
        QVERIFY(QDesktopServices::openUrl(QUrl(address)));
        QVERIFY2(notice(), address);
    }
    QCOMPARE(messageCount(), 1);
    QCOMPARE(desktop.opened(), QStringList());
}

void LinkOpenerTest::opensOtherSchemesOnlyWithTheUsersConsent()
{
    const RecordingDesktop desktop;
    LinkOpener opener;
    opener.takeOver({"sms"});
    QVERIFY(QDesktopServices::openUrl(QUrl("sms:1")));
    QPointer<QMessageBox> question = notice();
    QVERIFY(question);
    QCOMPARE(question->text(), "Open this address with the program for \"sms\" links?\n\nsms:1");
    clickButton(question, QMessageBox::No);
    QTRY_VERIFY(!question);
    QCoreApplication::processEvents();
    QVERIFY(!hasChildProcesses());
    QCOMPARE(messageCount(), 0);
    QVERIFY(QDesktopServices::openUrl(QUrl(QString::fromUtf8("sms:\303\251 1"))));
    question = notice();
    QVERIFY(question);
    // What is shown is what is opened.
    QVERIFY(question->text().endsWith("\n\nsms:%C3%A9%201"));
    clickButton(question, QMessageBox::Yes);
    QTRY_COMPARE(desktop.opened(), QStringList("sms:%C3%A9%201"));
}

void LinkOpenerTest::asksOnlyOnceForAnAddress()
{
    QStringList agreed{"sms:1"};
    const RecordingDesktop desktop;
    LinkOpener opener({[&agreed](const QString& address) { return agreed.contains(address); },
                       [&agreed](const QString& address) {
                           agreed.append(address);
                       }});
    opener.takeOver({"sms"});
    QVERIFY(QDesktopServices::openUrl(QUrl("sms:1")));
    QVERIFY(!notice());
    QTRY_COMPARE(desktop.opened(), QStringList("sms:1"));
    // Spelt exactly so.
    QVERIFY(QDesktopServices::openUrl(QUrl("sms:1?")));
    QVERIFY(notice());
    clickButton(notice(), QMessageBox::Yes);
    QTRY_COMPARE(int(desktop.opened().size()), 2);
    QCOMPARE(agreed, QStringList({"sms:1", "sms:1?"}));
    QTRY_VERIFY(!notice());
    QVERIFY(QDesktopServices::openUrl(QUrl("sms:1?")));
    QVERIFY(!notice());
    QTRY_COMPARE(int(desktop.opened().size()), 3);
}

void LinkOpenerTest::saysThatItCannotAskMore()
{
    LinkOpener opener;
    opener.takeOver({"sms"});
    for (int i = 0; i <= 201; ++i)
        QVERIFY(QDesktopServices::openUrl(QUrl(QString("sms:%1").arg(i))));
    QCOMPARE(messageCount(), 2);
    const auto isNotice = [](QMessageBox* box) {
        return box->icon() == QMessageBox::Warning;
    };
    QMessageBox* box = notice();
    if (!isNotice(box)) {
        box->hide();
        box = notice();
    }
    QVERIFY(isNotice(box));
    QCOMPARE(box->text(), "Too many questions wait for an answer to ask about this address, too:\n\nsms:201");
}

void LinkOpenerTest::neverOpensScripts_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("script") << "javascript:alert(1)";
    QTest::newRow("capitals") << "JavaScript:alert(1)";
    QTest::newRow("other script") << "vbscript:x";
    QTest::newRow("page") << "data:text/html,x";
}

void LinkOpenerTest::neverOpensScripts()
{
    QFETCH(QString, address);
    // Not even where somebody agreed to everything.
    LinkOpener opener({[](const QString&) { return true; },
                       [](const QString&) {
                       }});
    opener.takeOver({"javascript", "vbscript", "data"});
    QVERIFY(QDesktopServices::openUrl(QUrl(address)));
    QVERIFY(!hasChildProcesses());
    QVERIFY(notice());
    QCOMPARE(notice()->text(), "Addresses that are themselves a script or a page are never opened:\n\n" +
                                   QString(QUrl(address).toEncoded()));
}

void LinkOpenerTest::saysWhatCameOfIt_data()
{
    QTest::addColumn<QString>("opened"); // an address, or a kind of file
    QTest::addColumn<QStringList>("outcomes");
    QTest::newRow("address") << "mailto:someone@example.org" << QStringList{"Opened"};
    for (const char* kind : {"a document", "a folder", "a program", "entry.desktop"})
        QTest::newRow(kind) << kind << QStringList{"Opened"};
    QTest::newRow("nothing") << "nothing"
                             << QStringList{"Not opened: There is no such file or folder, or you are not allowed to "
                                            "see it"};
    QTest::newRow("script") << "javascript:alert(1)"
                            << QStringList{"Not opened: Addresses that are themselves a script or a page are never "
                                           "opened"};
    QTest::newRow("no path") << "file:" << QStringList{"Not opened: This link leads nowhere: it has no path."};
    QTest::newRow("relative path") << "program"
                                   << QStringList{"Not opened: The path of an application or file must begin with "
                                                  "\"/\""};
    QTest::newRow("too long") << "mailto:" + QString(140000, 'x')
                              << QStringList{"Not opened: This is too long to be opened"};
    QTest::newRow("question") << "sms:1" << QStringList{"You were asked first"};
    QTest::newRow("failing") << "a failing program"
                             << QStringList{"Opened", "Failed: This program ended at once, with the error code 7"};
    QTest::newRow("broken") << "a broken program" << QStringList{"Failed: This program could not be started"};
}

void LinkOpenerTest::saysWhatCameOfIt()
{
    QFETCH(QString, opened);
    QFETCH(QStringList, outcomes);
    QStringList heard;
    Opening::setListener([&heard](const Decision& decision) {
        heard.append(decision.what + " | " + decision.cause + " | " + decision.outcome);
    });
    const bool isFile = opened.contains(' ') || opened == "nothing" || opened.endsWith(".desktop");
    const QUrl address(isFile ? make(opened) : opened);
    const RecordingDesktop desktop;
    LinkOpener opener;
    opener.takeOver({"sms", "javascript"});
    {
        const OpenedLink link("My Link", 0);
        const OpeningCause cause("because");
        QVERIFY(QDesktopServices::openUrl(address));
    }
    QStringList expected;
    for (const QString& outcome : qAsConst(outcomes))
        expected.append("My Link | because | " + outcome);
    QTRY_COMPARE(heard, expected);
    QTRY_VERIFY(!hasChildProcesses());
    QCOMPARE(heard, expected);
}

void LinkOpenerTest::saysWhatTheUserAnswered_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("outcome");
    QTest::newRow("yes") << int(QMessageBox::Yes) << "Opened";
    QTest::newRow("no") << int(QMessageBox::No) << "Not opened: you did not agree";
}

void LinkOpenerTest::saysWhatTheUserAnswered()
{
    QFETCH(int, answer);
    QFETCH(QString, outcome);
    QStringList heard;
    Opening::setListener([&heard](const Decision& decision) {
        heard.append(decision.what + " | " + decision.cause + " | " + decision.outcome);
    });
    const RecordingDesktop desktop;
    LinkOpener opener;
    opener.takeOver({"sms"});
    {
        const OpenedLink link("My Link", 0);
        const OpeningCause cause("because");
        QVERIFY(QDesktopServices::openUrl(QUrl("sms:1")));
    }
    clickButton(notice(), QMessageBox::StandardButton(answer));
    // Link and cause are those of the question.
    QTRY_COMPARE(heard, QStringList({"My Link | because | You were asked first", "My Link | because | " + outcome}));
}

void LinkOpenerTest::tellsAllFailuresInOneNotice()
{
    const RecordingDesktop desktop;
    desktop.answer(3);
    const LinkOpener opener;
    QVERIFY(QDesktopServices::openUrl(QUrl("program")));
    CommonUtils::OpenUrl("x:y");
    CommonUtils::OpenUrl("www.a.example");
    QVERIFY(QDesktopServices::openUrl(QUrl("/no/such/file")));
    QTRY_VERIFY(notice()->text().contains("No program was found that opens this:\n"));
    QVERIFY(notice()->text().endsWith(" http://www.a.example"));
    QCOMPARE(messageCount(), 1);
    QCOMPARE(int(notice()->text().split('\n').size()), 8); // four reasons with a target each
}

void LinkOpenerTest::givesTheSchemesBack()
{
    const RecordingDesktop desktop;
    {
        LinkOpener opener;
        opener.takeOver({"sms"});
    }
    for (const char* address : {"/", "file:///", "mailto:", "http://a", "https://a", "ftp://a", "tel:1", "data:,x",
                                "javascript:x", "vbscript:x", "sms:1"}) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("does not support"));
        QVERIFY2(!QDesktopServices::openUrl(QUrl(address)), address);
    }
}

REGISTER_TEST(LinkOpenerTest)
#include "LinkOpenerTest.moc"
