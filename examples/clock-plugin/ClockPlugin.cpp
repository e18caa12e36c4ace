// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// Someone else's plug-in: an entry "Clock" among the quick links, which tells the time, and a page in the settings.

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QPointer>
#include <QRect>
#include <QSettings>
#include <QTime>
#include <QtPlugin>

#include "CommonUtils.h"
#include "IBasePlugin.h"
#include "IQuickLinkPlugin.h"
#include "ISettingUIPlugin.h"

// Qt 4 has an entry point at the end of the file in place of metadata in the class.
#if QT_VERSION < 0x050000
#define Q_PLUGIN_METADATA(metadata)
#endif

class ClockPlugin : public QObject, public IBasePlugin, public ISettingUIPlugin, public IQuickLinkPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.norvik.vellumconnect.plugin.IBasePlugin")
    Q_INTERFACES(IBasePlugin ISettingUIPlugin IQuickLinkPlugin)

public:
    // Who it is. Another plug-in needs another name, and an identifier of its own (uuidgen makes one).
    QString GetCLSID() override { return QLatin1String("C5D7A1F2-60B3-4E0B-9A51-3C1F0E6B8D27"); }
    QString GetPluginName() override { return QLatin1String("ClockPlugin"); }
    int GetVersion() override { return 0x100; }
    int GetPluginType() override { return 0; }
    int IsAllowRelease() override { return 1; }
    int GetLastError() override { return 0; }
    int QueryInterface(int, QObject**) override { return 0; }
    void Release() override {}

    // Its life: the loader makes it, and deletes it with what belongs to it as to a parent.
    int Init() override
    {
        m_showsSeconds = QSettings(settingsFile(), QSettings::IniFormat).value(secondsKey()).toBool();
        return 1;
    }
    void OnDestroy() override { delete m_page; }

    // The menu: one entry.
    int GetQuickLinkRecordSize() override { return 1; }
    QAction* GetActionFromQuickLink(int) override { return new QAction(QLatin1String("Clock"), this); }
    void LaunchQuickLinkAction(QAction* action) override
    {
        if (!action || action->parent() != this)
            return;
        const QString time = QTime::currentTime().toString(QLatin1String(m_showsSeconds ? "hh:mm:ss" : "hh:mm"));
        CommonUtils::ShowMessage(QMessageBox::Information, nullptr, QLatin1String("Clock"), time,
                                 QLatin1String("IDS_OK"), QString(), QString(), false, Qt::Dialog, nullptr, QString(),
                                 true);
    }

    // The page in the settings, which the host may delete with its own widget at any time.
    int IsActiveSetting() override { return 1; }
    QString GetModuleName() override { return QLatin1String("Clock"); }
    int ShowSettingDialog(QWidget* parent, QRect& area) override
    {
        if (!m_page || m_page->parentWidget() != parent) {
            delete m_page;
            m_page = new QCheckBox(QLatin1String("Show the seconds"), parent);
            m_page->setChecked(m_showsSeconds);
        }
        m_page->setGeometry(area);
        m_page->show();
        return 1;
    }
    int HideSetting() override
    {
        if (m_page)
            m_page->hide();
        return 1;
    }
    int OnClickSettingCancelButton() override { return 1; }
    int OnClickSettingOkButton() override
    {
        if (!m_page)
            return 1;
        m_showsSeconds = m_page->isChecked();
        QDir().mkpath(ownFolder());
        QSettings(settingsFile(), QSettings::IniFormat).setValue(secondsKey(), m_showsSeconds);
        return 1;
    }

private:
    static QString ownFolder() { return CommonUtils::GetPluginLibraryPath() + QLatin1String("/plugins/ClockPlugin"); }
    static QString settingsFile() { return ownFolder() + QLatin1String("/clock.ini"); }
    static QString secondsKey() { return QLatin1String("showSeconds"); }

    QPointer<QCheckBox> m_page;
    bool m_showsSeconds = false;
};

#if QT_VERSION < 0x050000
Q_EXPORT_PLUGIN2(ClockPlugin, ClockPlugin)
#endif
#include "ClockPlugin.moc"
