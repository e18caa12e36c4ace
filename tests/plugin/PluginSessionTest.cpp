// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// A whole session: nothing reaches the warning channel, neither by the plug-in nor by a toolkit that it uses wrongly,
// but that the menu could not be told.

#include <QAction>

#include "ShownPage.h"
#include "Test.h"

namespace
{
/** The warnings, without what the offscreen display has to say about itself when a list drops down. */
QStringList warningsOf(const RecordingTrace& trace)
{
    QStringList lines;
    for (const QString& line : trace.warningLines) {
        if (!line.startsWith("This plugin does not support "))
            lines << line;
    }
    return lines;
}
} // namespace

class PluginSessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void warningsOfASession_data();
    void warningsOfASession();

private:
    ShownPage m_page;
};

void PluginSessionTest::warningsOfASession_data()
{
    QTest::addColumn<bool>("hasContainer");
    QTest::addColumn<bool>("hasMenuManager");
    QTest::addColumn<QString>("warning");
    QTest::newRow("menu manager there") << true << true << QString();
    QTest::newRow("no menu manager") << true << false << "%F: sendNotifyToMenu: plugin is not loaded ";
    QTest::newRow("no container") << false << true << "%F: sendNotifyToMenu: Plugin container is null ";
}

void PluginSessionTest::warningsOfASession()
{
    QFETCH(bool, hasContainer);
    QFETCH(bool, hasMenuManager);
    QFETCH(QString, warning);
    FakeHost& host = FakeHost::instance();
    RecordingTrace trace;

    m_page.beginHidden(links("a b c"));
    host.hasContainer = hasContainer;
    host.hasNotifyOwner = hasMenuManager;
    QuickLinkSettingPluginDlg* const plugin = m_page.page;
    for (int i = 0; i < plugin->GetQuickLinkRecordSize(); ++i)
        plugin->LaunchQuickLinkAction(plugin->GetActionFromQuickLink(i));
    QCOMPARE(host.openings.size(), 3);
    for (const unsigned int code : {258u, 1536u, 1024u})
        plugin->Notify(code, 0, 0);

    m_page.show();
    for (const char* change : {"New", "Edit", "Up", "Down", "Delete"}) {
        m_page.select(1);
        m_page.change(change);
    }
    QCOMPARE(m_page.shownNames(), "x a d");
    // The dialogs in another language, and given up.
    host.language = "de";
    for (const char* button : {"m_newBtn", "m_editBtn"}) {
        m_page.click(button);
        QCOMPARE(plugin->Notify(1024, 0, 0), 0);
        m_page.pressCancel();
    }
    plugin->HideSetting();
    plugin->OnClickSettingCancelButton();
    plugin->OnClickSettingOkButton();

    delete m_page.host;
    m_page.host = new QWidget;
    m_page.host->show();
    m_page.show();
    QCOMPARE(m_page.shownNames(), "x a d");
    m_page.end();

    // New, Edit and Delete tell the menu.
    const int warnings = warning.isEmpty() ? 0 : 3;
    QCOMPARE(host.notifications.size(), 3 - warnings);
    QCOMPARE(trace.countWarnings(tracePattern(warning.toLatin1().constData())), warnings);
    QVERIFY2(warningsOf(trace).size() == warnings, qPrintable(trace.warningLines.join("\n")));
}

REGISTER_TEST(PluginSessionTest)
#include "PluginSessionTest.moc"
