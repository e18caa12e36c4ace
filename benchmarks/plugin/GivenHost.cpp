// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "GivenHost.h"

#include "CommonUtils.h"

static QString& givenFolder()
{
    static QString folder;
    return folder;
}

void GivenHost::setUserFolder(const QString& folder)
{
    givenFolder() = folder;
}

QString CommonUtils::GetPluginLibraryPath()
{
    return givenFolder();
}

int CommonUtils::ShowMessage(QMessageBox::Icon, QWidget*, QString, QString, QString, QString, QString, bool,
                             QFlags<Qt::WindowType>, QDialog**, QString, bool)
{
    return QMessageBox::Ok;
}
