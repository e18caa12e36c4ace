// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Which file a link's address leads to.

#include <QDir>
#include <QFile>
#include <QUrl>

#include "LinkPath.h"
#include "Test.h"

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
    void looksNoFurtherThanThereIsAnything();
    void beginsAtTheRoot_data();
    void beginsAtTheRoot();
};

void LinkPathTest::knowsPaths_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("isPath");
    QTest::newRow("path") << "/usr/bin/x" << true;
    QTest::newRow("file") << "file:///usr/bin/x" << true;
    QTest::newRow("FILE") << "FILE:///usr/bin/x" << true;
    QTest::newRow("mail") << "mailto:" << false;
    QTest::newRow("web") << "http://example.org/" << false;
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
    QTest::newRow("plain") << "/no/such/file"
                           << "/no/such/file";
    QTest::newRow("blank") << "/no such/a b"
                           << "/no such/a b";
    QTest::newRow("fragment") << "/no/C#/1"
                              << "/no/C#/1";
    QTest::newRow("query") << "/no/who?/1"
                           << "/no/who?/1";
    QTest::newRow("query and fragment") << "/no/a?b#c d"
                                        << "/no/a?b#c d";
    QTest::newRow("two slashes") << "//no/such"
                                 << "/no/such";
    QTest::newRow("per cent") << "/no/100% sure"
                              << "/no/100% sure";
    QTest::newRow("letters") << QString::fromUtf8("/no/Größe") << QString::fromUtf8("/no/Größe");
    QTest::newRow("file") << "file:///no/a%20b"
                          << "/no/a b";
    QTest::newRow("file with fragment") << "file:///no/a.html#part"
                                        << "/no/a.html";
    QTest::newRow("file with sign") << "file:///no/C%23"
                                    << "/no/C#";
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
    const QString decoded = "my files/a b";
    const QString encoded = "my files/a%20b";
    QTest::newRow("only decoded") << QStringList{decoded} << encoded << decoded;
    QTest::newRow("only encoded") << QStringList{encoded} << encoded << encoded;
    QTest::newRow("both") << QStringList{decoded, encoded} << encoded << decoded;
    QTest::newRow("neither") << QStringList{"my files/ab"} << encoded << decoded;
    QTest::newRow("another one encoded") << QStringList{"my files/c%20d"} << encoded << decoded;
    const QString mixed = "my%20files/a%20b c";
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

void LinkPathTest::looksNoFurtherThanThereIsAnything()
{
    // A folder for each of these names would be looked through otherwise, which takes minutes.
    const QString path = "/no/such" + QString("/%20").repeated(500000);
    QCOMPARE(LinkPath::of(QUrl(path)), "/no/such" + QString("/ ").repeated(500000));
}

void LinkPathTest::beginsAtTheRoot_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("typed");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("name") << "a%20b"
                          << "a b";
    QTest::newRow("option") << "-x"
                            << "-x";
    QTest::newRow("home") << "~/x"
                          << "~/x";
    QTest::newRow("blank before") << " /x"
                                  << " /x";
    QTest::newRow("above") << "../x"
                           << "../x";
    QTest::newRow("query") << "x?y#z"
                           << "x?y#z";
    QTest::newRow("file:") << "file:x"
                           << "x";
    QTest::newRow("file: and nothing") << "file:" << QString();
}

void LinkPathTest::beginsAtTheRoot()
{
    QFETCH(QString, address);
    QTEST(LinkPath::typed(QUrl(address)), "typed");
    QCOMPARE(LinkPath::of(QUrl(address)), QString());
}

REGISTER_TEST(LinkPathTest)
#include "LinkPathTest.moc"
