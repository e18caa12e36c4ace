// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The user's choices, from one start to the next.

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include "ProcessLimits.h"
#include "RecordingTrace.h"
#include "Test.h"
#include "UserFolder.h"
#include "UserSettings.h"

class UserSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheLanguage_data();
    void keepsTheLanguage();
    void knowsNoneAtFirst();
    void keepsAgreedAddresses();
    void knowsAddressesByTheirExactSpelling_data();
    void knowsAddressesByTheirExactSpelling();
    void keepsTheWindowsPlace();
    void keepsThePageOfTheSettings();
    void keepsTheChoiceOfConnections();
    void brokenChoiceOfConnectionsIsByDefault();
    void removesALockThatWasLeft();
    void makesTheMissingFolder();
    void warnsWhenItCannotBeKept();
};

namespace
{
/** A folder of the user that goes with it. */
class OwnFolder
{
public:
    explicit OwnFolder(const QString& below = QString()) { UserFolder::setPath(m_folder.path() + below); }
    ~OwnFolder() { UserFolder::setPath(QString()); }

    static QString file() { return UserFolder::path() + "/vellumconnect.ini"; }

private:
    QTemporaryDir m_folder;
};
} // namespace

void UserSettingsTest::keepsTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("de") << "de";
    QTest::newRow("pt_BR") << "pt_BR";
    QTest::newRow("the system's") << QString();
}

void UserSettingsTest::keepsTheLanguage()
{
    QFETCH(QString, language);
    const OwnFolder folder;
    UserSettings::setLanguage("fr");
    UserSettings::setLanguage(language);
    QCOMPARE(UserSettings::language(), language);
    // Not only in this process.
    QFile file(OwnFolder::file());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    QVERIFY2(text.contains(QString("language=%1\n").arg(language)), qPrintable(text));
}

void UserSettingsTest::knowsNoneAtFirst()
{
    const OwnFolder folder;
    QCOMPARE(UserSettings::language(), QString());
    QVERIFY(!QFileInfo::exists(OwnFolder::file()));
}

void UserSettingsTest::keepsAgreedAddresses()
{
    const OwnFolder folder;
    QVERIFY(!UserSettings::isAgreed("sms:1"));
    QVERIFY(!UserSettings::isAgreed(QString()));
    UserSettings::setLanguage("de");
    // What a settings file writes in another way: lists, percent signs, quotes, backslashes.
    const QStringList addresses{"sms:1", "x:%00%2C,;\"'\\@Invalid()", "x:[a]=b", "sms:" + QString(5000, '1')};
    for (const QString& address : addresses)
        UserSettings::addAgreed(address);
    UserSettings::addAgreed("sms:1");
    for (const QString& address : addresses)
        QVERIFY2(UserSettings::isAgreed(address), qPrintable(address));
    QCOMPARE(UserSettings::language(), "de");
    // Each once, and not only in this process.
    QCOMPARE(QSettings(OwnFolder::file(), QSettings::IniFormat).value("agreedAddresses").toStringList(), addresses);
}

void UserSettingsTest::knowsAddressesByTheirExactSpelling_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("empty") << QString();
    QTest::newRow("capitals") << "SMS:1";
    QTest::newRow("longer") << "sms:12";
    QTest::newRow("shorter") << "sms:";
    QTest::newRow("blank") << "sms:1 ";
    QTest::newRow("both") << "sms:1,sms:2";
    QTest::newRow("encoded") << "sms:%31";
}

void UserSettingsTest::knowsAddressesByTheirExactSpelling()
{
    QFETCH(QString, address);
    const OwnFolder folder;
    UserSettings::addAgreed("sms:1");
    UserSettings::addAgreed("sms:2");
    QVERIFY(!UserSettings::isAgreed(address));
    QVERIFY(UserSettings::isAgreed("sms:2"));
}

