// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include "QtVersions.h"
#include <QDialog>
#include <QPluginLoader>

#include <memory>

#include "SettingsDialog.h"

class IBasePlugin;

/** The built plug-in with a link of each type, its page in the settings dialog, and its dialog for a new link. */
class PluginWindows
{
public:
    PluginWindows();
    ~PluginWindows();

    /** The settings dialog on the screen; null when the plug-in could not be loaded. */
    SettingsDialog* settings() const { return m_settings.get(); }

    /** Presses New, if that was not done before; null when no dialog came. */
    QDialog* linkDialog();

    /** Chooses a type in that dialog: 0 application, 1 e-mail, 2 Internet. */
    void chooseType(int index);

private:
    QTemporaryDir m_folder;
    QPluginLoader m_loader;
    IBasePlugin* m_plugin;
    std::unique_ptr<SettingsDialog> m_settings;
};
