// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The file by which the desktop starts the program together with the session.

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

#include "Autostart.h"
#include "ProcessLimits.h"
#include "Test.h"

class AutostartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void writesTheFile();
    void quotesTheCommand_data();
    void quotesTheCommand();
    void replacesAFormerChoice();
    void seesThatItIsSwitchedOff_data();
    void seesThatItIsSwitchedOff();
    void saysThatItCannotBeKept();

private:
    static QByteArray content();
    static void write(const QByteArray& content);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void AutostartTest::initTestCase()
{
    QGuiApplication::setDesktopFileName("com.norvik.vellumconnect");
}

void AutostartTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder->path()));
}

void AutostartTest::cleanup()
{
    qunsetenv("XDG_CONFIG_HOME");
}

QByteArray AutostartTest::content()
{
    QFile file(Autostart::file());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void AutostartTest::write(const QByteArray& content)
{
    QVERIFY(QDir().mkpath(QFileInfo(Autostart::file()).path()));
    QFile file(Autostart::file());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

void AutostartTest::writesTheFile()
{
    QCOMPARE(Autostart::file(), m_folder->filePath("autostart/com.norvik.vellumconnect.desktop"));
    QVERIFY(!Autostart::isOn());
    QVERIFY(Autostart::turnOn({"--hidden"}));
    QVERIFY(Autostart::isOn());
    const QByteArray program = QCoreApplication::applicationFilePath().toUtf8();
    QVERIFY2(content().startsWith("[Desktop Entry]\nType=Application\n"), content());
    QVERIFY2(content().contains("\nTryExec=" + program + '\n'), content());
    QVERIFY2(content().contains("\nExec=" + program + " --hidden\n"), content());
    QVERIFY(Autostart::turnOff());
    QVERIFY(!Autostart::isOn());
    QVERIFY(!QFileInfo::exists(Autostart::file()));
    QVERIFY(Autostart::turnOff());
}

void AutostartTest::quotesTheCommand_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("plain") << "/opt/a-b_1.2/x+y" << QStringList{"--hidden"} << QByteArray("/opt/a-b_1.2/x+y --hidden");
    QTest::newRow("blank") << "/opt/My programs/x" << QStringList() << QByteArray("\"/opt/My programs/x\"");
    QTest::newRow("empty") << "/x" << QStringList{""} << QByteArray("/x \"\"");
    QTest::newRow("per cent") << "/x" << QStringList{"%u"} << QByteArray("/x \"%%u\"");
    QTest::newRow("quote") << "/x" << QStringList{"\""} << QByteArray("/x \"\\\\\"\"");
    QTest::newRow("dollar") << "/x" << QStringList{"$HOME"} << QByteArray("/x \"\\\\$HOME\"");
    QTest::newRow("backtick") << "/x" << QStringList{"`"} << QByteArray("/x \"\\\\`\"");
    QTest::newRow("backslash") << "/x" << QStringList{"\\"} << QByteArray("/x \"\\\\\\\\\"");
    QTest::newRow("line feed") << "/x" << QStringList{"a\nb"} << QByteArray("/x \"a\\nb\"");
    QTest::newRow("other letters") << "/x" << QStringList{QString::fromUtf8("é")} << QByteArray("/x \"é\"");
}

void AutostartTest::quotesTheCommand()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, line);
    const QByteArray entry = Autostart::entry(program, arguments);
    QVERIFY2(entry.contains("\nExec=" + line + '\n'), entry);
}

void AutostartTest::replacesAFormerChoice()
{
    write("[Desktop Entry]\nExec=/old\nHidden=true\n");
    QVERIFY(Autostart::turnOn({}));
    QVERIFY(Autostart::isOn());
    QVERIFY2(!content().contains("/old"), content());
}

void AutostartTest::seesThatItIsSwitchedOff_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("isOn");
    QTest::newRow("nothing else") << QByteArray() << true;
    QTest::newRow("by the rule") << QByteArray("Hidden=true\n") << false;
    QTest::newRow("not by the rule") << QByteArray("Hidden=false\n") << true;
    QTest::newRow("by a tool") << QByteArray("X-GNOME-Autostart-enabled=false\n") << false;
    QTest::newRow("not by a tool") << QByteArray("X-GNOME-Autostart-enabled=true\n") << true;
}

void AutostartTest::seesThatItIsSwitchedOff()
{
    QFETCH(QByteArray, line);
    write("[Desktop Entry]\nExec=/x\n" + line);
    QTEST(Autostart::isOn(), "isOn");
}

void AutostartTest::saysThatItCannotBeKept()
{
    QVERIFY(Autostart::turnOn({}));
    const QString folder = QFileInfo(Autostart::file()).path();
    QVERIFY(QFile::setPermissions(folder, QFile::Permissions(0x5555)));
    QVERIFY(QFile::setPermissions(m_folder->path(), QFile::Permissions(0x5555)));
    {
        const WithoutPrivileges user;
        QVERIFY(user.isBound());
        QVERIFY(!Autostart::turnOff());
        QVERIFY(!Autostart::turnOn({"--other"}));
    }
    QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7700)); // so that it can be cleared away
    QFile::setPermissions(folder, QFile::Permissions(0x7700));
    QVERIFY(Autostart::isOn());
    QVERIFY2(!content().contains("--other"), content());
}

REGISTER_TEST(AutostartTest)
#include "AutostartTest.moc"
