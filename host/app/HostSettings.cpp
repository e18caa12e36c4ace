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
    dialog.addPage(newGeneralPage());
    dialog.setParametersNote(LinkAddresses(guard.current()).haveParameters());
    QObject::connect(&guard, &LinkGuard::stateChanged, &dialog, [&dialog](const QByteArray&, const QByteArray& to) {
        dialog.setParametersNote(LinkAddresses(to).haveParameters());
    });
    dialog.beginWith(UserSettings::settingsPage());
    dialog.chooseLink(link);
    m_linkKeeper.setSettings(&dialog);
    dialog.exec();
    m_linkKeeper.setSettings(nullptr);
    UserSettings::setSettingsPage(dialog.pageName());
}

/** Lets the desktop start the program with these arguments or not; false when that cannot be done. */
static bool setStartsWithSession(bool isOn, const QStringList& arguments)
{
    return isOn ? Autostart::turnOn(arguments) : Autostart::turnOff();
}

ProgramPage* Host::newGeneralPage()
{
    GeneralPage* const page = new GeneralPage(Autostart::isOn());
    if (m_fixed.startsWithSession)
        page->setFixed();
    QObject::connect(page, &GeneralPage::startWithSessionChosen, page, [this, page](bool isOn) {
        const bool isDone = setStartsWithSession(isOn, m_sessionArguments);
        page->setStartsWithSession(Autostart::isOn(), isDone ? QString() : Autostart::file());
    });
    return page;
}

void Host::startWithSessionAsFixed() const
{
    if (!m_fixed.startsWithSession || *m_fixed.startsWithSession == Autostart::isOn())
        return;
    if (!setStartsWithSession(*m_fixed.startsWithSession, m_sessionArguments))
        qWarning("%s cannot be changed", qUtf8Printable(Autostart::file()));
}

ProgramPage* Host::newConnectionPage()
{
    ConnectionPage* const page = new ConnectionPage(m_choice, m_kindOfThisRun.has_value());
    if (m_fixed.connection)
        page->setKindFixed();
    MobilePlans* const plans = new MobilePlans(page);
    QObject::connect(page, &ConnectionPage::plansWanted, plans, &MobilePlans::ask);
    QObject::connect(plans, &MobilePlans::found, page, &ConnectionPage::setPlans);
    QObject::connect(page, &ConnectionPage::chosen, page, [this](const ConnectionChoice& choice) {
        m_choice = choice;
        keepConnection(choice);
        if (!m_kindOfThisRun)
            follow(choice);
    });
    return page;
}

/** The user's own kind is kept for the day on which it is fixed no longer. */
void Host::keepConnection(const ConnectionChoice& choice) const
{
    ConnectionChoice kept = choice;
    if (m_fixed.connection)
        kept.kind = UserSettings::connection().kind;
    UserSettings::setConnection(kept);
}
