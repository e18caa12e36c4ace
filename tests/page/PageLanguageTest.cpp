// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The language notification: which texts of the page are set again, and when it is answered with -1.

#include <QLabel>

#include "QuickLinkSettingNewEditDlg.h"
#include "ShownPage.h"
#include "Test.h"

namespace
{
const struct {
    const char *name, *key;
} widgetTexts[] = {{"m_launchOrderLbl", "IDS_LINK_SETTING_ORDER"}, {"m_upBtn", "IDS_LINK_SETTING_UP"},
                   {"m_downBtn", "IDS_LINK_SETTING_DOWN"},         {"m_newBtn", "IDS_LINK_SETTING_NEW"},
                   {"m_editBtn", "IDS_LINK_SETTING_EDIT"},         {"m_deleteBtn", "IDS_LINK_SETTING_DEL"}};
} // namespace

class PageLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_page.begin(links("News Mail")); }
    void cleanup() { m_page.end(); }

    void textsFollow();
    void cellsDoNotFollow();
    void headerItemsFollowTogether_data();
    void headerItemsFollowTogether();
    void statesStay();
    void onlyThePluginsContext();
    void missingMemberAnswersMinusOne_data();
    void missingMemberAnswersMinusOne();
    void layoutsAreNotNeeded();
    void pageThatIsGone_data();
    void pageThatIsGone();
    void pageThatIsOnlyHidden_data();
    void pageThatIsOnlyHidden();
    void emptyTableFollows();

private:
    static FakeHost& host() { return FakeHost::instance(); }
    /** The host changes its language and tells it. The plug-in's answer. */
    int changeLanguage();
    /** The keys shown on the page, each with its language before it. */
    QStringList texts() const;
    static QStringList textsIn(const QString& language);

    ShownPage m_page;
};

int PageLanguageTest::changeLanguage()
{
    host().language = "de";
    return m_page.page->Notify(1024, 0, 0);
}

QStringList PageLanguageTest::texts() const
{
    const QWidget* const widget = m_page.page->m_pageWidget;
    QStringList shownTexts;
    for (const auto& entry : widgetTexts)
        shownTexts << widget->findChild<QWidget*>(entry.name)->property("text").toString();
    return shownTexts << widget->findChild<QTabWidget*>()->tabText(0) << m_page.table()->horizontalHeaderItem(0)->text()
                      << m_page.table()->horizontalHeaderItem(1)->text() << m_page.table()->accessibleName();
}

QStringList PageLanguageTest::textsIn(const QString& language)
{
    QStringList expected;
    for (const auto& entry : widgetTexts)
        expected << language + ':' + entry.key;
    return expected << language + ":IDS_LINK_SETTING_TAB" << language + ":IDS_LINK_SETTING_NAME"
                    << language + ":IDS_LINK_SETTING_TYPE" << language + ":IDS_LINK_SETTING_ORDER";
}

void PageLanguageTest::textsFollow()
{
    QCOMPARE(texts(), textsIn("en"));
    QCOMPARE(changeLanguage(), 0);
    QCOMPARE(texts(), textsIn("de"));
}

void PageLanguageTest::cellsDoNotFollow()
{
    changeLanguage();
    QCOMPARE(m_page.shownNames(), "News Mail");
    QCOMPARE(m_page.table()->item(0, 1)->text(), "en:IDS_LINK_TYPE_INTERNET");
    QCOMPARE(m_page.table()->item(1, 1)->text(), "en:IDS_LINK_TYPE_E-MAIL");
}

void PageLanguageTest::headerItemsFollowTogether_data()
{
    QTest::addColumn<bool>("isNameMissing");
    QTest::newRow("no m_nameHeaderItem") << true;
    QTest::newRow("no m_typeHeaderItem") << false;
}

void PageLanguageTest::headerItemsFollowTogether()
{
    QFETCH(bool, isNameMissing);
    QStringList expected = textsIn("de");
    expected[7] = "en:IDS_LINK_SETTING_NAME";
    expected[8] = "en:IDS_LINK_SETTING_TYPE";
    {
        QTableWidgetItem* none = nullptr;
        Replaced<QTableWidgetItem> missing(
            isNameMissing ? m_page.page->m_nameHeaderItem : m_page.page->m_typeHeaderItem, none);
        QCOMPARE(changeLanguage(), 0);
    }
    QCOMPARE(texts(), expected);
    QCOMPARE(changeLanguage(), 0);
    QCOMPARE(texts(), textsIn("de"));
}

