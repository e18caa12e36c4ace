// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The user's folder and the browser. The message box is in MessageBox.cpp.

#include "CommonUtils.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>

#include "InternetAddress.h"
#include "Notice.h"
#include "UserFolder.h"

QString CommonUtils::GetPluginLibraryPath()
{
    return UserFolder::askedByPlugin();
}

void CommonUtils::OpenUrl(QString url)
{
    const QUrl completed = InternetAddress::completed(url);
    if (!completed.isEmpty() && QDesktopServices::openUrl(completed))
        return;
    const char* const reason =
        completed.isEmpty()
            ? QT_TRANSLATE_NOOP("CommonUtils",
                                "Only Internet addresses (http, https and ftp) are opened. This is not one:")
            : QT_TRANSLATE_NOOP("CommonUtils", "No program could be started for this address:");
    showNotice(QCoreApplication::translate("CommonUtils", "Address not opened"),
               QCoreApplication::translate("CommonUtils", reason), url);
}
