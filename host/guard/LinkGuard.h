// SPDX-FileCopyrightText: 2026 The Vellum Connect authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

#include "LinkFile.h"
#include "LinkHistory.h"

/**
 * Stands by the file with the links, which the quick links' plug-in removes and writes anew at every change. Every good
 * state is kept, so that whatever happens to the file, the state before it can be put back. Knows nothing of plug-ins:
 * whoever owns the guard tells it when a plug-in is about to use the file, and takes links over when it says so.
 */
class LinkGuard : public QObject
{
    Q_OBJECT

public:
    /** What was found at the start, or went wrong later, and what was done about it. */
    struct Event {
        enum Kind {
            Nothing,     ///< all is well
            FirstStart,  ///< this user never had links
            PutBack,     ///< the file was no good; the newest good state is in its place
            Gone,        ///< the file was removed, as it seems on purpose; it can be brought back
            NothingKept, ///< the file is no good, and there is no state to put back
            Lost         ///< the file is no good, and the newest good state could not be put back
        };

        /** Why a save failed, as far as it can be seen. */
        enum Reason { Unknown, DiskFull, NotWritable };

        Kind kind = Nothing;
        Reason reason = Unknown;
        LinkFile::Condition condition = LinkFile::Good; ///< of the file as it was found
        QString setAside;                               ///< where the bad file lies now; empty when there is none
        QDateTime time;                                 ///< of the state put back, or that can be; UTC
        int links = 0;                                  ///< in that state
    };

    /** Guards the links below userFolder, an absolute path. Nothing is written before start(). */
    explicit LinkGuard(const QString& userFolder);

    /** Where the links lie. */
    QString file() const { return m_file; }

    /** The newest good state that the file was seen in; empty where there was none. */
    const QByteArray& current() const { return m_current; }

    /** The file as it is now. */
    LinkFile look() const;

    /** The states that the links were in. */
    const LinkHistory& history() const { return m_history; }

    /**
     * Looks at the file before any plug-in does. What is no good is set aside, never deleted, and the newest good state
     * is put in its place; likewise where the file is missing and wasInterrupted says that the run before did not end
     * by itself. Without a state to put back, a damaged file stays where it is, as its links before the damage can be
     * read, and a copy of it is set aside.
     */
    Event start(bool wasInterrupted);

    /**
     * Before any plug-in reads the file: lets it hold content, as the newest state, and keeps what it held before.
     * False when that could not be done; the file is as it was then.
     */
    bool startWith(const QByteArray& content);

    /** Lets the next start be the user's first one again, unless there are links to keep by then. */
    void repeatFirstStart() { m_isFirstStartRepeated = true; }

    /** Whether a plug-in may read the file: nothing that makes its reader wait is there. */
    bool isSafeToRead() const;

    /** Keeps the state that the file is in, and watches it from now on. */
    void watch();

    /** What a plug-in is about to do with the file. */
    enum Use { Reading, Saving };

    /**
     * A plug-in is about to use the file. Keeps the state that it is in where that is not done yet, and looks at what
     * became of it as soon as the plug-in is done: a save must have written the file anew.
     */
    void beforeUse(Use use);

    /**
     * At the end of the program: looks at the file once more, and tries again to put the links in place where that
     * could not be done before. False where it cannot be done now either; the next start must not take it for the
     * user's doing.
     */
    bool finish();

    /** Puts the links in place again that start() found to be Gone. False when it could not be done. */
    bool bringBack();

    /** Lets the file hold content, as the newest state. False when it could not be done; the file is as it was then. */
    bool goBackTo(const QByteArray& content);

Q_SIGNALS:
    /** The good state of the file became another one, whoever made it so. */
    void stateChanged(const QByteArray& from, const QByteArray& to);

    /** The plug-in saved its links, which made the state from into to; both are kept. */
    void saved(const QByteArray& from, const QByteArray& to);

    /** The plug-in's save failed. event says whether the state before is in place again. */
    void saveFailed(const LinkGuard::Event& event);

    /**
     * Another program changed the file from ours to theirs, which is good as well; both states are kept. Where isLost,
     * the plug-in has saved since, so that only the history has theirs.
     */
    void changedOutside(const QByteArray& theirs, const QByteArray& ours, bool isLost);

    /** Another program removed or damaged the file; event says what was done about it. */
    void damagedOutside(const LinkGuard::Event& event);

private Q_SLOTS:
    void answered();

private:
    void settle();
    void tellFailure(const LinkFile& file, bool isOwn);
    void tellChange(const QByteArray& content, const QByteArray& theirs, bool isOwn);
    void keepWatching();
    void take(const QByteArray& content);
    void keep(const QByteArray& content);
    Event withoutFile(bool wasInterrupted);
    Event withoutHistory(const LinkFile& file);
    Event repair(LinkFile::Condition condition, bool isSetAside);
    Event::Reason reasonOfFailure() const;
    bool putBack(const QByteArray& content);
    void keepLock() const;
    QString newNameAside() const;
    QString setAside() const;

    QString m_userFolder;
    QString m_file;
    LinkHistory m_history;
    QByteArray m_current; ///< the newest good state; empty for none
    QByteArray m_found;   ///< what start() found, if that is good
    QByteArray m_gone;    ///< what bringBack() puts in place
    QByteArray m_theirs;  ///< what the plug-in is writing over without knowing it
    FileStamp m_stamp;    ///< of the file when it was looked at last
    bool m_isFirstStartRepeated = false;
    bool m_isUsed = false;      ///< by a plug-in since then
    bool m_isSaved = false;     ///< and by a save
    bool m_hasAnswered = false; ///< and is done, but not looked at yet
    QFileSystemWatcher m_watcher;
    QTimer m_quiet;
    QTimer m_idle; ///< goes off when everything else has been done
};

Q_DECLARE_METATYPE(LinkGuard::Event)
