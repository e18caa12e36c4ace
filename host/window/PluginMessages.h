// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>

#include "Gatekeeper.h"

class QMessageBox;
class QWidget;

/** What the user is told and asked about plug-ins that were not loaded. Waits for no answer. */
class PluginMessages : public QObject
{
    Q_OBJECT

public:
    /** Its question belongs to window, which must outlive it. */
    explicit PluginMessages(QWidget* window);

    /** Names each plug-in that was not let in, and why, all in one notice. */
    static void tell(const QList<Gatekeeper::Refusal>& refusals);

    /** Asks whether the plug-ins that are left out are to be loaded again; nothing where none is. */
    void ask(const QList<LeftOutPlugins::Entry>& leftOut);

Q_SIGNALS:
    /** The user answered ask(); closing the window leaves them out. */
    void decided(bool isLoadedAgain);

private:
    QWidget* m_window;
    QPointer<QMessageBox> m_question;
};
