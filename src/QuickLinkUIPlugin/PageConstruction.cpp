// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The settings page: its widgets, names, layouts and connections, and how it goes again.

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include "Members.h"
#include "Pointers.h"
#include "QuickLinkSettingPluginDlg.h"
#include "Trace.h"

template <class Page, class Visitor>
void QuickLinkSettingPluginDlg::visitContents(Page& page, Visitor&& visit)
{
    visit(page.m_launchOrderLbl, "m_launchOrderLbl");
    visit(page.m_QLinkListTblView, "m_QLinkListTblView");
    visit(page.m_upBtn, "m_upBtn");
    visit(page.m_downBtn, "m_downBtn");
    visit(page.m_newBtn, "m_newBtn");
    visit(page.m_editBtn, "m_editBtn");
    visit(page.m_deleteBtn, "m_deleteBtn");
}

template <class Page, class Visitor>
void QuickLinkSettingPluginDlg::visitNamedWidgets(Page& page, Visitor&& visit)
{
    visit(page.m_QLinkTabWidget, "m_QLinkTabWidget");
    visit(page.m_QLinkTab, "m_QLinkTab");
    visitContents(page, visit);
}

template <class Page, class Visitor>
void QuickLinkSettingPluginDlg::visitLayouts(Page& page, Visitor&& visit)
{
    visit(page.m_pageLayout, nullptr);
    visit(page.m_tabLayout, nullptr);
    visit(page.m_buttonColumnLayout, nullptr);
    visit(page.m_orderButtonsLayout, nullptr);
}

template <class Page, class Visitor>
void QuickLinkSettingPluginDlg::visitAll(Page& page, Visitor&& visit)
{
    visit(page.m_pageWidget, nullptr);
    visitNamedWidgets(page, visit);
    visitLayouts(page, visit);
}

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
    visitAll(*this, Members::Watch(m_watch));
    TRACE_END();
}

void QuickLinkSettingPluginDlg::initializeUI()
{
    TRACE_START();
    if (!isComplete()) {
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
    if (!hasNamedWidgets()) {
        TRACE_NULL();
        return;
    }
    visitNamedWidgets(*this, Members::SetName());
    TRACE_END();
}

void QuickLinkSettingPluginDlg::setDisplayLayout()
{
    TRACE_START();
    if (!isComplete()) {
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

bool QuickLinkSettingPluginDlg::isComplete() const
{
    Members::FindNull null;
    visitAll(*this, null);
    return !null.isFound;
}

bool QuickLinkSettingPluginDlg::hasNamedWidgets() const
{
    Members::FindNull null;
    visitNamedWidgets(*this, null);
    return !null.isFound;
}

void QuickLinkSettingPluginDlg::onWatchedObjectGone(void* page, QObject* object)
{
    QuickLinkSettingPluginDlg* const self = static_cast<QuickLinkSettingPluginDlg*>(page);
    const Members::Forget forget(object);
    visitAll(*self, forget);
    forget(self->m_parentWidget, nullptr);
    if (object == self->m_headerOwner) {
        self->m_nameHeaderItem = nullptr;
        self->m_typeHeaderItem = nullptr;
        self->m_headerOwner = nullptr;
    }
}

void QuickLinkSettingPluginDlg::deletePage()
{
    releaseRows();
    releaseHeaderItems();
    release(m_gridDelegate);
    release(m_QLinkListTblView);
    release(m_pageWidget);
    // Those that were never installed did not go with the page.
    visitLayouts(*this, Members::Release());
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
    releaseHeaderItems();
    visitContents(*this, Members::Release());
    visitLayouts(*this, Members::Release());
}

void QuickLinkSettingPluginDlg::releasePageFrame()
{
    release(m_QLinkTab);
    release(m_QLinkTabWidget);
    release(m_pageWidget);
}
