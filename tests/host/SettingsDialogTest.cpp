// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The settings dialog, and what it asks of the plug-ins with a page in it.

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include <algorithm>

#include "FakeLinkPage.h"
#include "FakePlugin.h"
#include "FakeTranslator.h"
#include "GeneralPage.h"
#include "HistoryPage.h"
#include "LinkHistory.h"
#include "OfferLine.h"
#include "PageArea.h"
#include "SettingsDialog.h"
#include "Test.h"

class SettingsDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void listsPluginsWithACaption();
    void leavesOutInactivePages();
    void saysThatThereAreNoPages();
    void showsTheProgramsOwnPages();
    void growsByALineThatComesIn();
    void showsTheFirstPage();
    void beginsWithThePageOfLastTime_data();
    void beginsWithThePageOfLastTime();
    void letsTheKeyboardBeInThePage();
    void leavesAPageForAnother();
    void growsToThePage();
    void doesNotGrowOverTheScreen();
    void givesThePageTheWholeArea();
    void closesWhenAllAgree_data() { addWaysToClose(); }
    void closesWhenAllAgree();
    void staysForOneThatDoesNot_data() { addWaysToClose(); }
    void staysForOneThatDoesNot();
    void showsNoPageOfAPluginWithout();
    void asksNothingOfAPluginThatIsGone();
    void choosesALink();
    void saysBesideTheLinksThatParametersAreNotHandedOver();
    void followsTheLanguage();

private:
    template <class... Plugin>
    void make(Plugin*... plugin);
    void open();
    void press(QDialogButtonBox::StandardButton button);
    static void addWaysToClose();
    void closeBy(const QString& way);
    QListWidget* list() const { return m_dialog->findChild<QListWidget*>(); }
    QStringList captions() const;
    QString shownPage() const;

    std::unique_ptr<FakePlugin> m_mail, m_links, m_silent;
    std::unique_ptr<SettingsDialog> m_dialog;
};

void SettingsDialogTest::init()
{
    m_mail = std::make_unique<FakePlugin>("Mail");
    m_mail->setProperty("caption", "My Mail");
    m_links = std::make_unique<FakePlugin>("Links");
    m_links->setProperty("caption", "My Links");
    m_silent = std::make_unique<FakePlugin>("Silent");
    takeEvents();
}

void SettingsDialogTest::cleanup()
{
    m_dialog.reset();
    m_mail.reset();
    m_links.reset();
    m_silent.reset();
}

/** Makes the dialog with the pages of these. */
template <class... Plugin>
void SettingsDialogTest::make(Plugin*... plugin)
{
    const QList<PluginWith<ISettingUIPlugin>> plugins{{plugin, plugin, plugin->objectName()}...};
    m_dialog = std::make_unique<SettingsDialog>(plugins, nullptr);
}

/** Opens the dialog with the pages of both plug-ins, and forgets what it took to do so. */
void SettingsDialogTest::open()
{
    make(m_mail.get(), m_links.get());
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    takeEvents();
}

void SettingsDialogTest::press(QDialogButtonBox::StandardButton button)
{
    QTest::mouseClick(m_dialog->findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
}

QStringList SettingsDialogTest::captions() const
{
    QStringList captions;
    for (int i = 0; i < list()->count(); ++i)
        captions.append(list()->item(i)->text());
    return captions;
}

/** The plug-in whose page is seen; all of them, should there be more. */
QString SettingsDialogTest::shownPage() const
{
    QStringList names;
    const QList<QWidget*> pages =
        m_dialog->findChild<PageArea*>()->pageParent()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* page : pages) {
        if (page->isVisible())
            names.append(page->objectName());
    }
    return names.join(' ');
}

void SettingsDialogTest::listsPluginsWithACaption()
{
    make(m_mail.get(), m_silent.get(), m_links.get());
    QCOMPARE(captions(), QStringList({"My Mail", "My Links"}));
    QCOMPARE(m_dialog->windowTitle(), "Settings");
    QCOMPARE(list()->accessibleName(), "Pages");
    // Pages are built when they are seen.
    QCOMPARE(takeEvents(), QStringList());
}

void SettingsDialogTest::leavesOutInactivePages()
{
    m_mail->setProperty("isInactive", true);
    make(m_mail.get(), m_links.get());
    QCOMPARE(captions(), QStringList("My Links"));
    m_dialog->show();
    press(QDialogButtonBox::Ok);
    QCOMPARE(takeEvents(), QStringList({"Links shown", "Links OK", "Links hidden"}));
}

void SettingsDialogTest::saysThatThereAreNoPages()
{
    make(m_silent.get());
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    QVERIFY(!list()->isVisible());
    QVERIFY(!m_dialog->findChild<PageArea*>()->isVisible());
    QStringList texts;
    const QList<QLabel*> labels = m_dialog->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (label->isVisible())
            texts.append(label->text());
    }
    QCOMPARE(texts, QStringList("None of the loaded plug-ins has settings."));
    press(QDialogButtonBox::Ok);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(takeEvents(), QStringList());
}

