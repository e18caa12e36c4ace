// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include "LinkItems.h"

class OfferLine;

/** The offer to put back what an edit took from a link, shown where the user is. */
class PutBackOffer : public QObject
{
    Q_OBJECT

public:
    PutBackOffer() = default;

    /** Shows the offer in line from now on, and no longer in the former one; null for nowhere. It stays its owner's. */
    void setLine(OfferLine* line);

    /** Offers to put fields back into link, both as in LinkItems. */
    void offer(const LinkItems::Fields& link, const LinkItems::Fields& fields);

    /** The offer no longer stands. */
    void withdraw();

Q_SIGNALS:
    /** The user takes the offer, which no longer stands. */
    void accepted();

private:
    QPointer<OfferLine> m_line;
    QString m_text; ///< empty for no offer
};
