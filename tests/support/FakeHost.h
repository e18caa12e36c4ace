// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>

#include "QtVersions.h"
#include <QList>
#include <QMessageBox>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QUrl>

#include "ExtendDialog.h"
#include "IDialupUIService.h"
#include "INotifyService.h"
#include "IPluginContainer.h"

/** One call of CommonUtils::ShowMessage(), argument by argument. */
struct ShownMessage {
    QMessageBox::Icon icon;
    QPointer<QWidget> parent;
    bool hasParent; ///< parent was not null when the call was made
    QString title, text, firstButton, secondButton, thirdButton;
    bool beep;
    Qt::WindowFlags flags;
    QDialog** dialogOut;
    QString details;
    bool closable;
};

/** One ExtendDialog that was made. */
struct MadeFrame {
    QPointer<ExtendDialog> frame;
    QPointer<QWidget> parent;
    Qt::WindowFlags flags;
    int widgetType;
    bool flag;
    QStringList titles; ///< each text given to setWindowTitle(), in order
    QPointer<QWidget> mainWidget;
};

/** One look-up in the container. */
struct Lookup {
    QString clsid;
    int kind;
};

/**
 * A host that records. One object for the process, since the plug-in reaches its host through static functions;
 * call reset() in every test's init().
 */
class FakeHost
{
public:
    static FakeHost& instance();

    /** Forgets all records, restores every answer and gives an empty user folder with the plug-in's folder in it. */
    void reset();

    /** The path of config.xml in the user folder. */
    QString configPath() const;

    /** The folder that config.xml lies in. */
    QString configFolder() const;

    /** Writes config.xml; false when that fails. */
    bool writeConfig(const QByteArray& bytes);

    /** The bytes of config.xml; empty when there is none. */
    QByteArray readConfig() const;

    // Answers; the comment is the state after reset().
    QString userFolder;                         ///< a fresh temporary folder
    bool hasContainer;                          ///< true
    bool hasNotifyOwner, notifyOwnerHasService; ///< true, true
    bool hasDialupOwner, dialupOwnerHasService; ///< true, true
    bool isConnected;                           ///< false
    int messageAnswer;                          ///< QMessageBox::Ok
    QString language;                           ///< "en"; a text is "<language>:<key>"
    std::function<void()> duringMessage;        ///< none; runs while a message would be on the screen
    std::function<void()> duringNotification;   ///< none; runs inside INotifyService::Notify()
    std::function<void()> duringOpening;        ///< none; runs inside every opening, by host or desktop

    // Records, in order.
    QList<ShownMessage> messages;
    QList<MadeFrame> frames;
    QList<Lookup> lookups;
    QStringList notifications;       ///< "<name> <code> <param1> <param2>"
    QStringList openedByHost;        ///< addresses handed to CommonUtils::OpenUrl()
    QList<QUrl> openedByDesktop;     ///< what reached QDesktopServices::openUrl()
    QStringList openings;            ///< both together: "host <address>" or "desktop <url as text>"
    QStringList translationContexts; ///< every context handed to Change::tr(), each once

    // For the fake libraries.
    IPluginContainer* container();
    void opened(const QString& who, const QString& what);

    /** Runs what a test gave, if anything. By value: the test may give something else meanwhile. */
    static void run(std::function<void()> meanwhile)
    {
        if (meanwhile)
            meanwhile();
    }

private:
    FakeHost();

    std::unique_ptr<QTemporaryDir> m_folder;
};

/** The one fake host. */
inline FakeHost& host()
{
    return FakeHost::instance();
}

/** The text that the fake host gives for a key in its present language. */
QString shown(const char* key);
