// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What the program is asked for on its command line.

#include <QTest>

#include "CommandLine.h"

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheAction_data();
    void readsTheAction();
    void readsValues();
    void readsTheKindOfConnection_data();
    void readsTheKindOfConnection();
    void refusesInOneLine_data();
    void refusesInOneLine();
    void helpNamesEveryOption_data();
    void helpNamesEveryOption();
    void versionIsOneLine();
};

static CommandLine parsed(const QStringList& arguments)
{
    QList<QByteArray> texts{QByteArrayLiteral("vellumconnect")};
    for (const QString& argument : arguments)
        texts.append(argument.toLocal8Bit());
    QVector<char*> argv;
    for (QByteArray& text : texts)
        argv.append(text.data());
    return CommandLine::parse(argv.size(), argv.data());
}

void CommandLineTest::readsTheAction_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("action");
    QTest::newRow("none") << QStringList() << int(CommandLine::ShowWindow);
    QTest::newRow("list") << QStringList{QStringLiteral("--list-links")} << int(CommandLine::ListLinks);
    QTest::newRow("help") << QStringList{QStringLiteral("--help")} << int(CommandLine::ShowHelp);
    QTest::newRow("h") << QStringList{QStringLiteral("-h")} << int(CommandLine::ShowHelp);
    QTest::newRow("version") << QStringList{QStringLiteral("--version")} << int(CommandLine::ShowVersion);
    QTest::newRow("v") << QStringList{QStringLiteral("-v")} << int(CommandLine::ShowVersion);
    QTest::newRow("help before the others")
        << QStringList{QStringLiteral("--list-links"), QStringLiteral("--version"), QStringLiteral("--help")}
        << int(CommandLine::ShowHelp);
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
    const CommandLine line =
        parsed({QStringLiteral("--data-dir"), QStringLiteral("my data"), QStringLiteral("--plugin-dir=/p"),
                QStringLiteral("--language"), QStringLiteral("pt_BR")});
    QCOMPARE(line.dataFolder, QStringLiteral("my data"));
    QCOMPARE(line.pluginFolder, QStringLiteral("/p"));
    QCOMPARE(line.language, QStringLiteral("pt_BR"));
    QCOMPARE(int(line.action), int(CommandLine::ShowWindow));
}

void CommandLineTest::readsTheKindOfConnection_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("kind");
    const QString option = QStringLiteral("--connection");
    QTest::newRow("none") << QStringList() << int(ConnectionKind::Mobile);
    QTest::newRow("mobile") << QStringList{option, QStringLiteral("mobile")} << int(ConnectionKind::Mobile);
    QTest::newRow("any") << QStringList{option, QStringLiteral("any")} << int(ConnectionKind::Any);
    QTest::newRow("manual") << QStringList{option, QStringLiteral("manual")} << int(ConnectionKind::Manual);
}

void CommandLineTest::readsTheKindOfConnection()
{
    QFETCH(QStringList, arguments);
    const CommandLine line = parsed(arguments);
    QTEST(int(line.connection), "kind");
    QCOMPARE(line.error, QString());
}

void CommandLineTest::refusesInOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("unknown") << QStringList{QStringLiteral("--sing")} << QStringLiteral("sing");
    QTest::newRow("two unknown") << QStringList{QStringLiteral("--sing"), QStringLiteral("--dance")}
                                 << QStringLiteral("dance");
    QTest::newRow("argument") << QStringList{QStringLiteral("a\nb")} << QStringLiteral("\"a b\"");
    QTest::newRow("no value") << QStringList{QStringLiteral("--language")} << QStringLiteral("--language");
    QTest::newRow("empty value") << QStringList{QStringLiteral("--data-dir=")} << QStringLiteral("--data-dir");
    QTest::newRow("no such kind") << QStringList{QStringLiteral("--connection=Any")} << QStringLiteral("\"Any\"");
    QTest::newRow("value too much") << QStringList{QStringLiteral("--list-links=1")} << QStringLiteral("--list-links");
    QTest::newRow("error beside help") << QStringList{QStringLiteral("--help"), QStringLiteral("--sing")}
                                       << QStringLiteral("sing");
}

void CommandLineTest::refusesInOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    const CommandLine line = parsed(arguments);
    QCOMPARE(int(line.action), int(CommandLine::Refuse));
    QVERIFY2(line.error.contains(named), qPrintable(line.error));
    QVERIFY(!line.error.contains(QLatin1Char('\n')));
}

void CommandLineTest::helpNamesEveryOption_data()
{
    QTest::addColumn<QString>("option");
    for (const char* option :
         {"--help", "--version", "--data-dir", "--plugin-dir", "--language", "--connection", "--list-links"})
        QTest::newRow(option) << QString::fromLatin1(option);
}

void CommandLineTest::helpNamesEveryOption()
{
    QFETCH(QString, option);
    QVERIFY(CommandLine::helpText().contains(QStringLiteral(" %1 ").arg(option)));
}

void CommandLineTest::versionIsOneLine()
{
    QCoreApplication::setApplicationName(QStringLiteral("program"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2"));
    QCOMPARE(CommandLine::versionText(), QStringLiteral("program 1.2\n"));
}

QTEST_GUILESS_MAIN(CommandLineTest)
#include "tst_command_line.moc"
