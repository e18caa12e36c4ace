// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Which folder the plug-ins are told to be the user's.

#include <QDir>

#include "CommonUtils.h"
#include "Test.h"
#include "UserFolder.h"

class UserFolderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void followsTheEnvironment_data();
    void followsTheEnvironment();
    void keepsTheChosenPath_data();
    void keepsTheChosenPath();
    void goesBackToTheDefault();
    void staysWhenTheCurrentFolderChanges();
};

void UserFolderTest::init()
{
    qputenv("HOME", "/home/someone");
    qunsetenv("XDG_DATA_HOME");
    UserFolder::setPath(QString());
}

void UserFolderTest::followsTheEnvironment_data()
{
    QTest::addColumn<QByteArray>("dataHome");
    QTest::addColumn<QString>("expected");
    const QString fallback = "/home/someone/.local/share/vellumconnect";
    QTest::newRow("unset") << QByteArray() << fallback;
    QTest::newRow("empty") << QByteArray("") << fallback;
    QTest::newRow("relative") << QByteArray("share") << fallback;
    QTest::newRow("absolute") << QByteArray("/srv/data") << "/srv/data/vellumconnect";
    QTest::newRow("slash at the end") << QByteArray("/srv/data/") << "/srv/data/vellumconnect";
    QTest::newRow("root") << QByteArray("/") << "/vellumconnect";
    QTest::newRow("blank") << QByteArray("/srv/my data") << "/srv/my data/vellumconnect";
}

void UserFolderTest::followsTheEnvironment()
{
    QFETCH(QByteArray, dataHome);
    QFETCH(QString, expected);
    if (!dataHome.isNull())
        qputenv("XDG_DATA_HOME", dataHome);
    QCOMPARE(CommonUtils::GetPluginLibraryPath(), expected);
    QCOMPARE(UserFolder::path(), expected);
}

void UserFolderTest::keepsTheChosenPath_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("expected");
    QTest::newRow("absolute") << "/srv/x"
                              << "/srv/x";
    QTest::newRow("slashes at the end") << "/srv/x//"
                                        << "/srv/x";
    QTest::newRow("root") << "/" << QString();
    QTest::newRow("relative") << "x/" << QDir::current().absoluteFilePath("x");
    QTest::newRow("current folder") << "." << QDir::currentPath();
}

void UserFolderTest::keepsTheChosenPath()
{
    QFETCH(QString, chosen);
    QFETCH(QString, expected);
    UserFolder::setPath(chosen);
    QCOMPARE(CommonUtils::GetPluginLibraryPath(), expected);
}

void UserFolderTest::goesBackToTheDefault()
{
    UserFolder::setPath("/srv/x");
    UserFolder::setPath(QString());
    QCOMPARE(UserFolder::path(), "/home/someone/.local/share/vellumconnect");
}

void UserFolderTest::staysWhenTheCurrentFolderChanges()
{
    const QString before = QDir::currentPath();
    UserFolder::setPath("x");
    const QString chosen = UserFolder::path();
    QVERIFY(QDir::setCurrent("/"));
    QCOMPARE(UserFolder::path(), chosen);
    QVERIFY(QDir::setCurrent(before));
}

REGISTER_TEST(UserFolderTest)
#include "UserFolderTest.moc"
