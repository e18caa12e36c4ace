// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

#include "LinkItems.h"

/** The user's links by their names and addresses, as they stand in their file. */
class LinkAddresses
{
    Q_DECLARE_TR_FUNCTIONS(LinkAddresses)

public:
    /** The links of a file with this content, see LinkItems. */
    explicit LinkAddresses(const QByteArray& content = QByteArray());

    /** The address of the link with the wanted name, by preference of the one in this place, from 0 on; empty for none.
     */
    QString addressOf(const QString& wanted, int place) const;

    /**
     * The name of the first link with this address, as it stands in the link or as it is opened: read as a URL,
     * completed where it is an Internet address, and encoded. Empty for none.
     */
    QString nameOf(const QString& address) const;

    /**
     * Says (Opening) of each web link marked for an event that it did not open, because a lower one did: the plug-in
     * leaves them out without a word. mark is the field that marks links, such as "startconnect".
     */
    void tellPassedOver(const QString& mark) const;

    /** Whether a link has parameters. Its program starts without them. */
    bool haveParameters() const;

private:
    QList<LinkItems::Fields> m_links;
};
