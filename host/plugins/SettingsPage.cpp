// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "SettingsPage.h"

#include <QRect>
#include <QWidget>

#include "ISettingUIPlugin.h"

SettingsPage::SettingsPage(const PluginWith<ISettingUIPlugin>& plugin)
    : m_plugin(plugin)
{
}

QList<SettingsPage> SettingsPage::of(const QList<PluginWith<ISettingUIPlugin>>& plugins)
{
    QList<SettingsPage> pages;
    for (const PluginWith<ISettingUIPlugin>& plugin : plugins) {
        if (plugin.interface->IsActiveSetting() && !plugin.interface->GetModuleName().isEmpty())
            pages.append(SettingsPage(plugin));
    }
    return pages;
}

QString SettingsPage::caption() const
{
    return m_plugin.object ? m_plugin.interface->GetModuleName() : QString();
}

QPointer<QWidget> SettingsPage::show(QWidget* parent, const QRect& area) const
{
    QRect place = area;
    if (!m_plugin.object || !m_plugin.interface->ShowSettingDialog(parent, place))
        return nullptr;
    const QList<QWidget*> children = parent->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* child : children) {
        if (!child->isWindow() && !child->isHidden())
            return child;
    }
    return nullptr;
}

void SettingsPage::hide() const
{
    if (m_plugin.object)
        m_plugin.interface->HideSetting();
}

bool SettingsPage::accept() const
{
    return !m_plugin.object || m_plugin.interface->OnClickSettingOkButton();
}

bool SettingsPage::reject() const
{
    return !m_plugin.object || m_plugin.interface->OnClickSettingCancelButton();
}
