// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The Edit button: what the dialog is filled with, and what becomes of the link.

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

#include "QuickLinkSettingNewEditDlg.h"
#include "ShownPage.h"
#include "Test.h"

class PageEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_page.end(); }

    void field_data();
    void field();
    void checkBoxes_data();
    void checkBoxes();
    void longNameIsCutLikeTheField();
    void changedInPlace_data();
    void changedInPlace();
    void rightsComeBack();
    void nameIsChecked_data();
    void nameIsChecked();
    void optionsGoWithoutAClick_data();
    void optionsGoWithoutAClick();
    void pageBuiltAgainMeanwhile();

private:
    void edit(int row);

    ShownPage m_page;
};

void PageEditTest::edit(int row)
{
    m_page.select(row);
    m_page.click("m_editBtn");
}

void PageEditTest::field_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("url");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("parameters");
    QTest::addColumn<QString>("address");
    const struct {
        const char *name, *type, *url;
        int index;
        const char *path, *parameters, *address;
    } rows[] = {{"application", "IDS_LINK_TYPE_APPLICATION", "/opt/a b/run", 0, "/opt/a b/run", "-x -y", ""},
                {"backslashes", "IDS_LINK_TYPE_APPLICATION", "C:\\Tools\\app.exe", 0, "C:/Tools/app.exe", "-x -y", ""},
                {"mixed slashes", "IDS_LINK_TYPE_APPLICATION", "\\\\h/d\\", 0, "//h/d/", "-x -y", ""},
                {"e-mail", "IDS_LINK_TYPE_E-MAIL", "mailto:x@example.org", 1, "", "", ""},
                {"Internet", "IDS_LINK_TYPE_INTERNET", "http://example.org/a\\b", 2, "", "", "http://example.org/a\\b"},
                {"unknown type", "IDS_LINK_TYPE_E_MAIL", "http://x", 2, "", "", "http://x"},
                {"type in other letters", "ids_link_type_application", "/x", 2, "", "", "/x"},
                {"type with a blank", "IDS_LINK_TYPE_APPLICATION ", "/x", 2, "", "", "/x"},
                {"no type", "", "http://x", 2, "", "", "http://x"}};
    for (const auto& row : rows)
        QTest::newRow(row.name) << QString(row.type) << QString(row.url) << row.index << QString(row.path)
                                << QString(row.parameters) << QString(row.address);
}

void PageEditTest::field()
{
    QFETCH(QString, type);
    QFETCH(QString, url);
    QFETCH(int, index);
    QFETCH(QString, path);
    QFETCH(QString, parameters);
    QFETCH(QString, address);
    QuickLinkRecordList records = links("a b");
    records[1].type = type;
    records[1].url = url;
    records[1].para = "-x -y";
    m_page.begin(records);
    edit(1);
    QCOMPARE(m_page.inDialog<QLineEdit>("m_appNameEdit")->text(), "b");
    QCOMPARE(m_page.inDialog<QComboBox>("m_appTypeChoice")->currentIndex(), index);
    QCOMPARE(m_page.inDialog<QLineEdit>("m_appPathEdit")->text(), path);
    QCOMPARE(m_page.inDialog<QLineEdit>("m_appParamEdit")->text(), parameters);
    QCOMPARE(m_page.inDialog<QLineEdit>("m_EditUrlName")->text(), address);
    QCOMPARE(m_page.page->m_editDlg->m_applicationPanel->isVisible(), index == 0);
    QCOMPARE(m_page.page->m_editDlg->m_EmailTab->isVisible(), index == 1);
    QCOMPARE(m_page.page->m_editDlg->m_InternetTab->isVisible(), index == 2);
    QVERIFY(m_page.inDialog<QPushButton>("m_okBtn")->isEnabled());
}

void PageEditTest::checkBoxes_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("onConnect");
    QTest::addColumn<QString>("onStart");
    const char* const kinds[] = {"Internet", "e-mail", "application"};
    const char* const flags[][2] = {{"0", "0"}, {"1", "0"}, {"0", "1"}, {"1", "1"}, {"", "true"}, {"2", " 1"}};
    for (int kind = 0; kind < 3; ++kind) {
        for (const char* const* flag : flags)
            QTest::newRow(
                qPrintable(QString("%1 \"%2\" \"%3\"")
                               .arg(QLatin1String(kinds[kind]), QLatin1String(flag[0]), QLatin1String(flag[1]))))
                << kind << QString(flag[0]) << QString(flag[1]);
    }
}

void PageEditTest::checkBoxes()
{
    QFETCH(int, kind);
    QFETCH(QString, onConnect);
    QFETCH(QString, onStart);
    QuickLinkRecordList records = links("a b c");
    records[kind].startconnect = onConnect;
    records[kind].startmobile = onStart;
    m_page.begin(records);
    edit(kind);
    const char* const boxes[][2] = {{"m_launchWhenConnectCBForInternet", "m_launchWhenSWLaunchCBForInternet"},
                                    {"m_launchWhenConnectCBForEmail", "m_launchWhenSWLaunchCBForEmail"},
                                    {"m_launchWhenConnectCB", "m_launchWhenSWLaunchCB"}};
    for (int each = 0; each < 3; ++each) {
        const bool isShown = each == kind;
        QCOMPARE(m_page.inDialog<QCheckBox>(boxes[each][0])->isChecked(), isShown && onConnect == "1");
        QCOMPARE(m_page.inDialog<QCheckBox>(boxes[each][1])->isChecked(), isShown && onStart == "1");
    }
    QCOMPARE(m_page.page->m_editDlg->m_launchOnConnect, "0");
    QCOMPARE(m_page.page->m_editDlg->m_launchOnSoftware, "0");
}

