// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QXmlStreamReader>

#include "LinkItems.h"

/** Goes through what a file of links holds, and knows which of its elements are links that are shown. */
class LinkWalk
{
public:
    enum Manner {
        AsThePlugin, ///< with its turns: what its reader stumbles over is lost at a save
        EveryToken   ///< to copy what is there
    };

    LinkWalk(const QByteArray& content, Manner manner);

    LinkWalk(const LinkWalk&) = delete;
    LinkWalk& operator=(const LinkWalk&) = delete;

    /** Goes on by one token, or what the plug-in takes at once; false at the end, which may be an error's. */
    bool next();

    /** Whether the walk is at the start of a link that is shown. */
    bool isAtLink() const;

    /** What the link there says of itself. */
    LinkItems::Fields link() const;

    /** Whether the content is too large with what its entities stand for; the walk ended there. */
    bool isTooLarge() const { return m_isTooLarge; }

    /** Where the walk is. */
    const QXmlStreamReader& reader() const { return m_reader; }

private:
    QBuffer m_buffer;
    QXmlStreamReader m_reader;
    Manner m_manner;
    bool m_isInMenu = false;
    bool m_isTooLarge = false;
};
