// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#include "LinkIcons.h"

#include <QAction>
#include <QFileInfo>
#include <QUrl>

#include "DesktopPrograms.h"
#include "InternetAddress.h"
#include "LinkPath.h"

namespace
{
/** The icon of this name in the theme, or in this file; a null one for none. */
QIcon iconNamed(const QString& name)
{
    return name.startsWith(QLatin1Char('/')) ? QIcon(QFileInfo::exists(name) ? name : QString())
                                             : QIcon::fromTheme(name);
}

/** The first of these that there is. */
QIcon firstOf(const QStringList& names)
{
    for (const QString& name : names) {
        QIcon icon = name.isEmpty() ? QIcon() : iconNamed(name);
        if (!icon.isNull())
            return icon;
    }
    return QIcon();
}

/** Of what opens addresses of a scheme, else the standard one for that (Icon Naming Specification). */
QIcon iconOfScheme(const QString& scheme)
{
    const bool isMail = scheme == QLatin1String("mailto");
    return firstOf({DesktopPrograms::iconOfScheme(scheme),
                    isMail ? QStringLiteral("internet-mail") : QStringLiteral("web-browser")});
}

/** By the path alone: a look at the file may have to wait for another computer. A desktop entry lies on this one. */
QIcon iconOfPath(const QString& path)
{
    const QString name = path.section(QLatin1Char('/'), -1);
    const QString general = name.isEmpty() ? QStringLiteral("folder") : QStringLiteral("application-x-executable");
    // A program's icon mostly has the program's name.
    return firstOf({name.endsWith(QLatin1String(".desktop")) ? DesktopPrograms::iconOfEntry(path) : name, general});
}
} // namespace

LinkIcons::LinkIcons()
{
    // Goes off when everything else has been done.
    connect(&m_idle, &QTimer::timeout, this, &LinkIcons::giveNext);
}

void LinkIcons::setLinks(const QList<Link>& links)
{
    m_links = links;
    if (m_isStarted && !m_links.isEmpty())
        m_idle.start(0);
}

void LinkIcons::start()
{
    m_isStarted = true;
    setLinks(m_links);
}

void LinkIcons::giveNext()
{
    if (m_links.size() <= 1)
        m_idle.stop();
    if (m_links.isEmpty())
        return;
    const Link link = m_links.takeFirst();
    if (!link.first)
        return;
    const QIcon icon = iconOf(link.second);
    if (!icon.isNull())
        link.first->setIcon(icon);
}

QIcon LinkIcons::iconOf(const QString& address)
{
    const QUrl typed(address);
    const QString path = LinkPath::isPath(typed) ? LinkPath::typed(typed) : QString();
    if (path.startsWith(QLatin1Char('/')))
        return known(path, &iconOfPath);
    const QUrl completed = InternetAddress::completed(address);
    const QString scheme = completed.isEmpty() ? typed.scheme() : completed.scheme();
    // What other plug-ins have in the menu has no address.
    return scheme.isEmpty() ? QIcon() : known(scheme, &iconOfScheme);
}

/** Once found, an icon is kept by this key. */
QIcon LinkIcons::known(const QString& key, QIcon (*find)(const QString& key))
{
    if (!m_known.contains(key))
        m_known.insert(key, find(key));
    return m_known.value(key);
}
