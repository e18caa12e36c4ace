// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "EditLinkButton.h"

static EditLinkButton::Editor& currentEditor()
{
    static EditLinkButton::Editor editor;
    return editor;
}

EditLinkButton::EditLinkButton()
{
}

void EditLinkButton::setEditor(const Editor& editor)
{
    currentEditor() = editor;
}

bool EditLinkButton::isOfferedFor(const QString& link)
{
    return currentEditor() && !link.isEmpty();
}

void EditLinkButton::setLink(const QString& link, bool isOneOfSeveral)
{
    m_link = link;
    setText(textFor(isOneOfSeveral));
}

QString EditLinkButton::textFor(bool isOneOfSeveral)
{
    return (isOneOfSeveral ? tr("&Edit Links") : tr("&Edit Link")) + QChar(0x2026);
}

void EditLinkButton::edit()
{
    if (currentEditor())
        currentEditor()(m_link);
}
