// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The installed module in the hands of the toolkit's own plug-in loader, with the real host libraries behind it. The
// same program for every Qt: what differs between them is what the loader asks of the file.

#include <QAction>
#include <QDesktopServices>
#include <QLibrary>
#include <QPluginLoader>
#include <QPointer>
#include <QScopedPointer>
#include <QTableWidget>
#include <QUrl>

#include "INotify.h"
#include "IQuickLinkPlugin.h"
#include "ISettingUIPlugin.h"
#include "IUIPlugin.h"
#include "Test.h"

/** Stands in for the desktop: remembers every address that the host hands to it. */
class RecordingBrowser : public QObject
{
    Q_OBJECT

public:
    RecordingBrowser() { QDesktopServices::setUrlHandler("http", this, "open"); }
    ~RecordingBrowser() override { QDesktopServices::unsetUrlHandler("http"); }

    QStringList opened;

public Q_SLOTS:
    void open(const QUrl& url) { opened.append(url.toString()); }
};

class PluginLoaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void objectHasEveryInterface_data();
    void objectHasEveryInterface();
    void objectAnswersWhoItIs();
    void sameObjectEveryTime();
    void verificationText();
    void wholeLife();
    void lifeWithoutFile();
    void unloadDeletesTheObject();
    void objectDeletedByHandIsMadeAnew();
    void fileForAnotherQtIsRefused_data();
    void fileForAnotherQtIsRefused();

private:
    template <class Interface>
    Interface* plugin() const
    {
        return qobject_cast<Interface*>(m_loader->instance());
    }
    /** The shown table of links below a widget; null without one. */
    static QTableWidget* table(const QWidget& parent);

    QTemporaryDir m_dataHome;
    QScopedPointer<QPluginLoader> m_loader;
};

void PluginLoaderTest::initTestCase()
{
    // The host's libraries look here for the user's folder; it must never be the real one.
    QVERIFY(m_dataHome.isValid());
    qputenv("XDG_DATA_HOME", m_dataHome.path().toLocal8Bit());
}

void PluginLoaderTest::init()
{
    m_loader.reset(new QPluginLoader(QString::fromLocal8Bit(INSTALLED_PLUGIN)));
    QVERIFY2(m_loader->load(), qPrintable(m_loader->errorString()));
}

void PluginLoaderTest::cleanup()
{
    if (m_loader->isLoaded() && m_loader->instance())
        plugin<IBasePlugin>()->OnDestroy();
    m_loader->unload();
    // Before the next one is made: Qt 4 would take a file that is unloaded, but still known, for loaded.
    m_loader.reset();
}

QTableWidget* PluginLoaderTest::table(const QWidget& parent)
{
    QTableWidget* const found = parent.findChild<QTableWidget*>("m_QLinkListTblView");
    return found && found->isVisible() ? found : nullptr;
}

void PluginLoaderTest::objectHasEveryInterface_data()
{
    QTest::addColumn<QByteArray>("identifier");
    QTest::newRow("IBasePlugin") << QByteArray(qobject_interface_iid<IBasePlugin*>());
    QTest::newRow("IUIPlugin") << QByteArray(qobject_interface_iid<IUIPlugin*>());
    QTest::newRow("ISettingUIPlugin") << QByteArray(qobject_interface_iid<ISettingUIPlugin*>());
    QTest::newRow("INotify") << QByteArray(qobject_interface_iid<INotify*>());
    QTest::newRow("IQuickLinkPlugin") << QByteArray(qobject_interface_iid<IQuickLinkPlugin*>());
}

void PluginLoaderTest::objectHasEveryInterface()
{
    QFETCH(QByteArray, identifier);
    QObject* const object = m_loader->instance();
    QVERIFY2(object, qPrintable(m_loader->errorString()));
    QVERIFY(object->qt_metacast(identifier.constData()));
}

void PluginLoaderTest::objectAnswersWhoItIs()
{
    IBasePlugin* const base = plugin<IBasePlugin>();
    QVERIFY(base);
    QCOMPARE(base->GetPluginName(), "QuickLinkUIPlugin");
    QCOMPARE(base->GetCLSID(), "3F1C7A20-5B9E-4D61-A8C4-7E2B90D4F1A6");
    QCOMPARE(base->GetVersion(), 0x101);
    QCOMPARE(base->GetPluginType(), 0);
}

void PluginLoaderTest::sameObjectEveryTime()
{
    QObject* const object = m_loader->instance();
    QVERIFY(object);
    QCOMPARE(m_loader->instance(), object);
    QPluginLoader second(QString::fromLocal8Bit(INSTALLED_PLUGIN));
    QCOMPARE(second.instance(), object);
    second.unload();
    QCOMPARE(m_loader->instance(), object);
}