void SettingsDialogTest::showsTheProgramsOwnPages()
{
    const QTemporaryDir folder;
    const LinkHistory history(folder.path(), folder.filePath("history"));
    make(m_mail.get());
    HistoryPage* const page = new HistoryPage(history);
    GeneralPage* const general = new GeneralPage(false);
    m_dialog->addPage(page);
    m_dialog->addPage(general);
    QCOMPARE(captions(), QStringList({"My Mail", "History", "General"}));
    m_dialog->show();
    QVERIFY(!page->isVisible());
    list()->setCurrentRow(1);
    QVERIFY(page->isVisible());
    QCOMPARE(takeEvents(), QStringList({"Mail shown", "Mail hidden"}));
    list()->setCurrentRow(2);
    QVERIFY(general->isVisible() && !page->isVisible());
    list()->setCurrentRow(1);
    QVERIFY(!general->isVisible() && page->isVisible());
    // They stay while the plug-ins are taken down and started again.
    m_dialog->leavePages();
    QVERIFY(!page->isVisible());
    m_dialog->setPlugins({{m_mail.get(), m_mail.get(), m_mail->objectName()}});
    QCOMPARE(captions(), QStringList({"My Mail", "History", "General"}));
    QVERIFY(page->isVisible());
    press(QDialogButtonBox::Ok);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
}

void SettingsDialogTest::growsByALineThatComesIn()
{
    m_mail->setProperty("pageSize", QSize(600, 400));
    make(m_mail.get());
    open();
    PageArea* const area = m_dialog->findChild<PageArea*>();
    const int before = area->height();
    m_dialog->offerLine().offer("Something to put right.");
    QTRY_VERIFY(m_dialog->offerLine().isVisible());
    QTRY_COMPARE(area->height(), before);
    QTRY_VERIFY(!area->verticalScrollBar()->isVisible());
}

void SettingsDialogTest::showsTheFirstPage()
{
    make(m_mail.get(), m_links.get());
    m_dialog->show();
    QCOMPARE(takeEvents(), QStringList("Mail shown"));
    QCOMPARE(list()->currentRow(), 0);
    QCOMPARE(shownPage(), "Mail");
    for (const QLabel* label : m_dialog->findChildren<QLabel*>())
        QVERIFY(!label->isVisible());
}

void SettingsDialogTest::beginsWithThePageOfLastTime_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("row");
    QTest::newRow("at the top") << "Mail" << 0;
    QTest::newRow("of a plug-in") << "Links" << 1;
    QTest::newRow("the program's own") << "GeneralPage" << 2;
    QTest::newRow("not there any more") << "Silent" << 0;
}

void SettingsDialogTest::beginsWithThePageOfLastTime()
{
    QFETCH(QString, name);
    QFETCH(int, row);
    make(m_mail.get(), m_links.get());
    m_dialog->addPage(new GeneralPage(false));
    m_dialog->beginWith(name);
    m_dialog->show();
    QCOMPARE(list()->currentRow(), row);
    QCOMPARE(int(takeEvents().size()), row < 2 ? 1 : 0);
    QCOMPARE(m_dialog->pageName(), QStringList({"Mail", "Links", "GeneralPage"}).at(row));
    // It is that of the last time when the dialog has been closed.
    list()->setCurrentRow(1);
    press(QDialogButtonBox::Ok);
    QCOMPARE(m_dialog->pageName(), "Links");
}

void SettingsDialogTest::letsTheKeyboardBeInThePage()
{
    make(m_mail.get());
    m_dialog->addPage(new GeneralPage(false));
    m_dialog->beginWith("GeneralPage");
    m_dialog->show();
    QVERIFY(qobject_cast<QCheckBox*>(m_dialog->focusWidget()));
    // Whoever chooses pages by the keyboard goes on with that.
    list()->setFocus();
    list()->setCurrentRow(0);
    list()->setCurrentRow(1);
    QCOMPARE(m_dialog->focusWidget(), static_cast<QWidget*>(list()));
}

void SettingsDialogTest::leavesAPageForAnother()
{
    open();
    list()->setCurrentRow(1);
    QCOMPARE(takeEvents(), QStringList({"Mail hidden", "Links shown"}));
    QCOMPARE(shownPage(), "Links");
    list()->setCurrentRow(0);
    QCOMPARE(takeEvents(), QStringList({"Links hidden", "Mail shown"}));
    QCOMPARE(shownPage(), "Mail");
}

void SettingsDialogTest::growsToThePage()
{
    open();
    const QSize before = m_dialog->size();
    const QSize wanted(m_dialog->findChild<PageArea*>()->width() + 50, 10);
    m_links->setProperty("pageSize", wanted);
    list()->setCurrentRow(1);
    QTRY_VERIFY(m_dialog->findChild<PageArea*>()->width() >= wanted.width());
    QCOMPARE(m_dialog->height(), before.height());
    const QSize grown = m_dialog->size();
    list()->setCurrentRow(0);
    QCOMPARE(m_dialog->size(), grown);
}

void SettingsDialogTest::doesNotGrowOverTheScreen()
{
    open();
    const QSize screen = screenArea(m_dialog.get()).size();
    m_links->setProperty("pageSize", screen + QSize(100, 100));
    list()->setCurrentRow(1);
    QCOMPARE(m_dialog->size(), screen);
}

