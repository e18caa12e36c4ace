// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The settings page: its widgets, names, layouts, texts and connections, and how it goes again.

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include "Pointers.h"
#include "QuickLinkSettingPluginDlg.h"
#include "Trace.h"

void QuickLinkSettingPluginDlg::createWidgetMemory(QWidget* parent)
{
    TRACE_START();
    deletePage();

    m_pageWidget = new QWidget(parent);
    m_QLinkTabWidget = new QTabWidget(m_pageWidget);
    m_QLinkTab = new QWidget(m_QLinkTabWidget);
    m_QLinkListTblView = new QTableWidget(m_QLinkTab);
    m_launchOrderLbl = new QLabel(m_QLinkTab);
    m_upBtn = new QPushButton(m_QLinkTab);
    m_downBtn = new QPushButton(m_QLinkTab);
    m_newBtn = new QPushButton(m_pageWidget);
    m_editBtn = new QPushButton(m_pageWidget);
    m_deleteBtn = new QPushButton(m_pageWidget);
    m_pageLayout = new QHBoxLayout;
    m_tabLayout = new QVBoxLayout;
    m_buttonColumnLayout = new QVBoxLayout;
    m_orderButtonsLayout = new QHBoxLayout;
    m_watch.watch(m_pageWidget);
    TRACE_END();
}

void QuickLinkSettingPluginDlg::initializeUI()
{
    TRACE_START();
    if (anyNull({m_pageWidget, m_QLinkTabWidget, m_QLinkTab, m_QLinkListTblView, m_launchOrderLbl, m_upBtn, m_downBtn,
                 m_newBtn, m_editBtn, m_deleteBtn, m_pageLayout, m_tabLayout, m_buttonColumnLayout,
                 m_orderButtonsLayout})) {
        TRACE("%s: %s: Cell-Log UI Intialization Failed: ", __FILE__, __func__);
        return;
    }
    connect(m_newBtn, SIGNAL(clicked()), this, SLOT(onNewBtnClick()));
    connect(m_editBtn, SIGNAL(clicked()), this, SLOT(onEditBtnClick()));
    connect(m_deleteBtn, SIGNAL(clicked()), this, SLOT(onDeleteBtnClick()));
    connect(m_upBtn, SIGNAL(clicked()), this, SLOT(onUpBtnClick()));
    connect(m_downBtn, SIGNAL(clicked()), this, SLOT(ondownBtnClick()));
    connect(m_QLinkListTblView, SIGNAL(cellClicked(int, int)), this, SLOT(onClickQuickLinkRow(int)));
    connect(m_QLinkListTblView, SIGNAL(itemSelectionChanged()), this, SLOT(onTableSelectionChanged()));

    setObjectNameDlg();
    m_QLinkTabWidget->addTab(m_QLinkTab, QString());
    setDisplayLayout();
    setDisplayString();
    m_upBtn->setEnabled(false);
    m_downBtn->setEnabled(false);
    m_editBtn->setEnabled(false);
    m_deleteBtn->setEnabled(false);
    TRACE_END();
}

void QuickLinkSettingPluginDlg::setObjectNameDlg()
{
    TRACE_START();
    if (anyNull({m_QLinkTabWidget, m_QLinkTab, m_launchOrderLbl, m_QLinkListTblView, m_upBtn, m_downBtn, m_newBtn,
                 m_editBtn, m_deleteBtn})) {
        TRACE_NULL();
        return;
    }
    m_QLinkTabWidget->setObjectName(QLatin1String("m_QLinkTabWidget"));
    m_QLinkTab->setObjectName(QLatin1String("m_QLinkTab"));
    m_launchOrderLbl->setObjectName(QLatin1String("m_launchOrderLbl"));
    m_QLinkListTblView->setObjectName(QLatin1String("m_QLinkListTblView"));
    m_upBtn->setObjectName(QLatin1String("m_upBtn"));
    m_downBtn->setObjectName(QLatin1String("m_downBtn"));
    m_newBtn->setObjectName(QLatin1String("m_newBtn"));
    m_editBtn->setObjectName(QLatin1String("m_editBtn"));
    m_deleteBtn->setObjectName(QLatin1String("m_deleteBtn"));
    TRACE_END();
}

