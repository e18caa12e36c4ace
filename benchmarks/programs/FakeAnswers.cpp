// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "FakeAnswers.h"

#include "CommonUtils.h"

static QString& userFolder()
{
    static QString folder;
    return folder;
}

void FakeAnswers::setUserFolder(const QString& folder)
{
    userFolder() = folder;
}

QString CommonUtils::GetPluginLibraryPath()
{
    return userFolder();
}

int CommonUtils::ShowMessage(QMessageBox::Icon, QWidget*, QString, QString, QString, QString, QString, bool,
                             QFlags<Qt::WindowType>, QDialog**, QString, bool)
{
    return QMessageBox::Ok;
}
