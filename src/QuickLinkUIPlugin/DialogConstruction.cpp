// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The New/Edit dialog: its object, its frame and its widgets, and how it forgets widgets that the host deletes.

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "ExtendDialog.h"
#include "Members.h"
#include "Pointers.h"
#include "QuickLinkSettingNewEditDlg.h"
#include "Trace.h"

template <class Dialog, class Visitor>
void QuickLinkSettingNewEditDlg::visitNamedWidgets(Dialog& dialog, Visitor&& visit)
{
    visit(dialog.m_nameLbl, "m_nameLbl");
    visit(dialog.m_typeLbl, "m_typeLbl");
    visit(dialog.m_appNameEdit, "m_appNameEdit");
    visit(dialog.m_appPathEdit, "m_appPathEdit");
    visit(dialog.m_appTypeChoice, "m_appTypeChoice");
    visit(dialog.m_appTabWidget, "m_appTabWidget");
    visit(dialog.m_appTab, "m_appTab");
    visit(dialog.m_applicationPathLbl, "m_applicationPathLbl");
    visit(dialog.m_appParamEdit, "m_appParamEdit");
    visit(dialog.m_browseBtn, "m_browseBtn");
    visit(dialog.m_applicationParamLbl, "m_applicationParamLbl");
    visit(dialog.m_launchWhenSWLaunchCB, "m_launchWhenSWLaunchCB");
    visit(dialog.m_launchWhenConnectCB, "m_launchWhenConnectCB");
    visit(dialog.m_okBtn, "m_okBtn");
    visit(dialog.m_cancelBtn, "m_cancelBtn");
    visit(dialog.m_EmailTab, "m_EmailTab");
    visit(dialog.m_DefaultLbl, "m_DefaultLbl");
    visit(dialog.m_launchWhenSWLaunchCBForEmail, "m_launchWhenSWLaunchCBForEmail");
    visit(dialog.m_launchWhenConnectCBForEmail, "m_launchWhenConnectCBForEmail");
    visit(dialog.m_InternetTab, "m_InternetTab");
    visit(dialog.m_UrlLabel, "m_UrlLabel");
    visit(dialog.m_launchWhenSWLaunchCBForInternet, "m_launchWhenSWLaunchCBForInternet");
    visit(dialog.m_launchWhenConnectCBForInternet, "m_launchWhenConnectCBForInternet");
    visit(dialog.m_EditUrlName, "m_EditUrlName");
}

template <class Dialog, class Visitor>
void QuickLinkSettingNewEditDlg::visitAll(Dialog& dialog, Visitor&& visit)
{
    visit(dialog.m_frameDialog, nullptr);
    visit(dialog.m_mainWidget, nullptr);
    visit(dialog.m_applicationPanel, nullptr);
    visitNamedWidgets(dialog, visit);
    visit(dialog.m_mainLayout, nullptr);
    visit(dialog.m_applicationLayout, nullptr);
    visit(dialog.m_pathLayout, nullptr);
    visit(dialog.m_buttonLayout, nullptr);
    visit(dialog.m_nameLayout, nullptr);
    visit(dialog.m_typeLayout, nullptr);
    visit(dialog.m_tabLayout, nullptr);
    visit(dialog.m_emailLayout, nullptr);
    visit(dialog.m_internetLayout, nullptr);
}

QuickLinkSettingNewEditDlg::QuickLinkSettingNewEditDlg()
    : QWidget(nullptr)
    , m_launchOnSoftware(QLatin1String("0"))
    , m_launchOnConnect(QLatin1String("0"))
    , m_watch(this, &QuickLinkSettingNewEditDlg::onWatchedObjectGone)
{
}

QuickLinkSettingNewEditDlg::~QuickLinkSettingNewEditDlg()
{
}

void QuickLinkSettingNewEditDlg::ShowNewEditDlg(QWidget* parent)
{
    TRACE_START();
    if (!m_frameDialog)
        createMemory(parent);
    if (!m_frameDialog) {
        TRACE_NULL();
        return;
    }
    m_frameDialog->setVisible(true);
    TRACE_END();
}