void QuickLinkSettingPluginDlg::setDisplayLayout()
{
    TRACE_START();
    if (anyNull({m_pageLayout, m_tabLayout, m_orderButtonsLayout, m_buttonColumnLayout, m_QLinkTabWidget,
                 m_launchOrderLbl, m_QLinkListTblView, m_upBtn, m_downBtn, m_QLinkTab, m_newBtn, m_editBtn, m_deleteBtn,
                 m_pageWidget})) {
        TRACE_NULL();
        return;
    }
    m_pageLayout->addWidget(m_QLinkTabWidget);

    m_tabLayout->addWidget(m_launchOrderLbl);
    m_tabLayout->addWidget(m_QLinkListTblView);
    m_orderButtonsLayout->addWidget(m_upBtn);
    m_orderButtonsLayout->addWidget(m_downBtn);
    m_tabLayout->addLayout(m_orderButtonsLayout);
    m_QLinkTab->setLayout(m_tabLayout);

    m_buttonColumnLayout->insertSpacing(0, 35);
    m_buttonColumnLayout->setSpacing(20);
    m_buttonColumnLayout->addWidget(m_newBtn);
    m_buttonColumnLayout->addWidget(m_editBtn);
    m_buttonColumnLayout->addWidget(m_deleteBtn);
    m_buttonColumnLayout->setAlignment(Qt::AlignTop | Qt::AlignRight);
    m_pageLayout->addLayout(m_buttonColumnLayout);
    m_pageWidget->setLayout(m_pageLayout);

    m_QLinkTabWidget->setFixedSize(280, 340);
    TRACE_END();
}

void QuickLinkSettingPluginDlg::setDisplayString()
{
    TRACE_START();
    if (anyNull({m_launchOrderLbl, m_upBtn, m_downBtn, m_QLinkTabWidget, m_newBtn, m_editBtn, m_deleteBtn})) {
        TRACE_NULL();
        return;
    }
    m_launchOrderLbl->setText(tr(QLatin1String("IDS_LINK_SETTING_ORDER")));
    // What a screen reader calls the table; a buddy would not do, tables do not ask for it.
    if (m_QLinkListTblView)
        m_QLinkListTblView->setAccessibleName(m_launchOrderLbl->text());
    m_upBtn->setText(tr(QLatin1String("IDS_LINK_SETTING_UP")));
    m_downBtn->setText(tr(QLatin1String("IDS_LINK_SETTING_DOWN")));
    m_QLinkTabWidget->setTabText(m_QLinkTabWidget->indexOf(m_QLinkTab), tr(QLatin1String("IDS_LINK_SETTING_TAB")));
    m_newBtn->setText(tr(QLatin1String("IDS_LINK_SETTING_NEW")));
    m_editBtn->setText(tr(QLatin1String("IDS_LINK_SETTING_EDIT")));
    m_deleteBtn->setText(tr(QLatin1String("IDS_LINK_SETTING_DEL")));
    TRACE_END();
}

void QuickLinkSettingPluginDlg::onWatchedObjectGone(void* page, QObject* object)
{
    QuickLinkSettingPluginDlg* const self = static_cast<QuickLinkSettingPluginDlg*>(page);
    if (object == self->m_pageWidget)
        self->forgetPage();
    if (object == self->m_parentWidget)
        self->m_parentWidget = nullptr;
}

void QuickLinkSettingPluginDlg::clearPageMembers()
{
    m_pageWidget = nullptr;
    m_QLinkTabWidget = nullptr;
    m_QLinkTab = nullptr;
    m_QLinkListTblView = nullptr;
    m_launchOrderLbl = nullptr;
    m_upBtn = nullptr;
    m_downBtn = nullptr;
    m_newBtn = nullptr;
    m_editBtn = nullptr;
    m_deleteBtn = nullptr;
    m_pageLayout = nullptr;
    m_tabLayout = nullptr;
    m_buttonColumnLayout = nullptr;
    m_orderButtonsLayout = nullptr;
}

void QuickLinkSettingPluginDlg::forgetPage()
{
    // The page is going, but its children are still there: the table must not take the header items with it unseen.
    release(m_nameHeaderItem);
    release(m_typeHeaderItem);
    clearPageMembers();
}

void QuickLinkSettingPluginDlg::deletePage()
{
    releaseRows();
    release(m_nameHeaderItem);
    release(m_typeHeaderItem);
    release(m_gridDelegate);
    release(m_QLinkListTblView);
    QWidget* page = m_pageWidget;
    clearPageMembers();
    release(page);
}

void QuickLinkSettingPluginDlg::releaseRows()
{
    releaseTable();
    // The rows now name freed records, and a selection that changes as they go must not read them.
    if (m_QLinkListTblView)
        disconnect(m_QLinkListTblView, nullptr, this, nullptr);
}

void QuickLinkSettingPluginDlg::releasePageContents()
{
    release(m_nameHeaderItem);
    release(m_typeHeaderItem);
    release(m_QLinkListTblView);
    release(m_launchOrderLbl);
    release(m_upBtn);
    release(m_downBtn);
    release(m_newBtn);
    release(m_editBtn);
    release(m_deleteBtn);
    // The layouts of Qt 4 do not notice that an inner one is deleted.
    if (m_tabLayout && m_orderButtonsLayout)
        m_tabLayout->removeItem(m_orderButtonsLayout);
    release(m_orderButtonsLayout);
    if (m_pageLayout && m_buttonColumnLayout)
        m_pageLayout->removeItem(m_buttonColumnLayout);
    release(m_buttonColumnLayout);
    release(m_tabLayout);
    release(m_pageLayout);
}

void QuickLinkSettingPluginDlg::releasePageFrame()
{
    release(m_QLinkTab);
    release(m_QLinkTabWidget);
    release(m_pageWidget);
}
