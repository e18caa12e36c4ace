// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The icons of links, from a theme that has few.

#include <QAction>
#include <QImage>

#include "LinkIcons.h"
#include "RecordingDesktop.h"
#include "Test.h"

class LinkIconsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void looksInTheTheme_data();
    void looksInTheTheme();
    void takesTheIconOfADesktopEntry();
    void waitsForItsStart();
    void leavesFormerLinksAlone();

private:
    QTemporaryDir m_folder;
    const QStringList m_paths = QIcon::themeSearchPaths();
    const QString m_theme = QIcon::themeName();
};

void LinkIconsTest::initTestCase()
{
    const QString icons = m_folder.filePath("few/16x16/apps");
    QVERIFY(QDir().mkpath(icons));
    QImage picture(16, 16, QImage::Format_RGB32);
    picture.fill(Qt::red);
    for (const char* name : {"internet-mail", "web-browser", "application-x-executable", "folder", "some-program"})
        QVERIFY(picture.save(icons + '/' + name + ".png"));
    writeFile(m_folder.filePath("few/index.theme"),
              "[Icon Theme]\nName=Few\nDirectories=16x16/apps\n[16x16/apps]\nSize=16\nType=Fixed\n",
              QFile::Permissions(0x6644));
    QIcon::setThemeSearchPaths({m_folder.path()});
    QIcon::setThemeName("few");
}

void LinkIconsTest::cleanupTestCase()
{
    QIcon::setThemeSearchPaths(m_paths);
    QIcon::setThemeName(m_theme);
}

/** Gives an icon to a link with this address; its name in the theme. */
static QString iconOf(const QString& address)
{
    QAction action;
    LinkIcons icons;
    icons.setLinks({{&action, address}});
    icons.start();
    // The last one of all has an icon in any case.
    QAction last;
    icons.setLinks({{&action, address}, {&last, "/x/some-program"}});
    return QTest::qWaitFor([&] { return !last.icon().isNull(); }) ? action.icon().name() : "it does not end";
}

void LinkIconsTest::looksInTheTheme_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("icon");
    QTest::newRow("program") << "/usr/bin/some-program"
                             << "some-program";
    QTest::newRow("none, as of another plug-in's entry") << ""
                                                         << "";
    QTest::newRow("program as file:") << "file:///usr/bin/some-program"
                                      << "some-program";
    QTest::newRow("other program") << "/usr/bin/other"
                                   << "application-x-executable";
    QTest::newRow("folder") << "/home/someone/"
                            << "folder";
    QTest::newRow("desktop entry that is not there") << "/no/such/x.desktop"
                                                     << "application-x-executable";
    QTest::newRow("scheme of no program") << "x-nobody:1"
                                          << "web-browser";
}

void LinkIconsTest::looksInTheTheme()
{
    QFETCH(QString, address);
    QTEST(iconOf(address), "icon");
}

void LinkIconsTest::takesTheIconOfADesktopEntry()
{
    const QString path = m_folder.filePath("x.desktop");
    writeFile(path, "[Desktop Entry]\nType=Application\nName=x\nExec=true\nIcon=some-program\n",
              QFile::Permissions(0x6644));
    QCOMPARE(iconOf(path), "some-program");
}

void LinkIconsTest::waitsForItsStart()
{
    QAction action;
    LinkIcons icons;
    icons.setLinks({{&action, "/x/some-program"}});
    QCoreApplication::processEvents();
    QVERIFY(action.icon().isNull());
    icons.start();
    // Not at once: nothing waits for it.
    QVERIFY(action.icon().isNull());
    QTRY_VERIFY(!action.icon().isNull());
}

void LinkIconsTest::leavesFormerLinksAlone()
{
    QAction former, other;
    QAction* const gone = new QAction;
    LinkIcons icons;
    icons.start();
    icons.setLinks({{&former, "/x/some-program"}});
    icons.setLinks({{gone, "/x/some-program"}, {&other, "/x/some-program"}});
    delete gone;
    QTRY_VERIFY(!other.icon().isNull());
    QVERIFY(former.icon().isNull());
}

REGISTER_TEST(LinkIconsTest)
#include "LinkIconsTest.moc"
