// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

#include <functional>

#include "Decision.h"

/** One opening of a link: caught when it begins, for what comes of it later. */
class Opening
{
    Q_DECLARE_TR_FUNCTIONS(Opening)

public:
    /** Who hears what came of openings. */
    typedef std::function<void(const Decision& decision)> Listener;

    /** Of nothing, for containers only. */
    Opening() {}

    /** target is being opened now, an address or a path: for the current link (OpenedLink) and OpeningCause. */
    explicit Opening(const QString& target);

    /** The name of the link; empty where none is known. */
    QString link() const { return m_link; }

    /** It was handed to the desktop, or its program started. */
    void succeed() const;

    /** The user is asked first. */
    void wait() const;

    /** The user did not agree. */
    void decline() const;

    /** It is not opened, for a reason as showNotice() tells it. */
    void refuse(const QString& reason) const;

    /** It was opened, and failed for such a reason. */
    void fail(const QString& reason) const;

    /** Lets listener hear of all openings from now on; a null one ends it. */
    static void setListener(const Listener& listener);

private:
    void tell(const QString& outcome) const;

    QString m_link;
    QString m_target;
    QString m_cause;
};
