// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPushButton>
#include <QString>

#include <functional>

/** The button of a message about links that leads to one of them in the settings. */
class EditLinkButton : public QPushButton
{
    Q_OBJECT

public:
    /** Leads to a link in the settings, known by its name; later, as the message may be on the stack. */
    typedef std::function<void(const QString& link)> Editor;

    /** A button that is about no link yet. */
    EditLinkButton();

    /** Lets editor be what the buttons do; a null one ends it. */
    static void setEditor(const Editor& editor);

    /** Whether a message about link can offer it. */
    static bool isOfferedFor(const QString& link);

    /** The button leads to link, which may be one of several that its message is about. */
    void setLink(const QString& link, bool isOneOfSeveral);

    /** What the button says. */
    static QString textFor(bool isOneOfSeveral);

public Q_SLOTS:
    /** Leads there. The message closes by itself when it is pressed. */
    void edit();

private:
    QString m_link;
};
