// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

// The settings, and the way to a link in them.

#include "Host.h"

#include <QApplication>

#include "Autostart.h"
#include "ConnectionPage.h"
#include "GeneralPage.h"
#include "HistoryPage.h"
#include "ISettingUIPlugin.h"
#include "MainWindow.h"
#include "MobilePlans.h"
#include "SettingsDialog.h"
#include "UserSettings.h"

/** In the settings, those that are open or new ones. Whoever is asked something else answers that first. */
void Host::editLink(const QString& link)
{
    QWidget* const modal = QApplication::activeModalWidget();
    if (SettingsDialog* const settings = qobject_cast<SettingsDialog*>(modal))
        settings->chooseLink(link);
    else if (!modal)
        showSettings(link);
}

void Host::showSettings(const QString& link)
{
    SettingsDialog dialog(m_container.all<ISettingUIPlugin>(), m_window.get());
    LinkGuard& guard = m_linkKeeper.guard();
    HistoryPage* const history = new HistoryPage(guard.history());
    QObject::connect(&guard, &LinkGuard::stateChanged, history, &HistoryPage::refresh);
    QObject::connect(history, &HistoryPage::goBackRequested, &m_linkKeeper, &LinkKeeper::goBackTo);
    dialog.addPage(history);
    dialog.addPage(newConnectionPage());
    GeneralPage* const general = new GeneralPage(Autostart::isOn());
    QObject::connect(general, &GeneralPage::startWithSessionChosen, general, [this, general](bool isOn) {
        const bool isDone = isOn ? Autostart::turnOn(m_sessionArguments) : Autostart::turnOff();
        general->setStartsWithSession(Autostart::isOn(), isDone ? QString() : Autostart::file());
    });
    dialog.addPage(general);
    dialog.setParametersNote(LinkAddresses(guard.current()).haveParameters());
    QObject::connect(&guard, &LinkGuard::stateChanged, &dialog, [&dialog](const QByteArray&, const QByteArray& to) {
        dialog.setParametersNote(LinkAddresses(to).haveParameters());
    });
    dialog.chooseLink(link);
    m_linkKeeper.setSettings(&dialog);
    dialog.exec();
    m_linkKeeper.setSettings(nullptr);
}

ProgramPage* Host::newConnectionPage()
{
    ConnectionPage* const page = new ConnectionPage(m_choice, m_kindOfThisRun.has_value());
    MobilePlans* const plans = new MobilePlans(page);
    QObject::connect(page, &ConnectionPage::plansWanted, plans, &MobilePlans::ask);
    QObject::connect(plans, &MobilePlans::found, page, &ConnectionPage::setPlans);
    QObject::connect(page, &ConnectionPage::chosen, page, [this](const ConnectionChoice& choice) {
        m_choice = choice;
        UserSettings::setConnection(choice);
        if (!m_kindOfThisRun)
            follow(choice);
    });
    return page;
}
