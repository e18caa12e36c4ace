// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkAttempt.h"

#include <algorithm>

#include "LinkPage.h"

/** Where two lists of names part; the shorter one's length where they do not. */
static int firstDifference(const QStringList& one, const QStringList& other)
{
    const int length = int(std::min(one.size(), other.size()));
    int i = 0;
    while (i < length && one.at(i) == other.at(i))
        ++i;
    return i;
}

LinkAttempt LinkAttempt::now(const LinkPage& page)
{
    LinkAttempt attempt;
    attempt.m_isOnPage = page.isThere();
    attempt.m_names = page.names();
    attempt.m_row = page.row();
    if (attempt.m_isOnPage)
        attempt.m_form = LinkForm::of(LinkForm::dialog());
    return attempt;
}

void LinkAttempt::explain(const QStringList& before)
{
    const int place = firstDifference(m_names, before);
    const int growth = int(m_names.size() - before.size());
    if (!m_isOnPage)
        return;
    if (!m_form.isNull()) {
        m_kind = growth == 1 ? New : Edit;
    } else if (growth == -1) {
        m_kind = Delete;
        m_row = place;
    } else if (growth == 0 && place + 1 < m_names.size()) {
        // The link that was moved is chosen.
        m_kind = m_row == place ? MoveUp : MoveDown;
        m_row = m_row == place ? place + 1 : place;
    }
}

bool LinkAttempt::repeat(const LinkPage& page) const
{
    static const char* const buttons[] = {"", "m_newBtn", "m_editBtn", "m_deleteBtn", "m_upBtn", "m_downBtn"};
    if (m_kind == Unknown || !page.isThere())
        return false;
    page.select(m_row);
    if (!page.press(QLatin1String(buttons[m_kind])))
        return false;
    QWidget* const dialog = m_form.isNull() ? nullptr : LinkForm::dialog();
    if (dialog)
        m_form.fill(dialog);
    return true;
}
