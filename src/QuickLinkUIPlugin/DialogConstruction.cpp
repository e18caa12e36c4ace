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
#include "Pointers.h"
#include "QuickLinkSettingNewEditDlg.h"
#include "Trace.h"

QuickLinkSettingNewEditDlg::QuickLinkSettingNewEditDlg()
    : QWidget(nullptr)
    , m_launchOnSoftware(QLatin1String("0"))
    , m_launchOnConnect(QLatin1String("0"))
    , m_isEdit(false)
    , m_record(nullptr)
    , m_isRecordTaken(false)
    , m_watch(this, &QuickLinkSettingNewEditDlg::onWatchedObjectGone)
{
    forgetWidgets();
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
    m_watch.watch(m_frameDialog);

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
    m_nameLbl->setObjectName(QLatin1String("m_nameLbl"));
    m_typeLbl->setObjectName(QLatin1String("m_typeLbl"));
    m_appNameEdit->setObjectName(QLatin1String("m_appNameEdit"));
    m_appPathEdit->setObjectName(QLatin1String("m_appPathEdit"));
    m_appTypeChoice->setObjectName(QLatin1String("m_appTypeChoice"));
    m_appTabWidget->setObjectName(QLatin1String("m_appTabWidget"));
    m_appTab->setObjectName(QLatin1String("m_appTab"));
    m_applicationPathLbl->setObjectName(QLatin1String("m_applicationPathLbl"));
    m_appParamEdit->setObjectName(QLatin1String("m_appParamEdit"));
    m_browseBtn->setObjectName(QLatin1String("m_browseBtn"));
    m_applicationParamLbl->setObjectName(QLatin1String("m_applicationParamLbl"));
    m_launchWhenSWLaunchCB->setObjectName(QLatin1String("m_launchWhenSWLaunchCB"));
    m_launchWhenConnectCB->setObjectName(QLatin1String("m_launchWhenConnectCB"));
    m_okBtn->setObjectName(QLatin1String("m_okBtn"));
    m_cancelBtn->setObjectName(QLatin1String("m_cancelBtn"));
    m_EmailTab->setObjectName(QLatin1String("m_EmailTab"));
    m_DefaultLbl->setObjectName(QLatin1String("m_DefaultLbl"));
    m_launchWhenSWLaunchCBForEmail->setObjectName(QLatin1String("m_launchWhenSWLaunchCBForEmail"));
    m_launchWhenConnectCBForEmail->setObjectName(QLatin1String("m_launchWhenConnectCBForEmail"));
    m_InternetTab->setObjectName(QLatin1String("m_InternetTab"));
    m_UrlLabel->setObjectName(QLatin1String("m_UrlLabel"));
    m_launchWhenSWLaunchCBForInternet->setObjectName(QLatin1String("m_launchWhenSWLaunchCBForInternet"));
    m_launchWhenConnectCBForInternet->setObjectName(QLatin1String("m_launchWhenConnectCBForInternet"));
    m_EditUrlName->setObjectName(QLatin1String("m_EditUrlName"));
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
    return !anyNull({m_frameDialog,
                     m_mainWidget,
                     m_appTabWidget,
                     m_applicationPanel,
                     m_appTab,
                     m_nameLbl,
                     m_typeLbl,
                     m_applicationPathLbl,
                     m_applicationParamLbl,
                     m_appPathEdit,
                     m_appNameEdit,
                     m_appParamEdit,
                     m_browseBtn,
                     m_launchWhenSWLaunchCB,
                     m_launchWhenConnectCB,
                     m_appTypeChoice,
                     m_okBtn,
                     m_cancelBtn,
                     m_mainLayout,
                     m_applicationLayout,
                     m_pathLayout,
                     m_buttonLayout,
                     m_nameLayout,
                     m_typeLayout,
                     m_tabLayout,
                     m_EmailTab,
                     m_DefaultLbl,
                     m_emailLayout,
                     m_launchWhenSWLaunchCBForEmail,
                     m_launchWhenConnectCBForEmail,
                     m_InternetTab,
                     m_UrlLabel,
                     m_EditUrlName,
                     m_internetLayout,
                     m_launchWhenSWLaunchCBForInternet,
                     m_launchWhenConnectCBForInternet});
}

void QuickLinkSettingNewEditDlg::onWatchedObjectGone(void* dialog, QObject* object)
{
    Q_UNUSED(object);
    static_cast<QuickLinkSettingNewEditDlg*>(dialog)->forgetWidgets();
}

void QuickLinkSettingNewEditDlg::forgetWidgets()
{
    m_frameDialog = nullptr;
    m_mainWidget = nullptr;
    m_appTabWidget = nullptr;
    m_applicationPanel = nullptr;
    m_appTab = nullptr;
    m_nameLbl = nullptr;
    m_typeLbl = nullptr;
    m_applicationPathLbl = nullptr;
    m_applicationParamLbl = nullptr;
    m_appPathEdit = nullptr;
    m_appNameEdit = nullptr;
    m_appParamEdit = nullptr;
    m_browseBtn = nullptr;
    m_launchWhenSWLaunchCB = nullptr;
    m_launchWhenConnectCB = nullptr;
    m_appTypeChoice = nullptr;
    m_okBtn = nullptr;
    m_cancelBtn = nullptr;
    m_mainLayout = nullptr;
    m_applicationLayout = nullptr;
    m_pathLayout = nullptr;
    m_buttonLayout = nullptr;
    m_nameLayout = nullptr;
    m_typeLayout = nullptr;
    m_tabLayout = nullptr;
    m_EmailTab = nullptr;
    m_DefaultLbl = nullptr;
    m_emailLayout = nullptr;
    m_launchWhenSWLaunchCBForEmail = nullptr;
    m_launchWhenConnectCBForEmail = nullptr;
    m_InternetTab = nullptr;
    m_UrlLabel = nullptr;
    m_EditUrlName = nullptr;
    m_internetLayout = nullptr;
    m_launchWhenSWLaunchCBForInternet = nullptr;
    m_launchWhenConnectCBForInternet = nullptr;
}
