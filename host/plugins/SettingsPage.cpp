// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "SettingsPage.h"

#include <QRect>
#include <QWidget>

#include "ISettingUIPlugin.h"

SettingsPage::SettingsPage(QObject* plugin, ISettingUIPlugin* settings)
    : m_plugin(plugin)
    , m_settings(settings)
{
}

QList<SettingsPage> SettingsPage::of(const QList<QObject*>& plugins)
{
    QList<SettingsPage> pages;
    for (QObject* plugin : plugins) {
        ISettingUIPlugin* const settings = qobject_cast<ISettingUIPlugin*>(plugin);
        if (settings && !settings->GetModuleName().isEmpty())
            pages.append(SettingsPage(plugin, settings));
    }
    return pages;
}

QString SettingsPage::caption() const
{
    return m_plugin ? m_settings->GetModuleName() : QString();
}

QPointer<QWidget> SettingsPage::show(QWidget* parent, const QRect& area) const
{
    QRect place = area;
    if (!m_plugin || !m_settings->ShowSettingDialog(parent, place))
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
    if (m_plugin)
        m_settings->HideSetting();
}

bool SettingsPage::accept() const
{
    return !m_plugin || m_settings->OnClickSettingOkButton();
}

void SettingsPage::reject() const
{
    if (m_plugin)
        m_settings->OnClickSettingCancelButton();
}
