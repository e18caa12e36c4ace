// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Which file a link's address leads to.

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include "LinkPath.h"

class LinkPathTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void knowsPaths_data();
    void knowsPaths();
    void namesTheFile_data();
    void namesTheFile();
    void takesTheEncodedNameWhereOnlyThatExists_data();
    void takesTheEncodedNameWhereOnlyThatExists();
    void countsFromTheCurrentFolder();
};

void LinkPathTest::knowsPaths_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("isPath");
    QTest::newRow("path") << QStringLiteral("/usr/bin/x") << true;
    QTest::newRow("file") << QStringLiteral("file:///usr/bin/x") << true;
    QTest::newRow("FILE") << QStringLiteral("FILE:///usr/bin/x") << true;
    QTest::newRow("mail") << QStringLiteral("mailto:") << false;
    QTest::newRow("web") << QStringLiteral("http://example.org/") << false;
}

void LinkPathTest::knowsPaths()
{
    QFETCH(QString, address);
    QTEST(LinkPath::isPath(QUrl(address)), "isPath");
}

void LinkPathTest::namesTheFile_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("path");
    QTest::newRow("plain") << QStringLiteral("/no/such/file") << QStringLiteral("/no/such/file");
    QTest::newRow("blank") << QStringLiteral("/no such/a b") << QStringLiteral("/no such/a b");
    QTest::newRow("fragment") << QStringLiteral("/no/C#/1") << QStringLiteral("/no/C#/1");
    QTest::newRow("query") << QStringLiteral("/no/who?/1") << QStringLiteral("/no/who?/1");
    QTest::newRow("query and fragment") << QStringLiteral("/no/a?b#c d") << QStringLiteral("/no/a?b#c d");
    QTest::newRow("two slashes") << QStringLiteral("//no/such") << QStringLiteral("/no/such");
    QTest::newRow("per cent") << QStringLiteral("/no/100% sure") << QStringLiteral("/no/100% sure");
    QTest::newRow("letters") << QString::fromUtf8("/no/Größe") << QString::fromUtf8("/no/Größe");
    QTest::newRow("file") << QStringLiteral("file:///no/a%20b") << QStringLiteral("/no/a b");
    QTest::newRow("file with fragment") << QStringLiteral("file:///no/a.html#part") << QStringLiteral("/no/a.html");
    QTest::newRow("file with sign") << QStringLiteral("file:///no/C%23") << QStringLiteral("/no/C#");
}

void LinkPathTest::namesTheFile()
{
    QFETCH(QString, address);
    QTEST(LinkPath::of(QUrl(address)), "path");
}

void LinkPathTest::takesTheEncodedNameWhereOnlyThatExists_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("found");
    const QString decoded = QStringLiteral("my files/a b");
    const QString encoded = QStringLiteral("my files/a%20b");
    QTest::newRow("only decoded") << QStringList{decoded} << encoded << decoded;
    QTest::newRow("only encoded") << QStringList{encoded} << encoded << encoded;
    QTest::newRow("both") << QStringList{decoded, encoded} << encoded << decoded;
    QTest::newRow("neither") << QStringList{QStringLiteral("my files/ab")} << encoded << decoded;
    QTest::newRow("another one encoded") << QStringList{QStringLiteral("my files/c%20d")} << encoded << decoded;
    const QString mixed = QStringLiteral("my%20files/a%20b c");
    QTest::newRow("mixed") << QStringList{mixed} << mixed << mixed;
}

void LinkPathTest::takesTheEncodedNameWhereOnlyThatExists()
{
    QFETCH(QStringList, files);
    QFETCH(QString, typed);
    QFETCH(QString, found);
    const QTemporaryDir folder;
    for (const QString& name : qAsConst(files)) {
        QVERIFY(QDir(folder.path()).mkpath(QFileInfo(name).path()));
        QVERIFY(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
    }
    QCOMPARE(LinkPath::of(QUrl(folder.filePath(typed))), folder.filePath(found));
}

void LinkPathTest::countsFromTheCurrentFolder()
{
    QCOMPARE(LinkPath::of(QUrl(QStringLiteral("-x"))), QDir::current().absoluteFilePath(QStringLiteral("-x")));
}

QTEST_GUILESS_MAIN(LinkPathTest)
#include "tst_link_path.moc"
