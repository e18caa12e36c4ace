// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The language notification: which texts are set again, and when it is answered with -1.

#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>

#include "LanguageFixture.h"
#include "QuickLinkSettingNewEditDlg.h"
#include "Test.h"

/** Puts another pointer into a member of the page and gives the one that was there. */
typedef void* (*Exchange)(QuickLinkSettingPluginDlg*, void*);
Q_DECLARE_METATYPE(Exchange)

/** The text of one widget. */
typedef QString (*PageText)(const QuickLinkSettingPluginDlg*);
Q_DECLARE_METATYPE(PageText)

namespace
{
FakeHost& host()
{
    return FakeHost::instance();
}

template <class T, T* QuickLinkSettingPluginDlg::*member>
void* exchange(QuickLinkSettingPluginDlg* page, void* value)
{
    void* const old = page->*member;
    page->*member = static_cast<T*>(value);
    return old;
}

template <class T, T* QuickLinkSettingPluginDlg::*member>
QString pageText(const QuickLinkSettingPluginDlg* page)
{
    return (page->*member)->text();
}

QString tabText(const QuickLinkSettingPluginDlg* page)
{
    return page->m_QLinkTabWidget->tabText(0);
}

template <int column>
QString headerText(const QuickLinkSettingPluginDlg* page)
{
    return page->m_QLinkListTblView->horizontalHeaderItem(column)->text();
}

typedef QuickLinkSettingPluginDlg Page;

const struct {
    const char* key;
    PageText text;
} pageTexts[] = {{"IDS_LINK_SETTING_ORDER", pageText<QLabel, &Page::m_launchOrderLbl>},
                 {"IDS_LINK_SETTING_UP", pageText<QPushButton, &Page::m_upBtn>},
                 {"IDS_LINK_SETTING_DOWN", pageText<QPushButton, &Page::m_downBtn>},
                 {"IDS_LINK_SETTING_TAB", tabText},
                 {"IDS_LINK_SETTING_NEW", pageText<QPushButton, &Page::m_newBtn>},
                 {"IDS_LINK_SETTING_EDIT", pageText<QPushButton, &Page::m_editBtn>},
                 {"IDS_LINK_SETTING_DEL", pageText<QPushButton, &Page::m_deleteBtn>},
                 {"IDS_LINK_SETTING_NAME", headerText<0>},
                 {"IDS_LINK_SETTING_TYPE", headerText<1>}};

QStringList textsOf(const Page* page)
{
    QStringList texts;
    for (const auto& entry : pageTexts)
        texts << entry.text(page);
    return texts;
}

} // namespace

class PageLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_shown.make(); }
    void cleanup() { m_shown.unload(); }

    void pageTextsFollow_data();
    void pageTextsFollow();
    void cellsDoNotFollow();
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
    ShownPage m_shown;
};

void PageLanguageTest::pageTextsFollow_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<PageText>("text");
    for (const auto& entry : pageTexts)
        QTest::newRow(entry.key) << QString::fromLatin1(entry.key) << entry.text;
}

void PageLanguageTest::pageTextsFollow()
{
    QFETCH(QString, key);
    QFETCH(PageText, text);
    QCOMPARE(text(m_shown.plugin.page), "en:" + key);
    QCOMPARE(m_shown.changeLanguage(), 0);
    QCOMPARE(text(m_shown.plugin.page), "de:" + key);
}

void PageLanguageTest::cellsDoNotFollow()
{
    m_shown.changeLanguage();
    const QTableWidget* const table = m_shown.plugin.page->m_QLinkListTblView;
    QCOMPARE(table->item(0, 0)->text(), QString::fromUtf8("News"));
    QCOMPARE(table->item(0, 1)->text(), QString::fromUtf8("en:IDS_LINK_TYPE_INTERNET"));
    QCOMPARE(table->item(1, 1)->text(), QString::fromUtf8("en:IDS_LINK_TYPE_E-MAIL"));
}

