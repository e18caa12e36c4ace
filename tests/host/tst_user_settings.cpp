// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The user's choices, from one start to the next.

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include "TraceRecorder.h"
#include "UserFolder.h"
#include "UserSettings.h"
#include "WithoutPrivileges.h"

class UserSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheLanguage_data();
    void keepsTheLanguage();
    void knowsNoneAtFirst();
    void makesTheMissingFolder();
    void warnsWhenItCannotBeKept();
};

/** A folder of the user that goes with it. */
class OwnFolder
{
public:
    explicit OwnFolder(const QString& below = QString()) { UserFolder::setPath(m_folder.path() + below); }
    ~OwnFolder() { UserFolder::setPath(QString()); }

    static QString file() { return UserFolder::path() + QStringLiteral("/vellumconnect.ini"); }

private:
    QTemporaryDir m_folder;
};

void UserSettingsTest::keepsTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("de") << QStringLiteral("de");
    QTest::newRow("pt_BR") << QStringLiteral("pt_BR");
    QTest::newRow("the system's") << QString();
}

void UserSettingsTest::keepsTheLanguage()
{
    QFETCH(QString, language);
    const OwnFolder folder;
    UserSettings::setLanguage(QStringLiteral("fr"));
    UserSettings::setLanguage(language);
    QCOMPARE(UserSettings::language(), language);
    // Not only in this process.
    QFile file(OwnFolder::file());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    QVERIFY2(text.contains(QStringLiteral("language=%1\n").arg(language)), qPrintable(text));
}

void UserSettingsTest::knowsNoneAtFirst()
{
    const OwnFolder folder;
    QCOMPARE(UserSettings::language(), QString());
    QVERIFY(!QFileInfo::exists(OwnFolder::file()));
}

void UserSettingsTest::makesTheMissingFolder()
{
    const OwnFolder folder(QStringLiteral("/not/there"));
    const TraceRecorder trace;
    QCOMPARE(UserSettings::language(), QString());
    UserSettings::setLanguage(QStringLiteral("de"));
    QVERIFY(QFileInfo::exists(OwnFolder::file()));
    QCOMPARE(UserSettings::language(), QStringLiteral("de"));
    QCOMPARE(trace.warningLines, QStringList());
}

void UserSettingsTest::warnsWhenItCannotBeKept()
{
    const OwnFolder folder;
    const QString path = UserFolder::path();
    QVERIFY(QFile::setPermissions(path, QFile::Permissions(0x5555)));
    const TraceRecorder trace;
    {
        const WithoutPrivileges user;
        QVERIFY(user.isDone());
        UserSettings::setLanguage(QStringLiteral("de"));
    }
    QFile::setPermissions(path, QFile::Permissions(0x7700)); // so that it can be cleared away
    QCOMPARE(trace.warningLines, QStringList(QStringLiteral("The choice cannot be kept in ") + OwnFolder::file()));
    QCOMPARE(QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
}

QTEST_GUILESS_MAIN(UserSettingsTest)
#include "tst_user_settings.moc"
