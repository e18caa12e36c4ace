// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

class QRect;
class QWidget;

/** A plug-in with a page in the host's settings dialog. Every operation is called by that dialog. */
class ISettingUIPlugin
{
public:
    virtual ~ISettingUIPlugin() {}

    /** The user pressed the settings dialog's OK. 1 when the dialog may close. */
    virtual int OnClickSettingOkButton() = 0;

    /** The user cancelled the settings dialog. 1 when the dialog may close. */
    virtual int OnClickSettingCancelButton() = 0;

    /** Shows the page inside parent at area, with the rules of IUIPlugin::ShowWindow(). */
    virtual int ShowSettingDialog(QWidget* parent, QRect& area) = 0;

    /** The page's translated caption in the dialog's list; empty when the plug-in has no page to show. */
    virtual QString GetModuleName() = 0;

    /** The dialog leaves this page. 1 on success. */
    virtual int HideSetting() = 0;

    /** Whether the page takes part in the dialog. */
    virtual int IsActiveSetting() = 0;
};

Q_DECLARE_INTERFACE(ISettingUIPlugin, "com.norvik.vellumconnect.plugin.ISettingUIPlugin")