void UserSettingsTest::keepsTheWindowsPlace()
{
    const OwnFolder folder;
    QCOMPARE(UserSettings::windowPlace(), QByteArray());
    QByteArray place;
    for (int i = 0; i < 256; ++i)
        place.append(char(i));
    UserSettings::setWindowPlace("another");
    UserSettings::setWindowPlace(place);
    QCOMPARE(UserSettings::windowPlace(), place);
    QCOMPARE(UserSettings::language(), QString());
}

void UserSettingsTest::keepsThePageOfTheSettings()
{
    const OwnFolder folder;
    QCOMPARE(UserSettings::settingsPage(), "QuickLinkUIPlugin");
    // What counts all the same need not be kept.
    UserSettings::setSettingsPage("QuickLinkUIPlugin");
    QVERIFY(!QFileInfo::exists(OwnFolder::file()));
    UserSettings::setSettingsPage("GeneralPage");
    QCOMPARE(UserSettings::settingsPage(), "GeneralPage");
    UserSettings::setSettingsPage("QuickLinkUIPlugin");
    QCOMPARE(UserSettings::settingsPage(), "QuickLinkUIPlugin");
}

void UserSettingsTest::keepsTheChoiceOfConnections()
{
    const OwnFolder folder;
    QVERIFY(UserSettings::connection() == ConnectionChoice());
    QVERIFY(!QFileInfo::exists(OwnFolder::file()));
    UserSettings::setLanguage("de");
    ConnectionChoice choice;
    choice.plans = {{"one", "Home, \"sweet\"\nhome"}, {"two;=%", QString()}};
    choice.isNotWhileRoaming = true;
    UserSettings::setConnection(choice);
    QVERIFY(UserSettings::connection() == choice);
    UserSettings::setConnection(ConnectionKind::Any);
    QVERIFY(UserSettings::connection() == ConnectionChoice(ConnectionKind::Any));
    QCOMPARE(UserSettings::language(), "de");
    QFile file(OwnFolder::file());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("[connection]\nkind=any\n"));
}

void UserSettingsTest::brokenChoiceOfConnectionsIsByDefault()
{
    const OwnFolder folder;
    QFile file(OwnFolder::file());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[connection]\nkind=@Variant(nonsense)\nplans=one\nnotWhileRoaming=1, 2\nunknown=7\n");
    file.close();
    const RecordingTrace trace;
    QVERIFY(UserSettings::connection() == ConnectionChoice());
    QCOMPARE(trace.warningLines.filter("The choice of connections has no good value").size(), 3);
}

void UserSettingsTest::removesALockThatWasLeft()
{
    const OwnFolder folder;
    const QString lock = OwnFolder::file() + ".lock";
    UserSettings::removeLeftLock();
    QVERIFY(QFile(lock).open(QIODevice::WriteOnly));
    UserSettings::removeLeftLock();
    QVERIFY(!QFile::exists(lock));
    UserSettings::setLanguage("de");
    QCOMPARE(UserSettings::language(), QString("de"));
}

void UserSettingsTest::makesTheMissingFolder()
{
    const OwnFolder folder("/not/there");
    const RecordingTrace trace;
    QCOMPARE(UserSettings::language(), QString());
    UserSettings::setLanguage("de");
    QVERIFY(QFileInfo::exists(OwnFolder::file()));
    QCOMPARE(UserSettings::language(), "de");
    QCOMPARE(trace.warningLines, QStringList());
}

void UserSettingsTest::warnsWhenItCannotBeKept()
{
    const OwnFolder folder;
    const QString path = UserFolder::path();
    QVERIFY(QFile::setPermissions(path, QFile::Permissions(0x5555)));
    const RecordingTrace trace;
    {
        const WithoutPrivileges user;
        QVERIFY(user.isBound());
        UserSettings::setLanguage("de");
    }
    QFile::setPermissions(path, QFile::Permissions(0x7700)); // so that it can be cleared away
    QCOMPARE(trace.warningLines, QStringList("The choice cannot be kept in " + OwnFolder::file()));
    QCOMPARE(QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
}

REGISTER_TEST(UserSettingsTest)
#include "UserSettingsTest.moc"