void PageLanguageTest::headerItemsFollowTogether()
{
    Page* const page = m_shown.plugin.page;
    QTableWidgetItem* const name = page->m_nameHeaderItem;
    QTableWidgetItem* const type = page->m_typeHeaderItem;
    page->m_nameHeaderItem = nullptr;
    const int answerWithoutName = m_shown.changeLanguage();
    const QString typeText = type->text();
    page->m_nameHeaderItem = name;
    page->m_typeHeaderItem = nullptr;
    const int answerWithoutType = m_shown.changeLanguage();
    const QString nameText = name->text();
    page->m_typeHeaderItem = type;
    QCOMPARE(answerWithoutName, 0);
    QCOMPARE(answerWithoutType, 0);
    QCOMPARE(typeText, QString::fromUtf8("en:IDS_LINK_SETTING_TYPE"));
    QCOMPARE(nameText, QString::fromUtf8("en:IDS_LINK_SETTING_NAME"));
    QCOMPARE(page->m_upBtn->text(), QString::fromUtf8("de:IDS_LINK_SETTING_UP"));
    QCOMPARE(m_shown.changeLanguage(), 0);
    QCOMPARE(name->text(), QString::fromUtf8("de:IDS_LINK_SETTING_NAME"));
    QCOMPARE(type->text(), QString::fromUtf8("de:IDS_LINK_SETTING_TYPE"));
}

void PageLanguageTest::statesStay()
{
    Page* const page = m_shown.plugin.page;
    page->m_QLinkListTblView->setCurrentCell(1, 0);
    m_shown.changeLanguage();
    QCOMPARE(page->m_QLinkListTblView->currentRow(), 1);
    QCOMPARE(page->m_QLinkListTblView->rowCount(), 2);
    QVERIFY(page->m_upBtn->isEnabled());
    QVERIFY(!page->m_downBtn->isEnabled());
    QVERIFY(page->m_newBtn->isEnabled() && page->m_editBtn->isEnabled() && page->m_deleteBtn->isEnabled());
    QCOMPARE(page->m_QLinkTabWidget->count(), 1);
    QVERIFY(!page->m_editDlg && !page->m_newDlg);
    QCOMPARE(host().openings, QStringList());
    QCOMPARE(host().lookups.size(), 0);
}

void PageLanguageTest::onlyThePluginsContext()
{
    m_shown.plugin.page->onEditBtnClick();
    host().translationContexts.clear();
    m_shown.changeLanguage();
    QCOMPARE(host().translationContexts, QStringList() << "QuickLinkUIPlugin");
}

void PageLanguageTest::missingMemberAnswersMinusOne_data()
{
    QTest::addColumn<Exchange>("member");
    QTest::newRow("m_pageWidget") << Exchange(exchange<QWidget, &Page::m_pageWidget>);
    QTest::newRow("m_QLinkTabWidget") << Exchange(exchange<QTabWidget, &Page::m_QLinkTabWidget>);
    QTest::newRow("m_QLinkTab") << Exchange(exchange<QWidget, &Page::m_QLinkTab>);
    QTest::newRow("m_QLinkListTblView") << Exchange(exchange<QTableWidget, &Page::m_QLinkListTblView>);
    QTest::newRow("m_launchOrderLbl") << Exchange(exchange<QLabel, &Page::m_launchOrderLbl>);
    QTest::newRow("m_upBtn") << Exchange(exchange<QPushButton, &Page::m_upBtn>);
    QTest::newRow("m_downBtn") << Exchange(exchange<QPushButton, &Page::m_downBtn>);
    QTest::newRow("m_newBtn") << Exchange(exchange<QPushButton, &Page::m_newBtn>);
    QTest::newRow("m_editBtn") << Exchange(exchange<QPushButton, &Page::m_editBtn>);
    QTest::newRow("m_deleteBtn") << Exchange(exchange<QPushButton, &Page::m_deleteBtn>);
}

