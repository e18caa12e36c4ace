// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the program is asked for on its command line.

#include <QDir>

#include "CommandLine.h"
#include "Test.h"

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheAction_data();
    void readsTheAction();
    void readsValues();
    void readsTheLanguageBesideAnError();
    void readsTheKindOfConnection_data();
    void readsTheKindOfConnection();
    void staysHiddenWhereAsked();
    void asksForTheSameAgain_data();
    void asksForTheSameAgain();
    void refusesInOneLine_data();
    void refusesInOneLine();
    void helpNamesEveryOption_data();
    void helpNamesEveryOption();
    void versionIsOneLine();
};

static CommandLine parsed(const QStringList& arguments)
{
    QList<QByteArray> texts{"vellumconnect"};
    for (const QString& argument : arguments)
        texts.append(argument.toLocal8Bit());
    QVector<char*> argv;
    for (QByteArray& text : texts)
        argv.append(text.data());
    return CommandLine::parse(CommandLine::arguments(argv.size(), argv.data()));
}

void CommandLineTest::readsTheAction_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("action");
    QTest::newRow("none") << QStringList() << int(CommandLine::ShowWindow);
    QTest::newRow("list") << QStringList{"--list-links"} << int(CommandLine::ListLinks);
    QTest::newRow("why") << QStringList{"--why"} << int(CommandLine::ShowDecisions);
    QTest::newRow("help") << QStringList{"--help"} << int(CommandLine::ShowHelp);
    QTest::newRow("h") << QStringList{"-h"} << int(CommandLine::ShowHelp);
    QTest::newRow("version") << QStringList{"--version"} << int(CommandLine::ShowVersion);
    QTest::newRow("v") << QStringList{"-v"} << int(CommandLine::ShowVersion);
    QTest::newRow("help before the others")
        << QStringList{"--why", "--list-links", "--version", "--help"} << int(CommandLine::ShowHelp);
}

void CommandLineTest::readsTheAction()
{
    QFETCH(QStringList, arguments);
    const CommandLine line = parsed(arguments);
    QTEST(int(line.action), "action");
    QCOMPARE(line.error, QString());
}

void CommandLineTest::readsValues()
{
    const CommandLine line = parsed({"--data-dir", "my data", "--plugin-dir=/tmp", "--language", "pt_BR"});
    QCOMPARE(line.dataFolder, "my data");
    QCOMPARE(line.pluginFolder, "/tmp");
    QCOMPARE(line.language, "pt_BR");
    QCOMPARE(int(line.action), int(CommandLine::ShowWindow));
}

void CommandLineTest::readsTheLanguageBesideAnError()
{
    const CommandLine line = parsed({"--data-dir=/d", "--language", "de", "--sing"});
    QCOMPARE(int(line.action), int(CommandLine::Refuse));
    QCOMPARE(line.language, "de");
    QCOMPARE(line.dataFolder, "/d");
}

void CommandLineTest::readsTheKindOfConnection_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("kind");
    const QString option = "--connection";
    QTest::newRow("none") << QStringList() << -1;
    QTest::newRow("mobile") << QStringList{option, "mobile"} << int(ConnectionKind::Mobile);
    QTest::newRow("any") << QStringList{option, "any"} << int(ConnectionKind::Any);
    QTest::newRow("manual") << QStringList{option, "manual"} << int(ConnectionKind::Manual);
}

void CommandLineTest::readsTheKindOfConnection()
{
    QFETCH(QStringList, arguments);
    const CommandLine line = parsed(arguments);
    QTEST(line.connection ? int(*line.connection) : -1, "kind");
    QCOMPARE(line.error, QString());
}

void CommandLineTest::staysHiddenWhereAsked()
{
    QVERIFY(!parsed({}).isHidden);
    const CommandLine line = parsed({"--hidden"});
    QVERIFY(line.isHidden);
    QCOMPARE(int(line.action), int(CommandLine::ShowWindow));
}

void CommandLineTest::asksForTheSameAgain_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("again");
    const QString here = QDir::currentPath();
    QTest::newRow("nothing") << QStringList() << QStringList{"--hidden"};
    QTest::newRow("hidden") << QStringList{"--hidden"} << QStringList{"--hidden"};
    QTest::newRow("folders") << QStringList{"--data-dir", "a b", "--plugin-dir", "/"}
                             << QStringList{"--data-dir", here + "/a b", "--plugin-dir", "/", "--hidden"};
    QTest::newRow("language") << QStringList{"--language=pt_BR"} << QStringList{"--language", "pt_BR", "--hidden"};
    for (const char* kind : {"mobile", "any", "manual"})
        QTest::newRow(kind) << QStringList{"--connection", kind} << QStringList{"--connection", kind, "--hidden"};
}

void CommandLineTest::asksForTheSameAgain()
{
    QFETCH(QStringList, arguments);
    const QStringList again = parsed(arguments).againHidden();
    QTEST(again, "again");
    QCOMPARE(parsed(again).againHidden(), again);
}

void CommandLineTest::refusesInOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("unknown") << QStringList{"--sing"} << "sing";
    QTest::newRow("two unknown") << QStringList{"--sing", "--dance"} << "dance";
    QTest::newRow("argument") << QStringList{"a\nb"} << "\"a b\"";
    QTest::newRow("no value") << QStringList{"--language"} << "--language";
    QTest::newRow("empty value") << QStringList{"--data-dir="} << "--data-dir";
    QTest::newRow("empty kind") << QStringList{"--connection="} << "\"--connection\"";
    QTest::newRow("no folder of data") << QStringList{"--data-dir=/dev/null"} << "\"/dev/null\"";
    QTest::newRow("no such folder of plug-ins") << QStringList{"--plugin-dir=/not/there"} << "\"/not/there\"";
    QTest::newRow("no folder of plug-ins") << QStringList{"--plugin-dir=/dev/null"} << "\"/dev/null\"";
    QTest::newRow("no such kind") << QStringList{"--connection=Any"} << "\"Any\"";
    QTest::newRow("value too much") << QStringList{"--list-links=1"} << "--list-links";
    QTest::newRow("error beside help") << QStringList{"--help", "--sing"} << "sing";
}

void CommandLineTest::refusesInOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    const CommandLine line = parsed(arguments);
    QCOMPARE(int(line.action), int(CommandLine::Refuse));
    QVERIFY2(line.error.contains(named), qPrintable(line.error));
    QVERIFY(!line.error.contains('\n'));
    QVERIFY2(line.error.endsWith(" Try --help."), qPrintable(line.error));
}

void CommandLineTest::helpNamesEveryOption_data()
{
    QTest::addColumn<QString>("option");
    for (const char* option : {"--help", "--version", "--data-dir", "--plugin-dir", "--language", "--connection",
                               "--hidden", "--list-links", "--why"})
        QTest::newRow(option) << option;
}

void CommandLineTest::helpNamesEveryOption()
{
    QFETCH(QString, option);
    QVERIFY(CommandLine::helpText().contains(QString(" %1 ").arg(option)));
}

void CommandLineTest::versionIsOneLine()
{
    QCoreApplication::setApplicationName("program");
    QCoreApplication::setApplicationVersion("1.2");
    QCOMPARE(CommandLine::versionText(), "program 1.2\n");
}

REGISTER_TEST(CommandLineTest)
#include "CommandLineTest.moc"
