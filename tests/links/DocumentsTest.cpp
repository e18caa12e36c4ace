// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The manual pages and the page for operators: their commands run, and they say what the programs do.

#include <QRegularExpression>

#include "Finding.h"
#include "LinksTool.h"
#include "Test.h"

class DocumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandsRun_data();
    void commandsRun();
    void shownFindingIsReal();
    void shownLayerIsGood();
    void pagesAreWellFormed_data();
    void pagesAreWellFormed();
    void everyCodeIsExplained();
    void everyCommandAndOptionIsThere();
};

static QString textOf(const QString& file)
{
    return QString::fromUtf8(LinksTool::read(DOCUMENTS "/" + file));
}

/** A manual page as it is typed, without the signs that roff wants. */
static QString page(const QString& file)
{
    return textOf("man/" + file).remove('\\');
}

static const QStringList manualPages{"vellumconnect.1", "vellumconnect-links.1", "vellumconnect-links.5"};

/** The lines between those that begin a block of commands and those that end it. */
static QStringList linesBetween(const QString& text, const QString& begin, const QString& end)
{
    QStringList lines;
    bool isInside = false;
    for (const QString& line : text.split('\n')) {
        if (isInside && line != end)
            lines.append(line);
        isInside = line == begin || (isInside && line != end);
    }
    return lines;
}

void DocumentsTest::commandsRun_data()
{
    QTest::addColumn<QString>("command");
    QStringList commands = linesBetween(textOf("operators.md"), "```sh", "```");
    for (const QString& name : manualPages)
        commands += linesBetween(page(name), ".EX", ".EE").filter(QRegularExpression("^vellumconnect"));
    QVERIFY(commands.size() > 20);
    for (const QString& command : qAsConst(commands))
        QTest::newRow(qUtf8Printable(command)) << command;
}

void DocumentsTest::commandsRun()
{
    QFETCH(QString, command);
    const LinksTool shell("sh");
    const QByteArray other = goodFile().replace("Portal", "News");
    QVERIFY(shell.write(shell.ownFile(), command.contains(" edit News") ? other : goodFile()));
    QVERIFY(shell.write(shell.path("links.xml"), goodFile()));
    QVERIFY(shell.write(shell.path("links.json"), "{\"links\":[]}"));
    QVERIFY(shell.write(shell.path("bookmarks.html"), "<!DOCTYPE NETSCAPE-Bookmark-file-1>"));
    QVERIFY(QFile::copy(DOCUMENTS "/config.rng", shell.path("config.rng")));
    const LinksTool::Answer answer = shell.run({"-c", "PATH=" PROGRAMS ":$PATH; " + command});
    QVERIFY2(answer.code == 0, qUtf8Printable(answer.error));
    QVERIFY2(!answer.error.contains("vellumconnect"), qUtf8Printable(answer.error));
}

void DocumentsTest::shownFindingIsReal()
{
    const LinksTool tool;
    QVERIFY(tool.write(tool.path("links.xml"), goodFile().replace("E-MAIL", "E_MAIL")));
    const QString said = tool.run({"check", "links.xml"}).out;
    QVERIFY2(textOf("operators.md").contains("```\n" + said + "```\n"), qUtf8Printable(said));
}

void DocumentsTest::shownLayerIsGood()
{
    const LinksTool tool;
    const QStringList lines = linesBetween(textOf("operators.md"), "```xml", "```");
    QVERIFY(lines.size() > 5);
    QVERIFY(tool.write(tool.path("links.xml"), lines.join('\n').toUtf8()));
    const LinksTool::Answer answer = tool.run({"check", "links.xml"});
    QCOMPARE(answer.out + answer.error, QString());
    QCOMPARE(answer.code, 0);
}

void DocumentsTest::pagesAreWellFormed_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : manualPages)
        QTest::newRow(qUtf8Printable(name)) << name;
}

void DocumentsTest::pagesAreWellFormed()
{
    QFETCH(QString, name);
    QProcess groff;
    groff.start("groff", {"-man", "-Tutf8", "-ww", "-z", QString(DOCUMENTS "/man/") + name});
    QVERIFY(groff.waitForFinished(60000));
    QCOMPARE(groff.exitCode(), 0);
    QCOMPARE(QString::fromUtf8(groff.readAllStandardError()), "");
}

void DocumentsTest::everyCodeIsExplained()
{
    const QString text = page("vellumconnect-links.1");
    for (const FindingCodes::Row& row : FindingCodes::all()) {
        const QString meaning = QString(row.meaning).chopped(1);
        QVERIFY2(text.contains(QString(".TP\n.B %1\n%2").arg(row.word, meaning)), row.word);
    }
}

void DocumentsTest::everyCommandAndOptionIsThere()
{
    const QString links = page("vellumconnect-links.1");
    for (const char* const command : {"check", "list", "export", "import", "add", "edit", "remove", "move", "open"}) {
        QVERIFY2(links.contains(QString(".B vellumconnect-links %1\n").arg(command)), command);
        QVERIFY2(links.contains(QString(".TP\n.B %1\n").arg(command)), command);
    }
    const LinksTool program(PROGRAMS "/vellumconnect");
    const QString help = program.run({"--help"}).out;
    QRegularExpressionMatchIterator options = QRegularExpression("--[a-z-]+").globalMatch(help);
    QVERIFY(options.hasNext());
    while (options.hasNext()) {
        const QString option = options.next().captured();
        // What the toolkit adds to every program's help is not this program's.
        if (option != "--help-all")
            QVERIFY2(page("vellumconnect.1").contains(option), qUtf8Printable(option));
    }
}

REGISTER_TEST(DocumentsTest)
#include "DocumentsTest.moc"
