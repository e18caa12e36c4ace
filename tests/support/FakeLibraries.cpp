// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The functions of libcore and libsdk, handed on to the recording host.

#include <QVBoxLayout>

#include "Change.h"
#include "CommonUtils.h"
#include "ExtendDialog.h"
#include "FakeHost.h"
#include "Startup.h"

IPluginContainer* Startup::GetPluginContainer()
{
    return FakeHost::instance().container();
}

QString Change::tr(QString key, QString context)
{
    FakeHost& host = FakeHost::instance();
    if (!host.translationContexts.contains(context))
        host.translationContexts.append(context);
    return host.language + QLatin1Char(':') + key;
}

QString CommonUtils::GetPluginLibraryPath()
{
    return FakeHost::instance().userFolder;
}

void CommonUtils::OpenUrl(QString url)
{
    FakeHost::instance().openedByHost.append(url);
    FakeHost::instance().opened(QLatin1String("host"), url);
}

int CommonUtils::ShowMessage(QMessageBox::Icon icon, QWidget* parent, QString title, QString text, QString firstButton,
                             QString secondButton, QString thirdButton, bool beep, QFlags<Qt::WindowType> flags,
                             QDialog** dialogOut, QString details, bool closable)
{
    FakeHost& host = FakeHost::instance();
    const ShownMessage message = {icon,        parent,       parent != nullptr, title, text,
                                  firstButton, secondButton, thirdButton,       beep,  flags,
                                  dialogOut,   details,      closable};
    host.messages.append(message);
    FakeHost::run(host.duringMessage);
    return host.messageAnswer;
}

ExtendDialog::ExtendDialog(QWidget* parent, Qt::WindowFlags flags, int widgetType, bool flag)
    : QDialog(parent, flags | Qt::Dialog)
{
    const MadeFrame made = {this, parent, flags, widgetType, flag, QStringList(), QPointer<QWidget>()};
    FakeHost::instance().frames.append(made);
}

void ExtendDialog::AddMainWidget(QWidget* widget)
{
    QVBoxLayout* const box = new QVBoxLayout;
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(widget);
    setLayout(box);
    QList<MadeFrame>& frames = FakeHost::instance().frames;
    for (int i = 0; i < frames.size(); ++i) {
        if (frames.at(i).frame == this)
            frames[i].mainWidget = widget;
    }
}

void ExtendDialog::setWindowTitle(const QString& title)
{
    QDialog::setWindowTitle(title);
    QList<MadeFrame>& frames = FakeHost::instance().frames;
    for (int i = 0; i < frames.size(); ++i) {
        if (frames.at(i).frame == this)
            frames[i].titles.append(title);
    }
}
