// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QFlags>
#include <QMessageBox>
#include <QString>

class QWidget;

/** Services of the host that need no object. Part of libsdk. */
class CommonUtils
{
public:
    /** The folder under which plugins/<Name>/ holds a plug-in's own files, without a trailing separator. */
    static QString GetPluginLibraryPath();

    /**
     * Opens an Internet address in the user's browser. An address without a scheme is completed; only http,
     * https and ftp are opened. What cannot be opened is told to the user without blocking the caller.
     */
    static void OpenUrl(QString url);

    /**
     * Shows a modal message with one to three buttons and waits for the answer.
     *
     * A button is named by its bare translation key; an empty one leaves the button out. parent may be null.
     * beep asks for the system's alert sound. The dialog shown is stored in *dialogOut while the call runs
     * (it is gone afterwards, and *dialogOut is null again); dialogOut may be null. details is a further,
     * foldable text. closable says whether the window's close button and Escape answer the message.
     *
     * Returns a QMessageBox::StandardButton number: the first button Ok, the second Cancel, the third
     * Ignore; closing the box Cancel where there is a second button, else Ok.
     */
    static int ShowMessage(QMessageBox::Icon icon, QWidget* parent, QString title, QString text, QString firstButton,
                           QString secondButton, QString thirdButton, bool beep, QFlags<Qt::WindowType> flags,
                           QDialog** dialogOut, QString details, bool closable);
};
