// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QFileSystemWatcher>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>

#include "LayerLink.h"

/**
 * Gives a user the links that the operator has for everybody on the computer, each once, by the rules of
 * docs/layer-rules.md. Remembers in a file what was given. Knows nothing of plug-ins, and leaves writing the user's
 * links to whoever keeps them.
 */
class LinkLayers : public QObject
{
    Q_OBJECT

public:
    /** Milliseconds: packages bring several files, and take the old ones away first. */
    static const int usualQuiet = 1000;

    /**
     * The layers lie in folders, see LayerFiles; what was given stands in record, see SeedRecord. Paths are absolute.
     * Layers that change are quiet after so many milliseconds without another change.
     */
    LinkLayers(const QStringList& folders, const QString& record, int quiet = usualQuiet);

    /** Lets the user's links be as in content; false when that cannot be done. */
    using Place = std::function<bool(const QByteArray& content)>;

    /** Whether there is nothing to bring, and nothing was brought: the user's links need not be read for it. */
    bool isIdle() const;

    /**
     * Brings the layers into the user's links, which are those of content, a good file, and have place put there what
     * comes of it. Whether that was done: nothing is where nothing changes. What is wrong with a layer is told once, in
     * the log category "vellum.layers".
     */
    bool seed(const QByteArray& content, const Place& place);

    /** The user was never given anything: a record that says otherwise is of no use, since the links are gone. */
    void forget();

    /** Tells from now on when layers change. */
    void watch();

    /** At the end of the program: notes what was given where that could not be done before. */
    void finish();

Q_SIGNALS:
    /** Layers changed, and are quiet. */
    void changed();

private:
    void read();
    void remember(const QList<GivenLink>& given);
    void tellUnreadable(const QStringList& names);
    void keepWatching();

    QStringList m_folders;
    QString m_record;
    QList<GivenLink> m_given;
    QStringList m_files;      ///< the layers that were there when they were read last
    QStringList m_toldBroken; ///< names of layers
    bool m_isRead = false;    ///< m_given is what the record says, or more
    bool m_isNoted = true;    ///< the record says m_given
    bool m_isWatching = false;
    QFileSystemWatcher m_watcher;
    QTimer m_quiet;
};
