// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Where the widgets of the New/Edit dialog lie. All numbers are pixels.

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpacerItem>
#include <QTabWidget>
#include <QVBoxLayout>

#include "DialogLengthLimits.h"
#include "Pointers.h"
#include "QuickLinkSettingNewEditDlg.h"
#include "Trace.h"

namespace
{
void addSpacer(QVBoxLayout* layout, int height)
{
    layout->addItem(new QSpacerItem(50, height, QSizePolicy::Expanding, QSizePolicy::Minimum));
}

void fixTargetEdit(QLineEdit* edit, int width)
{
    edit->setFixedSize(width, 24);
    DialogLengthLimits::limitTarget(edit);
}

/** Ends a panel with its two launch options and gives it its layout. */
void finishPanel(QWidget* panel, QVBoxLayout* layout, QCheckBox* onSoftware, QCheckBox* onConnect)
{
    layout->addWidget(onSoftware, 0, Qt::AlignBottom);
    layout->addWidget(onConnect, 0, Qt::AlignBottom);
    panel->setLayout(layout);
}
} // namespace

void QuickLinkSettingNewEditDlg::createTabForApplication()
{
    TRACE_START();
    if (anyNull({m_applicationPanel, m_applicationLayout, m_pathLayout, m_tabLayout, m_applicationPathLbl,
                 m_appPathEdit, m_browseBtn, m_applicationParamLbl, m_appParamEdit, m_launchWhenSWLaunchCB,
                 m_launchWhenConnectCB})) {
        TRACE_NULL();
        return;
    }
    fixTargetEdit(m_appPathEdit, 184);
    fixTargetEdit(m_appParamEdit, 184);
    m_pathLayout->setSpacing(14);
    m_pathLayout->addWidget(m_appPathEdit);
    m_pathLayout->addWidget(m_browseBtn, 2);

    m_applicationLayout->setContentsMargins(0, 0, 0, 0);
    m_applicationLayout->addWidget(m_applicationPathLbl);
    m_applicationLayout->addLayout(m_pathLayout);
    addSpacer(m_applicationLayout, 20);
    m_applicationLayout->addWidget(m_applicationParamLbl);
    m_applicationLayout->addWidget(m_appParamEdit);
    addSpacer(m_applicationLayout, 20);
    finishPanel(m_applicationPanel, m_applicationLayout, m_launchWhenSWLaunchCB, m_launchWhenConnectCB);
    m_tabLayout->addWidget(m_applicationPanel);
    TRACE_END();
}

void QuickLinkSettingNewEditDlg::createTabForEmail()
{
    TRACE_START();
    if (anyNull({m_EmailTab, m_emailLayout, m_tabLayout, m_DefaultLbl, m_launchWhenSWLaunchCBForEmail,
                 m_launchWhenConnectCBForEmail})) {
        TRACE_NULL();
        return;
    }
    m_emailLayout->setContentsMargins(0, 0, 0, 0);
    m_emailLayout->addWidget(m_DefaultLbl, 0, Qt::AlignTop);
    addSpacer(m_emailLayout, 80);
    finishPanel(m_EmailTab, m_emailLayout, m_launchWhenSWLaunchCBForEmail, m_launchWhenConnectCBForEmail);
    m_tabLayout->addWidget(m_EmailTab);
    TRACE_END();
}

void QuickLinkSettingNewEditDlg::createTabForInternet()
{
    TRACE_START();
    if (anyNull({m_InternetTab, m_internetLayout, m_tabLayout, m_UrlLabel, m_EditUrlName,
                 m_launchWhenSWLaunchCBForInternet, m_launchWhenConnectCBForInternet})) {
        TRACE_NULL();
        return;
    }
    fixTargetEdit(m_EditUrlName, 198);
    m_internetLayout->setContentsMargins(0, 0, 0, 0);
    m_internetLayout->addWidget(m_UrlLabel, 0, Qt::AlignTop);
    m_internetLayout->addWidget(m_EditUrlName);
    addSpacer(m_internetLayout, 80);
    finishPanel(m_InternetTab, m_internetLayout, m_launchWhenSWLaunchCBForInternet, m_launchWhenConnectCBForInternet);
    m_tabLayout->addWidget(m_InternetTab);
    TRACE_END();
}

void QuickLinkSettingNewEditDlg::setKeyboardOrder()
{
    // From top to bottom, whatever order the widgets were made in; typing goes to the name at once.
    QWidget* const order[] = {m_appTypeChoice,
                              m_appPathEdit,
                              m_browseBtn,
                              m_appParamEdit,
                              m_launchWhenSWLaunchCB,
                              m_launchWhenConnectCB,
                              m_launchWhenSWLaunchCBForEmail,
                              m_launchWhenConnectCBForEmail,
                              m_EditUrlName,
                              m_launchWhenSWLaunchCBForInternet,
                              m_launchWhenConnectCBForInternet,
                              m_okBtn,
                              m_cancelBtn};
    QWidget* previous = m_appNameEdit;
    for (QWidget* const next : order) {
        QWidget::setTabOrder(previous, next);
        previous = next;
    }
    m_appNameEdit->setFocus();
    // Return in a field must not press "Browse...", which comes first.
    m_okBtn->setDefault(true);
}

void QuickLinkSettingNewEditDlg::setDisplayLayout()
{
    TRACE_START();
    if (!isComplete()) {
        TRACE_NULL();
        return;
    }
    m_nameLbl->setFixedWidth(51);
    m_nameLbl->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_appNameEdit->setFixedHeight(23);
    DialogLengthLimits::limitName(m_appNameEdit);
    m_nameLayout->setContentsMargins(0, 0, 30, 5);
    m_nameLayout->setSpacing(24);
    m_nameLayout->addWidget(m_nameLbl);
    m_nameLayout->addWidget(m_appNameEdit);

    m_typeLbl->setFixedWidth(70);
    m_typeLbl->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_appTypeChoice->setFixedHeight(24);
    m_appTypeChoice->addItem(QIcon(), tr(LinkType::application()));
    m_appTypeChoice->addItem(QIcon(), tr(LinkType::email()));
    m_appTypeChoice->addItem(QIcon(), tr(LinkType::internet()));
    m_typeLayout->setContentsMargins(0, 0, 30, 5);
    m_typeLayout->addWidget(m_typeLbl);
    m_typeLayout->addWidget(m_appTypeChoice);

    m_buttonLayout->addWidget(m_okBtn);
    m_buttonLayout->addWidget(m_cancelBtn);

    m_mainLayout->setContentsMargins(25, 25, 23, 25);
    m_mainLayout->addLayout(m_nameLayout);
    m_mainLayout->addLayout(m_typeLayout);
    m_mainLayout->addWidget(m_appTabWidget);
    m_mainLayout->addLayout(m_buttonLayout);
    m_mainWidget->setLayout(m_mainLayout);

    setKeyboardOrder();
    // A buddy is what a screen reader calls the field.
    m_nameLbl->setBuddy(m_appNameEdit);
    m_typeLbl->setBuddy(m_appTypeChoice);
    m_applicationPathLbl->setBuddy(m_appPathEdit);
    m_applicationParamLbl->setBuddy(m_appParamEdit);
    m_UrlLabel->setBuddy(m_EditUrlName);
    TRACE_END();
}
