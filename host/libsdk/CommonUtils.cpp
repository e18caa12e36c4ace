// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The user's folder and the browser. The message box is in MessageBox.cpp.

#include "CommonUtils.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>

#include "AddressProblem.h"
#include "FailureList.h"
#include "InternetAddress.h"
#include "Notice.h"
#include "OpenedLink.h"
#include "Opening.h"
#include "UserFolder.h"

QString CommonUtils::GetPluginLibraryPath()
{
    return UserFolder::askedByPlugin(__builtin_return_address(0));
}

void CommonUtils::OpenUrl(QString url)
{
    const QUrl completed = InternetAddress::completed(url);
    if (!completed.isEmpty() && QDesktopServices::openUrl(completed))
        return;
    // A plug-in may not have been able to hand over the address of its link.
    const QString address = url.isEmpty() && OpenedLink::current() ? OpenedLink::current()->address() : url;
    const QString reason =
        completed.isEmpty()
            ? AddressProblem::sentence(address)
            : QCoreApplication::translate("CommonUtils", "No program could be started for this address:");
    const Opening opening(url);
    opening.refuse(reason);
    showNotice(FailureList::notOpened(), reason, address, opening.link());
}
