// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The language changes while the settings page and the Edit dialog are open: the whole program with the real plug-in.

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QTabWidget>
#include <QTableWidget>

#include "Change.h"
#include "Host.h"
#include "ISettingUIPlugin.h"
#include "LanguageMenu.h"
#include "MainWindow.h"
#include "QuickLinkKeys.h"
#include "SettingsDialog.h"
#include "Test.h"
#include "Translator.h"
#include "UserFolder.h"
#include "UserSettings.h"

/** Former texts, and what they are now. */
using Changes = QMultiMap<QString, QString>;

class LanguageChangeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void windowFollows_data();
    void windowFollows();
    void thereAndBackLeavesNothing();
    void unknownLanguageIsEnglish();
    void choiceInTheMenuIsKept();

private:
    void openPage();
    QWidget* openDialog(const QString& button);
    void use(const QString& language);
    static QStringList textsOf(const QWidget* window);
    static Changes changes(const QStringList& before, const QStringList& after);
    QStringList wrong(const Changes& changes) const;

    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<Translator> m_translator;
    QScopedPointer<Host> m_host;
    QScopedPointer<SettingsDialog> m_settings;
    QWidget* m_window = nullptr;                ///< the host's main window
    QMultiHash<QString, QString> m_englishKeys; ///< keys by their English texts
};

static QStringList sorted(QStringList texts)
{
    texts.removeAll(QString());
    texts.sort();
    return texts;
}

/** One text, so that a failure shows what differs. */
static QString listOf(const Changes& changes)
{
    return QStringList(changes.keys()).join("; ");
}

void LanguageChangeTest::init()
{
    m_folder.reset(new QTemporaryDir);
    UserFolder::setPath(m_folder->path());
    QDir().mkpath(m_folder->filePath("plugins/QuickLinkUIPlugin"));
    QFile links(m_folder->filePath("plugins/QuickLinkUIPlugin/config.xml"));
    QVERIFY(links.open(QIODevice::WriteOnly));
    links.write("<tovadoc><function><CurrentID>2</CurrentID></function><menu parent='quicklink'>"
                "<item id='0' name='&amp;Up' type='IDS_LINK_TYPE_APPLICATION' url='/' delete='1' edit='1' visible='1'/>"
                "<item id='1' name='Mail' type='IDS_LINK_TYPE_E-MAIL' url='mailto:' delete='1' edit='1' visible='1'/>"
                "</menu></tovadoc>");
    links.close();
    m_translator.reset(new Translator);
    QVERIFY(m_translator->use("en"));
    m_englishKeys.clear();
    for (const char* key : quickLinkKeys)
        m_englishKeys.insert(Change::tr(key, "QuickLinkUIPlugin"), key);
    m_host.reset(new Host(*m_translator));
    m_host->loadPlugins(QString());
    QCOMPARE(m_host->container().plugins().size(), 1);
    m_host->showWindow(ConnectionKind::Manual);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (qobject_cast<MainWindow*>(window))
            m_window = window;
    }
    QVERIFY(m_window);
    m_settings.reset(new SettingsDialog(m_host->container().all<ISettingUIPlugin>(), nullptr));
}

void LanguageChangeTest::cleanup()
{
    m_settings.reset();
    m_host.reset();
    m_translator.reset();
    UserFolder::setPath(QString());
}

void LanguageChangeTest::openPage()
{
    m_settings->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_settings.data()));
    QTableWidget* const table = m_settings->findChild<QTableWidget*>();
    QVERIFY(table);
    QCOMPARE(table->rowCount(), 2);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table->visualItemRect(table->item(0, 0)).center());
}

/** Presses New or Edit; the dialog that this opens. */
QWidget* LanguageChangeTest::openDialog(const QString& button)
{
    const QWidgetList before = QApplication::topLevelWidgets();
    m_settings->findChild<QAbstractButton*>(button)->click();
    const QWidgetList after = QApplication::topLevelWidgets();
    for (QWidget* window : after) {
        if (window->isVisible() && !before.contains(window) && window->findChild<QLineEdit*>())
            return window;
    }
    return nullptr;
}

static QStringList textsIn(const QTableWidget* table)
{
    QStringList texts;
    for (int column = 0; column < table->columnCount(); ++column) {
        texts.append(table->horizontalHeaderItem(column)->text());
        for (int row = 0; row < table->rowCount(); ++row)
            texts.append(table->item(row, column)->text());
    }
    return texts;
}