void SettingsDialogTest::givesThePageTheWholeArea()
{
    open();
    QWidget* const ground = m_dialog->findChild<PageArea*>()->pageParent();
    const QWidget* const page = ground->findChild<QWidget*>("Mail");
    QVERIFY(page);
    m_dialog->resize(m_dialog->size() + QSize(60, 40));
    QTRY_COMPARE(page->geometry(), ground->rect());
    QVERIFY(page->width() >= 400 + 60);
}

void SettingsDialogTest::addWaysToClose()
{
    QTest::addColumn<QString>("event");
    QTest::newRow("OK") << "OK";
    for (const char* way : {"Cancel", "Escape", "close button"})
        QTest::newRow(way) << "Cancel";
}

void SettingsDialogTest::closeBy(const QString& way)
{
    if (way == "Escape")
        QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    else if (way == "close button")
        m_dialog->close();
    else
        press(way == "OK" ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);
}

void SettingsDialogTest::closesWhenAllAgree()
{
    QFETCH(QString, event);
    const bool isOk = event == "OK";
    open();
    closeBy(QTest::currentDataTag());
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(isOk ? QDialog::Accepted : QDialog::Rejected));
    QCOMPARE(takeEvents(),
             QStringList({"Mail " + event, "Links " + event}) + (isOk ? QStringList("Mail hidden") : QStringList()));
}

void SettingsDialogTest::staysForOneThatDoesNot()
{
    QFETCH(QString, event);
    open();
    m_links->setProperty("refuses", true);
    closeBy(QTest::currentDataTag());
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(shownPage(), "Links");
    QCOMPARE(list()->currentRow(), 1);
    QCOMPARE(takeEvents(), QStringList({"Mail " + event, "Links " + event, "Mail hidden", "Links shown"}));
    m_links->setProperty("refuses", false);
    closeBy(QTest::currentDataTag());
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(event == "OK" ? QDialog::Accepted : QDialog::Rejected));
}

void SettingsDialogTest::showsNoPageOfAPluginWithout()
{
    open();
    m_links->setProperty("isPageless", true);
    list()->setCurrentRow(1);
    QCOMPARE(shownPage(), QString());
    list()->setCurrentRow(0);
    QCOMPARE(shownPage(), "Mail");
}

void SettingsDialogTest::asksNothingOfAPluginThatIsGone()
{
    open();
    m_links.reset();
    list()->setCurrentRow(1);
    QCOMPARE(shownPage(), QString());
    press(QDialogButtonBox::Ok);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(takeEvents(), QStringList({"Mail hidden", "Mail OK"}));
}

/** Lets the second plug-in's page be that of the quick links, and goes back to the first one. */
static FakeLinkPage* addLinks(SettingsDialog* dialog, QListWidget* list)
{
    list->setCurrentRow(1);
    QWidget* const page = dialog->findChild<PageArea*>()->pageParent()->findChild<QWidget*>("Links");
    FakeLinkPage* const links = new FakeLinkPage;
    links->setParent(page);
    links->setLinks("a b c", 0);
    links->show();
    list->setCurrentRow(0);
    return links;
}

void SettingsDialogTest::choosesALink()
{
    open();
    const FakeLinkPage* const links = addLinks(m_dialog.get(), list());
    m_dialog->chooseLink("b");
    QCOMPARE(shownPage(), "Links");
    QCOMPARE(list()->currentRow(), 1);
    QCOMPARE(links->table->currentRow(), 1);
    // Not before it is on the screen.
    m_dialog->hide();
    m_dialog->chooseLink("c");
    QCOMPARE(links->table->currentRow(), 1);
    m_dialog->show();
    QCOMPARE(links->table->currentRow(), 2);
    m_dialog->chooseLink("b");
    m_dialog->chooseLink("nobody");
    QCOMPARE(shownPage(), "Links");
    QCOMPARE(links->table->currentRow(), 1);
}

void SettingsDialogTest::saysBesideTheLinksThatParametersAreNotHandedOver()
{
    open();
    addLinks(m_dialog.get(), list());
    const auto isSaid = [this] {
        const QList<QLabel*> labels = m_dialog->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
            return label->isVisible() && label->text().contains("without the parameters");
        });
    };
    m_dialog->setParametersNote(true);
    QVERIFY(!isSaid());
    list()->setCurrentRow(1);
    QVERIFY(isSaid());
    list()->setCurrentRow(0);
    QVERIFY(!isSaid());
    list()->setCurrentRow(1);
    m_dialog->setParametersNote(false);
    QVERIFY(!isSaid());
}

void SettingsDialogTest::followsTheLanguage()
{
    open();
    m_mail->setProperty("caption", "Mein Briefkasten");
    const FakeTranslator other;
    QTRY_COMPARE(m_dialog->windowTitle(), "*Settings");
    QCOMPARE(captions(), QStringList({"Mein Briefkasten", "My Links"}));
    QCOMPARE(shownPage(), "Mail");
}

REGISTER_TEST(SettingsDialogTest)
#include "SettingsDialogTest.moc"
