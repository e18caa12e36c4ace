// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// What happens in the New/Edit dialog while the user fills it.

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>

#include "Pointers.h"
#include "QuickLinkSettingNewEditDlg.h"
#include "Trace.h"

namespace
{
QString flag(bool isOn)
{
    return isOn ? QLatin1String("1") : QLatin1String("0");
}

/**
 * Lets the user choose a file; empty when there is no choice. As QFileDialog::getOpenFileName(), whose chooser lies on
 * the stack and does not survive a host that deletes its parent meanwhile.
 */
QString chooseFile(QWidget* parent)
{
    const QPointer<QFileDialog> chooser(new QFileDialog(parent, QLatin1String("Open"), QDir::currentPath()));
    chooser->setFileMode(QFileDialog::ExistingFile);
    const bool isChosen = chooser->exec() == QDialog::Accepted;
    QString path = isChosen && chooser ? chooser->selectedFiles().value(0) : QString();
    delete chooser.data();
    return path;
}
} // namespace

void QuickLinkSettingNewEditDlg::OnSelectComboItem(int index)
{
    TRACE_START();
    if (anyNull({m_appTabWidget, m_applicationPanel, m_EmailTab, m_InternetTab, m_appPathEdit, m_appParamEdit,
                 m_appNameEdit, m_okBtn})) {
        TRACE_NULL();
        return;
    }
    m_okBtn->setEnabled(false);
    switch (index) {
    case 0:
        showPanel(m_applicationPanel, LinkType::application());
        m_appPathEdit->setText(QString());
        m_appParamEdit->setText(QString());
        // Clearing the path asks again whether OK may be pressed, by the type that the choice still shows.
        m_okBtn->setEnabled(false);
        break;
    case 1:
        showPanel(m_EmailTab, LinkType::email());
        if (!m_appNameEdit->text().isEmpty())
            m_okBtn->setEnabled(true);
        break;
    default:
        // OK waits for the next change of a text, even when name and address are both there.
        showPanel(m_InternetTab, LinkType::internet());
    }
    // The check boxes keep what they show; only a click sets an option.
    m_launchOnSoftware = flag(false);
    m_launchOnConnect = flag(false);
    TRACE_END();
}

void QuickLinkSettingNewEditDlg::showPanel(QWidget* panel, const QString& titleKey)
{
    m_appTabWidget->setTabText(0, tr(titleKey));
    m_applicationPanel->setVisible(panel == m_applicationPanel);
    m_EmailTab->setVisible(panel == m_EmailTab);
    m_InternetTab->setVisible(panel == m_InternetTab);
}

void QuickLinkSettingNewEditDlg::onEnterNameInApplication()
{
    TRACE_START();
    if (anyNull({m_appTypeChoice, m_okBtn, m_appNameEdit, m_appPathEdit, m_EditUrlName})) {
        TRACE_NULL();
        return;
    }
    m_okBtn->setEnabled(isFilled());
    TRACE_END();
}

void QuickLinkSettingNewEditDlg::onDeleteNameInApplication()
{
    TRACE_START();
    if (anyNull({m_appTypeChoice, m_appNameEdit, m_okBtn, m_appPathEdit, m_EditUrlName})) {
        TRACE_NULL();
        return;
    }
    if (!isFilled())
        m_okBtn->setEnabled(false);
    TRACE_END();
}

bool QuickLinkSettingNewEditDlg::isFilled() const
{
    if (m_appNameEdit->text().isEmpty())
        return false;
    switch (m_appTypeChoice->currentIndex()) {
    case 0:
        return !m_appPathEdit->text().isEmpty();
    case 1:
        return true;
    default:
        return !m_EditUrlName->text().isEmpty();
    }
}

void QuickLinkSettingNewEditDlg::onClickBrowseButton()
{
    TRACE_START();
    const QPointer<QObject> self(this);
    const QString path = chooseFile(m_mainWidget);
    // While the chooser was open the page may have disposed of this dialog, or the host of the frame.
    if (!self) {
        TRACE_END();
        return;
    }
    if (!m_appPathEdit) {
        TRACE_NULL();
        return;
    }
    m_appPathEdit->setCursorPosition(0);
    if (!path.isEmpty())
        m_appPathEdit->setText(path);
    // A long path shows its beginning.
    m_appPathEdit->setCursorPosition(0);
    TRACE_END();
}

void QuickLinkSettingNewEditDlg::onSelectLaunchOnsoftware(bool checked)
{
    m_launchOnSoftware = flag(checked);
}

void QuickLinkSettingNewEditDlg::onSelectLaunchOnConnect(bool checked)
{
    m_launchOnConnect = flag(checked);
}