void QuickLinkSettingNewEditDlg::createMemory(QWidget* parent)
{
    TRACE_START();
    m_frameDialog = new ExtendDialog(parent, Qt::WindowCloseButtonHint, 1, false);
    m_mainWidget = new QWidget(m_frameDialog);
    m_frameDialog->AddMainWidget(m_mainWidget);
    m_frameDialog->setFixedSize(345, 360);

    m_appTabWidget = new QTabWidget(m_mainWidget);
    m_appTab = new QWidget;
    m_applicationPanel = new QWidget(m_appTab);
    m_nameLbl = new QLabel(m_mainWidget);
    m_typeLbl = new QLabel(m_mainWidget);
    m_applicationPathLbl = new QLabel(m_appTab);
    m_applicationParamLbl = new QLabel(m_appTab);
    m_appPathEdit = new QLineEdit(m_appTab);
    m_appNameEdit = new QLineEdit(m_mainWidget);
    m_appParamEdit = new QLineEdit(m_appTab);
    m_browseBtn = new QPushButton(m_appTab);
    m_launchWhenSWLaunchCB = new QCheckBox(m_appTab);
    m_launchWhenConnectCB = new QCheckBox(m_appTab);
    m_appTypeChoice = new QComboBox(m_mainWidget);
    m_okBtn = new QPushButton(m_mainWidget);
    m_cancelBtn = new QPushButton(m_mainWidget);
    m_mainLayout = new QVBoxLayout;
    m_applicationLayout = new QVBoxLayout;
    m_pathLayout = new QHBoxLayout;
    m_buttonLayout = new QHBoxLayout;
    m_nameLayout = new QHBoxLayout;
    m_typeLayout = new QHBoxLayout;
    m_tabLayout = new QVBoxLayout;

    m_EmailTab = new QWidget;
    m_DefaultLbl = new QLabel(m_appTab);
    m_emailLayout = new QVBoxLayout;
    m_launchWhenSWLaunchCBForEmail = new QCheckBox;
    m_launchWhenConnectCBForEmail = new QCheckBox;

    m_InternetTab = new QWidget;
    m_UrlLabel = new QLabel(m_appTab);
    m_EditUrlName = new QLineEdit;
    m_internetLayout = new QVBoxLayout;
    m_launchWhenSWLaunchCBForInternet = new QCheckBox;
    m_launchWhenConnectCBForInternet = new QCheckBox;

    visitAll(*this, Members::Watch(m_watch));
    m_frameDialog->setWindowModality(Qt::WindowModal);
    initializeUI();
    TRACE_END();
}

void QuickLinkSettingNewEditDlg::initializeUI()
{
    TRACE_START();
    createTabForApplication();
    createTabForEmail();
    createTabForInternet();
    if (!isComplete()) {
        TRACE("%s: %s: Cell-Log UI Intialization Failed: ", __FILE__, __func__);
        return;
    }
    m_appTab->setLayout(m_tabLayout);
    m_EmailTab->hide();
    m_InternetTab->hide();
    setObjectNameNewDialog();
    m_appTypeChoice->setMaxCount(3);
    m_appTabWidget->addTab(m_appTab, QString());
    setDisplayLayout();
    setDisplayString();
    addListener();
    m_okBtn->setEnabled(false);
    TRACE_END();
}

void QuickLinkSettingNewEditDlg::setObjectNameNewDialog()
{
    TRACE_START();
    if (!isComplete()) {
        TRACE_NULL();
        return;
    }
    // Renamed at once: neither the frame nor the main widget nor the application panel has a name.
    m_nameLbl->setObjectName(QLatin1String("m_quickLinkSettingNewEditDlg"));
    visitNamedWidgets(*this, Members::SetName());
    TRACE_END();
}

void QuickLinkSettingNewEditDlg::addListener()
{
    TRACE_START();
    if (!isComplete()) {
        TRACE_NULL();
        return;
    }
    // activated, not currentIndexChanged: only the user's choice clears fields, not the page's filling.
    connect(m_appTypeChoice, SIGNAL(activated(int)), this, SLOT(OnSelectComboItem(int)));
    connect(m_cancelBtn, SIGNAL(clicked()), this, SLOT(onButtonClickCancelNew()));
    connect(m_browseBtn, SIGNAL(clicked()), this, SLOT(onClickBrowseButton()));
    listenToEdit(m_appNameEdit);
    listenToEdit(m_appPathEdit);
    listenToEdit(m_EditUrlName);
    listenToOptions(m_launchWhenSWLaunchCB, m_launchWhenConnectCB);
    listenToOptions(m_launchWhenSWLaunchCBForEmail, m_launchWhenConnectCBForEmail);
    listenToOptions(m_launchWhenSWLaunchCBForInternet, m_launchWhenConnectCBForInternet);
    connect(m_okBtn, SIGNAL(clicked()), this, SLOT(onClickOkButton()));
    TRACE_END();
}

void QuickLinkSettingNewEditDlg::listenToEdit(QLineEdit* edit)
{
    connect(edit, SIGNAL(textChanged(QString)), this, SLOT(onEnterNameInApplication()));
    connect(edit, SIGNAL(cursorPositionChanged(int, int)), this, SLOT(onDeleteNameInApplication()));
}

void QuickLinkSettingNewEditDlg::listenToOptions(QCheckBox* onSoftware, QCheckBox* onConnect)
{
    connect(onSoftware, SIGNAL(clicked(bool)), this, SLOT(onSelectLaunchOnsoftware(bool)));
    connect(onConnect, SIGNAL(clicked(bool)), this, SLOT(onSelectLaunchOnConnect(bool)));
}

bool QuickLinkSettingNewEditDlg::isComplete() const
{
    Members::FindNull null;
    visitAll(*this, null);
    return !null.isFound;
}

void QuickLinkSettingNewEditDlg::onWatchedObjectGone(void* dialog, QObject* object)
{
    visitAll(*static_cast<QuickLinkSettingNewEditDlg*>(dialog), Members::Forget(object));
}
