// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>

/**
 * The link that a plug-in is opening at the user's word, for whatever speaks of what comes of it: the plug-in hands
 * over a bare address, or a text that names neither. While the object lives it is the current link. Links may be opened
 * one within the other; each is the current one again when those after it are gone.
 */
class OpenedLink
{
public:
    /** What is known of the user's links. Both answer an empty text for what they do not know. */
    struct Known {
        /** The address of the link of this name, by preference of the one in this place of the list, from 0 on. */
        std::function<QString(const QString& name, int place)> addressOf;
        /** The name of the link with this address, as it stands in the link or as it is opened, encoded. */
        std::function<QString(const QString& address)> nameOf;
    };

    /** A link that the user knows by this name, in this place of its plug-in's list. */
    OpenedLink(const QString& name, int place);
    ~OpenedLink();

    /** The link that is being opened; null where none is, or where links open by themselves. */
    static const OpenedLink* current();

    /** Lets known be asked from now on; one without functions ends it. */
    static void setKnown(const Known& known);

    /** The name of the link for which address is opened: the current one's, else what is known; empty for no link. */
    static QString nameFor(const QString& address);

    QString name() const { return m_name; }

    /** As it stands in the link. */
    QString address() const;

private:
    Q_DISABLE_COPY(OpenedLink)

    const QString m_name;
    const int m_place;
    const OpenedLink* const m_former;
};
