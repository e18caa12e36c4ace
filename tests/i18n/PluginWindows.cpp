// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "PluginWindows.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLoggingCategory>
#include <QPushButton>

#include "ExtendDialog.h"
#include "IBasePlugin.h"
#include "ISettingUIPlugin.h"
#include "UserFolder.h"

namespace
{
void writeLinks(const QString& folder)
{
    QDir().mkpath(folder);
    QFile file(folder + "/config.xml");
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write("<tovadoc type=\"config\"><function><Visible>1</Visible><CurrentID>3</CurrentID></function>"
               "<menu parent=\"quicklink\">");
    for (const char* const type : {"APPLICATION", "E-MAIL", "INTERNET"}) {
        file.write(
            QByteArray("<item id=\"0\" name=\"\xc3\x85gjq\" type=\"IDS_LINK_TYPE_") + type +
            "\" url=\"\" para=\"\" startconnect=\"0\" startmobile=\"0\" delete=\"1\" edit=\"1\" visible=\"1\"/>");
    }
    file.write("</menu></tovadoc>");
}
} // namespace

PluginWindows::PluginWindows()
    : m_loader(QString(PLUGIN_FILE))
    , m_plugin(qobject_cast<IBasePlugin*>(m_loader.instance()))
{
    // As the program does: the plug-in's trace is not asked for.
    QLoggingCategory::setFilterRules("default.debug=false");
    writeLinks(m_folder.filePath("plugins/QuickLinkUIPlugin"));
    UserFolder::setPath(m_folder.path());
    if (!m_plugin || !m_plugin->Init())
        return;
    const PluginWith<ISettingUIPlugin> page = {
        m_loader.instance(), qobject_cast<ISettingUIPlugin*>(m_loader.instance()), m_plugin->GetPluginName()};
    m_settings = std::make_unique<SettingsDialog>(QList<PluginWith<ISettingUIPlugin>>{page}, nullptr);
    m_settings->show();
}

PluginWindows::~PluginWindows()
{
    m_settings.reset();
    if (m_plugin)
        m_plugin->OnDestroy();
    m_loader.unload();
}

QDialog* PluginWindows::linkDialog()
{
    if (!m_settings->findChild<ExtendDialog*>())
        m_settings->findChild<QPushButton*>("m_newBtn")->click();
    return m_settings->findChild<ExtendDialog*>();
}

void PluginWindows::chooseType(int index)
{
    QComboBox* const choice = linkDialog()->findChild<QComboBox*>("m_appTypeChoice");
    choice->setCurrentIndex(index);
    Q_EMIT choice->activated(index);
}