void PageLanguageTest::missingMemberAnswersMinusOne()
{
    QFETCH(Exchange, member);
    Page* const page = m_shown.plugin.page;
    page->onEditBtnClick();
    const QStringList pageBefore = textsOf(page);
    host().translationContexts.clear();
    int answer = 0;
    int traced = 0;
    void* const widget = member(page, nullptr);
    {
        RecordingTrace trace;
        answer = m_shown.changeLanguage();
        traced = trace.countDebug(tracePattern("Arg is NULL: %T: %F: [A-Za-z]+ %L"));
    }
    member(page, widget);
    QVERIFY(widget);
    QCOMPARE(answer, -1);
    QCOMPARE(traced, 1);
    QCOMPARE(textsOf(page), pageBefore);
    QCOMPARE(page->m_editDlg->m_okBtn->text(), QString::fromUtf8("en:IDS_LINK_SETTING_NEW_OK"));
    QCOMPARE(host().translationContexts, QStringList());
    QCOMPARE(m_shown.changeLanguage(), 0);
}

void PageLanguageTest::layoutsAreNotNeeded()
{
    Page* const page = m_shown.plugin.page;
    QHBoxLayout* const layout = page->m_pageLayout;
    page->m_pageLayout = nullptr;
    const int answer = m_shown.changeLanguage();
    page->m_pageLayout = layout;
    QCOMPARE(answer, 0);
    QCOMPARE(page->m_newBtn->text(), QString::fromUtf8("de:IDS_LINK_SETTING_NEW"));
}

void PageLanguageTest::pageThatIsGone_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("never shown") << QString::fromUtf8("never");
    QTest::newRow("never even loaded") << QString::fromUtf8("unloaded");
    QTest::newRow("parent deleted by the host") << QString::fromUtf8("parent");
    QTest::newRow("page deleted by the host") << QString::fromUtf8("page");
    QTest::newRow("plug-in ended") << QString::fromUtf8("end");
}

void PageLanguageTest::pageThatIsGone()
{
    QFETCH(QString, how);
    if (how == "never" || how == "unloaded") {
        m_shown.plugin.unload();
        m_shown.plugin.make();
        if (how == "never")
            m_shown.plugin.page->Init();
    } else if (how == "parent") {
        m_shown.plugin.page->onEditBtnClick();
        m_shown.parent.reset();
    } else if (how == "page") {
        delete m_shown.plugin.page->m_pageWidget;
    } else {
        m_shown.plugin.page->OnDestroy();
    }
    host().translationContexts.clear();
    QCOMPARE(m_shown.changeLanguage(), -1);
    QCOMPARE(host().translationContexts, QStringList());
    if (how == "parent" || how == "page") {
        m_shown.show();
        QCOMPARE(m_shown.changeLanguage(), 0);
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
    m_shown.plugin.page->HideSetting();
    if (isCancelled)
        m_shown.plugin.page->OnClickSettingCancelButton();
    QCOMPARE(m_shown.changeLanguage(), 0);
    QCOMPARE(m_shown.plugin.page->m_newBtn->text(), QString::fromUtf8("de:IDS_LINK_SETTING_NEW"));
    QVERIFY(!m_shown.plugin.page->m_pageWidget->isVisible());
}

void PageLanguageTest::emptyTableFollows()
{
    m_shown.plugin.page->m_recordList->clear();
    m_shown.show();
    QCOMPARE(m_shown.plugin.page->m_QLinkListTblView->rowCount(), 0);
    QCOMPARE(m_shown.changeLanguage(), 0);
    QCOMPARE(m_shown.plugin.page->m_nameHeaderItem->text(), QString::fromUtf8("de:IDS_LINK_SETTING_NAME"));
}

REGISTER_TEST(PageLanguageTest)
#include "PageLanguageTest.moc"
