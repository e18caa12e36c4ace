// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPointer>
#include <QString>

#include "PluginWith.h"

class ISettingUIPlugin;
class QRect;
class QWidget;

/** One plug-in's page in the settings dialog. It stays the plug-in's; of an unloaded one nothing is asked any more. */
class SettingsPage
{
public:
    /** The pages of plugins, in their order: of each that takes part now and has a caption for its page. */
    static QList<SettingsPage> of(const QList<PluginWith<ISettingUIPlugin>>& plugins);

    /** The plug-in's name, the same in every language. */
    QString name() const { return m_plugin.name; }

    /** The name in the dialog's list, in the current language. */
    QString caption() const;

    /**
     * Builds and shows the page inside parent, at area (pixels, coordinates of parent). Returns it, a child of parent
     * that may go at any time, or null when there is none.
     */
    QPointer<QWidget> show(QWidget* parent, const QRect& area) const;

    /** The dialog leaves the page. */
    void hide() const;

    /** The user pressed OK. Whether the dialog may close. */
    bool accept() const;

    /** The user cancelled. Whether the dialog may close; the page may have left the dialog even where it may not. */
    bool reject() const;

private:
    explicit SettingsPage(const PluginWith<ISettingUIPlugin>& plugin);

    PluginWith<ISettingUIPlugin> m_plugin;
};
