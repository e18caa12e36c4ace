// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

#include "LinkForm.h"

class LinkPage;

/** What the user did on the quick links' page that made the plug-in save, so that it can be done again. */
class LinkAttempt
{
public:
    enum Kind { Unknown, New, Edit, Delete, MoveUp, MoveDown };

    /** Nothing that could be done again. */
    LinkAttempt() = default;

    /** What page and dialog show while the plug-in saves. Quick, as the save waits for it; see explain(). */
    static LinkAttempt now(const LinkPage& page);

    /** Finds out what was done, as the links had these names before. Until then it is unknown. */
    void explain(const QStringList& before);

    Kind kind() const { return m_kind; }

    /** What stood in the dialog; null where it was none. */
    const LinkForm& form() const { return m_form; }

    /**
     * Does it once more on page, whose links are those before: a dialog is offered again as it was filled, a deletion
     * asks again. Waits for the user where the plug-in does. False where the page does not let it be done.
     */
    bool repeat(const LinkPage& page) const;

private:
    Kind m_kind = Unknown;
    bool m_isOnPage = false;
    QStringList m_names; ///< of the links that are saved
    int m_row = -1;      ///< chosen then; of the links before, once that is known
    LinkForm m_form;
};
