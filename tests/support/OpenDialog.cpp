// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "OpenDialog.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QtTest>

#include "ExtendDialog.h"
#include "FakeHost.h"
#include "QuickLinkXmlParse.h"
#include "Records.h"

QList<PointerMember> membersOf(QuickLinkSettingNewEditDlg* dialog)
{
#define MEMBER(name) pointerMember(#name, dialog->name)
    return QList<PointerMember>() << MEMBER(m_frameDialog) << MEMBER(m_mainWidget) << MEMBER(m_appTabWidget)
                                  << MEMBER(m_applicationPanel) << MEMBER(m_appTab) << MEMBER(m_nameLbl)
                                  << MEMBER(m_typeLbl) << MEMBER(m_applicationPathLbl) << MEMBER(m_applicationParamLbl)
                                  << MEMBER(m_appPathEdit) << MEMBER(m_appNameEdit) << MEMBER(m_appParamEdit)
                                  << MEMBER(m_browseBtn) << MEMBER(m_launchWhenSWLaunchCB)
                                  << MEMBER(m_launchWhenConnectCB) << MEMBER(m_appTypeChoice) << MEMBER(m_okBtn)
                                  << MEMBER(m_cancelBtn) << MEMBER(m_mainLayout) << MEMBER(m_applicationLayout)
                                  << MEMBER(m_pathLayout) << MEMBER(m_buttonLayout) << MEMBER(m_nameLayout)
                                  << MEMBER(m_typeLayout) << MEMBER(m_tabLayout) << MEMBER(m_EmailTab)
                                  << MEMBER(m_DefaultLbl) << MEMBER(m_emailLayout)
                                  << MEMBER(m_launchWhenSWLaunchCBForEmail) << MEMBER(m_launchWhenConnectCBForEmail)
                                  << MEMBER(m_InternetTab) << MEMBER(m_UrlLabel) << MEMBER(m_EditUrlName)
                                  << MEMBER(m_internetLayout) << MEMBER(m_launchWhenSWLaunchCBForInternet)
                                  << MEMBER(m_launchWhenConnectCBForInternet);
#undef MEMBER
}

QStringList dialogMemberNames()
{
    QuickLinkSettingNewEditDlg dialog;
    QStringList all;
    const QList<PointerMember> members = membersOf(&dialog);
    for (const PointerMember& member : members)
        all.append(QLatin1String(member.name));
    return all;
}

PointerMember memberOf(QuickLinkSettingNewEditDlg* dialog, const QString& name)
{
    return memberNamed(membersOf(dialog), name);
}

OpenDialog::OpenDialog(const QStringList& storedNames)
    : m_host(nullptr)
    , m_dialog(nullptr)
    , m_takesRecords(false)
{
    FakeHost::instance().reset();
    QuickLinkXmlParse::GetInstance()->ReadXmlInformation();
    for (const QString& name : storedNames)
        stored().append(makeRecord(name.toUtf8().constData(), "internet", "http://example.org"));
    m_host = new QWidget;
    m_host->resize(400, 360);
    m_host->show();
    m_dialog = new QuickLinkSettingNewEditDlg;
    connect(m_dialog, SIGNAL(addRecord(QuickLinkRecord*)), this, SLOT(onAddRecord(QuickLinkRecord*)));
    connect(m_dialog, SIGNAL(cancelNewButton()), this, SLOT(onCancelNewButton()));
    m_dialog->ShowNewEditDlg(m_host);
}

OpenDialog::~OpenDialog()
{
    deleteDialogObject();
    deleteHost();
    delete QuickLinkXmlParse::GetInstance()->m_recordList;
    QuickLinkXmlParse::Destroy();
}

QuickLinkRecordList& OpenDialog::stored() const
{
    return *QuickLinkXmlParse::GetInstance()->m_recordList;
}

void OpenDialog::deleteHost()
{
    delete m_host;
}

void OpenDialog::deleteDialogObject()
{
    if (!m_dialog)
        return;
    // The dialog leaves its last record to whoever took it.
    if (!m_takesRecords)
        delete m_dialog->m_record;
    delete m_dialog;
}

void OpenDialog::chooseType(int index)
{
    QComboBox* const choice = m_dialog->m_appTypeChoice;
    choice->showPopup();
    choice->view()->setCurrentIndex(choice->model()->index(index, 0));
    QTest::keyClick(choice->view(), Qt::Key_Return);
}

void OpenDialog::enter(QLineEdit* edit, const QString& text)
{
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

void OpenDialog::fill(int type, const QString& name, const QString& target)
{
    chooseType(type);
    enter(m_dialog->m_appNameEdit, name);
    if (type == 0)
        enter(m_dialog->m_appPathEdit, target);
    else if (type == 2)
        enter(m_dialog->m_EditUrlName, target);
}

void OpenDialog::pressOk()
{
    QTest::mouseClick(m_dialog->m_okBtn, Qt::LeftButton);
}

void OpenDialog::pressCancel()
{
    QTest::mouseClick(m_dialog->m_cancelBtn, Qt::LeftButton);
}

bool OpenDialog::isOpen() const
{
    return m_dialog->m_frameDialog && m_dialog->m_frameDialog->isVisible();
}

bool OpenDialog::isOkEnabled() const
{
    return m_dialog->m_okBtn->isEnabled();
}

int OpenDialog::shownPanel() const
{
    const QWidget* const panels[] = {m_dialog->m_applicationPanel, m_dialog->m_EmailTab, m_dialog->m_InternetTab};
    int shown = -1;
    for (int i = 0; i < 3; ++i) {
        if (panels[i]->isVisible() && shown != -1)
            return -1;
        if (panels[i]->isVisible())
            shown = i;
    }
    return shown;
}

QString OpenDialog::options() const
{
    return m_dialog->m_launchOnSoftware + m_dialog->m_launchOnConnect;
}

QStringList OpenDialog::messageKeys()
{
    QStringList keys;
    for (const ShownMessage& message : FakeHost::instance().messages)
        keys.append(message.text.section(':', 1));
    return keys;
}

QWidget* OpenDialog::frame() const
{
    return m_dialog->m_frameDialog;
}

void OpenDialog::onAddRecord(QuickLinkRecord* record)
{
    added.append(*record);
    addedObjects.append(record);
    wasOpenWhenAdded.append(isOpen());
    if (m_takesRecords)
        m_dialog->recordTaken(record);
}

void OpenDialog::onCancelNewButton()
{
    wasOpenWhenCancelled.append(isOpen());
}
