// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "PluginTexts.h"

#include "Change.h"
#include "CommonUtils.h"

QString PluginTexts::translated(const QString& key)
{
    return Change::tr(key, QLatin1String("QuickLinkUIPlugin"));
}

int PluginTexts::showMessage(QMessageBox::Icon icon, QWidget* parent, const QString& textKey,
                             const QString& secondButton)
{
    // The host translates the buttons itself, so their keys go to it bare.
    return CommonUtils::ShowMessage(icon, parent, translated(QLatin1String("IDS_LINK_PROMPT")), translated(textKey),
                                    QLatin1String("IDS_OK"), secondButton, QString(), true, Qt::WindowCloseButtonHint,
                                    nullptr, QString(), true);
}
