// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The page's caption in the host's settings: there, translated, or none because the file hides the page.

#include "LoadedPlugin.h"
#include "Test.h"

class PageTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_plugin.make(); }
    void cleanup() { m_plugin.unload(); }

    void moduleName_data();
    void moduleName();
    void moduleNameBeforeInit();
    void moduleNameFollowsLanguage();
    void traceOfModuleName();

private:
    LoadedPlugin m_plugin;
};

void PageTextsTest::moduleName_data()
{
    QTest::addColumn<QByteArray>("element");
    QTest::addColumn<bool>("hasName");
    const char* const rows[][2] = {{"1", "<Visible>1</Visible>"},
                                   {"empty", "<Visible></Visible>"},
                                   {"blank before 0", "<Visible> 0</Visible>"},
                                   {"blank after 0", "<Visible>0 </Visible>"},
                                   {"00", "<Visible>00</Visible>"},
                                   {"false", "<Visible>false</Visible>"},
                                   {"no", "<Visible>no</Visible>"},
                                   {"no element", ""},
                                   {"0 after the menu", "<menu/><Visible>0</Visible>"}};
    QTest::newRow("0") << QByteArray("<Visible>0</Visible>") << false;
    for (const auto& row : rows)
        QTest::newRow(row[0]) << QByteArray(row[1]) << true;
}

void PageTextsTest::moduleName()
{
    QFETCH(QByteArray, element);
    QFETCH(bool, hasName);
    FakeHost::instance().writeConfig("<tovadoc>" + element + "<menu><item name='a' visible='1'/></menu></tovadoc>");
    m_plugin.page->Init();
    QCOMPARE(m_plugin.page->GetModuleName(), hasName ? shown("IDS_SETTING_NAME") : QString());
    // The links load all the same.
    QCOMPARE(m_plugin.page->GetQuickLinkRecordSize(), 1);
}

void PageTextsTest::moduleNameBeforeInit()
{
    QuickLinkXmlParse::GetInstance()->m_visible = "0";
    QCOMPARE(m_plugin.page->GetModuleName(), shown("IDS_SETTING_NAME"));
    QCOMPARE(FakeHost::instance().translationContexts, QStringList("QuickLinkUIPlugin"));
}

void PageTextsTest::moduleNameFollowsLanguage()
{
    m_plugin.page->Init();
    QCOMPARE(m_plugin.page->GetModuleName(), "en:IDS_SETTING_NAME");
    FakeHost::instance().language = "de";
    QCOMPARE(m_plugin.page->GetModuleName(), "de:IDS_SETTING_NAME");
}

void PageTextsTest::traceOfModuleName()
{
    RecordingTrace trace;
    m_plugin.page->GetModuleName();
    QCOMPARE(trace.countDebug(tracePattern("Returning Module Name %F: GetModuleName: %L: ")), 1);
}

REGISTER_TEST(PageTextsTest)
#include "PageTextsTest.moc"