void PluginLoaderTest::verificationText()
{
    QLibrary library(QString::fromLocal8Bit(INSTALLED_PLUGIN));
    typedef const char* (*Query)();
    const Query query = reinterpret_cast<Query>(library.resolve("qt_plugin_query_verification_data"));
    QVERIFY2(query, qPrintable(library.errorString()));
    QCOMPARE(QByteArray(query()), "pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.6.2\ndebug=false\n"
                                  "buildkey=i386 linux g++-4 full-config");
    library.unload();
}

void PluginLoaderTest::wholeLife()
{
    const QString folder = m_dataHome.path() + "/vellumconnect/plugins/QuickLinkUIPlugin";
    QVERIFY(QDir().mkpath(folder));
    QFile file(folder + "/config.xml");
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("<tovadoc><menu>"
               "<item name='a' type='IDS_LINK_TYPE_INTERNET' url='http://a.example.org/' visible='1'/>"
               "<item name='b' type='IDS_LINK_TYPE_INTERNET' url='http://b.example.org/' visible='1' startmobile='1'/>"
               "</menu></tovadoc>");
    file.close();
    RecordingBrowser browser;
    QCOMPARE(plugin<IBasePlugin>()->Init(), 1);

    IQuickLinkPlugin* const links = plugin<IQuickLinkPlugin>();
    QCOMPARE(links->GetQuickLinkRecordSize(), 2);
    QAction* const action = links->GetActionFromQuickLink(0);
    QCOMPARE(action->text(), "a");
    links->LaunchQuickLinkAction(action);
    plugin<INotify>()->Notify(258, 0, 0);
    QCOMPARE(browser.opened, QStringList() << "http://a.example.org/"
                                           << "http://b.example.org/");

    ISettingUIPlugin* const page = plugin<ISettingUIPlugin>();
    QVERIFY(!page->GetModuleName().isEmpty());
    QRect area(0, 0, 450, 400);
    QScopedPointer<QWidget> parent(new QWidget);
    parent->show();
    QCOMPARE(page->ShowSettingDialog(parent.data(), area), 1);
    QVERIFY(table(*parent));
    QCOMPARE(table(*parent)->rowCount(), 2);
    // The host's widget goes, and the page with it; in the next one it is there again.
    parent.reset(new QWidget);
    parent->show();
    QCOMPARE(page->ShowSettingDialog(parent.data(), area), 1);
    QVERIFY(table(*parent));
    QCOMPARE(table(*parent)->item(1, 0)->text(), "b");

    plugin<IBasePlugin>()->OnDestroy();
    QVERIFY(!table(*parent));
    QCOMPARE(links->GetQuickLinkRecordSize(), -1);
    QVERIFY2(m_loader->unload(), qPrintable(m_loader->errorString()));
    QVERIFY(file.remove());
}

void PluginLoaderTest::lifeWithoutFile()
{
    QCOMPARE(plugin<IBasePlugin>()->Init(), 1);
    QCOMPARE(plugin<IQuickLinkPlugin>()->GetQuickLinkRecordSize(), 0);
}

void PluginLoaderTest::unloadDeletesTheObject()
{
    const QPointer<QObject> object(m_loader->instance());
    QVERIFY(object);
    plugin<IBasePlugin>()->Init();
    plugin<IBasePlugin>()->OnDestroy();
    QVERIFY2(m_loader->unload(), qPrintable(m_loader->errorString()));
    QVERIFY(!object);
    QVERIFY(!m_loader->isLoaded());
}

void PluginLoaderTest::objectDeletedByHandIsMadeAnew()
{
    const QPointer<QObject> first(m_loader->instance());
    delete first.data();
    const QPointer<QObject> second(m_loader->instance());
    QVERIFY(!first);
    QVERIFY(second);
    QVERIFY(plugin<IBasePlugin>());
}

void PluginLoaderTest::fileForAnotherQtIsRefused_data()
{
    // Whoever builds for several Qts names the other files, with ":" between them; scripts/test.sh does.
    QTest::addColumn<QString>("file");
    const QStringList files = QFile::decodeName(qgetenv("OTHER_QUICK_LINKS")).split(':');
    for (const QString& file : files)
        QTest::newRow(file.isEmpty() ? "none given" : qPrintable(file)) << file;
}

void PluginLoaderTest::fileForAnotherQtIsRefused()
{
    QFETCH(QString, file);
    if (file.isEmpty())
        QSKIP("OTHER_QUICK_LINKS names no file for another Qt");
    QVERIFY(QFile::exists(file));
    QPluginLoader loader(file);
    QVERIFY(!loader.load());
    // Qt 4 gives the reason for the first attempt only.
    const QString reason = loader.errorString();
    QVERIFY(!loader.instance());
    QVERIFY(!loader.isLoaded());
    // In words, with the file's name, for whoever reads the trace.
    QVERIFY2(reason.contains(QFileInfo(file).fileName()), qPrintable(reason));
}

REGISTER_TEST(PluginLoaderTest)
#include "PluginLoaderTest.moc"
