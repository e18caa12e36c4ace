// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QIcon>
#include <QObject>
#include <QPair>
#include <QPointer>
#include <QTimer>

class QAction;

/**
 * Gives links the icons of the programs that open them, as the desktop's theme has them. Looks for one at a time
 * between events, so that nothing waits for the disk; a theme without the icon gives a general one, or none.
 */
class LinkIcons : public QObject
{
    Q_OBJECT

public:
    /** Looks for nothing before start(). */
    LinkIcons();

    /** A link's action, and its address as it stands in the link. */
    using Link = QPair<QPointer<QAction>, QString>;

    /** Gives icons to the actions of links, and to no former ones any more. They stay their owner's. */
    void setLinks(const QList<Link>& links);

    /** Begins, which is best done when the window is on the screen. */
    void start();

private:
    void giveNext();
    QIcon iconOf(const QString& address);
    QIcon known(const QString& key, QIcon (*find)(const QString& key));

    QList<Link> m_links;           ///< those without their icon
    QHash<QString, QIcon> m_known; ///< by scheme, or by path
    QTimer m_idle;
    bool m_isStarted = false;
};