void PageEditTest::longNameIsCutLikeTheField()
{
    QuickLinkRecordList records = links("a b");
    records[1].name = QString(60, 'n');
    m_page.begin(records);
    edit(1);
    QCOMPARE(m_page.page->m_editDlg->m_editedName, QString(49, 'n'));
}

void PageEditTest::changedInPlace_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("names");
    QTest::newRow("first") << 0 << "new b c";
    QTest::newRow("second") << 1 << "a new c";
    QTest::newRow("third") << 2 << "a b new";
}

void PageEditTest::changedInPlace()
{
    QFETCH(int, row);
    QFETCH(QString, names);
    m_page.begin(links("a b c"));
    const QuickLinkRecord* others[] = {m_page.recordOf(0), m_page.recordOf(1), m_page.recordOf(2)};
    edit(row);
    const RecordProbe old(m_page.recordOf(row));
    const QString buttons = m_page.enabledButtons();
    m_page.chooseType(1);
    m_page.enter("m_appNameEdit", "new");
    QVERIFY(!old.isFreed());
    m_page.pressOk();
    QVERIFY(old.isFreed());
    QCOMPARE(m_page.linkNames(), names);
    QCOMPARE(m_page.table()->item(row, 1)->text(), "en:IDS_LINK_TYPE_E-MAIL");
    QCOMPARE(m_page.page->m_recordList->at(row).url, "mailto:");
    QCOMPARE(m_page.currentRow(), row);
    QCOMPARE(m_page.enabledButtons(), buttons);
    for (int each = 0; each < 3; ++each)
        QCOMPARE(m_page.recordOf(each) == others[each], each != row);
    QVERIFY(!m_page.frame()->isVisible());
}

void PageEditTest::rightsComeBack()
{
    QuickLinkRecordList records = links("a b");
    records[1].delete_ = "0";
    m_page.begin(records);
    edit(1);
    QCOMPARE(m_page.enabledButtons(), "New Edit Up");
    m_page.enter("m_appNameEdit", "c");
    m_page.pressOk();
    QCOMPARE(m_page.page->m_recordList->at(1).delete_, "1");
    m_page.select(1);
    QCOMPARE(m_page.enabledButtons(), "New Edit Delete Up");
}

void PageEditTest::nameIsChecked_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("its own") << "b" << false;
    QTest::newRow("another link's") << "a" << true;
}

void PageEditTest::nameIsChecked()
{
    QFETCH(QString, name);
    QFETCH(bool, isTaken);
    m_page.begin(links("a b"));
    edit(1);
    m_page.enter("m_appNameEdit", name);
    m_page.pressOk();
    QCOMPARE(FakeHost::instance().messages.size(), isTaken ? 1 : 0);
    QCOMPARE(m_page.linkNames(), "a b");
    QCOMPARE(m_page.page->m_isEditing, isTaken);
    QCOMPARE(m_page.frame()->isVisible(), isTaken);
    if (isTaken)
        return;
    // The edit is over: the next link is a new one.
    QVERIFY(m_page.page->m_editDlg);
    m_page.change("New");
    QCOMPARE(m_page.linkNames(), "a b d");
}

void PageEditTest::optionsGoWithoutAClick_data()
{
    QTest::addColumn<bool>("isClicked");
    QTest::newRow("not clicked") << false;
    QTest::newRow("off and on again") << true;
}

void PageEditTest::optionsGoWithoutAClick()
{
    QFETCH(bool, isClicked);
    QuickLinkRecordList records = links("a b");
    records[1].startconnect = records[1].startmobile = "1";
    m_page.begin(records);
    edit(1);
    for (int i = 0; isClicked && i < 2; ++i)
        QTest::mouseClick(m_page.inDialog<QCheckBox>("m_launchWhenConnectCBForEmail"), Qt::LeftButton, Qt::NoModifier,
                          QPoint(5, m_page.inDialog<QCheckBox>("m_launchWhenConnectCBForEmail")->height() / 2));
    QVERIFY(m_page.inDialog<QCheckBox>("m_launchWhenConnectCBForEmail")->isChecked());
    m_page.pressOk();
    QCOMPARE(m_page.page->m_recordList->at(1).startconnect, isClicked ? "1" : "0");
    QCOMPARE(m_page.page->m_recordList->at(1).startmobile, "0");
}

void PageEditTest::pageBuiltAgainMeanwhile()
{
    m_page.begin(links("a b c"));
    edit(2);
    m_page.show();
    QCOMPARE(m_page.liveFrames(), 1);
    QVERIFY(m_page.frame()->isVisible());
    QCOMPARE(m_page.inDialog<QLineEdit>("m_appNameEdit")->text(), "c");
    // The edit goes on, but OK replaces the current row, and the new page has its first row selected.
    QCOMPARE(m_page.currentRow(), 0);
    const RecordProbe replaced(m_page.recordOf(0));
    m_page.chooseType(1);
    m_page.enter("m_appNameEdit", "x");
    m_page.pressOk();
    QVERIFY(replaced.isFreed());
    QCOMPARE(m_page.linkNames(), "x b c");
    QVERIFY(!m_page.page->m_isEditing);
    QCOMPARE(m_page.told(), 1);
}

REGISTER_TEST(PageEditTest)
#include "PageEditTest.moc"