/** What one widget says, without its children. */
static QStringList textsIn(const QWidget* widget)
{
    QStringList texts{widget->isWindow() && !qobject_cast<const QMenu*>(widget) ? widget->windowTitle() : QString()};
    if (const auto* const label = qobject_cast<const QLabel*>(widget))
        texts.append(label->text());
    if (const auto* const button = qobject_cast<const QAbstractButton*>(widget))
        texts.append(button->text());
    if (const auto* const field = qobject_cast<const QLineEdit*>(widget))
        texts.append(field->text());
    if (const auto* const menu = qobject_cast<const QMenu*>(widget)) {
        texts.append(menu->title());
        const QList<QAction*> actions = menu->actions();
        for (const QAction* action : actions)
            texts.append(action->menu() ? QString() : action->text());
    }
    if (const auto* const entries = qobject_cast<const QListWidget*>(widget)) {
        for (int i = 0; i < entries->count(); ++i)
            texts.append(entries->item(i)->text());
    }
    if (const auto* const box = qobject_cast<const QComboBox*>(widget)) {
        for (int i = 0; i < box->count(); ++i)
            texts.append(box->itemText(i));
    }
    if (const auto* const tabs = qobject_cast<const QTabWidget*>(widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            texts.append(tabs->tabText(i));
    }
    if (const auto* const table = qobject_cast<const QTableWidget*>(widget))
        texts += textsIn(table);
    return texts;
}

QStringList LanguageChangeTest::textsOf(const QWidget* window)
{
    QStringList texts = textsIn(window);
    const QList<QWidget*> children = window->findChildren<QWidget*>();
    for (const QWidget* child : children) {
        if (child->isVisibleTo(window) || qobject_cast<const QMenu*>(child))
            texts += textsIn(child);
    }
    return texts;
}

/** The former texts that are others now, and what they are. */
Changes LanguageChangeTest::changes(const QStringList& before, const QStringList& after)
{
    Changes changes;
    for (int i = 0; i < qMax(before.size(), after.size()); ++i) {
        if (before.value(i) != after.value(i))
            changes.insert(before.value(i), after.value(i));
    }
    return changes;
}

/** The English texts of changes that are not what the plug-in's or the program's keys say in the language of now. */
QStringList LanguageChangeTest::wrong(const Changes& changes) const
{
    QStringList wrong;
    for (auto text = changes.begin(); text != changes.end(); ++text) {
        QStringList right{SettingsDialog::tr(text.key().toUtf8().constData())};
        const QStringList keys = m_englishKeys.values(text.key());
        for (const QString& key : keys)
            right.append(Change::tr(key, "QuickLinkUIPlugin"));
        if (!right.contains(text.value()))
            wrong.append(text.key());
    }
    return wrong;
}

void LanguageChangeTest::use(const QString& language)
{
    m_host->setLanguage(language);
    QCoreApplication::processEvents();
}

void LanguageChangeTest::windowFollows_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("changed");
    QTest::newRow("main window")
        << "main"
        << "&About Vellum Connect; &Connection; &Edit; &Find a Quick Link; &Help; &Language; &Plug-ins Left Out…; "
           "&Quick Links; &Quit; &Redo; "
           "&Settings…; &Status Bar; &System Language; &Tools; &Undo; &View; &Why…; Co&nnect; Not connected; "
           "Press Connect when your connection is up.; Quick Links";
    QTest::newRow("page") << "page"
                          << "&Down; &Edit…; &New…; &Up; Cancel; De&lete; Links open in this order:; Quick Links; "
                             "Quick Links; Settings; Type";
    QTest::newRow("Edit dialog") << "m_editBtn"
                                 << "Application; Application; Browse…; Cancel; E-mail; Open when Vellum Connect "
                                    "starts; Open when connected; Parameters:; Program file:; Type:";
    QTest::newRow("New dialog stays") << "m_newBtn" << QString();
}

/** Exactly these texts of the window change, and into what the catalogues say. */
void LanguageChangeTest::windowFollows()
{
    QFETCH(QString, window);
    QWidget* shown = m_window;
    if (window != "main") {
        openPage();
        shown = window == "page" ? m_settings.data() : openDialog(window);
    }
    QVERIFY(shown);
    const QStringList before = textsOf(shown);
    use("de");
    const Changes changed = changes(before, textsOf(shown));
    QTEST(listOf(changed), "changed");
    if (shown != m_window)
        QCOMPARE(wrong(changed), QStringList());
}

void LanguageChangeTest::thereAndBackLeavesNothing()
{
    openPage();
    const QStringList before = textsOf(m_window);
    const QStringList page = textsOf(m_settings.data());
    use("ar");
    QCOMPARE(m_window->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(m_settings->layoutDirection(), Qt::RightToLeft);
    use("en");
    QCOMPARE(m_window->layoutDirection(), Qt::LeftToRight);
    QCOMPARE(sorted(textsOf(m_window)), sorted(before));
    // The toolkit puts its own buttons elsewhere meanwhile.
    QCOMPARE(sorted(textsOf(m_settings.data())), sorted(page));
}

void LanguageChangeTest::unknownLanguageIsEnglish()
{
    const QStringList before = textsOf(m_window);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("\"tlh\""));
    m_host->setLanguage("tlh");
    QCOMPARE(changes(before, textsOf(m_window)), Changes());
}

void LanguageChangeTest::choiceInTheMenuIsKept()
{
    const QList<QAction*> actions = m_window->findChild<LanguageMenu*>()->actions();
    QHash<QString, QAction*> byName;
    for (QAction* action : actions)
        byName.insert(action->text(), action);
    QVERIFY(byName.value("English")->isChecked());
    byName.value("Deutsch")->trigger();
    QCoreApplication::processEvents();
    QCOMPARE(UserSettings::language(), "de");
    QVERIFY(textsOf(m_window).contains("&Ansicht"));
}

REGISTER_TEST(LanguageChangeTest)
#include "LanguageChangeTest.moc"