void PageLanguageTest::statesStay()
{
    m_page.select(1);
    changeLanguage();
    QCOMPARE(m_page.currentRow(), 1);
    QCOMPARE(m_page.table()->rowCount(), 2);
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete Up");
    QCOMPARE(m_page.page->m_pageWidget->findChild<QTabWidget*>()->count(), 1);
    QCOMPARE(m_page.liveFrames(), 0);
    QCOMPARE(host().openings, QStringList());
    QCOMPARE(host().lookups.size(), 0);
}

void PageLanguageTest::onlyThePluginsContext()
{
    m_page.click("m_editBtn");
    host().translationContexts.clear();
    changeLanguage();
    QCOMPARE(host().translationContexts, QStringList("QuickLinkUIPlugin"));
}

void PageLanguageTest::missingMemberAnswersMinusOne_data()
{
    addMemberRows(names("m_pageWidget m_QLinkTabWidget m_QLinkTab m_QLinkListTblView m_launchOrderLbl m_upBtn "
                        "m_downBtn m_newBtn m_editBtn m_deleteBtn"));
}

void PageLanguageTest::missingMemberAnswersMinusOne()
{
    QFETCH(QString, member);
    m_page.click("m_editBtn");
    host().translationContexts.clear();
    {
        const NullMember missing(memberOf(m_page.page, member));
        RecordingTrace trace;
        QCOMPARE(changeLanguage(), -1);
        QCOMPARE(trace.countDebug(nullTrace("[A-Za-z]+")), 1);
    }
    QCOMPARE(texts(), textsIn("en"));
    QCOMPARE(m_page.inDialog<QPushButton>("m_okBtn")->text(), "en:IDS_LINK_SETTING_NEW_OK");
    QCOMPARE(host().translationContexts, QStringList());
    QCOMPARE(changeLanguage(), 0);
}

void PageLanguageTest::layoutsAreNotNeeded()
{
    const NullMember missing(memberOf(m_page.page, "m_pageLayout"));
    QCOMPARE(changeLanguage(), 0);
    QCOMPARE(texts(), textsIn("de"));
}

void PageLanguageTest::pageThatIsGone_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<bool>("mayBeShownAgain");
    QTest::newRow("never shown") << "never" << false;
    QTest::newRow("never even loaded") << "unloaded" << false;
    QTest::newRow("parent deleted by the host") << "parent" << true;
    QTest::newRow("page deleted by the host") << "page" << true;
    QTest::newRow("plug-in ended") << "end" << false;
}

void PageLanguageTest::pageThatIsGone()
{
    QFETCH(QString, how);
    QFETCH(bool, mayBeShownAgain);
    if (how == "never" || how == "unloaded") {
        m_page.end();
        m_page.make();
        if (how == "never")
            m_page.page->Init();
    } else if (how == "parent") {
        m_page.click("m_editBtn");
        delete m_page.host;
        m_page.host = new QWidget;
    } else if (how == "page") {
        delete m_page.page->m_pageWidget;
    } else {
        m_page.page->OnDestroy();
    }
    host().translationContexts.clear();
    QCOMPARE(changeLanguage(), -1);
    QCOMPARE(host().translationContexts, QStringList());
    if (mayBeShownAgain) {
        m_page.show();
        QCOMPARE(changeLanguage(), 0);
    }
}

void PageLanguageTest::pageThatIsOnlyHidden_data()
{
    QTest::addColumn<bool>("isCancelled");
    QTest::newRow("other page chosen") << false;
    QTest::newRow("settings cancelled") << true;
}

void PageLanguageTest::pageThatIsOnlyHidden()
{
    QFETCH(bool, isCancelled);
    m_page.page->HideSetting();
    if (isCancelled)
        m_page.page->OnClickSettingCancelButton();
    QCOMPARE(changeLanguage(), 0);
    QCOMPARE(texts(), textsIn("de"));
    QVERIFY(!m_page.page->m_pageWidget->isVisible());
}

void PageLanguageTest::emptyTableFollows()
{
    m_page.page->m_recordList->clear();
    m_page.show();
    QCOMPARE(m_page.table()->rowCount(), 0);
    QCOMPARE(changeLanguage(), 0);
    QCOMPARE(texts(), textsIn("de"));
}

REGISTER_TEST(PageLanguageTest)
#include "PageLanguageTest.moc"
